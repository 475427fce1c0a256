#include "platform/common_dialog.h"
#include "platform/program_folder.h"
#include "tests/session/window_harness.h"

#include <QColorDialog>
#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zeltrona::platform {
namespace {

using testing::DialogAnswerer;

const FileQuestion kQuestion{QStringLiteral("Select"), QStringLiteral("Zeltrona File (*.zpf)"), {}};

/// While it lives, rights bind the test although the administrator runs it.
class BoundByRights {
public:
    BoundByRights() { become(m_user == 0 ? kNobody : m_user); }
    ~BoundByRights() { become(m_user); }
    BoundByRights(const BoundByRights&) = delete;
    BoundByRights& operator=(const BoundByRights&) = delete;

private:
    static constexpr uid_t kNobody = 65534;
    void become(uid_t user) const { EXPECT_EQ(::setresuid(user, user, m_user), 0); }
    uid_t m_user = ::geteuid();
};

QString touched(const QTemporaryDir& folder, const QString& name) {
    const QString path = folder.filePath(name);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    return path;
}

TEST(CommonDialog, OpenGivesPathAndBareName) {
    const QTemporaryDir folder;
    const QString path = touched(folder, QStringLiteral("a b.zpf"));
    DialogAnswerer answers;
    answers.expectFile(QStringLiteral("Select"), path);
    CommonDialog dialog;
    EXPECT_TRUE(showOpen(nullptr, dialog, kQuestion));
    EXPECT_EQ(dialog.fileName, path);
    EXPECT_EQ(dialog.fileTitle, QStringLiteral("a b.zpf"));
}

TEST(CommonDialog, CancelKeepsThePathAndEmptiesTheBareName) {
    DialogAnswerer answers;
    answers.expectFileCancelled(QStringLiteral("Select"));
    CommonDialog dialog;
    dialog.fileName = QStringLiteral("/before.zpf");
    dialog.fileTitle = QStringLiteral("before.zpf");
    EXPECT_FALSE(showOpen(nullptr, dialog, kQuestion));
    EXPECT_EQ(dialog.fileName, QStringLiteral("/before.zpf"));
    EXPECT_TRUE(dialog.fileTitle.isEmpty());
}

TEST(CommonDialog, OpenStartsInTheFolderAskedFor) {
    const QTemporaryDir folder;
    DialogAnswerer answers;
    answers.expect([&](QWidget& window) {
        auto& files = dynamic_cast<QFileDialog&>(window);
        EXPECT_EQ(files.objectName(), QStringLiteral("CommonDialog1"));
        EXPECT_EQ(files.directory().canonicalPath(), QDir(folder.path()).canonicalPath());
        EXPECT_EQ(files.nameFilters(), QStringList(QStringLiteral("Zeltrona File (*.zpf)")));
        EXPECT_EQ(files.acceptMode(), QFileDialog::AcceptOpen);
        files.reject();
    });
    CommonDialog dialog;
    FileQuestion question = kQuestion;
    question.folder = folder.path();
    showOpen(nullptr, dialog, question);
}

TEST(CommonDialog, OpenLetsThroughANameThatDoesNotExist) {
    const QTemporaryDir folder;
    DialogAnswerer answers;
    answers.expectFile(QStringLiteral("Select"), folder.filePath(QStringLiteral("gone.zpf")));
    CommonDialog dialog;
    EXPECT_TRUE(showOpen(nullptr, dialog, kQuestion));
    EXPECT_EQ(dialog.fileTitle, QStringLiteral("gone.zpf"));
}

TEST(CommonDialog, SaveDoesNotBeginInAFolderThatTakesNoFiles) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir().mkpath(playsFolder()));
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path()).constData(), 0555), 0);
    DialogAnswerer answers;
    answers.expect([&](QWidget& window) {
        auto& files = dynamic_cast<QFileDialog&>(window);
        EXPECT_EQ(files.directory().absolutePath(), playsFolder());
        files.reject();
    });
    CommonDialog dialog;
    FileQuestion question = kQuestion;
    question.folder = folder.path();
    const BoundByRights bound;
    showSave(nullptr, dialog, question);
}

TEST(CommonDialog, SaveAddsNoExtension) {
    const QTemporaryDir folder;
    DialogAnswerer answers;
    answers.expectFile(QStringLiteral("Select"), folder.filePath(QStringLiteral("plain")));
    CommonDialog dialog;
    EXPECT_TRUE(showSave(nullptr, dialog, kQuestion));
    EXPECT_EQ(dialog.fileName, folder.filePath(QStringLiteral("plain")));
}

TEST(CommonDialog, SaveAsksNothingAboutOverwriting) {
    const QTemporaryDir folder;
    const QString path = touched(folder, QStringLiteral("there.zpf"));
    DialogAnswerer answers;
    answers.expectFile(QStringLiteral("Select"), path);
    CommonDialog dialog;
    EXPECT_TRUE(showSave(nullptr, dialog, kQuestion));
    EXPECT_EQ(answers.answered(), 1);
}

TEST(CommonDialog, ColorOpensOnTheColorHeldAndTakesTheChoice) {
    DialogAnswerer answers;
    answers.expect([](QWidget& window) {
        auto& colors = dynamic_cast<QColorDialog&>(window);
        EXPECT_EQ(colors.currentColor().rgb(), qRgb(0x56, 0x34, 0x12));
        colors.setCurrentColor(QColor(1, 2, 3));
        static_cast<QDialog&>(colors).accept();
    });
    CommonDialog dialog;
    dialog.color = 0x123456;
    EXPECT_TRUE(showColor(nullptr, dialog));
    EXPECT_EQ(dialog.color, 0x030201);
}

TEST(CommonDialog, ColorStaysOnCancel) {
    DialogAnswerer answers;
    answers.expectColorCancelled();
    CommonDialog dialog;
    dialog.color = 77;
    EXPECT_FALSE(showColor(nullptr, dialog));
    EXPECT_EQ(dialog.color, 77);
}

} // namespace
} // namespace zeltrona::platform
