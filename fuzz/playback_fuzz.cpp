// A play from anywhere, played by any row of clicks: the working set keeps its shapes, the tick counter its
// range, an error stops the clock, and no act changes a byte of the play.
//
// Input: letters, one to an act (see `act`), up to the byte 0x1E; then the bytes of the play.

#include "animation/transport.h"
#include "fuzz/check.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

using namespace zeltrona;
using namespace zeltrona::animation;

namespace {

constexpr char kPlayBegins = '\x1E';
constexpr std::size_t kMostActs = 24;
constexpr int kManyTicks = 150;

class Clock : public AnimTimer {
protected:
    void startTicks() override {}
    void stopTicks() override {}
};

class Host : public TransportHost {
public:
    std::string speed = "3";
    bool failed = false;

    void showCounter(std::string_view caption) override {
        FUZZ_CHECK(caption.size() <= 13 && caption.find('/') != std::string_view::npos);
    }
    void drawAnimationStep() override {}
    void updateFrameCurr(std::string_view) override {}
    void updatePic() override {}
    void cmdSeqNoDown_Click() override {}
    std::string speedText() const override { return speed; }
    void setSpeedText(std::string_view text) override { speed = text; }
    void redrawBoard() override {}
    void showRunTimeError(const RunTimeError& error) override { failed = error.failed(); }
};

void checkShapes(const PlaybackSet& set) {
    for (const auto& [start, cur] :
         {std::pair(&set.offAnimStart, &set.offAnimCur), std::pair(&set.defAnimStart, &set.defAnimCur),
          std::pair(&set.ballAnimStart, &set.ballAnimCur)}) {
        FUZZ_CHECK(!start->empty() && start->size() == cur->size());
    }
    FUZZ_CHECK(set.ballAnimStart.size() <= set.ballAnimEnd.size());
    for (const auto* paths : {&set.offAnimPaths, &set.defAnimPaths, &set.ballAnimPaths}) {
        FUZZ_CHECK(!paths->empty());
    }
    FUZZ_CHECK(set.animTick >= 0 && set.animTick <= 32200);
}

void tick(Transport& transport, Host& host, int count) {
    for (int i = 0; i < count && transport.timer.runs(); ++i) {
        host.failed = false;
        Timer1_Timer(transport);
        FUZZ_CHECK(!host.failed || !transport.timer.enabled());
        checkShapes(transport.set);
    }
}

void act(char letter, Transport& transport, Host& host) {
    switch (letter) {
    case 'f':
        return cmdAnimFirst_Click(transport);
    case 'p':
        return cmdAnimPrev_Click(transport);
    case 'y':
        return cmdAnimPlay_Click(transport);
    case 'a':
        return cmdAnimPause_Click(transport);
    case 's':
        cmdAnimStop_Click(transport);
        FUZZ_CHECK(!transport.timer.enabled());
        return;
    case 'n':
        return cmdAnimNext_Click(transport);
    case 'l':
        return cmdAnimLast_Click(transport);
    case 'u':
        return cmdAnimUp_Click(transport);
    case 'd':
        return cmdAnimDown_Click(transport);
    case 'o':
        return animCheckLoop_Click(transport);
    case 't':
        return tick(transport, host, 1);
    case 'T':
        return tick(transport, host, kManyTicks);
    default:
        host.speed += letter;
        txtAnimSpeed_Change(transport);
    }
}

std::string playPath() {
    return (std::filesystem::temp_directory_path() / "zeltrona-fuzz-playback.zpf").string();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::size_t parting = input.find(kPlayBegins);
    const std::string_view acts = input.substr(0, parting).substr(0, kMostActs);
    const std::string bytes(parting == std::string_view::npos ? "" : input.substr(parting + 1));
    document::PlayFile play(playPath());
    const document::WriteBatch neverCommitted(play);
    play.replaceAll(bytes);

    PlaybackSet set;
    document::Session session;
    document::FrameRecords frame;
    Clock clock;
    Host host;
    Transport transport{set, session, frame, play, clock, host};
    applyAnimSpeed(transport);
    for (const char letter : acts) {
        act(letter, transport, host);
        checkShapes(set);
    }
    FUZZ_CHECK(play.bytes() == bytes);
    return 0;
}
