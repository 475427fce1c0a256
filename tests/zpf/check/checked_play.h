#pragma once

#include "tests/document/temporary_play.h"
#include "tools/zpf/check/check_play.h"

#include <gmock/gmock.h>
#include <string>
#include <string_view>
#include <vector>

namespace zeltrona::zpf {

/// "kind [Section] key line", as short as a test wants to read it.
inline std::string shortOf(const Finding& finding) {
    std::string text(findingName(finding.kind));
    text += finding.section.empty() ? "" : " [" + finding.section + "]";
    text += finding.key.empty() ? "" : " " + finding.key;
    return text + " " + std::to_string(finding.line);
}

/// The findings of a play of these lines.
inline std::vector<Finding> findingsOf(std::string_view lines) {
    const tests::TemporaryPlay play(lines);
    return checkPlay(play.file).findings;
}

inline std::vector<std::string> shortFindingsOf(std::string_view lines) {
    std::vector<std::string> texts;
    for (const Finding& finding : findingsOf(lines)) {
        texts.push_back(shortOf(finding));
    }
    return texts;
}

/// A clean play of one frame; further lines go into Config, into Frame1 and behind it.
inline std::string playWith(std::string_view config, std::string_view frame, std::string_view behind = {}) {
    return "[Config]\ncourt=1\ntxtOff0=4\ntxtOff1=7\n" + std::string(config)
           + "[Frame1]\nframe=1\noff0=10,20\noff1=30,40\n" + std::string(frame) + std::string(behind);
}

} // namespace zeltrona::zpf
