#include "tests/fault/play_acts.h"

#include "document/frame_records.h"
#include "document/frame_store.h"
#include "document/object_removal.h"
#include "document/sequence.h"
#include "document/session.h"
#include "document/user_texts.h"

using namespace zeltrona::document;

namespace zeltrona::tests {
namespace {

constexpr int kMostFrames = 8;
constexpr int kKinds = 6;

WriteResult saveChanged(PlayFile& play, PlayAct& act) {
    for (PlayerRec& player : act.records.offPlayers) {
        player.x = static_cast<float>((act.number * 7) % 300);
    }
    act.records.balls.push_back({static_cast<float>(act.number % 300), 92.5F});
    act.records.lines.push_back(
        {4, 255, false, {{10.0F, static_cast<float>(act.number % 200)}, {40.5F, 60.25F}}});
    return saveFrame(play, act.session, act.records, act.session.currFrame, false);
}

} // namespace

std::string firstPlay() {
    std::string play =
        "  Zeltrona  \r\n\r\n[Config]\r\ncolorOff=255\r\nline=2\r\nfont=Arial,238,\r\ncourt=1\r\n";
    for (int slot = 0; slot < 5; ++slot) {
        play += "txtOff" + std::to_string(slot) + "=" + std::to_string(slot + 4) + "\r\n";
        play += "txtDef" + std::to_string(slot) + "=" + std::to_string(slot + 4) + "\r\n";
    }
    for (int frame = 1; frame <= 3; ++frame) {
        play += "Notes" + std::to_string(frame) + "=Note of " + std::to_string(frame) + "\r\n";
    }
    for (int frame = 1; frame <= 3; ++frame) {
        play += "[Frame" + std::to_string(frame) + "]\r\nframe=" + std::to_string(frame) + "\r\n";
        for (int slot = 0; slot < 5; ++slot) {
            play += "off" + std::to_string(slot) + "=" + std::to_string(slot * 40) + ",20\r\n";
            play += "def" + std::to_string(slot) + "=" + std::to_string(slot * 40) + ",80\r\n";
        }
    }
    return play;
}

PlayAct prepareAct(const PlayFile& play, int number) {
    PlayAct act;
    act.number = number;
    act.count = countFrames(play);
    loadConfig(play, act.session, act.records);
    act.session.currFrame = static_cast<std::int16_t>(1 + number % act.count);
    if (number % kKinds == 1) { // never the first frame, which cannot go
        act.session.currFrame = static_cast<std::int16_t>(2 + number % (act.count - 1));
    }
    loadFrame(play, act.session, act.records, act.session.currFrame);
    return act;
}

WriteResult performAct(PlayFile& play, PlayAct& act, const std::string& programFolder) {
    const std::string number = std::to_string(act.number);
    switch (act.number % kKinds) {
    case 0:
        return act.count < kMostFrames ? makeNewFrame(play, act.session, act.records)
                                       : saveChanged(play, act);
    case 1:
        return act.count > 3 ? deleteShownFrame(play, act.session, act.records, programFolder)
                             : saveChanged(play, act);
    case 2:
        return writeNote(play, act.session.currFrame, "note of act " + number);
    case 3:
        return removeObject(play, act.session, act.records, ObjectClass::Ball, 0);
    case 4:
        return writeTitle(play, "Act " + number, "First\r\nSecond");
    default:
        return saveChanged(play, act);
    }
}

WriteResult doAct(PlayFile& play, int number, const std::string& programFolder) {
    PlayAct act = prepareAct(play, number);
    return performAct(play, act, programFolder);
}

} // namespace zeltrona::tests
