#include "animation/transport_bar.h"

#include "platform/spoken_caption.h"
#include "platform/themed_icon.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QMouseEvent>

namespace zeltrona::animation {

namespace {

constexpr int kButtonWidth = 24;
constexpr int kArrowWidth = 20;
constexpr int kGroupGap = 8;

QHBoxLayout* rowOf(QWidget* bar) {
    return static_cast<QHBoxLayout*>(bar->layout());
}

} // namespace

TransportBar::TransportBar(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("pToolAnim"));
    setAccessibleName(QStringLiteral("Playback"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(4, 4, 8, 4);
    row->setSpacing(0);
    cmdAnimFirst =
        addButton("cmdAnimFirst", "anim_first", QStringLiteral("To the first sequence"), kButtonWidth);
    cmdAnimPrev = addButton("cmdAnimPrev", "anim_prev", QStringLiteral("One sequence back"), kButtonWidth);
    cmdAnimPlay =
        addButton("cmdAnimPlay", "anim_play", QStringLiteral("Play from the beginning"), kButtonWidth + 4);
    cmdAnimPause = addButton("cmdAnimPause", "anim_pause", QStringLiteral("Pause, or go on"), kButtonWidth);
    cmdAnimStop = addButton("cmdAnimStop", "anim_stop", QStringLiteral("Stop and show the first sequence"),
                            kButtonWidth);
    cmdAnimNext = addButton("cmdAnimNext", "anim_next", QStringLiteral("One sequence forward"), kButtonWidth);
    cmdAnimLast = addButton("cmdAnimLast", "anim_last", QStringLiteral("To the last move"), kButtonWidth);
    addGap();
    cmdAnimDown = addButton("cmdAnimDown", "speed_down", QStringLiteral("Slower"), kArrowWidth);
    makeSpeedBox();
    cmdAnimUp = addButton("cmdAnimUp", "speed_up", QStringLiteral("Faster"), kArrowWidth);
    addGap();
    makeLoopBox();
    addGap();
    makeCounter();
}

// A bar wider than it needs to be keeps its groups together and widens the room between them.
void TransportBar::addGap() {
    rowOf(this)->addSpacing(kGroupGap);
    rowOf(this)->addStretch(1);
}

TransportButton* TransportBar::addButton(const char* name, const char* sign, const QString& tip, int width) {
    auto* button = new TransportButton(QLatin1String(sign), width, this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    rowOf(this)->addWidget(button);
    return button;
}

void TransportBar::makeSpeedBox() {
    txtAnimSpeed = new QLineEdit(this);
    txtAnimSpeed->setObjectName(QStringLiteral("txtAnimSpeed"));
    txtAnimSpeed->setAccessibleName(QStringLiteral("Speed"));
    txtAnimSpeed->setToolTip(QStringLiteral("Speed, 1 to 9"));
    txtAnimSpeed->setAlignment(Qt::AlignCenter);
    txtAnimSpeed->setFixedWidth(kButtonWidth);
    txtAnimSpeed->installEventFilter(this);
    rowOf(this)->addWidget(txtAnimSpeed);
}

void TransportBar::makeLoopBox() {
    animCheckLoop = new QCheckBox(this);
    animCheckLoop->setObjectName(QStringLiteral("animCheckLoop"));
    animCheckLoop->setAccessibleName(QStringLiteral("Repeat the play"));
    animCheckLoop->setToolTip(QStringLiteral("Repeat the play"));
    animCheckLoop->setIconSize({20, 20});
    animCheckLoop->setIcon(platform::themedIcon(QStringLiteral("anim_loop"), palette()));
    rowOf(this)->addWidget(animCheckLoop);
}

void TransportBar::makeCounter() {
    animlblFrameCurr = new QLabel(this);
    animlblFrameCurr->setObjectName(QStringLiteral("animlblFrameCurr"));
    animlblFrameCurr->setAccessibleName(QStringLiteral("Sequence being played"));
    animlblFrameCurr->setToolTip(QStringLiteral("Sequence being played, of how many"));
    animlblFrameCurr->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    animlblFrameCurr->setFixedWidth(
        animlblFrameCurr->fontMetrics().horizontalAdvance(QStringLiteral("888/888")));
    rowOf(this)->addWidget(animlblFrameCurr);
}

void TransportBar::showCounter(const QString& text) {
    animlblFrameCurr->setText(text);
    platform::speakCaption(*animlblFrameCurr);
}

void TransportBar::showRunning(bool running) {
    cmdAnimPlay->setRunning(running);
}

void TransportBar::mousePressEvent(QMouseEvent* event) {
    m_pressed = event->button() == Qt::LeftButton && childAt(event->pos()) == nullptr;
    event->accept();
}

void TransportBar::mouseReleaseEvent(QMouseEvent* event) {
    const bool clicked = m_pressed && event->button() == Qt::LeftButton && rect().contains(event->pos());
    m_pressed = false;
    event->accept();
    if (clicked) {
        emit backgroundClicked();
    }
}

bool TransportBar::eventFilter(QObject* watched, QEvent* event) {
    // The box holds one digit, and a second one beside it counts as a mistake: what is typed has to replace
    // it.
    if (event->type() == QEvent::FocusIn && watched == txtAnimSpeed) {
        QMetaObject::invokeMethod(txtAnimSpeed, &QLineEdit::selectAll, Qt::QueuedConnection);
    }
    return QFrame::eventFilter(watched, event);
}

void TransportBar::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        animCheckLoop->setIcon(platform::themedIcon(QStringLiteral("anim_loop"), palette()));
    }
    QFrame::changeEvent(event);
}

} // namespace zeltrona::animation
