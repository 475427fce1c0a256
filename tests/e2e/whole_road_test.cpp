#include "session/window_road.h"
#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <gtest/gtest.h>

namespace zeltrona {
namespace {

using namespace testing;

/// From the splash to the finished play, its pages and its web report, by events alone. Every station leaves
/// a picture in the build's folder e2e-shots.
class WholeRoad : public ::testing::Test {
protected:
    WholeRoad() {
        QDir().mkpath(m_shots);
        QFile::remove(folder.filePath(QStringLiteral("play.zpf")));
    }

    QWidget& up(const char* name) {
        waitUntil([this, name] { return find(name) != nullptr; });
        QWidget* found = find(name);
        if (found == nullptr) {
            failMissing(QLatin1String(name));
        }
        return *found;
    }
    QWidget* find(const char* name) {
        const auto all = QApplication::topLevelWidgets();
        const auto place = std::find_if(all.begin(), all.end(), [name](const QWidget* one) {
            return one->isVisible() && one->objectName() == QLatin1String(name);
        });
        return place == all.end() ? nullptr : *place;
    }
    void shoot(QWidget& window, const char* station) {
        settle();
        const QImage shot = window.grab().toImage();
        EXPECT_GT(shot.width(), 100) << station;
        EXPECT_TRUE(shot.save(QStringLiteral("%1/%2-%3.png")
                                  .arg(m_shots)
                                  .arg(++m_station, 2, 10, QChar(u'0'))
                                  .arg(QLatin1String(station))));
    }
    QString path(const char* name) { return folder.filePath(QLatin1String(name)); }
    QWidget& pic() { return control<QWidget>(up("frmMain"), "pic"); }
    void clickAt(QPointF place, Qt::MouseButton button = Qt::LeftButton) {
        moveTo(pic(), place);
        pressAt(pic(), place, button, {});
        releaseAt(pic(), place, button, {});
    }
    /// Drags along a straight way in so many steps.
    void dragAlong(QPointF from, QPointF to, int steps) {
        QList<QPointF> places;
        for (int step = 0; step <= steps; ++step) {
            places << from + (to - from) * step / steps;
        }
        drag(pic(), places);
    }

    void startAndMakeANewPlay();
    void authorThreeFrames();
    void playItThrough();
    void lookAtItOnTheFullScreen();
    void previewAndPrint();
    void exportIt();

