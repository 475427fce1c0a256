#include "session/transport_bridge.h"

#include "animation/draw_animation.h"
#include "animation/transport_bar.h"
#include "platform/message_box.h"
#include "session/frmMain.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>

namespace zeltrona::session {

namespace {

QString toText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

TransportBridge::~TransportBridge() {
    closeFullScreen();
    delete m_fullScreen;
}

void TransportBridge::openFullScreen() {
    if (m_fullScreen) {
        m_fullScreen->raise();
        m_fullScreen->activateWindow();
        return;
    }
    m_fullScreen = new animation::frmMainFullScreen(*this, m_parts.desk.session);
    m_fullScreen->showRunning(m_parts.timer.runs());
    m_fullScreen->openOn(*m_parts.window.screen());
}

void TransportBridge::closeFullScreen() {
    if (m_fullScreen) {
        m_fullScreen->close();
    }
}

void TransportBridge::showRunning(bool isRunning) {
    m_parts.controls.pToolAnim->showRunning(isRunning);
    if (m_fullScreen) {
        m_fullScreen->showRunning(isRunning);
    }
}

void TransportBridge::showLoop() {
    m_parts.controls.pToolAnim->animCheckLoop->setChecked(m_parts.desk.session.animLoop);
    if (m_fullScreen) {
        m_fullScreen->showLoop(m_parts.desk.session.animLoop);
    }
}

void TransportBridge::showCounter(std::string_view caption) {
    m_parts.controls.pToolAnim->showCounter(toText(caption));
}

void TransportBridge::drawAnimationStep() {
    PlayDesk& desk = m_parts.desk;
    animation::drawAnimationStep(m_parts.window.board(), {desk.playback, desk.session, desk.records});
}

void TransportBridge::updateFrameCurr(std::string_view caption) {
    if (m_fullScreen) {
        m_fullScreen->updateFrameCurr(toText(caption));
    }
}

void TransportBridge::updatePic() {
    if (m_fullScreen) {
        m_fullScreen->updatePic();
    }
}

void TransportBridge::cmdSeqNoDown_Click() {
    m_parts.window.cmdSeqNoDown_Click();
}

std::string TransportBridge::speedText() const {
    return m_parts.controls.pToolAnim->txtAnimSpeed->text().toStdString();
}

void TransportBridge::setSpeedText(std::string_view text) {
    QLineEdit& box = *m_parts.controls.pToolAnim->txtAnimSpeed;
    box.setText(toText(text));
    // The box holds one digit: what is typed next has to replace it.
    if (box.hasFocus()) {
        box.selectAll();
    }
}

void TransportBridge::redrawBoard() {
    m_parts.window.redrawBoard(0, 0);
}

void TransportBridge::showRunTimeError(const animation::RunTimeError& error) {
    QWidget* owner = m_fullScreen ? static_cast<QWidget*>(m_fullScreen) : &m_parts.window;
    platform::showRunTimeError(owner, error.number, toText(error.description));
}

void TransportBridge::cmdAnimFirst_Click() {
    m_parts.controls.pToolAnim->cmdAnimFirst->click();
}

void TransportBridge::cmdAnimPrev_Click() {
    m_parts.controls.pToolAnim->cmdAnimPrev->click();
}

void TransportBridge::cmdAnimPlay_Click() {
    m_parts.controls.pToolAnim->cmdAnimPlay->click();
}

void TransportBridge::cmdAnimPause_Click() {
    m_parts.controls.pToolAnim->cmdAnimPause->click();
}

void TransportBridge::cmdAnimStop_Click() {
    m_parts.controls.pToolAnim->cmdAnimStop->click();
}

void TransportBridge::cmdAnimNext_Click() {
    m_parts.controls.pToolAnim->cmdAnimNext->click();
}

void TransportBridge::cmdAnimLast_Click() {
    m_parts.controls.pToolAnim->cmdAnimLast->click();
}

void TransportBridge::cmdAnimUp_Click() {
    m_parts.controls.pToolAnim->cmdAnimUp->click();
}

void TransportBridge::cmdAnimDown_Click() {
    m_parts.controls.pToolAnim->cmdAnimDown->click();
}

void TransportBridge::animCheckLoop_Click() {
    m_parts.controls.pToolAnim->animCheckLoop->click();
}

void TransportBridge::setAnimSpeedText(const QString& text) {
    m_parts.controls.pToolAnim->txtAnimSpeed->setText(text);
}

const QImage& TransportBridge::boardImage() const {
    return m_parts.desk.surface.image();
}

} // namespace zeltrona::session
