#pragma once

#include "render/board_surface.h"

#include <QWidget>

namespace zeltrona::session {

/// A pointer event as the editor reads it.
/// Units:  button 1 left, 2 right, 4 middle; shift 1 Shift, 2 Ctrl, 4 Alt, added up; places in board units.
/// Shape:  a press and a release carry the one button that changed, a move carries all that are held.
struct PointerEvent {
    int button = 0;
    int shift = 0;
    float x = 0.0F;
    float y = 0.0F;
    friend bool operator==(const PointerEvent&, const PointerEvent&) = default;
};

/// `pic`: shows the surface's image, one image pixel to one board unit, without a border, and tells pointer
/// events. It follows the pointer without a button too. On a finer screen a unit is a block of equal pixels.
/// Each press of a button is followed by its release, also where a message box or a menu swallowed it: it is
/// told when the pointer is back, at the latest ahead of the next press, or when the button goes up after
/// that.
class BoardView : public QWidget {
    Q_OBJECT

public:
    explicit BoardView(QWidget* parent);

    /// Shows a surface, which must live as long; takes its size now and at each refresh.
    void show(render::BoardSurface& surface);

signals:
    void pressed(const zeltrona::session::PointerEvent& event);
    void moved(const zeltrona::session::PointerEvent& event);
    void released(const zeltrona::session::PointerEvent& event);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showRefreshed();
    Qt::MouseButtons lostButtons() const;
    void tellReleases(Qt::MouseButtons buttons);
    void watchWindow();

    render::BoardSurface* m_surface = nullptr;
    /// Pressed here and not yet told as released; events of a test's own never set it.
    Qt::MouseButtons m_held;
};

} // namespace zeltrona::session
