#include "dialogs/frmAbout.h"
#include "dialogs/frmInputBox.h"
#include "dialogs/frmTxtMsg.h"
#include "tests/dialogs/dialog_fixture.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QPushButton>

namespace zeltrona::dialogs {
namespace {

using namespace zeltrona::testing;

class SmallDialogs : public tests::DialogTest {};

TEST_F(SmallDialogs, NoticeShowsTheTextsOfTheLanguage) {
    frmTxtMsg form(session, nullptr);
    EXPECT_EQ(
        control<QLabel>(form, "Label1").text(),
        QStringLiteral("Default character set is Central European,if you need another then select it from "
                       "list with name: Script"));
    EXPECT_EQ(control<QCheckBox>(form, "Check1").text(), QStringLiteral("Don't show this message,again"));
    EXPECT_EQ(control<QPushButton>(form, "OKButton").text(), QStringLiteral("Next"));
    speakSerbian();
    frmTxtMsg serbian(session, nullptr);
    EXPECT_EQ(control<QPushButton>(serbian, "OKButton").text(), QStringLiteral("Dalje"));
}

TEST_F(SmallDialogs, CheckedNoticeStaysAwayForTheSession) {
    frmTxtMsg form(session, nullptr);
    EXPECT_FALSE(session.hideCharsetMessage);
    control<QCheckBox>(form, "Check1").click();
    EXPECT_TRUE(session.hideCharsetMessage);
    control<QCheckBox>(form, "Check1").click();
    EXPECT_TRUE(session.hideCharsetMessage) << "taking the mark away brings nothing back";
}

TEST_F(SmallDialogs, PromptHandsItsTextOver) {
    frmInputBox form(QStringLiteral("Arial"), 238, nullptr);
    typeInto(form, "Text1", QStringLiteral("Screen"));
    click(form, "Command1");
    EXPECT_EQ(form.typedText(), QStringLiteral("Screen"));
}

TEST_F(SmallDialogs, PromptClosedByItsCloseBoxGivesNothing) {
    frmInputBox form(QStringLiteral("Arial"), 238, nullptr);
    typeInto(form, "Text1", QStringLiteral("Screen"));
    form.show();
    form.close();
    EXPECT_EQ(form.typedText(), QString());
}

TEST_F(SmallDialogs, AboutShowsNameAndVersion) {
    QCoreApplication::setApplicationVersion(QStringLiteral("2.3.4"));
    frmAbout form(nullptr);
    EXPECT_EQ(form.windowTitle(), QStringLiteral("About Zeltrona"));
    EXPECT_EQ(control<QLabel>(form, "lblTitle").text(), QStringLiteral("Zeltrona"));
    EXPECT_TRUE(control<QLabel>(form, "lblVersion").text().contains(QStringLiteral("2.3.4")));
}

TEST_F(SmallDialogs, SystemInformationThatIsMissingIsTold) {
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "/nonexistent");
    frmAbout form(nullptr);
    answers.expectMessage(QStringLiteral("System Information Is Unavailable At This Time"));
    click(form, "cmdSysInfo");
    EXPECT_EQ(answers.answered(), 1);
    qputenv("PATH", path);
}

} // namespace
} // namespace zeltrona::dialogs
