#include "platform/program_folder.h"
#include "session/file_names.h"
#include "session/frmGameSelect.h"
#include "session/language.h"
#include "tests/session/window_harness.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>
#include <unistd.h>

namespace zeltrona::session {
namespace {

using testing::click;
using testing::control;
using testing::DialogAnswerer;

const QString kOpenTitle = QStringLiteral("Select existing game");
const QString kSaveTitle = QStringLiteral("Select new game");
const QString kOverwrite = QStringLiteral("File exist.Overwrite ?");

class GameSelect : public ::testing::Test {
protected:
    GameSelect() { open(); }

    void open() {
        window = std::make_unique<frmGameSelect>(session);
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->show();
    }

    QStringList captions() {
        return {control<QGroupBox>(*window, QStringLiteral("Frame1")).title(),
                control<QRadioButton>(*window, QStringLiteral("Option1_0")).text(),
                control<QRadioButton>(*window, QStringLiteral("Option1_1")).text(),
                control<QPushButton>(*window, QStringLiteral("Command3")).text()};
    }
    QComboBox& languages() { return control<QComboBox>(*window, QStringLiteral("ComboLang")); }
    void next() { click(*window, QStringLiteral("Command3")); }
    QString file(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }
    static void write(const QString& path, const QByteArray& bytes) {
        QFile target(path);
        ASSERT_TRUE(target.open(QIODevice::WriteOnly));
        target.write(bytes);
    }
    static QByteArray read(const QString& path) {
        QFile source(path);
        EXPECT_TRUE(source.open(QIODevice::ReadOnly));
        return source.readAll();
    }

