// A pointer move to the finished picture, against a plain copy of the board's pixels, and the recording of a
// path.

#include "assets/resources.h"
#include "bench/ratio_report.h"
#include "editor/pointer.h"
#include "editor/toolbox.h"
#include "render/redraw.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>
#include <cmath>
#include <cstring>

using namespace zeltrona;
using namespace zeltrona::editor;

namespace {

constexpr int kWidth = 363;
constexpr int kHeight = 332;
constexpr int kLinePoints = 50;

/// A window without a window: redraws paint, everything else is silent.
class BenchHost : public EditorHost {
public:
    BenchHost(const document::Session& session, const document::FrameRecords& records,
              const EditorState& state)
        : m_session(session), m_records(records), m_state(state) {}

    bool isPainting = true;
    render::BoardArt art = render::loadBoardArt();
    render::BoardSurface surface{kWidth, kHeight};
    render::Board board{surface, art};

    void redrawBoard(float pointerX, float pointerY) override {
        if (isPainting) {
            render::redrawBoard(board, {m_session, m_records, m_state.editLineIndex}, pointerX, pointerY);
        }
    }
    void setTimerEnabled(bool) override {}
    void showStatus(const std::string& utf8) override { benchmark::DoNotOptimize(utf8.data()); }
    std::string localText(std::int16_t) override { return "Click to drop a ball."; }
    void message(const std::string&, MessageIcon) override {}
    std::optional<Color> askColor(bool) override { return std::nullopt; }
    std::optional<TextAnswer> askText() override { return std::nullopt; }
    void storeFont(const std::string&, std::int16_t) override {}
    bool curveChecked() override { return true; }
    void paintToolButton(int, bool) override {}
    void openPopUpMenu() override {}
    void openBodyPanel(float, float) override {}
    void closeBodyPanel() override {}
    int textWidth(const std::string&) override { return 40; }
    int textHeight(const std::string&) override { return 14; }
    int boardWidth() override { return kWidth; }
    int boardHeight() override { return kHeight; }
    void removeObject(document::ObjectClass, std::size_t) override {}

private:
    const document::Session& m_session;
    const document::FrameRecords& m_records;
    const EditorState& m_state;
};

/// 24 labelled bodies, three of each mark, the parquet.
struct HeavyDesk {
    HeavyDesk() {
        session.court = 1;
        session.courtTexture = 1;
        session.bodyType = 1;
        session.currFrame = 2;
        session.lineWidth = 2;
        session.colorOffFont = session.colorDefFont = 0xFFFFFF;
        records.offPlayers = row(20.0F);
        records.defPlayers = row(220.0F);
        for (int i = 0; i < 3; ++i) {
            const float place = 60.0F + 80.0F * static_cast<float>(i);
            const auto corner = static_cast<std::int16_t>(place + 60);
            marks(place, corner);
        }
    }

    static std::vector<document::PlayerRec> row(float y) {
        std::vector<document::PlayerRec> players(12);
        for (std::size_t i = 0; i < players.size(); ++i) {
            players[i] = {26.0F * static_cast<float>(i), y, std::to_string(i + 4)};
            players[i].angle = static_cast<std::int16_t>(30 * i);
            players[i].body = static_cast<std::int16_t>(i % 4);
        }
        return players;
    }

    void marks(float place, std::int16_t corner) {
        document::TxtPicRec text{"Screen", place, place + 20, "Arial", 10};
        if (!hasBalls(records.balls)) {
            records.balls.clear();
            records.triangles.clear();
            records.shadows.clear();
            records.txtPics.clear();
        }
        records.balls.push_back({place, place});
        records.triangles.push_back({place, place + 9, 255});
        records.shadows.push_back({place, place, corner, corner, 0x80C080});
        records.txtPics.push_back(text);
    }

    document::Session session;
    document::FrameRecords records;
    EditorState state;
    BenchHost host{session, records, state};
    EditorContext editor{session, records, state, host};
};

/// A line of 50 curve points under way, swinging over the whole board.
void drawLongLine(HeavyDesk& desk, std::int16_t lineTool) {
    Picture1_Click(desk.editor, lineTool);
    for (int i = 0; i < kLinePoints; ++i) {
        const float t = static_cast<float>(i);
        pic_MouseDown(desk.editor, 1, 0, 20.0F + 6.5F * t, 165.0F + 120.0F * std::sin(0.7F * t));
    }
}

void boardCopy(benchmark::State& state) {
    const HeavyDesk desk;
    const QImage& board = desk.host.surface.image();
    std::vector<unsigned char> copy(static_cast<std::size_t>(board.sizeInBytes()));
    for (auto step : state) {
        std::memcpy(copy.data(), board.constBits(), copy.size());
        benchmark::DoNotOptimize(copy.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(boardCopy)->Unit(benchmark::kMicrosecond);

/// By the tool that draws the line.
void moveWithALine(benchmark::State& state) {
    HeavyDesk desk;
    drawLongLine(desk, static_cast<std::int16_t>(state.range(0)));
    float x = 0.0F;
    for (auto step : state) {
        x = x >= 360.0F ? 1.0F : x + 1.0F;
        pic_MouseMove(desk.editor, 0, 0, x, 300.0F);
    }
    if (desk.records.lines.back().pts.size() != kLinePoints) {
        state.SkipWithError("the line has not its 50 points");
    }
}
BENCHMARK(moveWithALine)->DenseRange(0, 4)->Unit(benchmark::kMicrosecond);

/// A free-hand path of so many points, without the painting.
void recordPath(benchmark::State& state) {
    HeavyDesk desk;
    desk.host.isPainting = false;
    desk.session.bodyType = 0;
    for (auto step : state) {
        pic_MouseDown(desk.editor, 1, 0, 10.0F, 30.0F);
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            pic_MouseMove(desk.editor, 1, 0, static_cast<float>(i % 360), 30.0F);
        }
        pic_MouseUp(desk.editor, 1, 0, 0.0F, 0.0F);
        benchmark::DoNotOptimize(desk.records.offPaths.data());
        resetPaths(desk.records.offPaths);
    }
}
BENCHMARK(recordPath)->Arg(225)->Arg(900)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    assets::initResources();
    const bench::Ratio promises[] = {
        {"line-arrow-move-to-memcpy", "moveWithALine/0", "boardCopy", 60.0},
        {"line-dashes-move-to-memcpy", "moveWithALine/1", "boardCopy", 60.0},
        {"line-wave-move-to-memcpy", "moveWithALine/2", "boardCopy", 60.0},
        {"line-bar-move-to-memcpy", "moveWithALine/3", "boardCopy", 60.0},
        {"line-double-move-to-memcpy", "moveWithALine/4", "boardCopy", 60.0},
        // Four times the points in four times the time is linear; the rest is the clock's.
        {"path-of-900-to-225-points", "recordPath/900", "recordPath/225", 5.0},
    };
    return bench::runWithRatios(argc, argv, promises);
}
