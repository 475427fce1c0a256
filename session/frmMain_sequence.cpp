#include "document/frame_store.h"
#include "document/sequence.h"
#include "platform/message_box.h"
#include "session/frmMain.h"
#include "session/sequence_panel.h"

#include <QLineEdit>

namespace zeltrona::session {

namespace {

QString noSuchFrame(int number) {
    return QStringLiteral("Error:Sequence-frame No.%1 not exist!").arg(number);
}

} // namespace

// The two ways of writing the position differ by their blanks, and users know both.
void frmMain::showFramePosition(std::int16_t n) {
    m_controls.Frame1->txtSeq->setText(QStringLiteral("%1of%2").arg(n).arg(document::countFrames(m_play)));
}

void frmMain::showFrameOfCount(std::int16_t n, std::int16_t count) {
    m_controls.Frame1->txtSeq->setText(QStringLiteral("%1 of %2").arg(n).arg(count));
}

void frmMain::cmdSeqNoDown_Click() {
    m_timer.setEnabled(false);
    const std::int16_t count = document::countFrames(m_play);
    switch (document::stepDown(m_play, m_session, m_records)) {
    case document::StepOutcome::NoFirst:
        platform::showMessage(this, noSuchFrame(1), platform::Icon::Critical);
        return;
    case document::StepOutcome::Shown:
        redrawBoard(0, 0);
        break;
    case document::StepOutcome::AtEnd:
    case document::StepOutcome::NoLast:
        break;
    }
    showFrameOfCount(m_session.currFrame, count);
}

void frmMain::cmdSeqNoUp_Click() {
    m_timer.setEnabled(false);
    const std::int16_t count = document::countFrames(m_play);
    switch (document::stepUp(m_play, m_session, m_records, count)) {
    case document::StepOutcome::NoLast:
        platform::showMessage(this, noSuchFrame(count), platform::Icon::Critical);
        redrawBoard(0, 0);
        break;
    case document::StepOutcome::Shown:
        redrawBoard(0, 0);
        break;
    case document::StepOutcome::AtEnd:
    case document::StepOutcome::NoFirst:
        break;
    }
    showFrameOfCount(m_session.currFrame, count);
}

// A failed write shows in the message line and in the title.
void frmMain::seqSave_Click() {
    m_timer.setEnabled(false);
    document::saveFrame(m_play, m_session, m_records, m_session.currFrame, false);
}

} // namespace zeltrona::session
