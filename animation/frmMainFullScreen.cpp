#include "animation/frmMainFullScreen.h"

#include "platform/message_box.h"

#include <QCloseEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

namespace zeltrona::animation {

namespace {

const QColor kGround(0x10, 0x12, 0x14);
const QColor kBarGround(0x1D, 0x20, 0x24);
const QColor kBarField(0x3A, 0x3F, 0x45);
const QColor kBarText(0xE6, 0xE8, 0xEA);
constexpr int kHintLeft = 10;
constexpr int kHintSize = 12;
constexpr double kPixelsPerPoint = 96.0 / 72.0;

QString hintText() {
    return QStringLiteral("Press ESC to EXIT");
}

QString nameText() {
    return QStringLiteral("ZELTRONA");
}

QFont screenFont(int points) {
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(qRound(points * kPixelsPerPoint));
    font.setBold(true);
    return font;
}

TextExtent extentOf(const QString& text, int points) {
    const QFontMetrics metrics(screenFont(points));
    return {metrics.horizontalAdvance(text), metrics.height()};
}

QPalette darkPalette(const QPalette& base) {
    QPalette dark = base;
    for (const auto role : {QPalette::Window, QPalette::Button}) {
        dark.setColor(role, kBarGround);
    }
    dark.setColor(QPalette::Base, kBarField);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        dark.setColor(role, kBarText);
    }
    return dark;
}

} // namespace

frmMainFullScreen::frmMainFullScreen(FullScreenOwner& owner, document::Session& session)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      m_owner(owner),
      m_session(session),
      pic(new BoardPicture(this)),
      pToolAnim(new TransportBar(this)) {
    setObjectName(QStringLiteral("frmMainFullScreen"));
    setWindowTitle(QStringLiteral("Zeltrona"));
    setAccessibleName(QStringLiteral("Full screen animation"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_OpaquePaintEvent);
    pToolAnim->setPalette(darkPalette(palette()));
    pToolAnim->setAutoFillBackground(true);
    connectTransport();
    connectSpeed();
}

void frmMainFullScreen::connectTransport() {
    const std::pair<TransportButton*, void (FullScreenOwner::*)()> clicks[] = {
        {pToolAnim->cmdAnimFirst, &FullScreenOwner::cmdAnimFirst_Click},
        {pToolAnim->cmdAnimPrev, &FullScreenOwner::cmdAnimPrev_Click},
        {pToolAnim->cmdAnimPlay, &FullScreenOwner::cmdAnimPlay_Click},
        {pToolAnim->cmdAnimPause, &FullScreenOwner::cmdAnimPause_Click},
        {pToolAnim->cmdAnimStop, &FullScreenOwner::cmdAnimStop_Click},
        {pToolAnim->cmdAnimNext, &FullScreenOwner::cmdAnimNext_Click},
        {pToolAnim->cmdAnimLast, &FullScreenOwner::cmdAnimLast_Click},
    };
    for (const auto& [button, click] : clicks) {
        connect(button, &QAbstractButton::clicked, this, [this, click = click] { (m_owner.*click)(); });
    }
    connect(pToolAnim->animCheckLoop, &QAbstractButton::clicked, this,
            [this] { m_owner.animCheckLoop_Click(); });
    connect(pToolAnim, &TransportBar::backgroundClicked, this, &frmMainFullScreen::Form_Click);
}

void frmMainFullScreen::openOn(const QScreen& screen) {
    setGeometry(screen.geometry());
    Form_Load();
    if (m_loaded) {
        showFullScreen();
        pToolAnim->cmdAnimPlay->setFocus();
    }
}

void frmMainFullScreen::Form_Load() {
    m_loaded = true;
    m_session.fullScreenOpen = true;
    showLoop(m_session.animLoop);
    paintExitHint();
    placeAnimTools();
    sizeBoardView();
    if (m_loaded) {
        setSpeedText("7");
    }
}

void frmMainFullScreen::Form_Unload() {
    if (m_loaded) {
        m_loaded = false;
        m_session.fullScreenOpen = false;
        m_owner.cmdAnimStop_Click();
    }
}

void frmMainFullScreen::Form_Click() {
    const QPointer<frmMainFullScreen> self(this);
    const auto answer = platform::showMessage(this, QStringLiteral("Exit?"), platform::Icon::Question,
                                              platform::Buttons::YesNo);
    if (self && answer == platform::Answer::Yes) {
        close();
    }
}

FullScreenMeasures frmMainFullScreen::measures() const {
    FullScreenMeasures measures;
    measures.scaleWidth = width();
    measures.scaleHeight = height();
    measures.toolWidth = pToolAnim->sizeHint().width();
    measures.toolHeight = pToolAnim->sizeHint().height();
    measures.hintHeight = extentOf(hintText(), kHintSize).height;
    measures.boardWidth = m_owner.boardImage().width();
    measures.boardHeight = m_owner.boardImage().height();
    return measures;
}

void frmMainFullScreen::paintExitHint() {
    m_hintTop = hintTopOf(measures());
    update();
}

void frmMainFullScreen::placeAnimTools() {
    m_places = ::zeltrona::animation::placeAnimTools(measures(), m_hintTop,
                                                     [](int points) { return extentOf(nameText(), points); });
    pToolAnim->adjustSize();
    pToolAnim->move(m_places.left, m_places.toolTop);
    update();
}

void frmMainFullScreen::sizeBoardView() {
    m_view = ::zeltrona::animation::sizeBoardView(measures(), m_places.toolTop);
    if (!m_view.fits) {
        platform::showMessage(this, QStringLiteral("Can't create render surface."), platform::Icon::Critical);
        close();
        return;
    }
    pic->setGeometry(m_view.left, m_view.top, m_view.width, m_view.height);
}

void frmMainFullScreen::updatePic() {
    pic->showBoard(m_owner.boardImage());
}

void frmMainFullScreen::updateFrameCurr(const QString& text) {
    pToolAnim->showCounter(text);
}

void frmMainFullScreen::showRunning(bool running) {
    pToolAnim->showRunning(running);
}

void frmMainFullScreen::showLoop(bool loop) {
    pToolAnim->animCheckLoop->setChecked(loop);
}

void frmMainFullScreen::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), kGround);
    painter.setPen(Qt::white);
    const auto print = [&painter](double x, double y, int points, const QString& text) {
        painter.setFont(screenFont(points));
        painter.drawText(QPointF(x, y + painter.fontMetrics().ascent()), text);
    };
    print(kHintLeft, m_hintTop, kHintSize, hintText());
    if (m_places.name.shown) {
        print(m_places.name.leftX, m_places.name.y, m_places.name.fontSize, nameText());
        print(m_places.name.rightX, m_places.name.y, m_places.name.fontSize, nameText());
    }
}

void frmMainFullScreen::resizeEvent(QResizeEvent*) {
    if (!m_loaded) {
        return;
    }
    paintExitHint();
    placeAnimTools();
    sizeBoardView();
    updatePic();
}

void frmMainFullScreen::closeEvent(QCloseEvent* event) {
    Form_Unload();
    event->accept();
}

void frmMainFullScreen::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && focusWidget() != pToolAnim->txtAnimSpeed) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

void frmMainFullScreen::mousePressEvent(QMouseEvent* event) {
    m_pressed = event->button() == Qt::LeftButton;
}

void frmMainFullScreen::mouseReleaseEvent(QMouseEvent* event) {
    const bool clicked = m_pressed && event->button() == Qt::LeftButton && rect().contains(event->pos());
    m_pressed = false;
    if (clicked) {
        Form_Click();
    }
}

} // namespace zeltrona::animation
