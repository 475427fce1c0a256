#pragma once

#include "document/session.h"
#include "render/board_art.h"

#include <QObject>

namespace zeltrona::session {

class frmGameSelect;
class frmMain;

/// The road from window to window. One of them is up at a time; each is deleted when it closes, and the next
/// one shows before, so that the program does not end in between.
class WindowRoad : public QObject {
    Q_OBJECT

public:
    /// Both live longer than the road.
    WindowRoad(document::Session& session, const render::BoardArt& art);

    void showSplash();
    void showGameSelect();

signals:
    /// A failure that nothing traps was shown to the user: the program ends with this code.
    void failed(int exitCode);

private:
    /// Closes `before` once the main window is up.
    void showMain(QWidget& before);

    document::Session& m_session;
    const render::BoardArt& m_art;
};

} // namespace zeltrona::session