    QTemporaryDir folder;
    DialogAnswerer answers;
    document::Session session;
    session::WindowRoad road{session, boardArt()};

private:
    QString m_shots = QStringLiteral(ZELTRONA_BINARY_DIR "/e2e-shots");
    int m_station = 0;
};

void WholeRoad::startAndMakeANewPlay() {
    road.showSplash();
    shoot(up("frmSplash"), "splash");
    control<QTimer>(up("frmSplash"), "Timer1").setInterval(1);
    shoot(up("frmGameSelect"), "selection");
    click(up("frmGameSelect"), "Option1_1");
    answers.expectFile(QStringLiteral("Select new game"), path("play.zpf"));
    click(up("frmGameSelect"), "Command3");
    shoot(up("frmConfig"), "teams");
    click(up("frmConfig"), "Command6");
    shoot(up("frmConfig1"), "court");
    answers.expect([this](QWidget& title) {
        control<QLineEdit>(title, "Text1").setText(QStringLiteral("Give and go"));
        shoot(title, "title");
        click(title, "Command1");
    });
    click(up("frmConfig1"), "Command9");
    click(up("frmConfig1"), "Command5");
    shoot(up("frmMain"), "new-play");
}

void WholeRoad::authorThreeFrames() {
    QWidget& main = up("frmMain");
    click(main, "Picture1_5");
    clickAt({100, 200});
    dragAlong({15, 10}, {100, 150}, 4);
    click(main, "Picture1_1");
    clickAt({150, 150});
    clickAt({200, 100});
    shoot(main, "line-under-way");
    clickAt({220, 90}, Qt::RightButton);
    click(main, "Picture1_1");
    click(main, "seqNew");

    click(main, "CheckCurve");
    dragAlong({105, 205}, {155, 125}, 10);
    click(main, "CheckCurve");
    click(main, "cmdCurveShowHide");
    shoot(main, "curve");
    click(main, "cmdCurveShowHide");
    click(main, "seqNew");

    dragAlong({20, 40}, {200, 60}, 3);
    answers.expect([this](QWidget& notes) {
        control<QPlainTextEdit>(notes, "Text2").setPlainText(QStringLiteral("Two cuts hard"));
        shoot(notes, "notes");
        click(notes, "Command1");
    });
    click(main, "seqNotes");
    click(main, "seqSave");
    shoot(main, "third-frame");
}

void WholeRoad::playItThrough() {
    QWidget& main = up("frmMain");
    click(main, "cmdAnimUp");
    click(main, "cmdAnimPlay");
    EXPECT_TRUE(control<QTimer>(main, "Timer1").isActive());
    waitUntil([&main] { return control<QLabel>(main, "animlblFrameCurr").text() == QStringLiteral("2/3"); },
              20000);
    shoot(main, "playing");
    waitUntil([&main] { return !control<QTimer>(main, "Timer1").isActive(); }, 20000);
    EXPECT_EQ(control<QLabel>(main, "animlblFrameCurr").text(), QStringLiteral("3/3"));
}

void WholeRoad::lookAtItOnTheFullScreen() {
    choose(up("frmMain"), "mnuViewFullScreenAnimation");
    QWidget& full = up("frmMainFullScreen");
    click(full, "cmdAnimPlay");
    settle();
    shoot(full, "full-screen");
    QTest::keyClick(&full, Qt::Key_Escape);
    waitUntil([this] { return find("frmMainFullScreen") == nullptr; });
    EXPECT_FALSE(control<QTimer>(up("frmMain"), "Timer1").isActive());
    EXPECT_EQ(session.currFrame, 1);
}

void WholeRoad::previewAndPrint() {
    answers.expect([this](QWidget& preview) {
        shoot(preview, "preview");
        click(preview, "cmdClose");
    });
    choose(up("frmMain"), "mnuFilePrinPreviewBigPictures");
    answers.expect([this](QWidget& window) {
        auto& dialog = dynamic_cast<QPrintDialog&>(window);
        auto& printers = control<QComboBox>(dialog, "printers");
        printers.setCurrentIndex(printers.findText(QStringLiteral("PDF"), Qt::MatchContains));
        control<QLineEdit>(dialog, "filename").setText(path("play.pdf"));
        shoot(dialog, "print");
        dialog.accept();
    });
    choose(up("frmMain"), "mnuFilePrintBig");
    EXPECT_GT(QFileInfo(path("play.pdf")).size(), 1000);
}

void WholeRoad::exportIt() {
    answers.expectFile(QStringLiteral("Select name of pictures and export folder."), path("board.bmp"));
    choose(up("frmMain"), "mnuFileExportPictures");
    answers.expectFile(QStringLiteral("Select name of web page"), path("report.html"));
    choose(up("frmMain"), "mnuFileExportWeb");
    for (const char* file :
         {"board1.bmp", "board2.bmp", "board3.bmp", "report.html", "img3.bmp", "Zeltronalogo.bmp"}) {
        EXPECT_TRUE(QFile::exists(path(file))) << file;
    }
}

TEST_F(WholeRoad, NewPlayIsAuthoredPlayedPrintedAndExported) {
    startAndMakeANewPlay();
    authorThreeFrames();
    playItThrough();
    lookAtItOnTheFullScreen();
    previewAndPrint();
    exportIt();
    shoot(up("frmMain"), "end");
    choose(up("frmMain"), "mnuFileExit");

    QFile made(path("play.zpf"));
    QFile stored(QStringLiteral(ZELTRONA_SOURCE_DIR "/tests/e2e/three-frames.zpf"));
    ASSERT_TRUE(made.open(QIODevice::ReadOnly));
    if (qEnvironmentVariableIsSet("ZELTRONA_REWRITE_GOLDEN")) {
        QFile::remove(stored.fileName());
        ASSERT_TRUE(QFile::copy(made.fileName(), stored.fileName()));
    }
    ASSERT_TRUE(stored.open(QIODevice::ReadOnly));
    EXPECT_EQ(made.readAll().toStdString(), stored.readAll().toStdString());
}

} // namespace
} // namespace zeltrona
