#pragma once

#include "animation/board_picture.h"
#include "animation/full_screen_layout.h"
#include "animation/full_screen_owner.h"
#include "animation/transport_bar.h"
#include "document/session.h"

#include <QScreen>
#include <QWidget>

namespace zeltrona::animation {

/// The playback large, on a window that covers one screen. It plays nothing itself: it gets a copy of the
/// board's picture and of the counter after each tick, and its buttons click those of the main window. Life:
/// openOn() loads and shows it; closing it stops the playback, puts the board on frame 1 and deletes the
///         window. session.fullScreenOpen is true in between.
/// Keys:   Esc closes at once, except in the speed box. A click on the ground or on the bar asks "Exit?".
/// Units:  logical pixels; fonts in points at 96 to the inch, so that the layout is the same on every screen.
class frmMainFullScreen : public QWidget {
    Q_OBJECT
public:
    /// Both must outlive the window.
    frmMainFullScreen(FullScreenOwner& owner, document::Session& session);

    /// Covers the screen and sets the speed of the player to 7. Where no picture fits it says so and closes.
    void openOn(const QScreen& screen);

    /// Copies the picture of the main board into `pic`.
    void updatePic();
    /// Caption of animlblFrameCurr.
    void updateFrameCurr(const QString& text);
    /// Marks Play while ticks come; shows whether the play is repeated.
    void showRunning(bool running);
    void showLoop(bool loop);

    std::int16_t hintTop() const { return m_hintTop; }
    std::int16_t toolTop() const { return m_places.toolTop; }
    double picScale() const { return m_view.picScale; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void connectTransport();
    void connectSpeed();
    void Form_Load();
    void Form_Unload();
    void Form_Click();

    void paintExitHint();
    void placeAnimTools();
    void sizeBoardView();

    void cmdAnimUp_Click();
    void cmdAnimDown_Click();
    void txtAnimSpeed_Change();

    FullScreenMeasures measures() const;
    QString speedText() const;
    void setSpeedText(const std::string& text);

    FullScreenOwner& m_owner;
    document::Session& m_session;
    BoardPicture* pic;
    TransportBar* pToolAnim;
    std::int16_t m_hintTop = 0;
    ToolPlaces m_places;
    BoardView m_view;
    bool m_loaded = false;
    bool m_pressed = false;
};

} // namespace zeltrona::animation
