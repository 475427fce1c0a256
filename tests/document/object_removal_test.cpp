#include "document/frame_store.h"
#include "document/object_removal.h"
#include "tests/document/temporary_play.h"

#include <gtest/gtest.h>
#include <ostream>

namespace zeltrona::document {

namespace {

using tests::TemporaryPlay;

class ObjectRemoval : public testing::Test {
protected:
    void open(std::string_view keys) {
        play.folder.put(tests::crlf(kOthers + std::string("[Frame3]\nframe=3\n") + std::string(keys)));
        session.currFrame = 3;
        loadFrame(play.file, session, records, 3);
    }
    bool remove(ObjectClass kind, std::size_t index) {
        return removeObject(play.file, session, records, kind, index).ok();
    }
    testing::AssertionResult holdsKeys(std::string_view keys) const {
        return play.holds(kOthers + std::string("[Frame3]\nframe=3\n") + std::string(keys));
    }

    static constexpr const char* kOthers =
        "[Config]\nNotes3=\n[Frame1]\nframe=1\nBall0=9,9,\n[Frame2]\nframe=2\nBall0=9,9,\n"
        "[Frame4]\nframe=4\nBall0=9,9,\nBall0curve=1,2,\n";
    TemporaryPlay play;
    Session session;
    FrameRecords records;
};

TEST_F(ObjectRemoval, TheOnlyElementGoesByReset) {
    open("Ball0=1,2,\n");
    EXPECT_TRUE(remove(ObjectClass::Ball, 0));
    EXPECT_FALSE(hasBalls(records.balls));
    EXPECT_TRUE(holdsKeys(""));
}

TEST_F(ObjectRemoval, TheLastElementShrinksTheArray) {
    open("Ball0=1,2,\nBall1=3,4,\n");
    EXPECT_TRUE(remove(ObjectClass::Ball, 1));
    EXPECT_EQ(records.balls, (std::vector<BallRec>{{1, 2}}));
    EXPECT_TRUE(holdsKeys("Ball0=1,2,\n"));
}

TEST_F(ObjectRemoval, LaterElementsComeBackUnderTheirNewNumbers) {
    open("Ball0=1,2,\nBall1=3,4,\nBall2=5,6,\nTriangle0=255,7,8,\n");
    EXPECT_TRUE(remove(ObjectClass::Ball, 0));
    EXPECT_EQ(records.balls, (std::vector<BallRec>{{3, 4}, {5, 6}}));
    EXPECT_TRUE(holdsKeys("Triangle0=255,7,8,\nBall0=3,4,\nBall1=5,6,\n"));
}

TEST_F(ObjectRemoval, AnElementInTheMiddleLeavesTheOnesAhead) {
    open("Ball0=1,2,\nBall1=3,4,\nBall2=5,6,\n");
    EXPECT_TRUE(remove(ObjectClass::Ball, 1));
    EXPECT_TRUE(holdsKeys("Ball0=1,2,\nBall1=5,6,\n"));
}

struct ClassCase {
    const char* name;
    ObjectClass kind;
    const char* key;
    const char* values[3];
    friend std::ostream& operator<<(std::ostream& out, const ClassCase& row) { return out << row.name; }
};

class EveryClass : public testing::TestWithParam<ClassCase> {
protected:
    std::string keys(std::initializer_list<int> values) const {
        std::string lines = "[Frame1]\nframe=1\n";
        int index = 0;
        for (const int value : values) {
            lines += GetParam().key + std::to_string(index++) + "=" + GetParam().values[value] + "\n";
        }
        return lines;
    }
    /// The keys after the element `index` of three has gone.
    testing::AssertionResult leaves(std::size_t index, std::initializer_list<int> rest) const {
        TemporaryPlay play("[Config]\nNotes1=\n" + keys({0, 1, 2}));
        Session session;
        FrameRecords records;
        loadFrame(play.file, session, records, 1);
        EXPECT_TRUE(removeObject(play.file, session, records, GetParam().kind, index).ok());
        return play.holds("[Config]\nNotes1=\n" + keys(rest));
    }
};

TEST_P(EveryClass, IsRemovedAtEachPlace) {
    EXPECT_TRUE(leaves(0, {1, 2}));
    EXPECT_TRUE(leaves(1, {0, 2}));
    EXPECT_TRUE(leaves(2, {0, 1}));
    EXPECT_TRUE(leaves(3, {0, 1, 2}));
}

TEST_P(EveryClass, GoesByResetWhenAlone) {
    TemporaryPlay play("[Config]\nNotes1=\n" + keys({0}));
    Session session;
    FrameRecords records;
    loadFrame(play.file, session, records, 1);
    EXPECT_NE(records, FrameRecords());
    EXPECT_TRUE(removeObject(play.file, session, records, GetParam().kind, 0).ok());
    EXPECT_EQ(records, FrameRecords());
    EXPECT_TRUE(play.holds("[Config]\nNotes1=\n[Frame1]\nframe=1\n"));
}

INSTANTIATE_TEST_SUITE_P(
    ObjectRemoval, EveryClass,
    testing::Values(
        ClassCase{"Ball", ObjectClass::Ball, "Ball", {"1,2,", "3,4,", "5,6,"}},
        ClassCase{"Triangle", ObjectClass::Triangle, "Triangle", {"1,2,3,", "4,5,6,", "7,8,9,"}},
        ClassCase{"Shadow", ObjectClass::Shadow, "Shadow", {"1,2,3,4,5,", "2,3,4,5,6,", "3,4,5,6,7,"}},
        ClassCase{"Line", ObjectClass::Line, "Line", {"4,0,0,1,2,", "5,1,255,3,4,", "1,0,9,5,6,"}},
        ClassCase{"TxtPic",
                  ObjectClass::TxtPic,
                  "txtPic",
                  {"a,1,2,Arial,10,0,1,0,0,0,", "b,3,4,Arial,10,0,0,1,0,0,", "c,5,6,Arial,10,0,0,0,1,0,"}}),
    [](const auto& given) { return given.param.name; });

TEST_F(ObjectRemoval, ABallTakesItsPathAlong) {
    open("Ball0=1,2,\nBall0curve=1,2,8,9,\n");
    EXPECT_TRUE(remove(ObjectClass::Ball, 0));
    EXPECT_FALSE(hasPaths(records.ballPaths));
    EXPECT_TRUE(holdsKeys(""));
}

TEST_F(ObjectRemoval, LaterPathsMoveDownByOnePlaceAndOneOwner) {
    open("Ball0=1,2,\nBall1=3,4,\nBall2=5,6,\n"
         "Ball0curve=1,2,\nBall1curve=3,4,\nBall2curve=5,6,\n");
    EXPECT_TRUE(remove(ObjectClass::Ball, 0));
    EXPECT_EQ(records.ballPaths, (std::vector<PathRec>{{0, {{3, 4}}}, {1, {{5, 6}}}}));
    EXPECT_TRUE(holdsKeys("Ball0=3,4,\nBall1=5,6,\nBall0curve=3,4,\nBall1curve=5,6,\n"));
}

TEST_F(ObjectRemoval, APathOfAnotherBallKeepsItsPlaceAndItsOwner) {
    open("Ball0=1,2,\nBall1=3,4,\nBall2=5,6,\nBall1curve=3,4,9,9,\n");
    EXPECT_TRUE(remove(ObjectClass::Ball, 0));
    EXPECT_EQ(records.ballPaths, (std::vector<PathRec>{{1, {{3, 4}, {9, 9}}}}));
    EXPECT_TRUE(holdsKeys("Ball1curve=3,4,9,9,\nBall0=3,4,\nBall1=5,6,\n"));
}

TEST_F(ObjectRemoval, TheKeyOfAPathGoesByItsPlaceNotItsOwner) {
    open("Ball0=1,2,\nBall1=3,4,\nBall1curve=3,4,\n");
    EXPECT_TRUE(remove(ObjectClass::Ball, 1));
    EXPECT_FALSE(hasPaths(records.ballPaths));
    EXPECT_TRUE(holdsKeys("Ball0=1,2,\nBall1curve=3,4,\n"));
}

TEST_F(ObjectRemoval, AnOwnerDoesNotFallBelowZero) {
    open("Ball0=1,2,\nBall1=3,4,\n");
    records.ballPaths = {{1, {{3, 4}}}, {0, {{1, 2}}}};
    EXPECT_TRUE(remove(ObjectClass::Ball, 1));
    EXPECT_EQ(records.ballPaths, (std::vector<PathRec>{{0, {{1, 2}}}}));
}

TEST_F(ObjectRemoval, TheFirstPathOfAnOwnerGoes) {
    open("Ball0=1,2,\nBall1=3,4,\n");
    records.ballPaths = {{1, {{3, 4}}}, {1, {{5, 6}}}};
    EXPECT_TRUE(remove(ObjectClass::Ball, 1));
    EXPECT_EQ(records.ballPaths, (std::vector<PathRec>{{0, {{5, 6}}}}));
}

TEST_F(ObjectRemoval, PathsOfPlayersStay) {
    open("Ball0=1,2,\noff0curve=1,2,\n");
    EXPECT_TRUE(remove(ObjectClass::Ball, 0));
    EXPECT_TRUE(hasPaths(records.offPaths));
    EXPECT_TRUE(holdsKeys("off0curve=1,2,\n"));
}

TEST_F(ObjectRemoval, EditsNotYetSavedAreStoredWithIt) {
    open("Ball0=1,2,\nTriangle0=1,2,3,\n");
    records.triangles[0].x = 50;
    EXPECT_TRUE(remove(ObjectClass::Ball, 0));
    EXPECT_TRUE(holdsKeys("Triangle0=1,50,3,\n"));
}

TEST_F(ObjectRemoval, IsOneReplacement) {
    open("Ball0=1,2,\nBall1=3,4,\nBall0curve=1,2,\n");
    int replacements = 0;
    play.file.setWriteObserver([&](const WriteResult&) { ++replacements; });
    EXPECT_TRUE(remove(ObjectClass::Ball, 0));
    EXPECT_EQ(replacements, 1);
}

TEST_F(ObjectRemoval, AFailedWriteLeavesTheRecords) {
    PlayFile nowhere("/proc/no-such-folder/play.zpf");
    records.balls = {{1, 2}, {3, 4}};
    const FrameRecords before = records;
    EXPECT_FALSE(removeObject(nowhere, session, records, ObjectClass::Ball, 0).ok());
    EXPECT_EQ(records, before);
}

} // namespace

} // namespace zeltrona::document
