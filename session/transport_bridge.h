#pragma once

#include "animation/frmMainFullScreen.h"
#include "animation/full_screen_owner.h"
#include "animation/transport_host.h"
#include "session/main_window_parts.h"

#include <QPointer>

namespace zeltrona::session {

/// Stands between the playback and the window: shows what the transport tells, on the full screen too while
/// that is open, and presses the window's own buttons for it.
class TransportBridge : public animation::TransportHost, public animation::FullScreenOwner {
public:
    explicit TransportBridge(const MainWindowParts& parts) : m_parts(parts) {}
    /// Takes the full screen with it.
    ~TransportBridge() override;

    /// Opens the full screen over the screen of the window; brings it to the front when it is open already.
    void openFullScreen();
    void closeFullScreen();
    void showRunning(bool isRunning);
    void showLoop();

    void showCounter(std::string_view caption) override;
    void drawAnimationStep() override;
    void updateFrameCurr(std::string_view caption) override;
    void updatePic() override;
    void cmdSeqNoDown_Click() override;
    std::string speedText() const override;
    void setSpeedText(std::string_view text) override;
    void redrawBoard() override;
    void showRunTimeError(const animation::RunTimeError& error) override;

    void cmdAnimFirst_Click() override;
    void cmdAnimPrev_Click() override;
    void cmdAnimPlay_Click() override;
    void cmdAnimPause_Click() override;
    void cmdAnimStop_Click() override;
    void cmdAnimNext_Click() override;
    void cmdAnimLast_Click() override;
    void cmdAnimUp_Click() override;
    void cmdAnimDown_Click() override;
    void animCheckLoop_Click() override;
    void setAnimSpeedText(const QString& text) override;
    const QImage& boardImage() const override;

private:
    MainWindowParts m_parts;
    QPointer<animation::frmMainFullScreen> m_fullScreen;
};

} // namespace zeltrona::session
