#include "tools/zpf/desk_command.h"

#include "render/board_art.h"
#include "tools/zpf/progress_line.h"

#include <QFile>

namespace zeltrona::zpf {

ExitCode forEachDesk(const CommandForm& form, const Arguments& arguments, Streams streams,
                     OutputTarget& target,
                     const std::function<std::string(PlayDesk& desk, const QString& play)>& work) {
    const render::BoardArt art = render::loadBoardArt();
    ProgressLine progress(streams);
    return forEachPlay(form, arguments, streams, [&](const std::string& path) -> std::string {
        const QString play = QFile::decodeName(path.c_str());
        PlayDesk desk(path, art);
        if (desk.frames() < 1) {
            return "holds no frame";
        }
        std::string reason = target.claim(play);
        if (reason.empty()) {
            desk.walk().progress = [&](int frame, int frames) { progress.show(path, frame, frames); };
            reason = work(desk, play);
            progress.clear();
        }
        return reason;
    });
}

} // namespace zeltrona::zpf
