#include "document/code_page.h"
#include "document/frame_store.h"
#include "document/user_texts.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>

namespace zeltrona::document {
namespace {

/// A play as the program reads it.
struct LoadedPlay {
    std::string name;
    Session session;
    std::string title, head;
    std::vector<FrameRecords> frames;
    std::vector<std::string> notes;
};

LoadedPlay loadedPlay(const std::filesystem::path& path) {
    const PlayFile file(path.string());
    LoadedPlay play;
    play.name = path.filename().string();
    FrameRecords records;
    loadConfig(file, play.session, records);
    play.title = readTitle(file);
    play.head = readHead(file);
    const std::int16_t count = countFrames(file);
    for (std::int16_t n = 1; n <= count; ++n) {
        loadFrame(file, play.session, records, n);
        play.frames.push_back(records);
        play.notes.push_back(readNote(file, n));
    }
    return play;
}

const std::vector<LoadedPlay>& library() {
    static const std::vector<LoadedPlay> plays = [] {
        std::vector<LoadedPlay> loaded;
        for (const auto& entry : std::filesystem::directory_iterator(ZELTRONA_SOURCE_DIR "/assets/Files")) {
            loaded.push_back(loadedPlay(entry.path()));
        }
        return loaded;
    }();
    return plays;
}

std::size_t countOf(const std::vector<PlayerRec>& players) {
    return hasPlayers(players) ? players.size() : 0;
}

float halfPicture(const LoadedPlay& play) {
    return play.session.bodyType == 1 ? 25.0F : 13.0F;
}

/// Calls for every play and frame, with a trace of where.
template<typename Check> void eachFrame(Check check) {
    for (const LoadedPlay& play : library()) {
        for (std::size_t i = 0; i < play.frames.size(); ++i) {
            SCOPED_TRACE(play.name + ", frame " + std::to_string(i + 1));
            check(play, i);
        }
    }
}

TEST(SamplePlays, AreAtLeastTwelveOfThreeToEightFrames) {
    EXPECT_GE(library().size(), 12U);
    for (const LoadedPlay& play : library()) {
        EXPECT_GE(play.frames.size(), 3U) << play.name;
        EXPECT_LE(play.frames.size(), 8U) << play.name;
    }
}

TEST(SamplePlays, HaveATitleAndAShortDescription) {
    for (const LoadedPlay& play : library()) {
        EXPECT_FALSE(play.title.empty()) << play.name;
        EXPECT_FALSE(play.head.empty()) << play.name;
        EXPECT_LT(withLineBreaks(play.head).size(), 255U) << play.name;
        EXPECT_LE(std::count(play.head.begin(), play.head.end(), kBreakMark), 3) << play.name;
    }
}

TEST(SamplePlays, HaveANoteForEachFrame) {
    eachFrame([](const LoadedPlay& play, std::size_t i) {
        EXPECT_FALSE(play.notes[i].empty());
        EXPECT_LT(play.notes[i].size(), 100U);
    });
}

TEST(SamplePlays, KeepTheirTeamsWhole) {
    eachFrame([](const LoadedPlay& play, std::size_t i) {
        EXPECT_EQ(countOf(play.frames[i].offPlayers), countOf(play.frames[0].offPlayers));
        EXPECT_EQ(countOf(play.frames[i].defPlayers), countOf(play.frames[0].defPlayers));
        EXPECT_EQ(play.frames[i].balls.size(), play.frames[0].balls.size());
        EXPECT_TRUE(hasPlayers(play.frames[i].offPlayers));
        EXPECT_TRUE(hasBalls(play.frames[i].balls));
    });
}

void expectLabelsApart(const std::vector<PlayerRec>& players) {
    std::set<std::string> labels;
    for (const PlayerRec& player : players) {
        EXPECT_NE(player.txt, "0");
        EXPECT_TRUE(labels.insert(player.txt).second) << player.txt << " stands twice";
    }
}

TEST(SamplePlays, LabelEveryPlayer) {
    eachFrame([](const LoadedPlay& play, std::size_t i) {
        expectLabelsApart(play.frames[i].offPlayers);
        if (hasPlayers(play.frames[i].defPlayers)) {
            expectLabelsApart(play.frames[i].defPlayers);
        }
    });
}

/// Middles of all players.
std::vector<PointF> middlesOf(const LoadedPlay& play, const FrameRecords& frame) {
    std::vector<PointF> middles;
    for (const auto* side : {&frame.offPlayers, &frame.defPlayers}) {
        for (const PlayerRec& player : *side) {
            if (hasPlayers(*side)) {
                middles.push_back({player.x + halfPicture(play), player.y + halfPicture(play)});
            }
        }
    }
    return middles;
}

TEST(SamplePlays, StandOnTheBoard) {
    eachFrame([](const LoadedPlay& play, std::size_t i) {
        const bool isBig = isBigCourt(play.session.court);
        for (const PointF middle : middlesOf(play, play.frames[i])) {
            EXPECT_GE(middle.x, 8);
            EXPECT_GE(middle.y, 8);
            EXPECT_LE(middle.x, isBig ? 522 : 352);
            EXPECT_LE(middle.y, isBig ? 282 : 322);
        }
    });
}

TEST(SamplePlays, HideNobodyBehindAnother) {
    eachFrame([](const LoadedPlay& play, std::size_t i) {
        const std::vector<PointF> middles = middlesOf(play, play.frames[i]);
        const double room = play.session.bodyType == 1 ? 30 : 20;
        for (std::size_t a = 0; a < middles.size(); ++a) {
            for (std::size_t b = a + 1; b < middles.size(); ++b) {
                EXPECT_GE(std::hypot(middles[a].x - middles[b].x, middles[a].y - middles[b].y), room)
                    << "players " << a << " and " << b;
            }
        }
    });
}

template<typename Record>
void expectChained(const std::vector<PathRec>& paths, const std::vector<Record>& now,
                   const std::vector<Record>& next) {
    if (!hasPaths(paths)) {
        return;
    }
    for (const PathRec& path : paths) {
        ASSERT_LT(path.owner, now.size());
        EXPECT_EQ(path.pts.front(), (PointF{now[path.owner].x, now[path.owner].y}))
            << "owner " << int{path.owner};
        EXPECT_EQ(path.pts.back(), (PointF{next[path.owner].x, next[path.owner].y}))
            << "owner " << int{path.owner};
    }
}

TEST(SamplePlays, BeginAFrameWhereThePathsOfTheLastOneEnd) {
    eachFrame([](const LoadedPlay& play, std::size_t i) {
        const FrameRecords& now = play.frames[i];
        if (i + 1 == play.frames.size()) {
            EXPECT_FALSE(hasPaths(now.offPaths) || hasPaths(now.defPaths) || hasPaths(now.ballPaths));
            return;
        }
        const FrameRecords& next = play.frames[i + 1];
        expectChained(now.offPaths, now.offPlayers, next.offPlayers);
        expectChained(now.defPaths, now.defPlayers, next.defPlayers);
        expectChained(now.ballPaths, now.balls, next.balls);
    });
}

void expectNaturalSpeed(const std::vector<PathRec>& paths) {
    for (const PathRec& path : paths) {
        for (std::size_t i = 1; i < path.pts.size(); ++i) {
            const double step =
                std::hypot(path.pts[i].x - path.pts[i - 1].x, path.pts[i].y - path.pts[i - 1].y);
            EXPECT_LE(step, 4.5) << "owner " << int{path.owner} << " point " << i;
        }
    }
}

TEST(SamplePlays, RunTheirPathsAtANaturalSpeed) {
    eachFrame([](const LoadedPlay& play, std::size_t i) {
        expectNaturalSpeed(play.frames[i].offPaths);
        expectNaturalSpeed(play.frames[i].defPaths);
        expectNaturalSpeed(play.frames[i].ballPaths);
    });
}

TEST(SamplePlays, ShowEveryKindOfCourtAndPlayer) {
    std::set<bool> bodies, big, parquet, dark, defended;
    std::set<std::int16_t> courts;
    for (const LoadedPlay& play : library()) {
        bodies.insert(play.session.bodyType == 1);
        big.insert(isBigCourt(play.session.court));
        parquet.insert(play.session.courtTexture != 0);
        dark.insert(play.session.useTexture != 0);
        defended.insert(hasPlayers(play.frames[0].defPlayers));
        courts.insert(play.session.court);
    }
    for (const auto* both : {&bodies, &big, &parquet, &dark, &defended}) {
        EXPECT_EQ(both->size(), 2U);
    }
    EXPECT_EQ(courts, (std::set<std::int16_t>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

/// Kinds of objects in a play, by name.
std::set<std::string> kindsIn(const LoadedPlay& play) {
    std::set<std::string> kinds;
    for (const FrameRecords& frame : play.frames) {
        for (const auto& [isThere, name] : {std::pair{hasPlayers(frame.offPlayers), "offence"},
                                            {hasPlayers(frame.defPlayers), "defence"},
                                            {hasBalls(frame.balls), "ball"},
                                            {hasTriangles(frame.triangles), "triangle"},
                                            {hasShadows(frame.shadows), "shadow"},
                                            {hasTxtPics(frame.txtPics), "text"},
                                            {hasPaths(frame.offPaths), "offence path"},
                                            {hasPaths(frame.defPaths), "defence path"},
                                            {hasPaths(frame.ballPaths), "ball path"}}) {
            if (isThere) {
                kinds.insert(name);
            }
        }
        for (const LineRec& line : frame.lines) {
            kinds.insert((line.curved ? "curved line " : "line ") + std::to_string(line.style));
        }
        for (const TxtPicRec& text : frame.txtPics) {
            kinds.insert(text.italic          ? "italic"
                         : text.underline     ? "underline"
                         : text.strikethrough ? "struck"
                                              : "bold");
        }
    }
    return kinds;
}

TEST(SamplePlays, HoldEveryKindOfObjectInOneOfThem) {
    std::size_t most = 0;
    for (const LoadedPlay& play : library()) {
        most = std::max(most, kindsIn(play).size());
    }
    EXPECT_EQ(most, 9U + 10U + 4U);
}

TEST(SamplePlays, HaveASerbianOneWithItsDiacritics) {
    const auto isSerbian = [](const LoadedPlay& play) {
        return toUtf8(play.title, play.session.fontCharset).find("š") != std::string::npos;
    };
    const auto play = std::find_if(library().begin(), library().end(), isSerbian);
    ASSERT_NE(play, library().end());
    std::string notes;
    for (const std::string& note : play->notes) {
        notes += toUtf8(note, 238);
    }
    for (const char* letter : {"š", "č", "ć", "ž", "đ"}) {
        EXPECT_NE((notes + toUtf8(play->head, 238)).find(letter), std::string::npos) << letter;
    }
}

} // namespace
} // namespace zeltrona::document
