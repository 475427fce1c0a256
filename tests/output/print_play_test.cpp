#include "output/print_play.h"
#include "output/whole_pdf.h"
#include "tests/output/output_fixture.h"
#include "tests/output/short_files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPrintDialog>
#include <QProcess>
#include <QRegularExpression>
#include <QSpinBox>

namespace zeltrona::output {
namespace {

/// What a tool of the system says of a file.
QString told(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(20000)) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

class PrintPlay : public tests::OutputTest {
protected:
    PrintPlay() : logo(173, 53, QImage::Format_RGB32) { logo.fill(Qt::red); }

    QString print(PrintMode mode, const PrintRange& range) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setPageSize(QPageSize(QPageSize::A4));
        printer.setPageMargins({}, QPageLayout::Point);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path("out.pdf"));
        EXPECT_TRUE(printPages(walk, printer, mode, range, QFont(), logo));
        return path("out.pdf");
    }
    int pagesOf(const QString& pdf) {
        const QString info = told("pdfinfo", {pdf});
        return QRegularExpression("Pages:\\s+(\\d+)").match(info).captured(1).toInt();
    }
    /// Left and top of a word, in points.
    QPointF placeOf(const QString& pdf, const QString& word) {
        const QString boxes = told("pdftotext", {"-bbox", pdf, "-"});
        const auto match =
            QRegularExpression("xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\"[^>]*>" + word + "<").match(boxes);
        EXPECT_TRUE(match.hasMatch()) << word.toStdString();
        return {match.captured(1).toDouble(), match.captured(2).toDouble()};
    }
    int picturesOf(const QString& pdf) {
        return static_cast<int>(told("pdfimages", {"-list", pdf}).count(" image "));
    }

    QImage logo;
};

TEST_F(PrintPlay, PagesOfTheRangeComeOutOnceACopy) {
    begin(9);
    EXPECT_EQ(pagesOf(print(PrintMode::BigPictures, {1, 3, 1})), 3);
    EXPECT_EQ(pagesOf(print(PrintMode::BigPictures, {1, 3, 2})), 6);
    EXPECT_EQ(pagesOf(print(PrintMode::SmallPictures, {1, 1, 1})), 1);
}

TEST_F(PrintPlay, RangeThatEndsEarlyHasNoEmptyPageBehindIt) {
    begin(9);
    EXPECT_EQ(pagesOf(print(PrintMode::BigPictures, {1, 1, 1})), 1);
    EXPECT_EQ(pagesOf(print(PrintMode::BigPictures, {2, 2, 1})), 1);
}

TEST_F(PrintPlay, TextsStandWhereTheLayoutPutsThem) {
    begin(
        2, 1,
        "font=Arial,238,\ntxtTitle=Horns\ntxtHead=Firstline\xAESecondline\nNotes1=Cutting\nNotes2=Popping\n");
    const QString pdf = print(PrintMode::BigPictures, {1, 1, 1});
    EXPECT_NEAR(placeOf(pdf, "Firstline").x(), 36, 1.5);
    EXPECT_NEAR(placeOf(pdf, "Cutting").x(), 36, 1.5);
    EXPECT_NEAR(placeOf(pdf, "Popping").x(), 316, 1.5);
    EXPECT_NEAR(placeOf(pdf, "Cutting").y(), placeOf(pdf, "Popping").y(), 0.1);
    EXPECT_GT(placeOf(pdf, "Cutting").y(), 170 + 224);
    EXPECT_GT(placeOf(pdf, "Secondline").y(), placeOf(pdf, "Firstline").y() + 12);
    EXPECT_GE(placeOf(pdf, "Horns").x(), 130);
}

TEST_F(PrintPlay, PagesBehindTheFirstHaveNoHeader) {
    begin(6, 1, "txtTitle=Horns\n");
    const QString pdf = print(PrintMode::BigPictures, {2, 2, 1});
    const QString text = told("pdftotext", {pdf, "-"});
    EXPECT_FALSE(text.contains("Horns"));
    EXPECT_TRUE(text.contains("Page 2 of 2"));
}

TEST_F(PrintPlay, TextsOfAnotherCodePageComeOutReadable) {
    begin(1, 1, "font=Arial,238,\nNotes1=\x8A\xF2pet\n");
    EXPECT_TRUE(told("pdftotext", {print(PrintMode::BigPictures, {1, 1, 1}), "-"})
                    .contains(QStringLiteral("\u0160\u0148pet")));
}

