#include "output/print_play.h"
#include "tests/output/output_fixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QPrinterInfo>
#include <QProcess>
#include <QThread>

#include <gtest/gtest.h>

namespace zeltrona::output {
namespace {

/// The document that the queue made of a job with this title; empty when none comes out in time.
QString documentTitled(const QString& title) {
    const QDir folder(QDir::homePath() + QStringLiteral("/PDF"));
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 60000) {
        const QStringList found = QDir(folder.path()).entryList({title + QStringLiteral("*.pdf")});
        // The backend renames the document into place when it is whole.
        if (!found.isEmpty() && QFile(folder.filePath(found.first())).size() > 0) {
            QThread::msleep(500);
            return folder.filePath(found.first());
        }
        QThread::msleep(200);
    }
    return {};
}

/// A page of the document as it looks, one pixel to the point.
QImage pageOf(const QString& pdf, int page) {
    const QString picture = pdf + QStringLiteral(".page");
    QProcess::execute(QStringLiteral("pdftoppm"),
                      {QStringLiteral("-r"), QStringLiteral("72"), QStringLiteral("-f"),
                       QString::number(page), QStringLiteral("-singlefile"), QStringLiteral("-png"), pdf,
                       picture});
    const QImage image(picture + QStringLiteral(".png"));
    QFile::remove(picture + QStringLiteral(".png"));
    return image;
}

/// Whether something dark stands in the part of the page.
bool hasInk(const QImage& page, const QRect& part) {
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (page.valid(x, y) && qGray(page.pixel(x, y)) < 128) {
                return true;
            }
        }
    }
    return false;
}

class PrintQueue : public tests::OutputTest {};

TEST_F(PrintQueue, PagesReachARealPrinter) {
    const QString queue = qEnvironmentVariable("ZELTRONA_QUEUE");
    if (queue.isEmpty()) {
        GTEST_SKIP() << "no queue at hand; tests/output/with-print-queue brings one";
    }
    ASSERT_FALSE(QPrinterInfo::printerInfo(queue).isNull()) << "the toolkit does not see the queue";
    begin(5, 1, "font=Arial,238,\ntxtTitle=Horns\n");
    QPrinter printer(QPrinterInfo::printerInfo(queue), QPrinter::HighResolution);
    ASSERT_EQ(printer.outputFormat(), QPrinter::NativeFormat);
    const QString title = QStringLiteral("zeltrona-queue-%1").arg(QCoreApplication::applicationPid());
    printer.setDocName(title);
    ASSERT_TRUE(printPages(walk, printer, PrintMode::BigPictures, {1, 2, 1}, QFont(), QImage()));

    const QString document = documentTitled(title);
    ASSERT_FALSE(document.isEmpty()) << "nothing came out of the queue";
    // The way through the queue turns letters into shapes, so the page is looked at and not read.
    const QImage first = pageOf(document, 1);
    const QImage second = pageOf(document, 2);
    ASSERT_FALSE(first.isNull());
    ASSERT_FALSE(second.isNull()) << "both pages came out";
    const int width = first.width();
    EXPECT_TRUE(hasInk(first, {width / 2 - 30, 40, 60, 50})) << "the title";
    EXPECT_TRUE(hasInk(first, {40, 170, width / 2 - 60, 200})) << "the first board";
    EXPECT_TRUE(hasInk(first, {width / 2 + 40, 170, width / 2 - 100, 200})) << "the second board";
    EXPECT_FALSE(hasInk(second, {width / 2 - 30, 40, 60, 50})) << "no title on the second page";
    EXPECT_TRUE(hasInk(second, {40, 170, width / 2 - 60, 200})) << "the fifth board";
    EXPECT_FALSE(hasInk(second, {width / 2 + 40, 190, width / 2 - 100, 200})) << "there is no sixth";
    QFile::remove(document);
}

} // namespace
} // namespace zeltrona::output
