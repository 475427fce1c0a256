#include "dialogs/play_font.h"

#include "document/code_page.h"
#include "document/frame_store.h"
#include "platform/message_box.h"

#include <QWidget>

namespace zeltrona::dialogs {

PlayFont readPlayFont(QWidget* window, const document::PlayFile& play) {
    std::string name = "Arial";
    std::int16_t charset = 238;
    if (const auto error = document::readFontConfig(play, name, charset)) {
        platform::showTrappedError(window, error->number, QString::fromStdString(error->description));
    }
    return {QString::fromStdString(document::toUtf8(name, charset)), charset};
}

void keepPlayFont(document::PlayFile& play, document::Session& session, const platform::FontChoice& choice) {
    session.fontCharset = choice.charset;
    const std::string name = choice.name.isEmpty() ? "Arial" : choice.name.toStdString();
    document::writeFontConfig(play, document::fromUtf8(name, choice.charset).bytes, choice.charset);
}

void showFontOn(QWidget& box, const QString& name) {
    QFont font = box.font();
    font.setFamily(name);
    box.setFont(font);
}

void cmdFont_Click(QWidget* window, document::PlayFile& play, document::Session& session,
                   const std::function<void(const PlayFont&)>& put) {
    const PlayFont now = readPlayFont(window, play);
    platform::showMessage(window,
                          QStringLiteral("Deafult character set is Central European,if you need another "
                                         "then select it from list with name: Script."));
    const platform::FontChoice choice =
        platform::chooseFontDialog(window, now.name, static_cast<std::uint8_t>(now.charset), false, 120);
    if (choice.cancelled) {
        return;
    }
    keepPlayFont(play, session, choice);
    put({choice.name, choice.charset});
}

} // namespace zeltrona::dialogs
