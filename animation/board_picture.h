#pragma once

#include <QImage>
#include <QWidget>

namespace zeltrona::animation {

/// The control `pic` of the full screen: a copy of the board's picture, stretched over the widget. It is
/// sampled once, straight to the pixels of the screen: smoothly at a broken ratio, pixel by pixel at a whole
/// one.
class BoardPicture : public QWidget {
    Q_OBJECT
public:
    explicit BoardPicture(QWidget* parent);

    /// Keeps its own copy, so that the board's picture stays unshared and the next tick paints it in place.
    void showBoard(const QImage& board);

    /// The copy as shown, in pixels of the screen.
    const QImage& picture() const { return m_picture; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QImage m_picture;
};

} // namespace zeltrona::animation
