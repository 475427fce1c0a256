#include "animation/prepare_step.h"
#include "animation/step_players.h"
#include "animation/transport.h"
#include "document/frame_store.h"

#include <array>
#include <charconv>
#include <limits>

namespace zeltrona::animation {

namespace {

constexpr std::int32_t kLastTick = 32200;

/// "frame/last" without a heap: the longest, "-32768/-32768", fits.
class CounterText {
public:
    CounterText(std::int16_t frame, std::int16_t last) {
        char* end = std::to_chars(m_text.data(), m_text.data() + m_text.size(), frame).ptr;
        *end++ = '/';
        end = std::to_chars(end, m_text.data() + m_text.size(), last).ptr;
        m_length = static_cast<std::size_t>(end - m_text.data());
    }
    std::string_view view() const { return {m_text.data(), m_length}; }

private:
    std::array<char, 16> m_text{};
    std::size_t m_length = 0;
};

void showCounter(Transport& transport, std::int16_t frame) {
    const CounterText text(frame, transport.set.animLastFrame);
    transport.host.showCounter(text.view());
    if (transport.session.fullScreenOpen) {
        transport.host.updateFrameCurr(text.view());
    }
}

enum class AfterEnd { GoOn, EndTick };

/// The end of the play: silence, or the next round at once.
AfterEnd endPlayback(Transport& transport) {
    transport.timer.setEnabled(false);
    transport.set.animTick = 0;
    if (!transport.session.animLoop) {
        return AfterEnd::GoOn;
    }
    cmdAnimPlay_Click(transport);
    return AfterEnd::EndTick;
}

void countTick(PlaybackSet& set) {
    ++set.animTick;
    if (set.animTick > kLastTick) {
        set.animTick = 1;
    }
}

bool stepIsOver(const PlaybackSet& set) {
    return set.animDefDone && set.animOffDone && set.animBallDone;
}

/// From a step that is over to the next one, the closing step, or the end.
RunTimeError changeFrame(Transport& transport) {
    PlaybackSet& set = transport.set;
    set.animOffDone = set.animDefDone = set.animBallDone = false;
    if (set.animFrame == std::numeric_limits<std::int16_t>::max()) {
        return kOverflow;
    }
    ++set.animFrame;
    set.animTick = 0;
    showCounter(transport, set.animFrame);
    if (set.animFrame == set.animLastFrame && readClosingPaths(set, transport.play)) {
        prepareLastFrameStep(set, transport.play);
        return kNoError;
    }
    if (set.animFrame >= set.animLastFrame) {
        showCounter(transport, set.animLastFrame);
        if (endPlayback(transport) == AfterEnd::EndTick) {
            return kNoError;
        }
    }
    prepareAnimationStep(set, transport.play, transport.frame.triangles, transport.timer);
    return kNoError;
}

RunTimeError moveOn(Transport& transport) {
    PlaybackSet& set = transport.set;
    countTick(set);
    if (const RunTimeError error = stepPlayers(set); error.failed()) {
        return error;
    }
    transport.host.drawAnimationStep();
    if (transport.session.fullScreenOpen) {
        transport.host.updatePic();
    }
    return stepIsOver(set) ? changeFrame(transport) : kNoError;
}

/// The step has put its triangles on the board; all other records are still those of the shown frame.
void giveUp(Transport& transport, const RunTimeError& error) {
    transport.timer.setEnabled(false);
    document::readTriangles(transport.play, transport.session.currFrame, transport.frame.triangles);
    transport.host.redrawBoard();
    transport.host.showRunTimeError(error);
}

} // namespace

void Timer1_Timer(Transport& transport) {
    PlaybackSet& set = transport.set;
    showCounter(transport, set.animFrame);
    if (set.animFrame > set.animLastFrame && endPlayback(transport) == AfterEnd::EndTick) {
        return;
    }
    if (const RunTimeError error = moveOn(transport); error.failed()) {
        giveUp(transport, error);
    }
}

} // namespace zeltrona::animation
