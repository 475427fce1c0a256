#include "platform/links.h"
#include "tests/session/window_harness.h"

#include <QDesktopServices>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>

namespace zeltrona::platform {
namespace {

using testing::DialogAnswerer;

/// Stands for the user's browser and mail program.
class Opener : public QObject {
    Q_OBJECT
public:
    Opener() {
        for (const char* scheme : {"http", "https", "mailto"}) {
            QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), this, "open");
        }
    }
    ~Opener() override {
        for (const char* scheme : {"http", "https", "mailto"}) {
            QDesktopServices::unsetUrlHandler(QString::fromLatin1(scheme));
        }
    }
    QStringList opened;
public slots:
    void open(const QUrl& url) { opened << url.toString(); }
};

TEST(Links, AddressWithoutSchemeGetsHttpInFront) {
    EXPECT_EQ(webAddress(QStringLiteral("www.club.example")), QStringLiteral("http://www.club.example"));
    EXPECT_EQ(webAddress(QStringLiteral("http://club.example")), QStringLiteral("http://club.example"));
    EXPECT_EQ(webAddress(QStringLiteral("https://club.example")), QStringLiteral("https://club.example"));
}

TEST(Links, MailAddressWithSchemeIsNotChanged) {
    EXPECT_EQ(mailAddress(QStringLiteral("mailto:a@b.example")), QStringLiteral("mailto:a@b.example"));
    EXPECT_EQ(mailAddress(QStringLiteral("a@b.example")), QStringLiteral("mailto:a@b.example"));
}

TEST(Links, AddressesGoToTheSystem) {
    Opener opener;
    openWebPage(nullptr, QStringLiteral("club.example"));
    openMail(nullptr, QStringLiteral("a@b.example"));
    EXPECT_EQ(opener.opened,
              QStringList({QStringLiteral("http://club.example"), QStringLiteral("mailto:a@b.example")}));
}

TEST(Links, FailureAsksTheUserToGoThere) {
    // Off screen there is neither browser nor mail program.
    DialogAnswerer answers;
    answers.expectMessage(QStringLiteral("Please,visit web page:\nhttp://club.example"));
    openWebPage(nullptr, QStringLiteral("club.example"));
    answers.expectMessage(QStringLiteral("Please,send email to:\nmailto:a@b.example"));
    openMail(nullptr, QStringLiteral("a@b.example"));
}

/// A program that stands for the desktop's opener.
QString openerThatRuns(const QTemporaryDir& folder, const char* script) {
    const QString path = folder.filePath(QStringLiteral("opener"));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("#!/bin/sh\n") + script + '\n');
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

TEST(Links, OpenerThatFailsAsksTheUserToGoThere) {
    const QTemporaryDir folder;
    DialogAnswerer answers;
    answers.expectMessage(QStringLiteral("Please,send email to:\nmailto:a@b.example"));
    openThrough(openerThatRuns(folder, "exit 3"), nullptr, QStringLiteral("mailto:a@b.example"),
                QStringLiteral("Please,send email to:"));
    EXPECT_EQ(answers.answered(), 0) << "nothing waits for the opener";
    EXPECT_TRUE(QTest::qWaitFor([&answers] { return answers.answered() == 1; }));
}

TEST(Links, OpenerThatIsNoneAsksTheUserToGoThere) {
    DialogAnswerer answers;
    answers.expectMessage(QStringLiteral("Please,visit web page:\nhttp://club.example"));
    openThrough(QStringLiteral("/nowhere/opener"), nullptr, QStringLiteral("http://club.example"),
                QStringLiteral("Please,visit web page:"));
    EXPECT_TRUE(QTest::qWaitFor([&answers] { return answers.answered() == 1; }));
}

TEST(Links, OpenerThatSucceedsGetsTheAddressAndSaysNothing) {
    const QTemporaryDir folder;
    const QString told = folder.filePath(QStringLiteral("told"));
    DialogAnswerer answers;
    openThrough(openerThatRuns(folder, "echo \"$1\" > \"$0.part\"; mv \"$0.part\" \"${0%opener}told\""),
                nullptr, QStringLiteral("http://club.example/?a=1&b=2"),
                QStringLiteral("Please,visit web page:"));
    ASSERT_TRUE(QTest::qWaitFor([&told] { return QFile::exists(told); }));
    QTest::qWait(50);
    QFile file(told);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("http://club.example/?a=1&b=2\n"));
    EXPECT_EQ(answers.answered(), 0);
}

TEST(Links, OpenerOfAWindowThatIsGoneSaysNothing) {
    const QTemporaryDir folder;
    DialogAnswerer answers;
    {
        QWidget window;
        openThrough(openerThatRuns(folder, "exit 3"), &window, QStringLiteral("http://club.example"),
                    QStringLiteral("Please,visit web page:"));
    }
    QTest::qWait(300);
    EXPECT_EQ(answers.answered(), 0);
}

} // namespace
} // namespace zeltrona::platform

#include "links_test.moc"
