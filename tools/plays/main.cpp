// Writes the sample plays into a folder: zeltrona-plays FOLDER
#include "tools/plays/playbook.h"
#include "tools/plays/write_play.h"

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("zeltrona-plays FOLDER\n", stderr);
        return 2;
    }
    for (const auto& play : zeltrona::plays::playbook()) {
        std::string reason = zeltrona::plays::faultOf(play);
        if (reason.empty()) {
            reason = zeltrona::plays::writePlay(play, argv[1]).reason;
        }
        if (!reason.empty()) {
            std::fprintf(stderr, "%s: %s\n", play.file.c_str(), reason.c_str());
            return 1;
        }
    }
    return 0;
}
