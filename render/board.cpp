#include "render/board.h"

#include "document/code_page.h"

namespace zeltrona::render {

QString decodeText(const std::string& bytes, std::int16_t charset) {
    return QString::fromStdString(document::toUtf8(bytes, charset));
}

} // namespace zeltrona::render
