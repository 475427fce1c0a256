#include "dialogs/frmHelp.h"
#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QDesktopServices>
#include <QUrl>

#include <gtest/gtest.h>

namespace zeltrona::session {
namespace {

using testing::choose;
using testing::click;
using testing::DialogAnswerer;
using testing::OpenPlay;

TEST(MainHelp, LinksGoToTheMakers) {
    OpenPlay play;
    // Off screen there is neither browser nor mail program, so the addresses are told.
    DialogAnswerer answers;
    answers.expectMessage(QStringLiteral("Please,visit web page:\nhttp://www.zeltrona.example"));
    choose(play.window(), QStringLiteral("mnuHelpZtHome"));
    answers.expectMessage(QStringLiteral("Please,send email to:\nmailto:sales@zeltrona.example"));
    choose(play.window(), QStringLiteral("mnuHelpZtemail"));
}

TEST(MainHelp, AboutIsModal) {
    OpenPlay play;
    DialogAnswerer answers;
    answers.expect([](QWidget& about) {
        EXPECT_EQ(about.objectName(), QStringLiteral("frmAbout"));
        click(about, QStringLiteral("cmdOK"));
    });
    choose(play.window(), QStringLiteral("mnuHelpAbout"));
    EXPECT_EQ(answers.answered(), 1);
}

TEST(MainHelp, TopicOpensBesideTheBoardOnce) {
    OpenPlay play;
    for (const char* entry : {"mnuHelpHelpTopic", "mnuPopUpHelp"}) {
        choose(play.window(), QString::fromLatin1(entry));
        testing::settle();
        const auto open = play.window().findChildren<dialogs::frmHelp*>();
        ASSERT_EQ(open.size(), 1) << entry;
        EXPECT_TRUE(open.first()->isVisible());
        EXPECT_FALSE(open.first()->isModal());
    }
    click(play.window(), QStringLiteral("cmdSeqNoUp"));
    EXPECT_EQ(play.txtSeq(), "2 of 3");
}

} // namespace
} // namespace zeltrona::session
