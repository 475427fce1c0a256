#include "platform/program_folder.h"
#include "tests/document/other_user.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace zeltrona::platform {
namespace {

TEST(ProgramFolder, IsWhereTheProgramLies) {
    EXPECT_EQ(programFolder(), QFileInfo(QCoreApplication::applicationFilePath()).path());
    EXPECT_FALSE(programFolder().endsWith(QLatin1Char('/')));
}

TEST(ProgramFolder, PlaysLieInFilesOfIt) {
    EXPECT_EQ(playsFolder(), programFolder() + QStringLiteral("/Files"));
}

/// What a program finds that lies in a folder of these rights, as a user whom they bind.
class ProgramElsewhere : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(m_folder.path()).mkpath(QStringLiteral("program/Files")));
        ASSERT_TRUE(QDir(m_folder.path()).mkpath(QStringLiteral("documents")));
        ASSERT_EQ(::chmod(encoded(QString()).constData(), 0777), 0);
        ASSERT_EQ(::chmod(encoded(documents()).constData(), 0777), 0);
    }
    QByteArray encoded(const QString& path) const {
        return QFile::encodeName(path.isEmpty() ? m_folder.path() : path);
    }
    QString program() const { return m_folder.filePath(QStringLiteral("program")); }
    QString documents() const { return m_folder.filePath(QStringLiteral("documents")); }
    QString own() const { return documents() + QStringLiteral("/Zeltrona"); }
    bool foundByPlainUser(const QString& expected) const {
        return tests::holdsForPlainUser([&] { return playsFolderOf(program(), documents()) == expected; });
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(ProgramElsewhere, WritableFilesAreWherePlaysLie) {
    ASSERT_EQ(::chmod(encoded(program() + QStringLiteral("/Files")).constData(), 0777), 0);
    EXPECT_TRUE(foundByPlainUser(program() + QStringLiteral("/Files")));
    EXPECT_FALSE(QFileInfo::exists(own()));
}

TEST_F(ProgramElsewhere, UserHasAFolderOfTheirOwnWhereFilesAreNotWritable) {
    EXPECT_TRUE(foundByPlainUser(own()));
    EXPECT_TRUE(QFileInfo(own()).isDir());
    EXPECT_EQ(QFileInfo(own() + QStringLiteral("/Sample plays")).symLinkTarget(),
              program() + QStringLiteral("/Files"));
}

TEST_F(ProgramElsewhere, FolderThatIsThereStaysAsItIs) {
    ASSERT_TRUE(QDir().mkpath(own()));
    EXPECT_TRUE(foundByPlainUser(own()));
    EXPECT_TRUE(QDir(own()).isEmpty()) << "a link that was taken away does not come back";
}

TEST_F(ProgramElsewhere, HomeServesWhereNoFolderCanBeMade) {
    ASSERT_EQ(::chmod(encoded(documents()).constData(), 0555), 0);
    EXPECT_TRUE(foundByPlainUser(QDir::homePath()));
}

TEST_F(ProgramElsewhere, SavingBeginsWhereTheDialogStandsWhenThatTakesFiles) {
    EXPECT_TRUE(tests::holdsForPlainUser([&] { return folderToSaveIn(documents()) == documents(); }));
}

TEST_F(ProgramElsewhere, SavingBeginsInTheOwnPlaysAfterALookAtTheSamples) {
    ASSERT_EQ(::chmod(encoded(program()).constData(), 0555), 0);
    EXPECT_TRUE(tests::holdsForPlainUser([&] { return folderToSaveIn(program()) == playsFolder(); }));
}

} // namespace
} // namespace zeltrona::platform
