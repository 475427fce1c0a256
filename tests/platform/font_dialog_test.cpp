#include "platform/font_dialog.h"
#include "platform/font_dialog_window.h"
#include "tests/session/window_harness.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontInfo>
#include <QGroupBox>
#include <QLineEdit>

#include <algorithm>
#include <gtest/gtest.h>

namespace zeltrona::platform {
namespace {

using testing::control;
using testing::DialogAnswerer;

const QString kArial = QStringLiteral("Arial");

void accept(QWidget& window) {
    static_cast<QDialog&>(dynamic_cast<FontDialogWindow&>(window)).accept();
}

TEST(FontDialog, OpensOnTheFaceSetAndSizeInBlack) {
    DialogAnswerer answers;
    answers.expect([](QWidget& window) {
        auto& fonts = dynamic_cast<FontDialogWindow&>(window);
        EXPECT_EQ(fonts.objectName(), QStringLiteral("fontDialog"));
        EXPECT_EQ(fonts.property("charset").toInt(), 204);
        EXPECT_EQ(fonts.property("color").value<QColor>(), QColor(Qt::black));
        EXPECT_EQ(control<QComboBox>(fonts, QStringLiteral("cboScript")).currentText(),
                  QStringLiteral("Cyrillic"));
        EXPECT_DOUBLE_EQ(fonts.currentFont().pointSizeF(), 12.0);
        accept(window);
    });
    const FontChoice choice = chooseFontDialog(nullptr, kArial, 204, true, 120);
    EXPECT_FALSE(choice.cancelled);
    EXPECT_EQ(choice.size, 12);
    EXPECT_EQ(choice.charset, 204);
    EXPECT_EQ(choice.color, 0);
}

TEST(FontDialog, ShowsItsSampleWithAndWithoutEffects) {
    for (const bool effects : {true, false}) {
        DialogAnswerer answers;
        answers.expect([effects](QWidget& window) {
            const auto groups = window.findChildren<QGroupBox*>();
            const auto sample = std::find_if(groups.begin(), groups.end(), [](const QGroupBox* group) {
                return group->findChild<QLineEdit*>() != nullptr;
            });
            ASSERT_NE(sample, groups.end());
            const auto* text = (*sample)->findChild<QLineEdit*>();
            EXPECT_GE(text->height(), text->fontMetrics().height()) << "effects " << effects;
            EXPECT_FALSE(text->text().isEmpty());
            accept(window);
        });
        chooseFontDialog(nullptr, kArial, 238, effects, 120);
    }
}

TEST(FontDialog, FaceThatStandsForASubstituteKeepsItsName) {
    DialogAnswerer answers;
    answers.expect(accept);
    EXPECT_EQ(chooseFontDialog(nullptr, kArial, 238, true).name, kArial);
}

TEST(FontDialog, AnotherFaceIsGivenByItsOwnName) {
    DialogAnswerer answers;
    answers.expect([](QWidget& window) {
        dynamic_cast<FontDialogWindow&>(window).setCurrentFont(QFont(QStringLiteral("DejaVu Sans"), 9));
        accept(window);
    });
    const FontChoice choice = chooseFontDialog(nullptr, kArial, 238, true);
    EXPECT_EQ(choice.name, QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(choice.size, 9);
}

TEST(FontDialog, GivesStyleEffectsColorAndSet) {
    DialogAnswerer answers;
    answers.expect([](QWidget& window) {
        auto& fonts = dynamic_cast<FontDialogWindow&>(window);
        QFont font(fonts.currentFont().family(), 12);
        font.setBold(true);
        font.setItalic(true);
        font.setUnderline(true);
        font.setStrikeOut(true);
        fonts.setCurrentFont(font);
        EXPECT_TRUE(fonts.setProperty("color", QColor(1, 2, 3)));
        EXPECT_TRUE(fonts.setProperty("charset", 161));
        accept(window);
    });
    const FontChoice choice = chooseFontDialog(nullptr, kArial, 238, true);
    EXPECT_TRUE(choice.bold);
    EXPECT_TRUE(choice.italic);
    EXPECT_TRUE(choice.underline);
    EXPECT_TRUE(choice.strikeOut);
    EXPECT_EQ(choice.color, 0x030201);
    EXPECT_EQ(choice.charset, 161);
}

TEST(FontDialog, PlainFontHasNoStyle) {
    DialogAnswerer answers;
    answers.expect(accept);
    const FontChoice choice = chooseFontDialog(nullptr, kArial, 238, true);
    EXPECT_FALSE(choice.bold || choice.italic || choice.underline || choice.strikeOut);
}

TEST(FontDialog, ScriptListChangesTheSet) {
    DialogAnswerer answers;
    answers.expect([](QWidget& window) {
        auto& scripts = control<QComboBox>(window, QStringLiteral("cboScript"));
        EXPECT_TRUE(scripts.isVisible());
        scripts.setCurrentText(QStringLiteral("Turkish"));
        accept(window);
    });
    EXPECT_EQ(chooseFontDialog(nullptr, kArial, 238, true).charset, 162);
}

TEST(FontDialog, SetOutsideTheListIsKept) {
    DialogAnswerer answers;
    answers.expect(accept);
    EXPECT_EQ(chooseFontDialog(nullptr, kArial, 77, true).charset, 77);
}

TEST(FontDialog, ColorButtonAsksForAColor) {
    DialogAnswerer answers;
    answers.expect([](QWidget& window) {
        testing::click(window, QStringLiteral("cmdFontColor"));
        accept(window);
    });
    answers.expectColor(QColor(10, 20, 30));
    EXPECT_EQ(chooseFontDialog(nullptr, kArial, 238, true).color, 10 | 20 << 8 | 30 << 16);
}

TEST(FontDialog, WithoutEffectsNeitherColorNorUnderlineIsOffered) {
    DialogAnswerer answers;
    answers.expect([](QWidget& window) {
        EXPECT_FALSE(control<QWidget>(window, QStringLiteral("cmdFontColor")).isVisible());
        EXPECT_TRUE(control<QWidget>(window, QStringLiteral("cboScript")).isVisible());
        const auto boxes = window.findChildren<QCheckBox*>();
        for (const QCheckBox* box : boxes) {
            EXPECT_FALSE(box->isVisible()) << qPrintable(box->text());
        }
        accept(window);
    });
    chooseFontDialog(nullptr, kArial, 238, false);
}

TEST(FontDialog, SizeZeroOpensAtTenPoints) {
    DialogAnswerer answers;
    answers.expect(accept);
    EXPECT_EQ(chooseFontDialog(nullptr, kArial, 238, true, 0).size, 10);
}

TEST(FontDialog, CancelIsTold) {
    DialogAnswerer answers;
    answers.expect([](QWidget& window) { dynamic_cast<FontDialogWindow&>(window).reject(); });
    EXPECT_TRUE(chooseFontDialog(nullptr, kArial, 238, true).cancelled);
}

} // namespace
} // namespace zeltrona::platform
