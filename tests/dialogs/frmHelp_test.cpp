#include "dialogs/frmHelp.h"
#include "tests/session/window_harness.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QTextBrowser>
#include <QToolButton>

#include <gtest/gtest.h>

namespace zeltrona::dialogs {
namespace {

using namespace zeltrona::testing;

class HelpWindow : public ::testing::Test {
protected:
    void open(const QString& file = QStringLiteral(ZELTRONA_BINARY_DIR "/bin/ZP.hlp")) {
        form = new frmHelp(file, nullptr);
        form->setAttribute(Qt::WA_DeleteOnClose, false);
        form->show();
    }
    ~HelpWindow() override { delete form; }
    QTextBrowser& topic() { return control<QTextBrowser>(*form, "txtTopic"); }
    QListWidget& contents() { return control<QListWidget>(*form, "lstContents"); }
    int shownTopics() {
        int shown = 0;
        for (int row = 0; row < contents().count(); ++row) {
            shown += contents().item(row)->isHidden() ? 0 : 1;
        }
        return shown;
    }
    void follow(const QString& page) { emit topic().anchorClicked(QUrl(page)); }

    QPointer<frmHelp> form;
};

TEST_F(HelpWindow, OpensOnTheFirstTopicOfItsContents) {
    open();
    EXPECT_GE(contents().count(), 10);
    EXPECT_TRUE(topic().toPlainText().startsWith(QStringLiteral("Your first play")));
}

TEST_F(HelpWindow, EveryTopicHasATextAndEveryLinkLeadsToOne) {
    open();
    for (int row = 0; row < contents().count(); ++row) {
        contents().setCurrentRow(row);
        EXPECT_GT(topic().toPlainText().size(), 100) << row;
        const QString html = topic().toHtml();
        for (qsizetype at = html.indexOf("href=\""); at >= 0; at = html.indexOf("href=\"", at + 1)) {
            const QString page = html.mid(at + 6, html.indexOf(u'"', at + 6) - at - 6);
            follow(page);
            EXPECT_GT(topic().toPlainText().size(), 100) << page.toStdString();
        }
    }
}

TEST_F(HelpWindow, PicturesOfTheToolsAreThere) {
    open();
    follow(QStringLiteral("board.html"));
    const QVariant picture =
        topic().loadResource(QTextDocument::ImageResource, QUrl(QStringLiteral("pictures/tool_3.png")));
    EXPECT_FALSE(QImage::fromData(picture.toByteArray()).isNull());
}

TEST_F(HelpWindow, BackLeadsToTheTopicBefore) {
    open();
    EXPECT_FALSE(control<QToolButton>(*form, "cmdBack").isEnabled());
    follow(QStringLiteral("curves.html"));
    EXPECT_TRUE(topic().toPlainText().startsWith(QStringLiteral("Curved runs")));
    click(*form, "cmdBack");
    EXPECT_TRUE(topic().toPlainText().startsWith(QStringLiteral("Your first play")));
}

TEST_F(HelpWindow, SearchLeavesTheTopicsThatHoldAllWords) {
    open();
    const int all = shownTopics();
    control<QLineEdit>(*form, "txtSearch").setText(QStringLiteral("RIGHT click pose"));
    EXPECT_GE(shownTopics(), 1);
    EXPECT_LT(shownTopics(), all);
    control<QLineEdit>(*form, "txtSearch").setText(QStringLiteral("zzzz"));
    EXPECT_EQ(shownTopics(), 0);
    control<QLineEdit>(*form, "txtSearch").clear();
    EXPECT_EQ(shownTopics(), all);
}

TEST_F(HelpWindow, MissingFileIsToldInTheWindow) {
    open(QStringLiteral("/nowhere/ZP.hlp"));
    EXPECT_EQ(topic().toPlainText(), QStringLiteral("The help file /nowhere/ZP.hlp cannot be read."));
}

} // namespace
} // namespace zeltrona::dialogs
