#include "session/frmMain.h"

#include "animation/transport_bar.h"
#include "document/frame_store.h"
#include "platform/message_box.h"
#include "session/board_view.h"
#include "session/file_names.h"
#include "session/sequence_panel.h"
#include "session/status_line.h"
#include "session/tool_box.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QPushButton>
#include <QToolButton>

namespace zeltrona::session {

frmMain::frmMain(document::Session& session, const render::BoardArt& art)
    : m_session(session),
      m_art(art),
      m_play(session.playFilePath),
      m_controls(buildMainControls(*this)),
      Timer1(new QTimer(this)),
      m_timer(*Timer1) {
    Timer1->setObjectName(QStringLiteral("Timer1"));
    setObjectName(QStringLiteral("frmMain"));
    setAccessibleName(QStringLiteral("Zeltrona"));
    setAttribute(Qt::WA_DeleteOnClose);
    buildMainMenu(*this, menuHandlers());
    buildPopUpMenu(*this, menuHandlers());
    connectControls();
    disableWhatWaits();
    showTitle();
    m_controls.pic->show(m_surface);
    m_play.setWriteObserver([this](const document::WriteResult& outcome) { showWriteOutcome(outcome); });
}

frmMain::~frmMain() {
    m_play.setWriteObserver({});
}

MenuHandlers frmMain::menuHandlers() {
    return {
        {"mnuFileNew", [this] { emit leftForSelection(); }},
        {"mnuFileOpen", [this] { emit leftForSelection(); }},
        {"mnuFileExit", [this] { close(); }},
        {"mnuViewToolBox", [this] { m_controls.pToolbox->show(); }},
    };
}

void frmMain::connectControls() {
    const SequencePanel& frames = *m_controls.Frame1;
    connect(frames.cmdSeqNoDown, &QToolButton::clicked, this, &frmMain::cmdSeqNoDown_Click);
    connect(frames.cmdSeqNoUp, &QToolButton::clicked, this, &frmMain::cmdSeqNoUp_Click);
    connect(frames.seqSave, &QPushButton::clicked, this, &frmMain::seqSave_Click);
    const ToolBox& tools = *m_controls.pToolbox;
    connect(tools.cmdToolBox1Close, &QToolButton::clicked, m_controls.pToolbox, &QWidget::hide);
    connect(tools.cmdCurveShowHide, &QToolButton::clicked, this, &frmMain::cmdCurveShowHide_Click);
}

void frmMain::disableWhatWaits() {
    const SequencePanel& frames = *m_controls.Frame1;
    for (QWidget* waiting :
         std::initializer_list<QWidget*>{frames.seqNew, frames.seqDel, frames.seqNotes, m_controls.pToolAnim,
                                         m_controls.pToolbox->CheckCurve}) {
        waiting->setEnabled(false);
    }
    for (ToolTile* tile : m_controls.pToolbox->Picture1) {
        tile->setEnabled(false);
    }
}

render::Board frmMain::board() {
    return {m_surface, m_art, [this](const char* text) {
                platform::showMessage(this, QString::fromLatin1(text), platform::Icon::Critical);
            }};
}

render::Scene frmMain::scene() const {
    return {m_session, m_records, -1};
}

void frmMain::redrawBoard(float pointerX, float pointerY) {
    render::Board target = board();
    render::redrawBoard(target, scene(), pointerX, pointerY);
}

void frmMain::cmdCurveShowHide_Click() {
    m_session.showCurves = m_session.showCurves == 0 ? std::int16_t{-1} : std::int16_t{0};
    redrawBoard(0, 0);
}

void frmMain::showWriteOutcome(const document::WriteResult& outcome) {
    m_unsavedReason = QString::fromStdString(outcome.reason);
    m_controls.pStatus->setWarning(
        outcome.ok() ? QString() : QStringLiteral("The play is not saved: %1.").arg(m_unsavedReason));
    showTitle();
}

void frmMain::showTitle() {
    QString title = QStringLiteral("Zeltrona - ") + QFileInfo(fromPath(m_session.playFilePath)).fileName();
    if (!m_unsavedReason.isEmpty()) {
        title += QStringLiteral(" - not saved: ") + m_unsavedReason;
    }
    setWindowTitle(title);
}

void frmMain::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    centerDesk(m_controls);
}

} // namespace zeltrona::session
