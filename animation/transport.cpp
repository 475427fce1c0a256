#include "animation/transport.h"

#include "animation/anim_speed.h"
#include "animation/prepare_step.h"
#include "document/frame_store.h"

namespace zeltrona::animation {

namespace {

void prepare(Transport& transport) {
    prepareAnimationStep(transport.set, transport.play, transport.frame.triangles, transport.timer);
}

void countPlay(Transport& transport) {
    transport.set.animLastFrame = document::countFrames(transport.play);
}

} // namespace

void cmdAnimPlay_Click(Transport& transport) {
    countPlay(transport);
    transport.set.animFrame = 1;
    applyAnimSpeed(transport);
    transport.timer.setEnabled(true);
    prepare(transport);
}

void cmdAnimPause_Click(Transport& transport) {
    transport.timer.setEnabled(!transport.timer.enabled());
}

void cmdAnimStop_Click(Transport& transport) {
    transport.timer.setEnabled(false);
    transport.set.animFrame = 1;
    // One step down from here lands on frame 1, whichever frame the board shows.
    transport.session.currFrame = 2;
    transport.host.cmdSeqNoDown_Click();
}

void cmdAnimFirst_Click(Transport& transport) {
    transport.set.animFrame = 1;
    countPlay(transport);
    prepare(transport);
    transport.timer.setEnabled(true);
}

void cmdAnimPrev_Click(Transport& transport) {
    PlaybackSet& set = transport.set;
    set.animFrame = static_cast<std::int16_t>(set.animFrame > 1 ? set.animFrame - 1 : 1);
    countPlay(transport);
    prepare(transport);
    transport.timer.setEnabled(true);
}

void cmdAnimNext_Click(Transport& transport) {
    PlaybackSet& set = transport.set;
    countPlay(transport);
    set.animFrame = set.animFrame + 1 >= set.animLastFrame ? set.animLastFrame
                                                           : static_cast<std::int16_t>(set.animFrame + 1);
    // Timer first: on the last frame the preparation turns it off again.
    transport.timer.setEnabled(true);
    prepare(transport);
}

void cmdAnimLast_Click(Transport& transport) {
    countPlay(transport);
    transport.set.animFrame = static_cast<std::int16_t>(transport.set.animLastFrame - 1);
    prepare(transport);
    transport.timer.setEnabled(true);
}

void cmdAnimUp_Click(Transport& transport) {
    transport.host.setSpeedText(speedTextUp(transport.host.speedText()));
    applyAnimSpeed(transport);
}

void cmdAnimDown_Click(Transport& transport) {
    transport.host.setSpeedText(speedTextDown(transport.host.speedText()));
    applyAnimSpeed(transport);
}

void animCheckLoop_Click(Transport& transport) {
    transport.session.animLoop = !transport.session.animLoop;
}

void txtAnimSpeed_Change(Transport& transport) {
    const std::string text = transport.host.speedText();
    if (const std::string kept = keptSpeedText(text); kept != text) {
        transport.host.setSpeedText(kept);
    }
    applyAnimSpeed(transport);
}

void applyAnimSpeed(Transport& transport) {
    transport.timer.setInterval(animIntervalOf(transport.host.speedText()));
}

} // namespace zeltrona::animation
