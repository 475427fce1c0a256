#include "tools/zpf/check/structure_check.h"

#include "document/frame_keys.h"
#include "document/frame_store.h"
#include "document/name_match.h"
#include "tools/zpf/check/key_shape.h"

#include <string>

namespace zeltrona::zpf {
namespace {

Finding ofSection(FindingKind kind, const ListedSection& section, std::size_t line, std::string text) {
    return {kind, line, std::string(section.name), {}, std::move(text)};
}

void checkAhead(const PlayListing& listing, std::vector<Finding>& findings) {
    for (const ListedKey& key : listing.keysAhead) {
        if (!key.name.empty()) { // the rule of the file's head, "=====", is one without a name
            findings.push_back({FindingKind::OutsideSection,
                                key.line,
                                {},
                                std::string(key.name),
                                "stands ahead of the first section, where nothing is read"});
        }
    }
}

void checkWithin(const ListedSection& section, std::vector<Finding>& findings) {
    for (const ListedKey& key : section.keys) {
        if (key.repeated) {
            findings.push_back({FindingKind::RepeatedKey, key.line, std::string(section.name),
                                std::string(key.name), "only the first key of this name is read"});
        }
    }
    for (const std::size_t line : section.strayLines) {
        findings.push_back(
            ofSection(FindingKind::NoKey, section, line, "this line is no key, and is not read"));
    }
}

void checkMark(const document::PlayFile& play, const ListedSection& section, int number, std::int16_t frames,
               std::vector<Finding>& findings) {
    const auto frame = static_cast<std::int16_t>(number);
    const std::int32_t stored = play.readInt(section.name, "frame", 0);
    const std::string mark = "frame=" + std::to_string(number);
    if (!document::frameExists(play, frame)) {
        findings.push_back(ofSection(FindingKind::NoMark, section, section.line,
                                     "without " + mark + " this does not count as a frame"));
    } else if (number > frames) {
        findings.push_back(ofSection(FindingKind::Gap, section, section.line,
                                     "out of reach: the numbering ends at " + std::to_string(frames)));
    } else if (stored != number) {
        const ListedKey* key = section.find("frame");
        findings.push_back({FindingKind::WrongNumber, key != nullptr ? key->line : section.line,
                            std::string(section.name), "frame",
                            "tells " + std::to_string(stored) + " instead of " + std::to_string(number)});
    }
}

} // namespace

void checkStructure(const PlayListing& listing, std::vector<Finding>& findings) {
    checkAhead(listing, findings);
    for (const ListedSection& section : listing.sections) {
        const bool known =
            document::sameName(section.name, document::kConfigSection) || frameNumberOf(section.name);
        if (!known) {
            findings.push_back(
                ofSection(FindingKind::UnknownSection, section, section.line, "no such section is read"));
        } else if (section.repeated) {
            findings.push_back(ofSection(FindingKind::RepeatedSection, section, section.line,
                                         "only the first section of this name is read"));
        } else {
            checkWithin(section, findings);
        }
    }
}

void checkNumbering(const document::PlayFile& play, const PlayListing& listing, std::int16_t frames,
                    std::vector<Finding>& findings) {
    if (frames == 0) {
        findings.push_back(
            {FindingKind::NoFrame, 0, {}, {}, "there is no frame 1, so this shows as an empty play"});
    }
    for (const ListedSection& section : listing.sections) {
        const auto number = frameNumberOf(section.name);
        if (number && !section.repeated) {
            checkMark(play, section, *number, frames, findings);
        }
    }
}

} // namespace zeltrona::zpf
