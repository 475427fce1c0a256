#include "session/frmMain.h"

#include "document/whole_file.h"
#include "platform/message_box.h"
#include "session/board_view.h"
#include "session/file_names.h"
#include "session/status_line.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QMenu>

namespace zeltrona::session {

frmMain::frmMain(document::Session& session, const render::BoardArt& art)
    : m_desk(session, art),
      m_board{m_desk.surface, m_desk.art, [this](const char* text) { showDrawingError(text); }},
      m_controls(buildMainControls(*this)),
      Timer1(new QTimer(this)),
      mnuPopUp(buildPopUpMenu(*this, menuHandlers())),
      m_timer(*Timer1, [this](bool isRunning) { m_transportBridge.showRunning(isRunning); }),
      m_editorBridge(parts(), *mnuPopUp),
      m_editor{session, m_desk.records, m_desk.editor, m_editorBridge},
      m_transportBridge(parts()),
      m_transport{m_desk.playback, session, m_desk.records, m_desk.play, m_timer, m_transportBridge} {
    setObjectName(QStringLiteral("frmMain"));
    setAccessibleName(QStringLiteral("Zeltrona"));
    setAttribute(Qt::WA_DeleteOnClose);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    buildMainMenu(*this, menuHandlers());
    connectSequence();
    connectEditing();
    connectTransport();
    showTitle();
    m_controls.pic->show(m_desk.surface);
    m_desk.play.setWriteObserver([this](const document::WriteResult& outcome) { showWriteOutcome(outcome); });
}

frmMain::~frmMain() {
    m_transportBridge.closeFullScreen();
    m_desk.play.setWriteObserver({});
}

MainWindowParts frmMain::parts() {
    return {*this, m_desk, m_controls, m_timer};
}

void frmMain::showDrawingError(const char* text) {
    platform::showMessage(this, QString::fromLatin1(text), platform::Icon::Critical);
}

render::Scene frmMain::scene() const {
    return {m_desk.session, m_desk.records, m_desk.editor.editLineIndex};
}

void frmMain::redrawBoard(float pointerX, float pointerY) {
    render::redrawBoard(m_board, scene(), pointerX, pointerY);
}

void frmMain::showWriteOutcome(const document::WriteResult& outcome) {
    m_unsavedReason = QString::fromStdString(outcome.reason);
    showSaveState();
}

void frmMain::showSaveState() {
    m_refusalReason = QString::fromStdString(document::refusalToReplace(m_desk.session.playFilePath));
    QString warning;
    if (!m_unsavedReason.isEmpty()) {
        warning = QStringLiteral("The play is not saved: %1.").arg(m_unsavedReason);
    } else if (!m_refusalReason.isEmpty()) {
        warning = QStringLiteral("This play cannot be saved here: %1.").arg(m_refusalReason);
    }
    m_controls.pStatus->setWarning(warning);
    showTitle();
}

void frmMain::showTitle() {
    QString title =
        QStringLiteral("Zeltrona - ") + QFileInfo(fromPath(m_desk.session.playFilePath)).fileName();
    if (!m_unsavedReason.isEmpty()) {
        title += QStringLiteral(" - not saved: ") + m_unsavedReason;
    } else if (!m_refusalReason.isEmpty()) {
        title += QStringLiteral(" - cannot be saved here: ") + m_refusalReason;
    }
    setWindowTitle(title);
}

void frmMain::closeEvent(QCloseEvent* event) {
    m_timer.setEnabled(false);
    m_transportBridge.closeFullScreen();
    QMainWindow::closeEvent(event);
}

void frmMain::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    centerDesk(m_controls);
}

} // namespace zeltrona::session
