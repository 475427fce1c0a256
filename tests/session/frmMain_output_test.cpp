#include "output/frmDrawPreview.h"
#include "session/file_names.h"
#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QPrintDialog>

#include <gtest/gtest.h>

namespace zeltrona::session {
namespace {

using testing::choose;
using testing::click;
using testing::DialogAnswerer;
using testing::OpenPlay;

const QString kPictures = QStringLiteral("Select name of pictures and export folder.");
const QString kWeb = QStringLiteral("Select name of web page");

void expectFrameTwo(OpenPlay& play) {
    EXPECT_EQ(play.session().currFrame, 2);
    EXPECT_EQ(play.txtSeq(), "2 of 3");
    EXPECT_EQ(play.board(), testing::expectedBoard(toPath(play.path()), 2));
}

TEST(MainOutput, CopyPutsTheBoardOnTheClipboard) {
    OpenPlay play;
    click(play.window(), QStringLiteral("cmdSeqNoUp"));
    choose(play.window(), QStringLiteral("mnuEditCopy"));
    EXPECT_EQ(QApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32), play.board());
}

TEST(MainOutput, PicturesAreExportedAndTheShownFrameComesBack) {
    OpenPlay play;
    click(play.window(), QStringLiteral("cmdSeqNoUp"));
    const std::string hint = play.status();
    DialogAnswerer answers;
    answers.expectFile(kPictures, play.folder() + QStringLiteral("/play.bmp"));
    choose(play.window(), QStringLiteral("mnuFileExportPictures"));
    for (int frame = 1; frame <= 3; ++frame) {
        const QImage picture(play.folder() + QStringLiteral("/play%1.bmp").arg(frame));
        EXPECT_EQ(picture.convertToFormat(QImage::Format_RGB32),
                  testing::expectedBoard(toPath(play.path()), static_cast<std::int16_t>(frame)));
    }
    expectFrameTwo(play);
    EXPECT_EQ(play.status(), hint) << "the progress goes again";
}

TEST(MainOutput, CancelledExportWritesNothing) {
    OpenPlay play;
    click(play.window(), QStringLiteral("cmdSeqNoUp"));
    DialogAnswerer answers;
    answers.expectFileCancelled(kPictures);
    choose(play.window(), QStringLiteral("mnuFileExportPictures"));
    EXPECT_EQ(QDir(play.folder()).entryList(QDir::Files), QStringList(QStringLiteral("play.zpf")));
    expectFrameTwo(play);
}

TEST(MainOutput, WebReportIsWrittenAndTheShownFrameComesBack) {
    OpenPlay play;
    click(play.window(), QStringLiteral("cmdSeqNoUp"));
    DialogAnswerer answers;
    answers.expectFile(kWeb, play.folder() + QStringLiteral("/report.html"));
    choose(play.window(), QStringLiteral("mnuFileExportWeb"));
    for (const char* name : {"report.html", "Zeltronalogo.bmp", "img1.bmp", "img2.bmp", "img3.bmp"}) {
        EXPECT_TRUE(QFile::exists(play.folder() + QLatin1Char('/') + QLatin1String(name))) << name;
    }
    expectFrameTwo(play);
}

TEST(MainOutput, CancelledPrintKeepsTheShownFrame) {
    for (const char* entry : {"mnuFilePrintBig", "mnuFilePrintSmall"}) {
        OpenPlay play;
        click(play.window(), QStringLiteral("cmdSeqNoUp"));
        DialogAnswerer answers;
        answers.expect([](QWidget& dialog) {
            EXPECT_NE(qobject_cast<QPrintDialog*>(&dialog), nullptr);
            EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Zeltrona Print"));
            dynamic_cast<QDialog&>(dialog).reject();
        });
        choose(play.window(), QString::fromLatin1(entry));
        expectFrameTwo(play);
    }
}

TEST(MainOutput, PreviewClosesOnTheShownFrame) {
    for (const char* entry : {"mnuFilePrinPreviewSmallPictures", "mnuFilePrinPreviewBigPictures"}) {
        OpenPlay play;
        click(play.window(), QStringLiteral("cmdSeqNoUp"));
        DialogAnswerer answers;
        answers.expect([](QWidget& preview) {
            EXPECT_EQ(preview.objectName(), QStringLiteral("frmDrawPreview"));
            click(preview, QStringLiteral("cmdClose"));
        });
        choose(play.window(), QString::fromLatin1(entry));
        expectFrameTwo(play);
    }
}

TEST(MainOutput, PrintInThePreviewOpensThePrintDialogAfterwards) {
    OpenPlay play;
    click(play.window(), QStringLiteral("cmdSeqNoUp"));
    DialogAnswerer answers;
    answers.expect([](QWidget& preview) { click(preview, QStringLiteral("cmdPrint")); });
    answers.expect([](QWidget& dialog) {
        EXPECT_NE(qobject_cast<QPrintDialog*>(&dialog), nullptr);
        dynamic_cast<QDialog&>(dialog).reject();
    });
    choose(play.window(), QStringLiteral("mnuFilePrinPreviewBigPictures"));
    EXPECT_EQ(answers.answered(), 2);
    expectFrameTwo(play);
}

TEST(MainOutput, ExportOfAFileWithoutFramesKeepsTheFrameNumber) {
    OpenPlay play("[Config]\r\ncourt=1\r\n");
    DialogAnswerer answers;
    answers.expectFileCancelled(kPictures);
    choose(play.window(), QStringLiteral("mnuFileExportPictures"));
    EXPECT_EQ(play.session().currFrame, 1);
    EXPECT_EQ(play.txtSeq(), "1 of 0");
}

} // namespace
} // namespace zeltrona::session
