#pragma once

#include <QToolButton>

namespace zeltrona::animation {

/// A flat button with one sign of the transport. Pressed or running it is the same sign on the accent or a
/// darker ground, inset by one pixel; running also underlines it, so that the state never hangs on colour
/// alone.
class TransportButton : public QToolButton {
    Q_OBJECT
public:
    /// `sign`: name of the drawing, which follows the palette between its dark and its light ink.
    TransportButton(const QString& sign, int width, QWidget* parent);

    bool isRunning() const { return m_running; }
    void setRunning(bool running);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QColor ground() const;
    void loadSign();

    QString m_sign;
    QIcon m_signOnAccent;
    bool m_running = false;
};

} // namespace zeltrona::animation