    QTemporaryDir folder;
    document::Session session;
    std::unique_ptr<frmGameSelect> window;
};

const QStringList kEnglish{QStringLiteral("Select"), QStringLiteral("Saved File"), QStringLiteral("New File"),
                           QStringLiteral("Next")};
const QStringList kSerbian{QStringLiteral("Izaberi"), QStringLiteral("Postojeca datoteka"),
                           QStringLiteral("Nova datoteka"), QStringLiteral("Dalje")};

TEST_F(GameSelect, ComesUpInEnglishOnASavedFile) {
    EXPECT_EQ(window->objectName(), QStringLiteral("frmGameSelect"));
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Zeltrona - Basketball"));
    EXPECT_EQ(captions(), kEnglish);
    EXPECT_EQ(languages().currentIndex(), 0);
    EXPECT_TRUE(control<QRadioButton>(*window, QStringLiteral("Option1_0")).isChecked());
    EXPECT_FALSE(control<QRadioButton>(*window, QStringLiteral("Option1_1")).isChecked());
    EXPECT_FALSE(control<QLabel>(*window, QStringLiteral("Image1")).pixmap().isNull());
}

TEST_F(GameSelect, OffersEightLanguagesInTheirOrder) {
    QStringList shown;
    for (int index = 0; index < languages().count(); ++index) {
        shown << languages().itemText(index);
    }
    EXPECT_EQ(shown,
              QStringList({QStringLiteral("English"), QStringLiteral("Serbian"), QStringLiteral("Croatian"),
                           QStringLiteral("Bosnian"), QStringLiteral("Italian"), QStringLiteral("Francais"),
                           QStringLiteral("Espanol"), QStringLiteral("Deutsch")}));
}

TEST_F(GameSelect, ChoosingALanguageChangesTheCaptionsAtOnce) {
    QTest::keyClick(&languages(), Qt::Key_Down);
    EXPECT_EQ(languages().currentIndex(), 1);
    EXPECT_EQ(captions(), kSerbian);
    EXPECT_EQ(session.langIndex, 1);
    EXPECT_EQ(session.stringBase, 400);
    QTest::keyClick(&languages(), Qt::Key_Up);
    EXPECT_EQ(captions(), kEnglish);
}

TEST_F(GameSelect, CroatianAndBosnianReadTheSerbianSetAndStayShown) {
    for (const int index : {2, 3}) {
        languages().setCurrentIndex(0);
        languages().setCurrentIndex(index);
        EXPECT_EQ(languages().currentIndex(), index);
        EXPECT_EQ(session.langIndex, 1);
        EXPECT_EQ(session.stringBase, 400);
        EXPECT_EQ(captions(), kSerbian);
    }
}

TEST_F(GameSelect, LanguageWithoutStringsKeepsTheCaptionsBefore) {
    languages().setCurrentIndex(1);
    for (const int index : {4, 5, 6, 7}) {
        languages().setCurrentIndex(index);
        EXPECT_EQ(session.langIndex, index);
        EXPECT_EQ(session.stringBase, index * 300 + 100);
        EXPECT_EQ(captions(), kSerbian) << index;
    }
}

TEST_F(GameSelect, LanguageSurvivesAReturnToTheWindow) {
    languages().setCurrentIndex(5);
    open();
    EXPECT_EQ(languages().currentIndex(), 5);
    EXPECT_EQ(session.stringBase, 1600);
}

TEST_F(GameSelect, BosnianComesBackAsSerbian) {
    languages().setCurrentIndex(3);
    open();
    EXPECT_EQ(languages().currentText(), QStringLiteral("Serbian"));
    EXPECT_EQ(captions(), kSerbian);
}

TEST_F(GameSelect, OpenDialogBeginsInTheFolderOfPlays) {
    QDir().mkpath(platform::playsFolder());
    DialogAnswerer answers;
    answers.expect([](QWidget& dialog) {
        auto& files = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_EQ(files.windowTitle(), kOpenTitle);
        EXPECT_EQ(files.directory().absolutePath(), platform::playsFolder());
        EXPECT_EQ(files.nameFilters(), QStringList(QStringLiteral("Zeltrona File (*.zpf)")));
        EXPECT_EQ(files.acceptMode(), QFileDialog::AcceptOpen);
        files.reject();
    });
    next();
}

TEST_F(GameSelect, SavedFileIsHandedOn) {
    const QString path = file("old.zpf");
    write(path, "[Config]\r\n");
    session.newFileFlag = true;
    const QSignalSpy chosen(window.get(), &frmGameSelect::savedFileChosen);
    DialogAnswerer answers;
    answers.expectFile(kOpenTitle, path);
    next();
    EXPECT_EQ(chosen.count(), 1);
    EXPECT_EQ(session.playFilePath, toPath(path));
    EXPECT_FALSE(session.newFileFlag);
    EXPECT_EQ(read(path), QByteArray("[Config]\r\n"));
}

TEST_F(GameSelect, PathOutsideAsciiIsKept) {
    const QString path = folder.filePath(QString::fromUtf8("napad š.zpf"));
    write(path, "");
    DialogAnswerer answers;
    answers.expectFile(kOpenTitle, path);
    next();
    EXPECT_EQ(fromPath(session.playFilePath), path);
}

TEST_F(GameSelect, CancellingTheOpenDialogLeavesTheWindowAsItWas) {
    session.playFilePath = "/before.zpf";
    session.newFileFlag = true;
    const QSignalSpy chosen(window.get(), &frmGameSelect::savedFileChosen);
    DialogAnswerer answers;
    answers.expectFileCancelled(kOpenTitle);
    next();
    EXPECT_EQ(chosen.count(), 0);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(session.playFilePath, "/before.zpf");
    EXPECT_TRUE(session.newFileFlag);
}

TEST_F(GameSelect, SavedFileThatDoesNotExistEndsTheClickQuietly) {
    const QSignalSpy chosen(window.get(), &frmGameSelect::savedFileChosen);
    DialogAnswerer answers;
    answers.expectFile(kOpenTitle, file("gone.zpf"));
    next();
    EXPECT_EQ(chosen.count(), 0);
    EXPECT_TRUE(session.playFilePath.empty());
    EXPECT_EQ(answers.answered(), 1);
}

TEST_F(GameSelect, NewFileGetsItsSixLinesAndNothingElse) {
    const QSignalSpy made(window.get(), &frmGameSelect::newFileMade);
    DialogAnswerer answers;
    answers.expectFile(kSaveTitle, file("new.zpf"));
    click(*window, QStringLiteral("Option1_1"));
    next();
    EXPECT_EQ(made.count(), 1);
    EXPECT_EQ(session.playFilePath, toPath(file("new.zpf")));
    const QList<QByteArray> lines = read(file("new.zpf")).split('\n');
    ASSERT_EQ(lines.size(), 7);
    EXPECT_EQ(lines[0], QByteArray("       Zeltrona        \r"));
    EXPECT_EQ(lines[2], QByteArray(" ZQ  Script  Generator  \r"));
    EXPECT_EQ(lines[3], QByteArray("\r"));
    EXPECT_EQ(lines[4], QByteArray("========================\r"));
    EXPECT_EQ(lines[5], QByteArray("\r"));
    EXPECT_EQ(lines[6], QByteArray());
}

TEST_F(GameSelect, NewFileGetsNoExtension) {
    DialogAnswerer answers;
    answers.expectFile(kSaveTitle, file("plain"));
    click(*window, QStringLiteral("Option1_1"));
    next();
    EXPECT_TRUE(QFile::exists(file("plain")));
    EXPECT_FALSE(QFile::exists(file("plain.zpf")));
}

TEST_F(GameSelect, OverwritingRemovesTheWholeOldPlay) {
    write(file("old.zpf"), "[Config]\r\ncourt=3\r\n[Frame1]\r\nframe=1\r\n");
    DialogAnswerer answers;
    answers.expectFile(kSaveTitle, file("old.zpf"));
    answers.expectMessage(kOverwrite, QStringLiteral("Yes"));
    click(*window, QStringLiteral("Option1_1"));
    next();
    EXPECT_FALSE(read(file("old.zpf")).contains("court"));
    EXPECT_TRUE(read(file("old.zpf")).startsWith("       Zeltrona"));
}

TEST_F(GameSelect, AnswerNoAsksForAnotherName) {
    write(file("old.zpf"), "old");
    const QSignalSpy made(window.get(), &frmGameSelect::newFileMade);
    DialogAnswerer answers;
    answers.expectFile(kSaveTitle, file("old.zpf"));
    answers.expectMessage(kOverwrite, QStringLiteral("No"));
    answers.expectFile(kSaveTitle, file("old.zpf"));
    answers.expectMessage(kOverwrite, QStringLiteral("No"));
    answers.expectFile(kSaveTitle, file("fresh.zpf"));
    click(*window, QStringLiteral("Option1_1"));
    next();
    EXPECT_EQ(made.count(), 1);
    EXPECT_EQ(session.playFilePath, toPath(file("fresh.zpf")));
    EXPECT_EQ(read(file("old.zpf")), QByteArray("old"));
}

TEST_F(GameSelect, CancelAfterNoEndsTheClickWithTheRefusedPath) {
    write(file("old.zpf"), "old");
    const QSignalSpy made(window.get(), &frmGameSelect::newFileMade);
    DialogAnswerer answers;
    answers.expectFile(kSaveTitle, file("old.zpf"));
    answers.expectMessage(kOverwrite, QStringLiteral("No"));
    answers.expectFileCancelled(kSaveTitle);
    click(*window, QStringLiteral("Option1_1"));
    next();
    EXPECT_EQ(made.count(), 0);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(session.playFilePath, toPath(file("old.zpf")));
    EXPECT_EQ(read(file("old.zpf")), QByteArray("old"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("old.zpf")));
}

TEST_F(GameSelect, CancellingTheSaveDialogChangesNothing) {
    session.playFilePath = "/before.zpf";
    const QSignalSpy made(window.get(), &frmGameSelect::newFileMade);
    DialogAnswerer answers;
    answers.expectFileCancelled(kSaveTitle);
    click(*window, QStringLiteral("Option1_1"));
    next();
    EXPECT_EQ(made.count(), 0);
    EXPECT_EQ(session.playFilePath, "/before.zpf");
}

TEST_F(GameSelect, NewFileInAFolderThatIsNotThereEndsTheClickQuietly) {
    const QSignalSpy made(window.get(), &frmGameSelect::newFileMade);
    DialogAnswerer answers;
    answers.expectFile(kSaveTitle, folder.filePath(QStringLiteral("no/such/folder/new.zpf")));
    click(*window, QStringLiteral("Option1_1"));
    next();
    EXPECT_EQ(made.count(), 0);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(answers.answered(), 1);
}

TEST_F(GameSelect, GoingBackToTheSavedFileAsksToOpenAgain) {
    DialogAnswerer answers;
    answers.expectFileCancelled(kOpenTitle);
    click(*window, QStringLiteral("Option1_1"));
    click(*window, QStringLiteral("Option1_0"));
    next();
    EXPECT_EQ(answers.answered(), 1);
}

TEST_F(GameSelect, ReturnMeansNext) {
    DialogAnswerer answers;
    answers.expectFileCancelled(kOpenTitle);
    QTest::keyClick(&control<QRadioButton>(*window, QStringLiteral("Option1_0")), Qt::Key_Return);
    EXPECT_EQ(answers.answered(), 1);
}

} // namespace
} // namespace zeltrona::session
