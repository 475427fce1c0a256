#include "output/web_report.h"
#include "tests/output/output_fixture.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

namespace zeltrona::output {
namespace {

/// The page as a real browser shows it.
class BrowserReport : public tests::OutputTest {
protected:
    void SetUp() override {
        m_browser = QStandardPaths::findExecutable(QStringLiteral("chromium"));
        if (m_browser.isEmpty()) {
            GTEST_SKIP() << "no browser at hand (Debian's package chromium)";
        }
        logo.fill(Qt::red);
    }

    QString page() { return QUrl::fromLocalFile(path("play.html")).toString(); }

    QByteArray browse(QStringList arguments) {
        QTemporaryDir profile;
        arguments << "--headless"
                  << "--no-sandbox"
                  << "--disable-gpu"
                  << "--disable-quic"
                  << "--no-first-run"
                  << "--disable-background-networking"
                  << "--disable-component-update"
                  << "--disable-sync"
                  << "--hide-scrollbars"
                  << "--user-data-dir=" + profile.path() << page();
        QProcess process;
        process.start(m_browser, arguments);
        EXPECT_TRUE(process.waitForFinished(120000));
        return process.readAllStandardOutput();
    }

    QImage screenshot(int width, int height) {
        browse({"--screenshot=" + path("shot.png"),
                QStringLiteral("--window-size=%1,%2").arg(width).arg(height)});
        return QImage(path("shot.png")).convertToFormat(QImage::Format_RGB32);
    }

    /// Whether `part` stands somewhere in `whole`, pixel for pixel.
    static bool shows(const QImage& whole, const QImage& part) {
        for (int y = 0; y + part.height() <= whole.height(); ++y) {
            for (int x = 0; x + part.width() <= whole.width(); ++x) {
                if (whole.pixel(x, y) == part.pixel(0, 0)
                    && whole.copy(x, y, part.width(), part.height()) == part) {
                    return true;
                }
            }
        }
        return false;
    }

    QImage logo{173, 53, QImage::Format_RGB32};

private:
    QString m_browser;
};

TEST_F(BrowserReport, ShowsItsTextsInTheirLetters) {
    begin(1, 1,
          "font=Arial,238,\ntxtTitle=\x8Aut \xE8\ntxtHead=One\xAETwo\nNotes1=Re\x9A"
          "etka\n");
    ASSERT_TRUE(writeWebReport(walk, path("play.html"), logo));
    const QString seen = QString::fromUtf8(browse({"--dump-dom"}));
    EXPECT_TRUE(seen.contains(QStringLiteral("\u0160ut \u010d"))) << seen.toStdString();
    EXPECT_TRUE(seen.contains(QStringLiteral("One<br>Two")));
    EXPECT_TRUE(seen.contains(QStringLiteral("Re\u0161etka")));
}

TEST_F(BrowserReport, ShowsLogoAndBoards) {
    begin(2);
    ASSERT_TRUE(writeWebReport(walk, path("play.html"), logo));
    const QImage shot = screenshot(900, 600);
    ASSERT_FALSE(shot.isNull());
    EXPECT_TRUE(shows(shot, logo));
    // A piece around each player is enough: the player stands elsewhere in each frame.
    EXPECT_TRUE(shows(shot, boardOf(1).copy(15, 35, 60, 40)));
    EXPECT_TRUE(shows(shot, boardOf(2).copy(35, 35, 60, 40)));
}

} // namespace
} // namespace zeltrona::output
