#include "dialogs/frmNotes.h"
#include "tests/dialogs/dialog_fixture.h"

#include <QPushButton>
#include <QTest>

namespace zeltrona::dialogs {
namespace {

using namespace zeltrona::testing;

class NotesWindow : public tests::DialogTest {
protected:
    QPlainTextEdit& note(frmNotes& form) { return control<QPlainTextEdit>(form, "Text2"); }
};

TEST_F(NotesWindow, ShowsCaptionsOfTheLanguage) {
    frmNotes english(play.file, session, nullptr);
    EXPECT_EQ(control<QLabel>(english, "Label2").text(), QStringLiteral("Notes"));
    EXPECT_EQ(control<QPushButton>(english, "Command1").text(), QStringLiteral("Next"));
    speakSerbian();
    frmNotes serbian(play.file, session, nullptr);
    EXPECT_EQ(control<QLabel>(serbian, "Label2").text(), QStringLiteral("Beleska"));
}

TEST_F(NotesWindow, ReadsAndStoresTheNoteOfTheShownFrame) {
    begin("[Config]\nNotes1=one\nNotes2=two\n");
    session.currFrame = 2;
    frmNotes form(play.file, session, nullptr);
    EXPECT_EQ(note(form).toPlainText(), QStringLiteral("two"));
    note(form).setPlainText(QStringLiteral("three"));
    click(form, "Command1");
    EXPECT_TRUE(play.holds("[Config]\nNotes1=one\nNotes2=three\n"));
}

TEST_F(NotesWindow, StoresTheNoteWhenClosed) {
    begin("[Config]\nNotes1=one\n");
    frmNotes form(play.file, session, nullptr);
    note(form).setPlainText(QStringLiteral("x"));
    form.show();
    form.close();
    EXPECT_TRUE(play.holds("[Config]\nNotes1=x\n"));
}

TEST_F(NotesWindow, EnterAtTheEndIsCutOff) {
    frmNotes form(play.file, session, nullptr);
    QTest::keyClicks(&note(form), QStringLiteral("cut"));
    QTest::keyClick(&note(form), Qt::Key_Return);
    EXPECT_EQ(note(form).toPlainText(), QStringLiteral("cut"));
    EXPECT_EQ(answers.answered(), 0);
}

TEST_F(NotesWindow, HundredthCharacterIsRefusedWithTheMessage) {
    frmNotes form(play.file, session, nullptr);
    note(form).setPlainText(QString(99, u'x'));
    EXPECT_EQ(answers.answered(), 0);
    answers.expectMessage(QStringLiteral("max 100 char!"));
    note(form).insertPlainText(QStringLiteral("y"));
    EXPECT_EQ(answers.answered(), 1);
    EXPECT_EQ(note(form).toPlainText().size(), 99);
}

TEST_F(NotesWindow, FontCommandTellsOfTheCharacterSetFirst) {
    begin("[Config]\nfont=Arial,238,\n");
    frmNotes form(play.file, session, nullptr);
    answers.expectMessage(QStringLiteral("Deafult character set is Central European,if you need another then "
                                         "select it from list with name: Script."));
    answers.expect([](QWidget& window) { dynamic_cast<QDialog&>(window).reject(); });
    click(form, "cmdFont");
    EXPECT_EQ(answers.answered(), 2);
}

} // namespace
} // namespace zeltrona::dialogs
