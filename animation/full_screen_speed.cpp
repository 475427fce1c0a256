// The speed box of the full screen. It is a store of its own beside the main window's, and each change of it
// is carried over.
#include "animation/anim_speed.h"
#include "animation/frmMainFullScreen.h"

namespace zeltrona::animation {

void frmMainFullScreen::connectSpeed() {
    connect(pToolAnim->cmdAnimUp, &QAbstractButton::clicked, this, &frmMainFullScreen::cmdAnimUp_Click);
    connect(pToolAnim->cmdAnimDown, &QAbstractButton::clicked, this, &frmMainFullScreen::cmdAnimDown_Click);
    connect(pToolAnim->txtAnimSpeed, &QLineEdit::textChanged, this, &frmMainFullScreen::txtAnimSpeed_Change);
}

void frmMainFullScreen::setSpeedText(const std::string& text) {
    pToolAnim->txtAnimSpeed->setText(QString::fromStdString(text));
}

void frmMainFullScreen::cmdAnimUp_Click() {
    m_owner.cmdAnimUp_Click();
    // By way of "8", so that a main window that stood elsewhere ends at "9" too.
    if (isFastestSpeed(speedText().toStdString())) {
        setSpeedText("8");
    }
    setSpeedText(plainSpeedText(speedText().toStdString(), +1));
}

void frmMainFullScreen::cmdAnimDown_Click() {
    m_owner.cmdAnimDown_Click();
    setSpeedText(plainSpeedText(speedText().toStdString(), -1));
}

void frmMainFullScreen::txtAnimSpeed_Change() {
    const std::string text = speedText().toStdString();
    if (const std::string kept = keptFullScreenSpeedText(text); kept != text) {
        setSpeedText(kept);
        pToolAnim->txtAnimSpeed->selectAll();
        return;
    }
    m_owner.setAnimSpeedText(speedText());
}

QString frmMainFullScreen::speedText() const {
    return pToolAnim->txtAnimSpeed->text();
}

} // namespace zeltrona::animation
