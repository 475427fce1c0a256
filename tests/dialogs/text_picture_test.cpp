#include "dialogs/frmInputBox.h"
#include "dialogs/frmTxtMsg.h"
#include "dialogs/text_picture.h"
#include "platform/font_dialog_window.h"
#include "tests/dialogs/dialog_fixture.h"

#include <QPushButton>

namespace zeltrona::dialogs {
namespace {

using namespace zeltrona::testing;

class TextPicture : public tests::DialogTest {
protected:
    TextPicture() { begin("[Config]\nfont=Arial,238,\n"); }

    void expectNotice() {
        answers.expect([](QWidget& window) {
            EXPECT_EQ(window.objectName(), QStringLiteral("frmTxtMsg"));
            click(window, "OKButton");
        });
    }
    void expectFont(int charset) {
        answers.expect([charset](QWidget& window) {
            auto& dialog = dynamic_cast<platform::FontDialogWindow&>(window);
            EXPECT_EQ(dialog.charset(), 238);
            dialog.setCharset(charset);
            QFont font(QStringLiteral("DejaVu Sans"), 14);
            font.setBold(true);
            dialog.setCurrentFont(font);
            dialog.setColor(QColor(255, 0, 0));
            dialog.accept();
        });
    }
    void expectText(const QString& text) {
        answers.expect([text](QWidget& window) {
            EXPECT_EQ(window.objectName(), QStringLiteral("frmInputBox"));
            control<QLineEdit>(window, "Text1").setText(text);
            click(window, "Command1");
        });
    }
};

TEST_F(TextPicture, GivesTextAndFontAndKeepsTheFont) {
    expectNotice();
    expectFont(204);
    expectText(QStringLiteral("\u0436"));
    const auto answer = askTextPicture(nullptr, play.file, session);
    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(answer->text, "\xE6");
    EXPECT_EQ(answer->fontName, "DejaVu Sans");
    EXPECT_EQ(answer->font.size, 14);
    EXPECT_TRUE(answer->font.bold);
    EXPECT_EQ(answer->font.color, 255);
    EXPECT_EQ(session.fontCharset, 204);
    EXPECT_TRUE(play.holds("[Config]\nfont=DejaVu Sans,204,\n"));
}

TEST_F(TextPicture, NoticeIsLeftOutOnceHidden) {
    session.hideCharsetMessage = true;
    expectFont(238);
    expectText(QStringLiteral("a"));
    EXPECT_TRUE(askTextPicture(nullptr, play.file, session).has_value());
    EXPECT_EQ(answers.answered(), 2);
}

TEST_F(TextPicture, CancelledFontDialogGivesNothing) {
    session.hideCharsetMessage = true;
    answers.expect([](QWidget& window) { dynamic_cast<QDialog&>(window).reject(); });
    EXPECT_FALSE(askTextPicture(nullptr, play.file, session).has_value());
    EXPECT_TRUE(play.holds("[Config]\nfont=Arial,238,\n"));
}

TEST_F(TextPicture, EmptyTextGivesNothingAndKeepsTheOldFont) {
    session.hideCharsetMessage = true;
    expectFont(204);
    expectText(QString());
    EXPECT_FALSE(askTextPicture(nullptr, play.file, session).has_value());
    EXPECT_TRUE(play.holds("[Config]\nfont=Arial,238,\n"));
}

} // namespace
} // namespace zeltrona::dialogs
