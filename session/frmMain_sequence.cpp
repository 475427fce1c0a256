#include "dialogs/frmNotes.h"
#include "document/frame_store.h"
#include "document/sequence.h"
#include "platform/message_box.h"
#include "platform/program_folder.h"
#include "session/file_names.h"
#include "session/frmMain.h"
#include "session/sequence_panel.h"

#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace zeltrona::session {

namespace {

QString noSuchFrame(int number) {
    return QStringLiteral("Error:Sequence-frame No.%1 not exist!").arg(number);
}

} // namespace

void frmMain::connectSequence() {
    const SequencePanel& frames = *m_controls.Frame1;
    connect(frames.cmdSeqNoDown, &QToolButton::clicked, this, &frmMain::cmdSeqNoDown_Click);
    connect(frames.cmdSeqNoUp, &QToolButton::clicked, this, &frmMain::cmdSeqNoUp_Click);
    connect(frames.seqSave, &QPushButton::clicked, this, &frmMain::seqSave_Click);
    connect(frames.seqNew, &QPushButton::clicked, this, &frmMain::seqNew_Click);
    connect(frames.seqDel, &QPushButton::clicked, this, &frmMain::seqDel_Click);
    connect(frames.seqNotes, &QPushButton::clicked, this, &frmMain::seqNotes_Click);
}

// The two ways of writing the position differ by their blanks, and users know both.
void frmMain::showFramePosition(std::int16_t n) {
    m_controls.Frame1->txtSeq->setText(
        QStringLiteral("%1of%2").arg(n).arg(document::countFrames(m_desk.play)));
}

void frmMain::showFrameOfCount(std::int16_t n, std::int16_t count) {
    m_controls.Frame1->txtSeq->setText(QStringLiteral("%1 of %2").arg(n).arg(count));
}

void frmMain::cmdSeqNoDown_Click() {
    m_timer.setEnabled(false);
    const std::int16_t count = document::countFrames(m_desk.play);
    switch (document::stepDown(m_desk.play, m_desk.session, m_desk.records)) {
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
    showFrameOfCount(m_desk.session.currFrame, count);
}

void frmMain::cmdSeqNoUp_Click() {
    m_timer.setEnabled(false);
    const std::int16_t count = document::countFrames(m_desk.play);
    switch (document::stepUp(m_desk.play, m_desk.session, m_desk.records, count)) {
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
    showFrameOfCount(m_desk.session.currFrame, count);
}

// A failed write shows in the message line and in the title.
void frmMain::seqSave_Click() {
    m_timer.setEnabled(false);
    document::saveFrame(m_desk.play, m_desk.session, m_desk.records, m_desk.session.currFrame, false);
}

// The board comes to rest on the last frame.
void frmMain::stopRunningAnimation() {
    if (!m_timer.enabled()) {
        return;
    }
    m_timer.setEnabled(false);
    animation::cmdAnimStop_Click(m_transport);
    m_desk.session.currFrame = static_cast<std::int16_t>(document::countFrames(m_desk.play) - 1);
    cmdSeqNoUp_Click();
}

void frmMain::seqNew_Click() {
    stopRunningAnimation();
    if (document::makeNewFrame(m_desk.play, m_desk.session, m_desk.records).ok()) {
        showFramePosition(m_desk.session.currFrame);
        redrawBoard(0, 0);
    }
}

void frmMain::seqDel_Click() {
    stopRunningAnimation();
    switch (document::checkDeletion(m_desk.play, m_desk.session)) {
    case document::Deletion::OnlyFrame:
        return;
    case document::Deletion::FirstFrame:
        platform::showMessage(this, QStringLiteral("Frirst frame can't be deleted"));
        return;
    case document::Deletion::Allowed:
        deleteShownFrame();
        return;
    }
}

void frmMain::deleteShownFrame() {
    const bool wasLast = m_desk.session.currFrame == document::countFrames(m_desk.play);
    const document::WriteResult outcome = document::deleteShownFrame(
        m_desk.play, m_desk.session, m_desk.records, toPath(platform::programFolder()));
    if (!outcome.ok()) {
        // The temporary file may have failed, of which the play knows nothing.
        showWriteOutcome(outcome);
        return;
    }
    redrawBoard(0, 0);
    if (wasLast) {
        showFramePosition(m_desk.session.currFrame);
    } else {
        showFrameOfCount(m_desk.session.currFrame, document::countFrames(m_desk.play));
    }
}

void frmMain::seqNotes_Click() {
    m_timer.setEnabled(false);
    dialogs::frmNotes(m_desk.play, m_desk.session, this).exec();
    redrawBoard(0, 0);
}

} // namespace zeltrona::session
