#include "session/board_view.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

Q_DECLARE_METATYPE(zeltrona::session::PointerEvent)

namespace zeltrona::session {
namespace {

class BoardViewTest : public ::testing::Test {
protected:
    BoardViewTest() {
        view.show(surface);
        static_cast<QWidget&>(view).show();
    }

    void send(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held, QPointF place,
              Qt::KeyboardModifiers modifiers = {}) {
        QMouseEvent event(type, place, view.mapToGlobal(place), button, held, modifiers);
        QCoreApplication::sendEvent(&view, &event);
    }

    render::BoardSurface surface{363, 332};
    BoardView view{nullptr};
    QSignalSpy pressed{&view, &BoardView::pressed};
    QSignalSpy moved{&view, &BoardView::moved};
    QSignalSpy released{&view, &BoardView::released};
};

PointerEvent last(const QSignalSpy& spy) {
    return spy.isEmpty() ? PointerEvent{-1, -1, -1, -1} : spy.last().first().value<PointerEvent>();
}

TEST_F(BoardViewTest, HasTheSizeOfItsSurfaceAndFollowsIt) {
    EXPECT_EQ(view.size(), QSize(363, 332));
    surface.resize(532, 295);
    surface.refresh();
    EXPECT_EQ(view.size(), QSize(532, 295));
}

TEST_F(BoardViewTest, ShowsThePixelsOfTheSurfaceWithoutABorder) {
    surface.setBackColor(0x336699);
    surface.cls();
    surface.pset(0, 0, 0x0000FF);
    surface.pset(362, 331, 0x00FF00);
    surface.pset(100, 50, 0xFF0000);
    surface.refresh();
    const QImage shown = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(shown, surface.image());
}

TEST_F(BoardViewTest, PressCarriesTheButtonThatChanged) {
    send(QEvent::MouseButtonPress, Qt::RightButton, Qt::LeftButton | Qt::RightButton, {120, 88});
    EXPECT_EQ(last(pressed), (PointerEvent{2, 0, 120, 88}));
    send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton, {3, 4});
    EXPECT_EQ(last(pressed), (PointerEvent{1, 0, 3, 4}));
}

TEST_F(BoardViewTest, MoveCarriesAllButtonsHeld) {
    send(QEvent::MouseMove, Qt::NoButton, Qt::NoButton, {5, 6});
    EXPECT_EQ(last(moved), (PointerEvent{0, 0, 5, 6}));
    send(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton, {7, 6});
    EXPECT_EQ(last(moved), (PointerEvent{1, 0, 7, 6}));
    send(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton | Qt::RightButton, {8, 6});
    EXPECT_EQ(last(moved), (PointerEvent{3, 0, 8, 6}));
}

TEST_F(BoardViewTest, ReleaseCarriesTheButtonThatWentUp) {
    send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton, {9, 10});
    EXPECT_EQ(last(released), (PointerEvent{1, 0, 9, 10}));
}

TEST_F(BoardViewTest, ModifiersAddUp) {
    send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton, {1, 1}, Qt::ShiftModifier);
    EXPECT_EQ(last(pressed).shift, 1);
    send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton, {1, 1}, Qt::ControlModifier);
    EXPECT_EQ(last(pressed).shift, 2);
    send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton, {1, 1}, Qt::AltModifier);
    EXPECT_EQ(last(pressed).shift, 4);
    send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton, {1, 1},
         Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(last(pressed).shift, 5);
}

TEST_F(BoardViewTest, PlacesBesideTheBoardAndBetweenPixelsAreKept) {
    send(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton, {-4, 400.5});
    EXPECT_EQ(last(moved), (PointerEvent{1, 0, -4, 400.5F}));
}

TEST_F(BoardViewTest, SecondPressOfADoubleClickIsAPress) {
    send(QEvent::MouseButtonDblClick, Qt::LeftButton, Qt::LeftButton, {11, 12});
    EXPECT_EQ(last(pressed), (PointerEvent{1, 0, 11, 12}));
}

TEST_F(BoardViewTest, TracksThePointerWithoutAButton) {
    EXPECT_TRUE(view.hasMouseTracking());
}

} // namespace
} // namespace zeltrona::session
