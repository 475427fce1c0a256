#include "session/file_names.h"
#include "session/frmMain.h"
#include "session/status_line.h"
#include "tests/document/other_user.h"
#include "tests/session/open_play.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace zeltrona::session {
namespace {

/// A play in a folder of these rights, looked at by a user whom they bind.
class ReadOnlyPlace : public ::testing::Test {
protected:
    void SetUp() override {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(testing::threeFramePlay()));
        file.close();
        ASSERT_EQ(::chmod(toPath(path()).c_str(), 0666), 0);
    }
    void TearDown() override { allow(0700); }
    void allow(mode_t rights) { ASSERT_EQ(::chmod(toPath(m_folder.path()).c_str(), rights), 0); }
    QString path() const { return m_folder.filePath(QStringLiteral("play.zpf")); }

    /// Opens the play in the main window and hands title and message line over.
    bool plainUserSees(const QString& title, const QString& message) const {
        return tests::holdsForPlainUser([&] {
            document::Session session;
            session.playFilePath = toPath(path());
            chooseLanguage(session, 0);
            frmMain window(session, testing::boardArt());
            window.load();
            return window.windowTitle() == title && window.findChild<StatusLine*>()->text() == message;
        });
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(ReadOnlyPlace, PlayOpenedThereSaysAtOnceThatItCannotBeSaved) {
    allow(0555);
    EXPECT_TRUE(plainUserSees(QStringLiteral("Zeltrona - play.zpf - cannot be saved here: Permission denied"),
                              QStringLiteral("This play cannot be saved here: Permission denied.  Ready")));
}

TEST_F(ReadOnlyPlace, PlayOpenedElsewhereSaysNothing) {
    allow(0777);
    EXPECT_TRUE(plainUserSees(QStringLiteral("Zeltrona - play.zpf"), QStringLiteral(" Ready")));
}

} // namespace
} // namespace zeltrona::session
