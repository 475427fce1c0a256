#pragma once

#include <QPixmap>
#include <QToolButton>

namespace zeltrona::session {

/// One button of the toolbox, `Picture1(i)`. It shows the released or the pressed cell of the strip of tool
/// icons; its `Tag` is "1" while it is down (and it is checked) and "0" while it is up, set by whoever
/// decides on the tools: a click alone changes nothing.
class ToolTile : public QToolButton {
    Q_OBJECT
    Q_PROPERTY(QString Tag READ tag WRITE setTag)

public:
    ToolTile(int number, QWidget* parent);

    QString tag() const { return isChecked() ? QStringLiteral("1") : QStringLiteral("0"); }
    void setTag(const QString& tag);

    /// The strip holds two cells a tool, released and pressed, each 20 x 20.
    void setStrip(const QPixmap& strip);

    QSize sizeHint() const override;

protected:
    void nextCheckState() override {}
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    int m_number;
    QPixmap m_strip;
};

/// Left edge in the strip of the image of tool `number`, counted from 1; state 1 is the pressed one.
constexpr int toolImageOffset(int number, int state) {
    return (number * 2 - 2) * 20 + (state == 1 ? 20 : 0);
}

} // namespace zeltrona::session
