// The whole road of a coach: from the first window to a play of three frames that runs, by events alone.
#include "session/window_road.h"
#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QApplication>
#include <QFile>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

namespace zeltrona::session {
namespace {

using testing::choose;
using testing::click;
using testing::control;
using testing::DialogAnswerer;
using testing::drag;
using testing::moveTo;
using testing::pressAt;
using testing::releaseAt;

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

/// The one window that is up, by its name.
QWidget& up(const char* name) {
    testing::settle();
    const auto all = QApplication::topLevelWidgets();
    for (QWidget* one : all) {
        if (one->isVisible() && one->objectName() == QLatin1String(name)) {
            return *one;
        }
    }
    testing::failMissing(QString::fromLatin1(name));
}

class NewPlay : public ::testing::Test {
protected:
    ~NewPlay() override {
        const auto all = QApplication::topLevelWidgets();
        for (QWidget* one : all) {
            one->close();
        }
        testing::settle();
    }

    void beginNewFile() {
        road.showGameSelect();
        answers.expectFile(QStringLiteral("Select new game"), path);
        click(up("frmGameSelect"), QStringLiteral("Option1_1"));
        click(up("frmGameSelect"), QStringLiteral("Command3"));
    }
    void setUp() {
        click(up("frmConfig"), QStringLiteral("Command6"));
        click(up("frmConfig1"), QStringLiteral("Command5"));
    }
    QWidget& main() { return up("frmMain"); }
    QWidget& pic() { return control<QWidget>(main(), QStringLiteral("pic")); }
    void button(const char* name) { click(main(), QString::fromLatin1(name)); }
    void clickAt(QPointF place, Qt::MouseButton which = Qt::LeftButton) {
        moveTo(pic(), place);
        pressAt(pic(), place, which);
        releaseAt(pic(), place, which);
    }

    void writeTitle() {
        answers.expect([](QWidget& title) {
            testing::typeInto(title, QStringLiteral("Text1"), QStringLiteral("First play"));
            control<QPlainTextEdit>(title, QStringLiteral("Text2"))
                .setPlainText(QStringLiteral("Pass\nand cut"));
            click(title, QStringLiteral("Command1"));
        });
        choose(main(), QStringLiteral("mnuEditTitle"));
    }
    void drawFirstFrame() {
        drag(pic(), {{30, 20}, {100, 150}, {190, 270}});
        button("Picture1_5");
        clickAt({200, 250});
        button("Picture1_1");
        clickAt({205, 245});
        clickAt({300, 150});
        clickAt({300, 150}, Qt::RightButton);
        button("Picture1_1");
        button("seqSave");
        answers.expect([](QWidget& notes) {
            control<QPlainTextEdit>(notes, QStringLiteral("Text2"))
                .setPlainText(QStringLiteral("Entry pass"));
            click(notes, QStringLiteral("Command1"));
        });
        button("seqNotes");
    }
    void drawSecondFrame() {
        button("seqNew");
        button("CheckCurve");
        drag(pic(), {{180, 260}, {185, 240}, {200, 200}, {195, 150}});
        button("CheckCurve");
        button("Picture1_6");
        clickAt({240, 90});
        button("seqSave");
    }
    void drawThirdFrame() {
        button("seqNew");
        session.hideCharsetMessage = true;
        answers.expectFont();
        answers.expect([](QWidget& prompt) {
            testing::typeInto(prompt, QStringLiteral("Text1"), QStringLiteral("Shot"));
            click(prompt, QStringLiteral("Command1"));
        });
        button("Picture1_7");
        clickAt({230, 120});
        button("seqSave");
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("first.zpf"));
    DialogAnswerer answers;
    document::Session session;
    WindowRoad road{session, testing::boardArt()};
};

TEST_F(NewPlay, IsAuthoredByEventsAloneAndPlays) {
    beginNewFile();
    setUp();
    EXPECT_EQ(main().windowTitle(), QStringLiteral("Zeltrona - first.zpf"));
    writeTitle();
    drawFirstFrame();
    drawSecondFrame();
    drawThirdFrame();
    const QByteArray authored = bytesOf(path);
    EXPECT_EQ(authored, bytesOf(QStringLiteral(ZELTRONA_SOURCE_DIR "/tests/session/data/first.zpf")))
        << authored.toStdString();

    testing::typeInto(main(), QStringLiteral("txtAnimSpeed"), QStringLiteral("9"));
    button("cmdAnimPlay");
    auto& timer = control<QTimer>(main(), QStringLiteral("Timer1"));
    testing::waitUntil([&] { return !timer.isActive(); }, 20000);
    EXPECT_EQ(bytesOf(path), authored) << "playing writes nothing";
}

TEST_F(NewPlay, SecondWindowIsUpOnlyAfterTheFirst) {
    beginNewFile();
    EXPECT_TRUE(up("frmConfig").isVisible());
    EXPECT_TRUE(bytesOf(path).startsWith("       Zeltrona"));
    EXPECT_FALSE(bytesOf(path).contains("[Config]"));
    click(up("frmConfig"), QStringLiteral("Command6"));
    EXPECT_TRUE(bytesOf(path).contains("colorOff="));
    EXPECT_FALSE(session.newFileFlag);
    click(up("frmConfig1"), QStringLiteral("Command5"));
    EXPECT_TRUE(session.newFileFlag);
    EXPECT_TRUE(up("frmMain").isVisible());
}

TEST_F(NewPlay, SetUpClosedByItsBoxLeavesTheHeaderAndNoWindow) {
    beginNewFile();
    const QByteArray header = bytesOf(path);
    up("frmConfig").close();
    testing::settle();
    const auto all = QApplication::topLevelWidgets();
    for (const QWidget* one : all) {
        EXPECT_FALSE(one->isVisible()) << qPrintable(one->objectName());
    }
    EXPECT_EQ(bytesOf(path), header);
}

TEST_F(NewPlay, LanguageWithoutStringsFailsAtTheFirstSetUpWindow) {
    chooseLanguage(session, 6);
    bool failed = false;
    QObject::connect(&road, &WindowRoad::failed, [&] { failed = true; });
    road.showGameSelect();
    answers.expectFile(QStringLiteral("Select new game"), path);
    answers.expectMessage(
        QStringLiteral("Run-time error '326':\n\nResource with identifier '1904' not found"));
    click(up("frmGameSelect"), QStringLiteral("Option1_1"));
    click(up("frmGameSelect"), QStringLiteral("Command3"));
    EXPECT_TRUE(failed);
    EXPECT_FALSE(bytesOf(path).contains("[Config]"));
}

TEST_F(NewPlay, TheSavedPlayOpensAgainWithoutALayout) {
    beginNewFile();
    setUp();
    drag(pic(), {{30, 20}, {100, 150}, {190, 270}});
    button("seqSave");
    choose(main(), QStringLiteral("mnuFileOpen"));
    answers.expectFile(QStringLiteral("Select existing game"), path);
    click(up("frmGameSelect"), QStringLiteral("Command3"));
    EXPECT_FALSE(session.newFileFlag);
    EXPECT_TRUE(bytesOf(path).contains("off0=170,252"));
    EXPECT_TRUE(up("frmMain").isVisible());
}

} // namespace
} // namespace zeltrona::session
