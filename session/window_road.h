#pragma once

#include "document/play_file.h"
#include "document/session.h"
#include "render/board_art.h"

#include <QObject>

#include <cstdint>
#include <memory>

namespace zeltrona::session {

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
    // Each closes `before` once its window is up.
    void showConfig(QWidget& before);
    void showConfig1(QWidget& before);
    void showMain(QWidget& before);
    /// A caption that the language lacks, where nothing traps that.
    void failFor(QWidget& before, std::int16_t missingString);

    document::Session& m_session;
    const render::BoardArt& m_art;
    std::unique_ptr<document::PlayFile> m_newPlay; ///< while the set-up windows fill it
};

} // namespace zeltrona::session
