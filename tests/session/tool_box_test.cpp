#include "platform/themed_icon.h"
#include "session/tool_box.h"
#include "tests/session/window_harness.h"

#include <QCheckBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace zeltrona::session {
namespace {

using testing::control;

class ToolBoxTest : public ::testing::Test {
protected:
    ToolBoxTest() {
        window.resize(433, 500);
        box = new ToolBox(&window);
        box->paintToolIcons();
        box->moveInside({300, 15});
        window.show();
    }
    void dragGrip(QPoint by) {
        auto& grip = control<QWidget>(*box, QStringLiteral("pToolboxGrip"));
        const QPoint start = grip.rect().center();
        QTest::mousePress(&grip, Qt::LeftButton, {}, start);
        const QPoint target = start + by;
        QMouseEvent move(QEvent::MouseMove, target, grip.mapToGlobal(target), Qt::NoButton, Qt::LeftButton,
                         {});
        QCoreApplication::sendEvent(&grip, &move);
        QTest::mouseRelease(&grip, Qt::LeftButton);
    }

    QWidget window;
    ToolBox* box = nullptr;
};

TEST_F(ToolBoxTest, HasElevenButtonsThatAreUp) {
    for (int number = 0; number < 11; ++number) {
        const auto& tile = control<QWidget>(*box, QStringLiteral("Picture1_%1").arg(number));
        EXPECT_EQ(tile.property("Tag").toString(), QStringLiteral("0")) << number;
        EXPECT_FALSE(tile.toolTip().isEmpty()) << number;
        EXPECT_FALSE(tile.accessibleName().isEmpty()) << number;
    }
    EXPECT_EQ(box->findChildren<ToolTile*>().size(), 11);
}

TEST_F(ToolBoxTest, ImageOffsetsRunInPairsOfTwenty) {
    EXPECT_EQ(toolImageOffset(1, 0), 0);
    EXPECT_EQ(toolImageOffset(1, 1), 20);
    EXPECT_EQ(toolImageOffset(2, 0), 40);
    EXPECT_EQ(toolImageOffset(11, 1), 420);
}

TEST_F(ToolBoxTest, EachButtonShowsItsOwnCellsOfTheStrip) {
    const QPixmap strip = platform::themedPixmap(QStringLiteral("tool_strip"), box->palette(), 1.0);
    ASSERT_EQ(strip.size(), QSize(440, 20));
    for (int number = 0; number < 11; ++number) {
        auto& tile = control<ToolTile>(*box, QStringLiteral("Picture1_%1").arg(number));
        for (const char* tag : {"0", "1"}) {
            tile.setProperty("Tag", QString::fromLatin1(tag));
            QImage cell(20, 20, QImage::Format_RGB32);
            cell.fill(box->palette().color(QPalette::Window));
            QPainter(&cell).drawPixmap(0, 0, strip, toolImageOffset(number + 1, tag[0] - '0'), 0, 20, 20);
            const QImage shown = tile.grab().toImage().convertToFormat(QImage::Format_RGB32);
            EXPECT_EQ(shown.copy(2, 2, 20, 20), cell) << number << " tag " << tag;
        }
    }
}

TEST_F(ToolBoxTest, GripMovesIt) {
    const QPoint before = box->pos();
    dragGrip({-100, 60});
    EXPECT_EQ(box->pos(), before + QPoint(-100, 60));
}

TEST_F(ToolBoxTest, IsNeverLostOutsideTheWindow) {
    for (const QPoint by : {QPoint(2000, 0), QPoint(-2000, 0), QPoint(0, 2000), QPoint(0, -2000)}) {
        dragGrip(by);
        EXPECT_TRUE(window.rect().contains(box->geometry())) << by.x() << "," << by.y();
    }
}

TEST_F(ToolBoxTest, StaysInsideAWindowThatBecomesSmaller) {
    box->moveInside({2000, 2000});
    window.resize(250, 300);
    EXPECT_TRUE(window.rect().contains(box->geometry()));
}

TEST_F(ToolBoxTest, CurveBoxStandsUnderItsCaption) {
    const auto& caption = control<QLabel>(*box, QStringLiteral("Label3"));
    const auto& check = control<QCheckBox>(*box, QStringLiteral("CheckCurve"));
    EXPECT_GE(check.y(), caption.geometry().bottom());
    EXPECT_FALSE(check.isChecked());
    EXPECT_EQ(check.toolTip(), QStringLiteral("Curved line drawing or Curved player's movement.Select it and "
                                              "move player around."));
    EXPECT_EQ(control<QToolButton>(*box, QStringLiteral("cmdCurveShowHide")).toolTip(),
              QStringLiteral("Show or hide curved path for each player."));
    testing::click(*box, QStringLiteral("CheckCurve"));
    EXPECT_TRUE(check.isChecked());
}

} // namespace
} // namespace zeltrona::session
