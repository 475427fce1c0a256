#pragma once

#include "animation/qt_anim_timer.h"
#include "animation/transport.h"
#include "editor/editor_context.h"
#include "output/page_layout.h"
#include "render/redraw.h"
#include "session/editor_bridge.h"
#include "session/main_controls.h"
#include "session/main_menu.h"
#include "session/play_desk.h"
#include "session/transport_bridge.h"

#include <QMainWindow>

#include <cstdint>
#include <functional>
#include <optional>

class QMenu;

namespace zeltrona::output {
struct FrameWalk;
}

namespace zeltrona::session {

struct PointerEvent;

/// The main window: the board of an open play with everything around it. It owns the records of the shown
/// frame and the play file, and is deleted when it closes; what was not saved is lost without a question.
class frmMain : public QMainWindow {
    Q_OBJECT

public:
    /// `session` and `art` live longer than the window.
    frmMain(document::Session& session, const render::BoardArt& art);
    ~frmMain() override;

    /// Brings everything up for session.playFilePath; to be called once, before the window is shown.
    /// Errors: the id of the first caption that the language lacks. Nothing traps that, so the program has to
    /// end.
    std::optional<std::int16_t> load();

    /// Repaints the board from the records; the place is the free end of a line under construction.
    void redrawBoard(float pointerX, float pointerY);
    /// The board as painters take it; a failed drawing is told to the user.
    render::Board& board() { return m_board; }

    void cmdSeqNoDown_Click();
    void cmdSeqNoUp_Click();

signals:
    /// New or Open was chosen: the selection window takes over and this one goes.
    void leftForSelection();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    MenuHandlers menuHandlers();
    void connectSequence();
    void connectEditing();
    void connectTransport();

    // The steps of load, in their order.
    void resetSessionAndCounter();
    void resetRecords();
    void loadFont();
    void layoutWindowForCourt();
    void drawFirstCourt();
    void layoutNewPlayers();
    void placeAndStoreNewPlayers();
    void resetAnimation();
    std::optional<std::int16_t> setMainCaptions();

    // The sequence panel.
    void showFramePosition(std::int16_t n);
    void showFrameOfCount(std::int16_t n, std::int16_t count);
    void stopRunningAnimation();
    void seqSave_Click();
    void seqNew_Click();
    void seqDel_Click();
    void deleteShownFrame();
    void seqNotes_Click();

    // The events of `pic` and of the tools.
    void pic_MouseDown(const PointerEvent& event);
    void pic_MouseMove(const PointerEvent& event);
    void pic_MouseUp(const PointerEvent& event);

    // The menu.
    void mnuEditCopy_Click();
    void mnuEditTitle_Click();
    void mnuFileExportPictures_Click();
    void mnuFileExportWeb_Click();
    void printWithMode(output::PrintMode mode);
    void previewWithMode(output::PrintMode mode);
    void mnuHelpHelpTopic_Click();
    void mnuHelpAbout_Click();

    /// Runs what walks currFrame over the play, and puts the shown frame and the hint back.
    void walkFrames(const std::function<void(output::FrameWalk&)>& work);
    void showProgress(int frame, int frames);

    void showDrawingError(const char* text);
    void showWriteOutcome(const document::WriteResult& outcome);
    /// Says in message line and title that the play is not saved, or that it cannot be saved where it lies.
    void showSaveState();
    void showTitle();

    render::Scene scene() const;
    MainWindowParts parts();

    PlayDesk m_desk;
    render::Board m_board; ///< one for the whole life: it remembers what redraws share
    MainControls m_controls;
    QTimer* Timer1;
    QMenu* mnuPopUp;
    animation::QtAnimTimer m_timer;
    EditorBridge m_editorBridge;
    editor::EditorContext m_editor;
    TransportBridge m_transportBridge;
    animation::Transport m_transport;
    QString m_unsavedReason; ///< empty while the last write succeeded
    QString m_refusalReason; ///< why a write would fail; empty when it would not
};

} // namespace zeltrona::session
