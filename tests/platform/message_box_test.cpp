#include "platform/message_box.h"
#include "tests/session/window_harness.h"

#include <QMessageBox>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace zeltrona::platform {
namespace {

using testing::DialogAnswerer;

TEST(MessageBox, ShowsTextTitleAndIcon) {
    DialogAnswerer answers;
    answers.expect([](QWidget& window) {
        auto& box = dynamic_cast<QMessageBox&>(window);
        EXPECT_EQ(box.objectName(), QStringLiteral("messageBox"));
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Zeltrona"));
        EXPECT_EQ(box.icon(), QMessageBox::Information);
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        box.accept();
    });
    EXPECT_EQ(showMessage(nullptr, QStringLiteral("<b>max</b> 4 lines!")), Answer::Ok);
}

TEST(MessageBox, AnswersYesAndNo) {
    DialogAnswerer answers;
    answers.expectMessage(QStringLiteral("Exit?"), QStringLiteral("Yes"));
    EXPECT_EQ(showMessage(nullptr, QStringLiteral("Exit?"), Icon::Question, Buttons::YesNo), Answer::Yes);
    answers.expectMessage(QStringLiteral("Exit?"), QStringLiteral("No"));
    EXPECT_EQ(showMessage(nullptr, QStringLiteral("Exit?"), Icon::Question, Buttons::YesNo), Answer::No);
}

TEST(MessageBox, EscapeOnAQuestionMeansNo) {
    DialogAnswerer answers;
    answers.expect([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    EXPECT_EQ(showMessage(nullptr, QStringLiteral("Exit?"), Icon::None, Buttons::YesNo), Answer::No);
}

TEST(MessageBox, GoesWithItsWindowAndMeansNo) {
    auto* window = new QWidget;
    DialogAnswerer answers;
    answers.expect([window](QWidget&) { delete window; });
    EXPECT_EQ(showMessage(window, QStringLiteral("Exit?"), Icon::Question, Buttons::YesNo), Answer::No);
}

TEST(MessageBox, TrappedErrorTellsNumberAndDescription) {
    DialogAnswerer answers;
    answers.expect([](QWidget& window) {
        auto& box = dynamic_cast<QMessageBox&>(window);
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Error"));
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.text(), QStringLiteral("Error: \nError Number:5\nDescription:Invalid procedure call"));
        box.accept();
    });
    showTrappedError(nullptr, 5, QStringLiteral("Invalid procedure call"));
}

TEST(MessageBox, RunTimeErrorTellsNumberAndDescription) {
    DialogAnswerer answers;
    answers.expect([](QWidget& window) {
        auto& box = dynamic_cast<QMessageBox&>(window);
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Zeltrona"));
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.text(), QStringLiteral("Run-time error '9':\n\nSubscript out of range"));
        box.accept();
    });
    showRunTimeError(nullptr, 9, QStringLiteral("Subscript out of range"));
}

} // namespace
} // namespace zeltrona::platform
