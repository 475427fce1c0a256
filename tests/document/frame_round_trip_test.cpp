#include "document/frame_keys.h"
#include "document/frame_store.h"
#include "document/number_text.h"
#include "tests/document/temporary_play.h"

#include <gtest/gtest.h>
#include <random>

namespace zeltrona::document {

namespace {

using tests::TemporaryPlay;

/// Random frames such as a coach may have made. Objects that count as absent are not among them.
class RandomFrame {
public:
    explicit RandomFrame(unsigned seed) : m_engine(seed) {}

    FrameRecords make() {
        FrameRecords records;
        fill(records.offPlayers, 11, [this] { return player(); });
        fill(records.defPlayers, 11, [this] { return player(); });
        fill(records.balls, 5, [this] { return BallRec{coordinate(), coordinate()}; });
        paths(records.offPaths, kLastPlayerPath);
        paths(records.defPaths, kLastPlayerPath);
        paths(records.ballPaths, kLastBallPath);
        fill(records.triangles, 5, [this] { return TriangleRec{coordinate(), coordinate(), color()}; });
        fill(records.shadows, 5, [this] {
            return ShadowRec{coordinate(), coordinate(), int16(-400, 400), int16(-400, 400), color()};
        });
        fill(records.lines, 5, [this] { return line(); });
        fill(records.txtPics, 5, [this] { return txtPic(); });
        return records;
    }

private:
    int number(int low, int high) { return std::uniform_int_distribution(low, high)(m_engine); }
    std::int16_t int16(int low, int high) { return static_cast<std::int16_t>(number(low, high)); }
    bool flag() { return number(0, 1) == 1; }
    Color color() { return number(0, 0xFFFFFF); }
    /// Never 0, so that nothing equals an empty element.
    float coordinate() { return std::uniform_real_distribution(0.001F, 540.0F)(m_engine); }
    PointF point() { return {coordinate(), coordinate()}; }

    template<class Record, class Make> void fill(std::vector<Record>& records, int most, Make make) {
        const int count = number(0, most);
        for (int i = 0; i < count; ++i) {
            records.resize(static_cast<std::size_t>(i) + 1);
            records.back() = make();
        }
    }

    std::string text() {
        std::string text = "t";
        for (int length = number(0, 5); length > 0; --length) {
            text.push_back(static_cast<char>(number(128, 255)));
        }
        return text;
    }
    PlayerRec player() { return {coordinate(), coordinate(), text(), int16(0, 3), int16(0, 359), color()}; }
    std::vector<PointF> points(int most) {
        std::vector<PointF> points(static_cast<std::size_t>(number(1, most)));
        for (PointF& each : points) {
            each = point();
        }
        return points;
    }
    void paths(std::vector<PathRec>& paths, int lastOwner) {
        std::vector<PathRec> found;
        for (int owner = number(0, lastOwner); owner <= lastOwner; owner += number(1, 20)) {
            found.push_back({static_cast<std::uint8_t>(owner), points(60)});
        }
        if (flag()) {
            paths = found;
        }
    }
    LineRec line() { return {static_cast<std::uint8_t>(number(0, 4)), color(), flag(), points(8)}; }
    TxtPicRec txtPic() {
        return {text(), coordinate(), coordinate(), "Arial " + text(), int16(6, 72), color(), flag(),
                flag(), flag(),       flag()};
    }

    std::mt19937 m_engine;
};

float asStored(float value) {
    return toSingle(*numericField(singleText(value)));
}

template<class Record> void roundPlaces(std::vector<Record>& records) {
    for (Record& record : records) {
        record.x = asStored(record.x);
        record.y = asStored(record.y);
    }
}

void roundPlayers(std::vector<PlayerRec>& players) {
    for (PlayerRec& player : players) {
        player.x = roundToInt16(static_cast<double>(player.x));
        player.y = roundToInt16(static_cast<double>(player.y));
    }
}

/// What a frame comes back as: whole places of players, seven digits elsewhere.
FrameRecords rounded(FrameRecords records) {
    roundPlayers(records.offPlayers);
    roundPlayers(records.defPlayers);
    roundPlaces(records.balls);
    roundPlaces(records.triangles);
    roundPlaces(records.shadows);
    roundPlaces(records.txtPics);
    for (std::vector<PathRec>* paths : {&records.offPaths, &records.defPaths, &records.ballPaths}) {
        for (PathRec& path : *paths) {
            roundPlaces(path.pts);
        }
    }
    for (LineRec& line : records.lines) {
        roundPlaces(line.pts);
    }
    return records;
}

void writeTeam(PlayFile& play, const std::string& side, const std::vector<PlayerRec>& players) {
    for (std::size_t i = 0; i < players.size(); ++i) {
        play.writeText(kConfigSection, indexedKey("txt" + side, i), players[i].txt);
        play.writeString(kConfigSection, indexedKey("skin" + side, i), std::to_string(players[i].skin));
    }
}

TEST(FrameRoundTrip, AStoredFrameLoadsEqualWithinItsRounding) {
    for (unsigned seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const FrameRecords made = RandomFrame(seed).make();
        TemporaryPlay play;
        WriteBatch inMemory(play.file);
        writeTeam(play.file, "Off", made.offPlayers);
        writeTeam(play.file, "Def", made.defPlayers);
        Session session;
        session.currFrame = 7;
        saveFrame(play.file, session, made, 7, false);
        FrameRecords once;
        loadFrame(play.file, session, once, 7);
        ASSERT_EQ(once, rounded(made));
        const std::string bytes = play.file.bytes();
        saveFrame(play.file, session, once, 7, false);
        ASSERT_EQ(play.file.bytes(), bytes);
    }
}

TEST(FrameRoundTrip, SevenDigitsAreWithinAMillionth) {
    RandomFrame frames(11);
    for (int i = 0; i < 50; ++i) {
        for (const LineRec& line : frames.make().lines) {
            for (const PointF& point : line.pts) {
                EXPECT_NEAR(asStored(point.x), point.x, static_cast<double>(point.x) * 6e-7);
            }
        }
    }
}

} // namespace

} // namespace zeltrona::document
