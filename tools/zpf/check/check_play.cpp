#include "tools/zpf/check/check_play.h"

#include "document/frame_keys.h"
#include "document/frame_store.h"
#include "tools/zpf/check/check_desk.h"
#include "tools/zpf/check/config_check.h"
#include "tools/zpf/check/frame_check.h"
#include "tools/zpf/check/key_shape.h"
#include "tools/zpf/check/play_listing.h"
#include "tools/zpf/check/structure_check.h"
#include "tools/zpf/play_facts.h"

#include <algorithm>
#include <string>

namespace zeltrona::zpf {
namespace {

/// Slots that hold a place in some section of a frame, reachable or not.
UsedSlots usedSlots(const PlayListing& listing) {
    UsedSlots used;
    for (const ListedSection& section : listing.sections) {
        if (section.repeated || !frameNumberOf(section.name)) {
            continue;
        }
        for (const ListedKey& key : section.keys) {
            if (const auto shape = frameKeyOf(key.name); shape && shape->kind == FrameKeyKind::Slot) {
                (shape->name == "off" ? used.off : used.def)[static_cast<std::size_t>(shape->index)] = true;
            }
        }
    }
    return used;
}

} // namespace

CheckResult checkPlay(const document::PlayFile& play) {
    const document::ReadScope scope(play);
    const std::string bytes = play.bytes();
    const PlayListing listing = listPlay(bytes);
    const std::int16_t charset = charsetOf(play);
    CheckResult result{reachableFrames(play), {}};
    checkStructure(listing, result.findings);
    checkNumbering(play, listing, result.frames, result.findings);
    if (const ListedSection* config = listing.find(document::kConfigSection)) {
        checkConfig({play, *config, charset, result.findings}, result.frames, usedSlots(listing));
    }
    TeamSizes sizes;
    for (std::int32_t frame = 1; frame <= result.frames; ++frame) {
        const auto number = static_cast<std::int16_t>(frame);
        if (const ListedSection* section = listing.find(document::frameSection(number))) {
            checkFrame({play, *section, charset, result.findings}, number, sizes);
        }
    }
    std::stable_sort(result.findings.begin(), result.findings.end(),
                     [](const Finding& a, const Finding& b) { return a.line < b.line; });
    return result;
}

} // namespace zeltrona::zpf
