#pragma once

#include <QPixmap>
#include <QWidget>

class QTimer;

namespace zeltrona::session {

/// The first window: a picture of 400 x 200 pixels that stands for 3000 ms. Then it switches its timer off,
/// tells `timePassed` and closes.
class frmSplash : public QWidget {
    Q_OBJECT

public:
    frmSplash();

signals:
    void timePassed();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Timer1_Timer();

    QTimer* m_timer = nullptr;
};

} // namespace zeltrona::session
