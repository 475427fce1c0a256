#include "document/play_file.h"
#include "tools/zpf/check/check_text.h"
#include "tools/zpf/commands.h"
#include "tools/zpf/json_list.h"
#include "tools/zpf/play_facts.h"
#include "tools/zpf/printable.h"

#include <array>
#include <ostream>

namespace zeltrona::zpf {
namespace {

constexpr std::array kOptions{
    OptionForm{'j', "json", "", "one JSON array with an object for each play"},
    OptionForm{'q', "quiet", "", "print nothing; the exit status tells"},
};
constexpr CommandForm kForm{
    "check", "PLAY...",
    "Tell everything that would be lost, cut or ignored at load\n"
    "Prints a line for each finding: PLAY:LINE: [SECTION] KEY: what is wrong (its kind).\n"
    "Exit status: 0 nothing found, 1 something found, 3 a play could not be read.",
    kOptions};

ExitCode run(const Arguments& arguments, Streams streams) {
    const bool asJson = arguments.has("json") && !arguments.has("quiet");
    ExitCode found = ExitCode::Done;
    JsonList list(streams.out, asJson);
    const ExitCode read = forEachPlay(kForm, arguments, streams, [&](const std::string& path) -> std::string {
        const document::PlayFile play(path);
        const CheckResult result = checkPlay(play);
        found = result.findings.empty() ? found : ExitCode::Found;
        if (asJson) {
            list.add(checkAsJson(path, result, charsetOf(play)));
        } else if (!arguments.has("quiet")) {
            streams.out << printable(checkAsText(path, result, charsetOf(play)));
        }
        return {};
    });
    return worse(found, read);
}

} // namespace

Command checkCommand() {
    return {kForm, run};
}

} // namespace zeltrona::zpf
