#include "dialogs/frmTitle.h"
#include "platform/font_dialog_window.h"
#include "tests/dialogs/dialog_fixture.h"

#include <QPushButton>
#include <QTest>

namespace zeltrona::dialogs {
namespace {

using namespace zeltrona::testing;

class TitleWindow : public tests::DialogTest {
protected:
    QString head(frmTitle& form) { return control<QPlainTextEdit>(form, "Text2").toPlainText(); }
    void typeHead(frmTitle& form, const QString& text) {
        auto& box = control<QPlainTextEdit>(form, "Text2");
        for (const QChar letter : text) {
            if (letter == u'\n') {
                QTest::keyClick(&box, Qt::Key_Return);
            } else {
                QTest::keyClicks(&box, letter);
            }
        }
    }
};

constexpr const char* kFontNotice =
    "Deafult character set is Central European,if you need another then select it "
    "from list with name: Script.";

TEST_F(TitleWindow, ShowsCaptionsOfTheLanguage) {
    frmTitle english(play.file, session, nullptr);
    EXPECT_EQ(control<QLabel>(english, "Label1").text(), QStringLiteral("Title"));
    EXPECT_EQ(control<QLabel>(english, "Label2").text(), QStringLiteral("Description"));
    EXPECT_EQ(control<QPushButton>(english, "Command1").text(), QStringLiteral("Next"));
    speakSerbian();
    frmTitle serbian(play.file, session, nullptr);
    EXPECT_EQ(control<QLabel>(serbian, "Label1").text(), QStringLiteral("Naslov"));
    EXPECT_EQ(control<QLabel>(serbian, "Label2").text(), QStringLiteral("Opis"));
    EXPECT_EQ(control<QPushButton>(serbian, "Command1").text(), QStringLiteral("Dalje"));
}

TEST_F(TitleWindow, FillsItsBoxesFromThePlayWithMarksAsLineBreaks) {
    begin("[Config]\nfont=Arial,238,\ntxtTitle=Horns \xE8\ntxtHead=One\xAETwo\n");
    frmTitle form(play.file, session, nullptr);
    EXPECT_EQ(control<QLineEdit>(form, "Text1").text(), QStringLiteral("Horns \u010d"));
    EXPECT_EQ(head(form), QStringLiteral("One\nTwo"));
}

TEST_F(TitleWindow, StoresBothTextsWhenLeftByNext) {
    begin("[Config]\nfont=Arial,238,\n");
    frmTitle form(play.file, session, nullptr);
    typeInto(form, "Text1", QStringLiteral("Flex"));
    typeHead(form, QStringLiteral("One\nTwo"));
    click(form, "Command1");
    EXPECT_TRUE(play.holds("[Config]\nfont=Arial,238,\ntxtTitle=Flex\ntxtHead=One\xAETwo\n"));
}

TEST_F(TitleWindow, StoresBothTextsWhenClosed) {
    begin("[Config]\ntxtTitle=a\ntxtHead=b\n");
    frmTitle form(play.file, session, nullptr);
    typeInto(form, "Text1", QStringLiteral("c"));
    form.show();
    form.close();
    EXPECT_TRUE(play.holds("[Config]\ntxtTitle=c\ntxtHead=b\n"));
}

TEST_F(TitleWindow, FifthLineIsRefusedWithTheMessage) {
    frmTitle form(play.file, session, nullptr);
    typeHead(form, QStringLiteral("a\nb\nc\nd"));
    EXPECT_EQ(answers.answered(), 0);
    answers.expectMessage(QStringLiteral("max 4 lines!"));
    typeHead(form, QStringLiteral("\n"));
    EXPECT_EQ(answers.answered(), 1);
    EXPECT_EQ(head(form), QStringLiteral("a\nb\nc\nd"));
}

TEST_F(TitleWindow, TwoHundredFiftyFifthCharacterIsRefusedWithTheMessage) {
    frmTitle form(play.file, session, nullptr);
    control<QPlainTextEdit>(form, "Text2").setPlainText(QString(254, u'x'));
    EXPECT_EQ(answers.answered(), 0);
    answers.expectMessage(QStringLiteral("max 255 char!"));
    typeHead(form, QStringLiteral("y"));
    EXPECT_EQ(answers.answered(), 1);
    EXPECT_EQ(head(form).size(), 254);
}

TEST_F(TitleWindow, FontCommandTellsOfTheCharacterSetAndKeepsTheChoice) {
    begin("[Config]\nfont=Arial,238,\ntxtTitle=a\ntxtHead=b\n");
    frmTitle form(play.file, session, nullptr);
    answers.expectMessage(QLatin1String(kFontNotice));
    answers.expect([](QWidget& window) {
        auto& dialog = dynamic_cast<platform::FontDialogWindow&>(window);
        EXPECT_EQ(dialog.charset(), 238);
        EXPECT_EQ(dialog.currentFont().pointSize(), 12);
        dialog.setCharset(204);
        dialog.setCurrentFont(QFont(QStringLiteral("DejaVu Sans"), 12));
        dialog.accept();
    });
    click(form, "cmdFont");
    EXPECT_EQ(session.fontCharset, 204);
    EXPECT_EQ(control<QLineEdit>(form, "Text1").font().family(), QStringLiteral("DejaVu Sans"));
    EXPECT_TRUE(play.holds("[Config]\nfont=DejaVu Sans,204,\ntxtTitle=a\ntxtHead=b\n"));
}

TEST_F(TitleWindow, CancelledFontDialogKeepsTheFont) {
    begin("[Config]\nfont=Arial,238,\n");
    frmTitle form(play.file, session, nullptr);
    answers.expectMessage(QLatin1String(kFontNotice));
    answers.expect([](QWidget& window) { dynamic_cast<QDialog&>(window).reject(); });
    click(form, "cmdFont");
    EXPECT_TRUE(play.holds("[Config]\nfont=Arial,238,\n"));
}

TEST_F(TitleWindow, TakesTheCharacterSetOfThePlay) {
    begin("[Config]\nfont=Arial,204,\ntxtTitle=\xE6\n");
    frmTitle form(play.file, session, nullptr);
    EXPECT_EQ(session.fontCharset, 204);
    EXPECT_EQ(control<QLineEdit>(form, "Text1").text(), QStringLiteral("\u0436"));
}

TEST_F(TitleWindow, FontKeyThatCannotBeReadIsToldAndLeavesTheDefaults) {
    begin("[Config]\nfont=Courier,abc,\n");
    answers.expectMessage(QStringLiteral("Error: \nError Number:13\nDescription:Type mismatch"),
                          QStringLiteral("Ok"), QStringLiteral("Error"));
    frmTitle form(play.file, session, nullptr);
    EXPECT_EQ(answers.answered(), 1);
    EXPECT_EQ(session.fontCharset, 238);
    EXPECT_EQ(control<QLineEdit>(form, "Text1").font().family(), QStringLiteral("Arial"));
}

TEST_F(TitleWindow, CharacterThatTheCodePageLacksIsSeenAtOnce) {
    frmTitle form(play.file, session, nullptr);
    control<QLineEdit>(form, "Text1").setText(QStringLiteral("a\u0436"));
    EXPECT_EQ(control<QLineEdit>(form, "Text1").text(), QStringLiteral("a?"));
}

} // namespace
} // namespace zeltrona::dialogs
