#pragma once

#include "document/session.h"
#include "render/board_art.h"
#include "session/frmMain.h"
#include "session/language.h"

#include <QImage>
#include <QPointer>
#include <QTemporaryDir>

#include <memory>
#include <string>

namespace zeltrona::testing {

/// The pictures of the board, loaded once for all tests.
const render::BoardArt& boardArt();

/// A play of three frames on a half court with circles, lines ended by CR LF.
std::string threeFramePlay();
/// The same with another court, or with bodies.
std::string playOnCourt(int court);
std::string playWithBodies();

/// What the board should show for a frame of a play: read and painted apart from any window.
QImage expectedBoard(const std::string& path, std::int16_t frame, std::int16_t showCurves = 0);

/// A play in a folder of its own, opened in the main window as the user sees it.
class OpenPlay {
public:
    explicit OpenPlay(const std::string& bytes = threeFramePlay(), int language = 0);
    ~OpenPlay();

    session::frmMain& window() { return *m_window; }
    /// Null once the window has closed and is gone.
    QPointer<session::frmMain> pointer() { return m_window; }
    document::Session& session() { return m_session; }

    QString path() const { return m_folder.filePath(QStringLiteral("play.zpf")); }
    QString folder() const { return m_folder.path(); }
    std::string bytes() const;
    void writeBytes(const std::string& bytes) const;

    /// A key of the play as it stands in the file, or "(none)".
    std::string key(const std::string& section, const std::string& name) const;

    /// Text of the counter, of the message line, and the board's picture as the user sees it.
    std::string txtSeq();
    std::string status();
    QImage board();
    QWidget& pic();
    /// Clicks the button of a tool.
    void pickTool(int index);
    std::string tag(int tool);

private:
    QTemporaryDir m_folder;
    document::Session m_session;
    QPointer<session::frmMain> m_window;
};

} // namespace zeltrona::testing
