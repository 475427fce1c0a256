#pragma once

#include "animation/transport_button.h"

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>

namespace zeltrona::animation {

/// The tool bar `pToolAnim`, alike on the main window and on the full screen. It only carries the controls,
/// each with its interface name; its window connects them.
class TransportBar : public QFrame {
    Q_OBJECT
public:
    explicit TransportBar(QWidget* parent);

    TransportButton* cmdAnimFirst;
    TransportButton* cmdAnimPrev;
    TransportButton* cmdAnimPlay;
    TransportButton* cmdAnimPause;
    TransportButton* cmdAnimStop;
    TransportButton* cmdAnimNext;
    TransportButton* cmdAnimLast;
    TransportButton* cmdAnimDown;
    QLineEdit* txtAnimSpeed;
    TransportButton* cmdAnimUp;
    QCheckBox* animCheckLoop;
    QLabel* animlblFrameCurr;

    /// The counter's text, which is what a listener hears of it too.
    void showCounter(const QString& text);
    /// Marks Play while ticks come.
    void showRunning(bool running);

signals:
    /// A click on the bar itself, beside its controls.
    void backgroundClicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    TransportButton* addButton(const char* name, const char* sign, const QString& tip, int width);
    void addGap();
    void makeSpeedBox();
    void makeLoopBox();
    void makeCounter();

    bool m_pressed = false;
};

} // namespace zeltrona::animation
