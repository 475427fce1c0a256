#include "tests/output/short_files.h"
#include "tests/zpf/command_fixture.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>

namespace zeltrona::zpf {
namespace {

using testing::HasSubstr;

/// What poppler's reader tells of a page file.
QString outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

class PrintCommand : public CommandTest {
protected:
    QString writeLong() const {
        QByteArray text(QByteArray(kConfig) + "txtTitle=Horns set\r\nNotes1=First note\r\n");
        for (int frame = 1; frame <= 7; ++frame) {
            const QByteArray number = QByteArray::number(frame);
            text += "[Frame" + number + "]\r\nframe=" + number + "\r\noff0=100,200\r\n";
        }
        return write("long.zpf", text);
    }
    int pagesOf(const QString& name) const {
        const QRegularExpression pages("Pages:\\s+(\\d+)");
        return pages.match(outputOf("pdfinfo", {path(name)})).captured(1).toInt();
    }
    QString textOf(const QString& name) const { return outputOf("pdftotext", {"-layout", path(name), "-"}); }
};

TEST_F(PrintCommand, EachPlayGetsItsPages) {
    EXPECT_EQ(ProgramRun({"print", writeLong(), writePlay("horns.zpf"), "-o", path("paper")}).code,
              ExitCode::Done);
    EXPECT_EQ(pagesOf("paper/long.pdf"), 2);
    EXPECT_EQ(pagesOf("paper/horns.pdf"), 1);
    const QString text = textOf("paper/long.pdf");
    EXPECT_TRUE(text.contains("Horns set"));
    EXPECT_TRUE(text.contains("First note"));
    EXPECT_TRUE(text.contains("Page 2 of 2"));
}

TEST_F(PrintCommand, SmallPicturesTakeFewerPages) {
    EXPECT_EQ(ProgramRun({"print", writeLong(), "-l", "small", "-o", path("small.pdf")}).code,
              ExitCode::Done);
    EXPECT_EQ(pagesOf("small.pdf"), 1);
}

TEST_F(PrintCommand, RangeOfPages) {
    const QString play = writeLong();
    EXPECT_EQ(ProgramRun({"print", play, "-p", "2-", "-o", path("part.pdf")}).code, ExitCode::Done);
    EXPECT_EQ(pagesOf("part.pdf"), 1);
    EXPECT_TRUE(textOf("part.pdf").contains("Page 2 of 2"));
    EXPECT_FALSE(textOf("part.pdf").contains("Horns set"));
    const ProgramRun beyond({"print", play, "-p", "3", "-o", path("none.pdf")});
    EXPECT_EQ(beyond.code, ExitCode::Failed);
    EXPECT_THAT(beyond.err, HasSubstr("has only 2 pages"));
    EXPECT_FALSE(QFile::exists(path("none.pdf")));
}

TEST_F(PrintCommand, PaperIsA4OrLetter) {
    const QString play = writePlay("horns.zpf");
    ProgramRun({"print", play, "-o", path("a4.pdf")});
    ProgramRun({"print", play, "--paper", "letter", "-o", path("letter.pdf")});
    EXPECT_TRUE(outputOf("pdfinfo", {path("a4.pdf")}).contains("595 x 842"));
    EXPECT_TRUE(outputOf("pdfinfo", {path("letter.pdf")}).contains("612 x 792"));
}

TEST_F(PrintCommand, SenselessWishesPrintNothing) {
    const QString play = writePlay("horns.zpf");
    for (const QStringList& wish :
         {QStringList{"-l", "huge"}, QStringList{"--paper", "a0"}, QStringList{"-p", "2-1"},
          QStringList{"-p", "1,2"}, QStringList{"-p", "x"}}) {
        const ProgramRun run(QStringList{"print", play, "-o", path("out")} + wish);
        EXPECT_EQ(run.code, ExitCode::Usage) << wish.join(' ').toStdString();
        EXPECT_FALSE(QFile::exists(path("out")));
    }
}

TEST_F(PrintCommand, PagesThatCannotBeWrittenAreTold) {
    write("paper", "a file in the way");
    const ProgramRun run({"print", writePlay("horns.zpf"), "-o", path("paper")});
    EXPECT_EQ(run.code, ExitCode::Failed);
    EXPECT_THAT(run.err, HasSubstr("paper"));
    QDir().mkpath(path("dir/horns.pdf"));
    const ProgramRun other({"print", writePlay("horns.zpf"), "-o", path("dir")});
    EXPECT_EQ(other.code, ExitCode::Failed);
    EXPECT_THAT(other.err, HasSubstr("dir/horns.pdf: "));
}

TEST_F(PrintCommand, DiskThatTakesNoMoreLeavesTheOldPages) {
    write("horns.pdf", "the old pages");
    const QString play = writePlay("horns.zpf");
    const tests::ShortFiles full(10000);
    const ProgramRun run({"print", play, "-o", path("horns.pdf")});
    EXPECT_EQ(run.code, ExitCode::Failed);
    EXPECT_THAT(run.err, HasSubstr("horns.zpf: "));
    EXPECT_EQ(read("horns.pdf"), "the old pages");
}

TEST_F(PrintCommand, PlayIsNeverWrittenOver) {
    const QByteArray before = QByteArray(kConfig) + kFrames;
    const QString play = writePlay("horns.pdf");
    EXPECT_THAT(ProgramRun({"print", play, "-o", path(".")}).err, HasSubstr("would be written over a play"));
    EXPECT_EQ(read("horns.pdf"), before);
    ASSERT_TRUE(QFile::link(play, path("link.pdf")));
    const ProgramRun run({"print", play, "-o", path("link.pdf")});
    EXPECT_EQ(run.code, ExitCode::Failed);
    EXPECT_EQ(read("horns.pdf"), before) << "through a link";
}

TEST_F(PrintCommand, WordsOfOptionsMayBeInCapitals) {
    const ProgramRun run(
        {"print", writePlay("horns.zpf"), "--paper", "Letter", "-l", "SMALL", "-o", path("horns.pdf")});
    EXPECT_EQ(run.code, ExitCode::Done) << run.err;
    EXPECT_TRUE(outputOf("pdfinfo", {path("horns.pdf")}).contains("612 x 792"));
}

} // namespace
} // namespace zeltrona::zpf
