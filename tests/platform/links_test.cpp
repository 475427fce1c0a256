#include "platform/links.h"
#include "tests/session/window_harness.h"

#include <QDesktopServices>
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

} // namespace
} // namespace zeltrona::platform

#include "links_test.moc"
