#include "session/window_road.h"

#include "platform/message_box.h"
#include "platform/string_table.h"
#include "session/frmGameSelect.h"
#include "session/frmMain.h"
#include "session/frmSplash.h"

#include <memory>

namespace zeltrona::session {

namespace {

constexpr int kFailureCode = 1;

} // namespace

WindowRoad::WindowRoad(document::Session& session, const render::BoardArt& art)
    : m_session(session), m_art(art) {}

void WindowRoad::showSplash() {
    auto* splash = new frmSplash;
    connect(splash, &frmSplash::timePassed, this, &WindowRoad::showGameSelect);
    splash->show();
}

void WindowRoad::showGameSelect() {
    auto* select = new frmGameSelect(m_session);
    connect(select, &frmGameSelect::savedFileChosen, this, [this, select] { showMain(*select); });
    select->show();
}

void WindowRoad::showMain(QWidget& before) {
    auto window = std::make_unique<frmMain>(m_session, m_art);
    if (const auto missing = window->load()) {
        platform::showRunTimeError(&before, platform::kMissingStringError,
                                   platform::missingStringText(*missing));
        emit failed(kFailureCode);
        return;
    }
    frmMain* shown = window.release();
    connect(shown, &frmMain::leftForSelection, this, [this, shown] {
        showGameSelect();
        shown->close();
    });
    shown->show();
    before.close();
}

} // namespace zeltrona::session
