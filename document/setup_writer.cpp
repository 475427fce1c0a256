#include "document/setup_writer.h"

#include "document/frame_store.h"
#include "document/user_texts.h"

#include <string_view>

namespace zeltrona::document {

namespace {

constexpr int kFirstX = 10;
constexpr int kFirstBodyX = 0;
constexpr int kStepX = 30;
constexpr int kOffY = 10;
constexpr int kDefY = 40;

/// What differs between the sides; `tail` is that of the keys: "Off" or "Def".
struct SideKeys {
    std::string_view slot;
    std::string tail;
    int y = 0;
};

void writeConfig(PlayFile& play, std::string_view key, std::int32_t value) {
    play.writeString(kConfigSection, key, std::to_string(value));
}

void writeCommonKeys(PlayFile& play, const TeamSetup& setup) {
    writeConfig(play, "colorOff", setup.colorOff);
    writeConfig(play, "colorDef", setup.colorDef);
    writeConfig(play, "colorOffFont", setup.colorOffFont);
    writeConfig(play, "colorDefFont", setup.colorDefFont);
    writeConfig(play, "colorLine", setup.colorLine);
    writeConfig(play, "line", setup.lineWidth);
    writeFontConfig(play, "Arial", 238);
    if (setup.bodies) {
        writeConfig(play, "bodyType", 1);
    }
    play.writeString(frameSection(1), "frame", "1");
}

void deleteSlots(PlayFile& play, const SideKeys& side) {
    const std::string frame = frameSection(1);
    for (std::size_t slot = 0; slot < kSlotCount; ++slot) {
        play.deleteKey(frame, indexedKey(side.slot, slot));
        play.deleteKey(frame, indexedKey("angle" + side.tail, slot));
        play.deleteKey(frame, indexedKey("body" + side.tail, slot));
        play.deleteKey(kConfigSection, indexedKey("txt" + side.tail, slot));
        play.deleteKey(kConfigSection, indexedKey("skin" + side.tail, slot));
    }
}

void writeSlots(PlayFile& play, const SideKeys& side, const std::array<PlayerSetup, kSlotCount>& players,
                bool bodies) {
    const std::string frame = frameSection(1);
    int x = bodies ? kFirstBodyX : kFirstX;
    std::size_t slot = 0;
    for (const PlayerSetup& player : players) {
        if (!player.chosen) {
            continue;
        }
        play.writeString(frame, indexedKey(side.slot, slot),
                         std::to_string(x) + "," + std::to_string(side.y));
        play.writeText(kConfigSection, indexedKey("txt" + side.tail, slot), player.label);
        play.writeString(kConfigSection, indexedKey("skin" + side.tail, slot), std::to_string(player.skin));
        play.writeString(frame, indexedKey("angle" + side.tail, slot), "90");
        play.writeString(frame, indexedKey("body" + side.tail, slot), "0");
        x += kStepX;
        ++slot;
    }
}

} // namespace

WriteResult writeTeamConfig(PlayFile& play, const TeamSetup& setup) {
    const SideKeys offence{"off", "Off", kOffY};
    const SideKeys defence{"def", "Def", kDefY};
    WriteBatch batch(play);
    writeCommonKeys(play, setup);
    deleteSlots(play, offence);
    writeSlots(play, offence, setup.off, setup.bodies);
    deleteSlots(play, defence);
    writeSlots(play, defence, setup.def, setup.bodies);
    return batch.commit();
}

WriteResult writeCourtConfig(PlayFile& play, const CourtSetup& setup) {
    WriteBatch batch(play);
    writeConfig(play, "court", setup.court);
    writeConfig(play, "courtColor", setup.courtColor);
    writeConfig(play, "courtTexture", setup.texture ? 1 : 0);
    writeConfig(play, "useTexture", setup.whiteLines ? 1 : 0);
    if (!setup.titleEdited) {
        writeTitle(play, "", "");
    }
    return batch.commit();
}

} // namespace zeltrona::document