TEST_F(PrintPlay, EveryFrameOfThePageIsAPicture) {
    begin(3);
    EXPECT_EQ(picturesOf(print(PrintMode::BigPictures, {1, 1, 1})), 4) << "three boards and the logo";
}

TEST_F(PrintPlay, FrameAheadOfTheRangeLeavesItsPlayersToTheNext) {
    begin(4);
    play.folder.put(tests::crlf(playOf(4, 1) + "[Frame5]\nframe=5\nBall0=10,10,\n"));
    print(PrintMode::BigPictures, {2, 2, 1});
    EXPECT_EQ(records.offPlayers.at(0).x, 80.0F) << "frame 5 has no player of its own";
}

TEST_F(PrintPlay, DocumentThatCannotBeWrittenLeavesNoHalfFile) {
    begin(1);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path("missing/out.pdf"));
    EXPECT_FALSE(printPages(walk, printer, PrintMode::BigPictures, {1, 1, 1}, QFont(), logo));
    EXPECT_FALSE(QFile::exists(path("missing/out.pdf")));
}

TEST_F(PrintPlay, DiskThatTakesNoMoreLeavesNoHalfFile) {
    begin(4);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path("out.pdf"));
    const tests::ShortFiles full(20000);
    EXPECT_FALSE(printPages(walk, printer, PrintMode::BigPictures, {1, 1, 1}, QFont(), logo));
    EXPECT_FALSE(QFile::exists(path("out.pdf")));
}

TEST_F(PrintPlay, FileThatCannotBeOpenedStaysAsItIs) {
    begin(1);
    ASSERT_TRUE(QDir().mkpath(path("out.pdf")));
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path("out.pdf"));
    EXPECT_FALSE(printPages(walk, printer, PrintMode::BigPictures, {1, 1, 1}, QFont(), logo));
    EXPECT_TRUE(QFileInfo(path("out.pdf")).isDir());
}

TEST(WholePdf, EndNamesWhereTheTableStands) {
    const QByteArray whole = "%PDF-1.4\n1 0 obj\nxref\n0 1\ntrailer\nstartxref\n17\n%%EOF\n";
    ASSERT_EQ(whole.mid(17, 4), "xref");
    EXPECT_TRUE(isWholePdf(whole));
    EXPECT_FALSE(isWholePdf(QByteArray(whole).remove(10, 2))) << "bytes lost in the middle";
    EXPECT_FALSE(isWholePdf(whole.left(whole.size() - 4))) << "the end is lost";
    EXPECT_FALSE(isWholePdf(whole.mid(1))) << "the head is lost";
    EXPECT_FALSE(isWholePdf({}));
}

class PrintCommand : public PrintPlay {
protected:
    void answerDialog(int from, int to) {
        answers.expect([this, from, to](QWidget& window) {
            auto& box = dynamic_cast<QPrintDialog&>(window);
            EXPECT_EQ(box.windowTitle(), QStringLiteral("Zeltrona Print"));
            EXPECT_EQ(box.printRange(), QAbstractPrintDialog::PageRange);
            box.printer()->setOutputFormat(QPrinter::PdfFormat);
            box.printer()->setOutputFileName(path("dialog.pdf"));
            zeltrona::testing::control<QSpinBox>(box, "from").setValue(from);
            zeltrona::testing::control<QSpinBox>(box, "to").setValue(to);
            box.accept();
        });
    }
};

TEST_F(PrintCommand, CancelledDialogPrintsNothing) {
    begin(3);
    answers.expect([](QWidget& window) { dynamic_cast<QPrintDialog&>(window).reject(); });
    printPlay(walk, nullptr, PrintMode::BigPictures, logo);
    EXPECT_EQ(play.folder.othersThan(), 0U);
    EXPECT_EQ(session.currFrame, 1);
}

TEST_F(PrintCommand, RangeTheWrongWayRoundIsToldAndAskedAgain) {
    begin(9);
    answerDialog(3, 2);
    answers.expectMessage(QStringLiteral("Select valid page range."));
    answers.expect([](QWidget& window) { dynamic_cast<QPrintDialog&>(window).reject(); });
    QWidget owner;
    printPlay(walk, &owner, PrintMode::BigPictures, logo);
    EXPECT_EQ(answers.answered(), 3);
    EXPECT_FALSE(QFile::exists(path("dialog.pdf")));
}

} // namespace
} // namespace zeltrona::output
