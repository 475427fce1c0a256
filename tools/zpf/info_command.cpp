#include "document/play_file.h"
#include "tools/zpf/commands.h"
#include "tools/zpf/json_list.h"
#include "tools/zpf/play_info.h"
#include "tools/zpf/printable.h"

#include <array>
#include <ostream>

namespace zeltrona::zpf {
namespace {

constexpr std::array kOptions{OptionForm{'j', "json", "", "one JSON array with an object for each play"}};
constexpr CommandForm kForm{"info", "PLAY...", "Tell title, court, teams and what stands in each frame",
                            kOptions};

ExitCode run(const Arguments& arguments, Streams streams) {
    const bool asJson = arguments.has("json");
    JsonList list(streams.out, asJson);
    return forEachPlay(kForm, arguments, streams, [&](const std::string& path) -> std::string {
        const document::PlayFile play(path);
        const PlayInfo info = readPlayInfo(play);
        if (info.frames.empty()) {
            return "holds no frame";
        }
        if (asJson) {
            list.add(infoAsJson(path, info));
        } else {
            streams.out << printable(infoAsText(path, info));
        }
        return {};
    });
}

} // namespace

Command infoCommand() {
    return {kForm, run};
}

} // namespace zeltrona::zpf
