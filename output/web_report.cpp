#include "output/web_report.h"

#include "document/code_page.h"
#include "document/frame_store.h"
#include "output/board_picture.h"
#include "output/page_measure.h"
#include "output/picture_export.h"
#include "output/print_texts.h"
#include "output/report_lines.h"
#include "output/wrap_text.h"
#include "platform/message_box.h"

#include <QFile>
#include <QFileInfo>

namespace zeltrona::output {
namespace {

constexpr double kPointsPerPixel = 72.0 / 96.0;

/// Notes are broken as the printer would break them on a strip as wide as the board. Wrapping counts letters,
/// so it is done in UTF-8 and turned back into the play's bytes.
std::function<std::vector<std::string>(const std::string&)> noteWrapper(const PageFont& font,
                                                                        int boardWidth) {
    const double width = boardWidth * kPointsPerPixel;
    return [font, width](const std::string& note) -> std::vector<std::string> {
        const FontMeasure measure{QFont()};
        const MeasureWidth widthOf = [&](std::string_view text) { return measure.textWidth(text, font); };
        const std::string utf8 = document::toUtf8(note, font.charset);
        if (widthOf(utf8) <= width) {
            return {note};
        }
        std::vector<std::string> lines = wrapText(widthOf, width, utf8);
        for (std::string& line : lines) {
            line = document::fromUtf8(line, font.charset).bytes;
        }
        return lines;
    };
}

/// Carries out the steps of a report, one after the other.
class ReportMaker {
public:
    ReportMaker(FrameWalk& walk, QFile& page, const QImage& logo, std::int16_t frames)
        : m_walk(walk),
          m_page(page),
          m_logo(logo),
          m_frames(frames),
          m_folder(page.fileName().left(page.fileName().lastIndexOf(u'/') + 1)) {}

    bool operator()(const ReportLine& line) const {
        const std::string text = line.text + "\r\n";
        return m_page.write(text.data(), static_cast<qint64>(text.size()))
               == static_cast<qint64>(text.size());
    }
    bool operator()(const SaveLogo&) const {
        return saveBitmap(m_logo, m_folder + QString::fromLatin1(kLogoImageName.data()));
    }
    bool operator()(const SaveFrame& step) const {
        if (m_walk.progress) {
            m_walk.progress(step.frame, m_frames);
        }
        return !exportFrameImage(m_walk, step.frame, m_folder).isEmpty();
    }

private:
    FrameWalk& m_walk;
    QFile& m_page;
    const QImage& m_logo;
    std::int16_t m_frames;
    QString m_folder;
};

Report reportOf(const FrameWalk& walk) {
    Report report;
    report.court = walk.session.court;
    report.frames = document::countFrames(walk.play);
    readReportTexts(walk.play, report);
    PrintJob fontOnly;
    readPrintTexts(walk.play, fontOnly);
    report.wrapNote = noteWrapper(fontOnly.font, walk.board.pic.width());
    return report;
}

} // namespace

bool writeWebReport(FrameWalk& walk, const QString& fileName, const QImage& logo) {
    QFile page(fileName);
    if (!page.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        return false;
    }
    const Report report = reportOf(walk);
    const ReportMaker maker(walk, page, logo, report.frames);
    for (const ReportStep& step : reportSteps(report)) {
        if (!std::visit(maker, step)) {
            return false;
        }
    }
    return page.flush() && page.error() == QFileDevice::NoError;
}

void exportWebReport(FrameWalk& walk, QWidget* parent, platform::CommonDialog& dialog, const QImage& logo) {
    const platform::FileQuestion question{
        QStringLiteral("Select name of web page"), QStringLiteral("Web Page(*.html)"), {}};
    for (;;) {
        if (!platform::showSave(parent, dialog, question) || dialog.fileName.isEmpty()) {
            return;
        }
        if (!QFileInfo::exists(dialog.fileName)
            || platform::showMessage(parent, QStringLiteral("File exist.Overwrite ?"), platform::Icon::None,
                                     platform::Buttons::YesNo)
                   == platform::Answer::Yes) {
            break;
        }
    }
    writeWebReport(walk, dialog.fileName, logo);
}

} // namespace zeltrona::output
