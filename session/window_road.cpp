#include "session/window_road.h"

#include "dialogs/frmConfig.h"
#include "dialogs/frmConfig1.h"
#include "platform/message_box.h"
#include "platform/string_table.h"
#include "session/frmGameSelect.h"
#include "session/frmMain.h"
#include "session/frmSplash.h"

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
    connect(select, &frmGameSelect::newFileMade, this, [this, select] { showConfig(*select); });
    select->show();
}

void WindowRoad::showConfig(QWidget& before) {
    m_newPlay = std::make_unique<document::PlayFile>(m_session.playFilePath);
    auto window = std::make_unique<dialogs::frmConfig>(*m_newPlay, m_session);
    if (const std::int16_t missing = window->missingCaption()) {
        failFor(before, missing);
        return;
    }
    dialogs::frmConfig* shown = window.release();
    shown->setAttribute(Qt::WA_DeleteOnClose);
    connect(shown, &dialogs::frmConfig::nextStep, this, [this, shown] { showConfig1(*shown); });
    shown->show();
    before.close();
}

void WindowRoad::showConfig1(QWidget& before) {
    auto window = std::make_unique<dialogs::frmConfig1>(*m_newPlay, m_session);
    if (const std::int16_t missing = window->missingCaption()) {
        failFor(before, missing);
        return;
    }
    dialogs::frmConfig1* shown = window.release();
    shown->setAttribute(Qt::WA_DeleteOnClose);
    connect(shown, &dialogs::frmConfig1::nextStep, this, [this, shown] { showMain(*shown); });
    shown->show();
    before.close();
}

void WindowRoad::showMain(QWidget& before) {
    auto window = std::make_unique<frmMain>(m_session, m_art);
    if (const auto missing = window->load()) {
        failFor(before, *missing);
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

void WindowRoad::failFor(QWidget& before, std::int16_t missingString) {
    platform::showRunTimeError(&before, platform::kMissingStringError,
                               platform::missingStringText(missingString));
    emit failed(kFailureCode);
}

} // namespace zeltrona::session
