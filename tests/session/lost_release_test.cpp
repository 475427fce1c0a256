#include "session/board_view.h"
#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>
#include <vector>

namespace zeltrona::session {
namespace {

using testing::DialogAnswerer;
using testing::OpenPlay;

constexpr const char* kPathFull = "Max number of points in free hand movement is 1000!\r\n"
                                  "Next time,increase speed of movement.";

/// The player at 40, 200 of the second frame with a path that takes no further point.
std::string playWithFullPath() {
    std::string points;
    for (int point = 0; point < 902; ++point) {
        points += "9,9,";
    }
    const std::string key = "off1curve=";
    std::string bytes = testing::threeFramePlay();
    return bytes.insert(bytes.find(key) + key.size(), points);
}

/// That frame, with the Curve box on. The pointer's events come from the window system: they reach the board
/// only as far as the toolkit lets them through.
class LostRelease : public ::testing::Test {
protected:
    LostRelease() {
        testing::click(play.window(), "cmdSeqNoUp");
        testing::click(play.window(), "CheckCurve");
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&play.window()));
        QTest::mousePress(window(), Qt::LeftButton, {}, at(52, 212));
    }
    ~LostRelease() override {
        if (QGuiApplication::mouseButtons() != Qt::NoButton) {
            QTest::mouseRelease(window(), Qt::LeftButton);
        }
    }

    QWindow* window() { return play.window().windowHandle(); }
    QPoint at(int x, int y) { return play.pic().mapTo(&play.window(), QPoint(x, y)); }

    void expectFull(const std::function<void(QMessageBox&)>& whileOpen) {
        answers.expect([whileOpen](QWidget& opened) {
            auto& box = dynamic_cast<QMessageBox&>(opened);
            EXPECT_EQ(box.text(), QLatin1String(kPathFull));
            whileOpen(box);
        });
    }
    std::string storedPlace() {
        testing::click(play.window(), "seqSave");
        return play.key("Frame2", "off1");
    }

    OpenPlay play{playWithFullPath()};
    DialogAnswerer answers;
};

TEST_F(LostRelease, ButtonThatGoesUpBehindTheMessagePutsThePlayerBack) {
    expectFull([this](QMessageBox& box) {
        QTest::mouseRelease(window(), Qt::LeftButton, {}, at(60, 220));
        const QAbstractButton& ok = *box.button(QMessageBox::Ok);
        QTest::mouseClick(box.windowHandle(), Qt::LeftButton, {}, ok.mapTo(&box, ok.rect().center()));
    });
    QTest::mouseMove(window(), at(70, 230));
    EXPECT_EQ(answers.answered(), 1);
    EXPECT_EQ(storedPlace(), "40,200");
}

TEST_F(LostRelease, ButtonStillDownGoesOnWithTheDrag) {
    expectFull([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    QTest::mouseMove(window(), at(70, 230));
    EXPECT_EQ(storedPlace(), "58,218");
    QTest::mouseRelease(window(), Qt::LeftButton, {}, play.window().rect().bottomRight());
    testing::settle();
    EXPECT_EQ(storedPlace(), "40,200");
}

/// A right press on the board that opens the pop-up menu, which keeps the release for itself and is left by
/// Esc. As the pointer comes back, nothing is held any more.
void leaveMenuOpenedAt(OpenPlay& play, QPoint place) {
    QWindow* const window = play.window().windowHandle();
    const auto at = [&play](QPoint onBoard) { return play.pic().mapTo(&play.window(), onBoard); };
    QTest::mousePress(window, Qt::RightButton, {}, at(place));
    auto& menu = testing::control<QMenu>(play.window(), QStringLiteral("mnuPopUp"));
    ASSERT_TRUE(menu.isVisible());
    QTest::mouseRelease(menu.windowHandle(), Qt::RightButton);
    QTest::keyClick(&menu, Qt::Key_Escape);
    ASSERT_FALSE(menu.isVisible());
    QTest::mouseMove(window, at({200, 280}));
    EXPECT_EQ(play.status(), " (200,280) -Ready.");
}

TEST(LostMenuRelease, BallUnderTheMenuStaysBehindAtTheNextDrag) {
    OpenPlay play;
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&play.window()));
    leaveMenuOpenedAt(play, {135, 95});
    testing::drag(play.pic(), {{200, 280}, {230, 290}});
    testing::click(play.window(), "seqSave");
    EXPECT_EQ(play.key("Frame1", "Ball0"), "128,92.5,");
}

TEST(LostMenuRelease, HandUnderTheMenuDoesNotFollowThePointer) {
    OpenPlay play(testing::playWithBodies());
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&play.window()));
    testing::click(play.window(), "seqSave");
    const std::string before = play.key("Frame1", "angleoff0");
    leaveMenuOpenedAt(play, {148, 125});
    testing::moveTo(play.pic(), {100, 60});
    testing::click(play.window(), "seqSave");
    EXPECT_EQ(play.key("Frame1", "angleoff0"), before);
}

TEST(LostMenuRelease, IsToldAheadOfAPressThatComesFirst) {
    OpenPlay play;
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&play.window()));
    std::vector<int> told;
    const auto& pic = dynamic_cast<BoardView&>(play.pic());
    QObject::connect(&pic, &BoardView::released, &pic,
                     [&](const PointerEvent& e) { told.push_back(e.button); });
    QObject::connect(&pic, &BoardView::pressed, &pic,
                     [&](const PointerEvent& e) { told.push_back(-e.button); });
    QWindow* const window = play.window().windowHandle();
    const QPoint place = play.pic().mapTo(&play.window(), QPoint(200, 280));
    QTest::mousePress(window, Qt::RightButton, {}, place);
    auto& menu = testing::control<QMenu>(play.window(), QStringLiteral("mnuPopUp"));
    QTest::mouseRelease(menu.windowHandle(), Qt::RightButton);
    menu.close();
    QTest::mousePress(window, Qt::LeftButton, {}, place);
    QTest::mouseRelease(window, Qt::LeftButton, {}, place);
    EXPECT_EQ(told, (std::vector<int>{-2, 2, -1, 1}));
}

TEST_F(LostRelease, DragWithoutAMessageIsReleasedOnce) {
    int released = 0;
    const auto& pic = dynamic_cast<BoardView&>(play.pic());
    QObject::connect(&pic, &BoardView::released, &pic, [&released] { ++released; });
    QTest::mouseRelease(window(), Qt::LeftButton, {}, at(52, 212));
    QTest::mouseMove(window(), at(80, 240));
    EXPECT_EQ(released, 1);
}

} // namespace
} // namespace zeltrona::session
