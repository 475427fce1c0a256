#include "tests/session/every_window.h"

#include "dialogs/frmAbout.h"
#include "dialogs/frmConfig.h"
#include "dialogs/frmConfig1.h"
#include "dialogs/frmHelp.h"
#include "dialogs/frmInputBox.h"
#include "dialogs/frmNotes.h"
#include "dialogs/frmTitle.h"
#include "dialogs/frmTxtMsg.h"
#include "platform/common_dialog.h"
#include "platform/font_dialog.h"
#include "platform/message_box.h"
#include "session/body_panel.h"
#include "session/frmGameSelect.h"
#include "session/frmSplash.h"
#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace zeltrona::testing {

namespace {

void lookAtOpen(QWidget& window, const LookAtWindow& look) {
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window)) << qPrintable(window.objectName());
    settle();
    look(window);
}

/// A window that its caller owns, closing or not.
void lookAt(QWidget& window, const LookAtWindow& look) {
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    lookAtOpen(window, look);
    window.close();
}

/// Runs what opens a modal window, looks at it, and gives it up.
void lookAtModal(const LookAtWindow& look, const std::function<void()>& open) {
    DialogAnswerer answers;
    answers.expect([&look](QWidget& window) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window)) << qPrintable(window.objectName());
        look(window);
        static_cast<QDialog&>(window).reject();
    });
    open();
}

void lookAtStart(int language, const LookAtWindow& look) {
    session::frmSplash splash;
    lookAt(splash, look);
    document::Session session;
    session::chooseLanguage(session, language);
    session::frmGameSelect select(session);
    lookAt(select, look);
}

void lookAtBoards(int language, const LookAtWindow& look) {
    for (const std::string& bytes : {playOnCourt(1), playOnCourt(3), playWithBodies()}) {
        OpenPlay play(bytes, language);
        lookAtOpen(play.window(), look);
    }
    OpenPlay play(threeFramePlay(), language);
    choose(play.window(), QStringLiteral("mnuViewFullScreenAnimation"));
    settle();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("frmMainFullScreen")) {
            window->activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(window));
            look(*window);
            window->close();
        }
    }
    lookAtModal(look, [&play] { choose(play.window(), QStringLiteral("mnuFilePrinPreviewBigPictures")); });
}

void lookAtDialogs(int language, const LookAtWindow& look) {
    OpenPlay open(threeFramePlay(), language);
    document::Session& session = open.session();
    document::PlayFile play(session.playFilePath);
    dialogs::frmConfig teams(play, session);
    lookAt(teams, look);
    click(teams, QStringLiteral("optBodyType_1"));
    lookAt(teams, look);
    dialogs::frmConfig1 court(play, session);
    lookAt(court, look);
    dialogs::frmTitle title(play, session, nullptr);
    lookAt(title, look);
    dialogs::frmNotes notes(play, session, nullptr);
    lookAt(notes, look);
    dialogs::frmTxtMsg notice(session, nullptr);
    lookAt(notice, look);
    dialogs::frmInputBox prompt(QStringLiteral("Arial"), 238, nullptr);
    lookAt(prompt, look);
    dialogs::frmAbout about(nullptr);
    lookAt(about, look);
    dialogs::frmHelp help(QStringLiteral(ZELTRONA_BINARY_DIR "/bin/ZP.hlp"), nullptr);
    lookAt(help, look);
}

void lookAtCommonDialogs(const LookAtWindow& look) {
    lookAtModal(look, [] {
        platform::showMessage(nullptr, QStringLiteral("File exist.Overwrite ?"), platform::Icon::Question,
                              platform::Buttons::YesNo);
    });
    lookAtModal(look, [] {
        platform::CommonDialog dialog;
        platform::showColor(nullptr, dialog);
    });
    lookAtModal(look, [] { platform::chooseFontDialog(nullptr, QStringLiteral("Arial"), 238, true, 120); });
}

} // namespace

void forEveryWindow(int language, const LookAtWindow& look) {
    lookAtStart(language, look);
    lookAtBoards(language, look);
    lookAtDialogs(language, look);
    lookAtCommonDialogs(look);
}

} // namespace zeltrona::testing
