#pragma once

#include "animation/transport.h"
#include "tests/document/temporary_play.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace zeltrona::animation::test {

/// A clock that a test turns by hand.
class HandClock : public AnimTimer {
public:
    int starts = 0;
    int stops = 0;

protected:
    void startTicks() override { ++starts; }
    void stopTicks() override { ++stops; }
};

/// Writes down what the transport asks for, and answers like a window.
class RecordingHost : public TransportHost {
public:
    std::vector<std::string> calls;
    std::string speed = "3";
    std::string counter;
    std::function<void()> onDraw;
    std::function<void()> onSpeedChange;
    RunTimeError error;

    void showCounter(std::string_view caption) override {
        counter = caption;
        calls.push_back("counter " + std::string(caption));
    }
    void drawAnimationStep() override {
        calls.emplace_back("draw");
        if (onDraw) {
            onDraw();
        }
    }
    void updateFrameCurr(std::string_view caption) override {
        calls.push_back("full screen counter " + std::string(caption));
    }
    void updatePic() override { calls.emplace_back("full screen picture"); }
    void cmdSeqNoDown_Click() override { calls.emplace_back("sequence down"); }
    std::string speedText() const override { return speed; }
    void setSpeedText(std::string_view text) override {
        const bool changes = speed != text;
        speed = text;
        if (changes && onSpeedChange) {
            onSpeedChange();
        }
    }
    void redrawBoard() override { calls.emplace_back("redraw"); }
    void showRunTimeError(const RunTimeError& failure) override {
        calls.emplace_back("error box");
        error = failure;
    }
};

/// A transport on a play of its own, with a hand-turned clock.
struct TransportBench {
    explicit TransportBench(std::string_view playLines) : play(playLines) {
        clock.setInterval(50);
        host.onSpeedChange = [this] { txtAnimSpeed_Change(transport); };
    }

    tests::TemporaryPlay play;
    PlaybackSet set;
    document::Session session;
    document::FrameRecords frame;
    HandClock clock;
    RecordingHost host;
    Transport transport{set, session, frame, play.file, clock, host};

    void tick() { Timer1_Timer(transport); }
    /// Ticks as long as the clock runs; the number of ticks.
    int run(int limit = 100000) {
        int ticks = 0;
        while (clock.runs() && ticks < limit) {
            tick();
            ++ticks;
        }
        return ticks;
    }
};

/// Labels of a play with `offence` and `defence` players a side, as section Config.
inline std::string configOf(int offence, int defence) {
    std::string text = "[Config]\n";
    for (int i = 0; i < offence; ++i) {
        text += "txtoff" + std::to_string(i) + "=" + std::to_string(i + 4) + "\n";
    }
    for (int i = 0; i < defence; ++i) {
        text += "txtdef" + std::to_string(i) + "=D" + std::to_string(i + 4) + "\n";
    }
    return text;
}

/// The head of a frame's section.
inline std::string frameHead(int n) {
    return "[Frame" + std::to_string(n) + "]\nframe=" + std::to_string(n) + "\n";
}

/// Three frames: one attacker goes 30 right, then 60 down; nothing else stands on the board.
inline std::string threeFrames() {
    return configOf(1, 0) + frameHead(1) + "off0=10,10\n" + frameHead(2) + "off0=40,10\n" + frameHead(3)
           + "off0=40,70\n";
}

} // namespace zeltrona::animation::test
