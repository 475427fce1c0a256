#pragma once

#include "animation/qt_anim_timer.h"
#include "document/frame_records.h"
#include "document/play_file.h"
#include "document/session.h"
#include "render/board_art.h"
#include "render/board_surface.h"
#include "render/redraw.h"
#include "session/main_controls.h"
#include "session/main_menu.h"

#include <QMainWindow>

#include <cstdint>
#include <optional>

namespace zeltrona::session {

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

signals:
    /// New or Open was chosen: the selection window takes over and this one goes.
    void leftForSelection();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    MenuHandlers menuHandlers();
    void connectControls();
    /// Drawing and playback are not connected yet: their controls are there and cannot be used.
    void disableWhatWaits();

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
    void cmdSeqNoDown_Click();
    void cmdSeqNoUp_Click();
    void seqSave_Click();

    void cmdCurveShowHide_Click();
    void showWriteOutcome(const document::WriteResult& outcome);
    void showTitle();

    render::Board board();
    render::Scene scene() const;

    document::Session& m_session;
    const render::BoardArt& m_art;
    document::PlayFile m_play;
    document::FrameRecords m_records;
    render::BoardSurface m_surface;
    MainControls m_controls;
    QTimer* Timer1;
    animation::QtAnimTimer m_timer;
    QString m_unsavedReason; ///< empty while the last write succeeded
};

} // namespace zeltrona::session
