#include "session/board_view.h"
#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

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
