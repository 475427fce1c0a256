// A play from anywhere is drawn whole, with its lines, its recorded points and a line under construction:
// nothing reaches beyond the board's image, the drawing leaves the play as it is, and the same play gives the
// same picture again.
//
// Input: two bytes for the pointer, then the bytes of the play.

#include "assets/resources.h"
#include "document/frame_store.h"
#include "fuzz/check.h"
#include "platform/program_fonts.h"
#include "render/redraw.h"

#include <QGuiApplication>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

using namespace zeltrona;

namespace {

/// The toolkit, once for the process and to its very end: its own globals go before ours would.
const render::BoardArt& startToolkit() {
    static int argumentCount = 1;
    static char name[] = "redraw";
    static char* arguments[] = {name, nullptr};
    static const QGuiApplication* application = nullptr;
    static const render::BoardArt* art = nullptr;
    if (application == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application = new QGuiApplication(argumentCount, arguments);
        assets::initResources();
        platform::useProgramFonts();
        art = new render::BoardArt(render::loadBoardArt());
    }
    return *art;
}

QImage drawn(const document::PlayFile& play, const render::BoardArt& art, float x, float y) {
    document::Session session;
    document::FrameRecords records;
    document::loadConfig(play, session, records);
    std::string face;
    document::readFontConfig(play, face, session.fontCharset);
    document::loadFrame(play, session, records, 1);
    session.showCurves = -1;
    const QSize size = render::boardSizeOf(session.court);
    render::BoardSurface pic(size.width(), size.height());
    render::Board board{pic, art};
    const auto last = static_cast<std::int16_t>(records.lines.size() - 1);
    render::redrawBoard(board, {session, records, last}, x, y);
    return pic.image().copy();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2 || size > 200000) {
        return 0;
    }
    const render::BoardArt& art = startToolkit();
    const std::string path = (std::filesystem::temp_directory_path() / "zeltrona-fuzz-redraw.zpf").string();
    document::PlayFile play(path);
    const document::WriteBatch neverCommitted(play);
    const std::string bytes(reinterpret_cast<const char*>(data) + 2, size - 2);
    play.replaceAll(bytes);
    const float x = static_cast<float>(data[0]) * 4 - 200;
    const float y = static_cast<float>(data[1]) * 4 - 200;
    const QImage first = drawn(play, art, x, y);
    FUZZ_CHECK(first.width() == 363 || first.width() == 532);
    FUZZ_CHECK(first == drawn(play, art, x, y));
    FUZZ_CHECK(play.bytes() == bytes);
    return 0;
}
