#include "output/report_lines.h"

#include "document/code_page.h"
#include "document/session.h"
#include "document/user_texts.h"

namespace zeltrona::output {
namespace {

class ReportWriter {
public:
    explicit ReportWriter(const Report& report)
        : m_report(report), m_columns(document::isBigCourt(report.court) ? 1 : 2) {}

    std::vector<ReportStep> write() {
        writeHead();
        writeTexts();
        line(R"(<table border="0" width="100%" cellspacing="0" align="left" cellpadding="0">)");
        line(R"(<tr height="30"> <td> </td><td> </td> </tr>)");
        const int imageRows = (m_report.frames + m_columns - 1) / m_columns;
        for (int row = 0; row < imageRows; ++row) {
            writeRow(true);
            writeRow(false);
        }
        line("</table>");
        line("</body>");
        line("</html>");
        return std::move(m_steps);
    }

private:
    void line(std::string text) { m_steps.emplace_back(ReportLine{std::move(text)}); }

    void writeHead() {
        const std::string home(kHomePage);
        line("<html>");
        line("");
        line("<head>");
        line("<title>zelTrona report - " + home + "</title>");
        line(R"(<meta http-equiv=Content-Type content="text/html; charset=)"
             + webCharsetName(m_report.charset) + "\">");
        line(R"(<meta name="GENERATOR" content="zq 9.0">)");
        line(
            R"(<meta name="keywords" content=")" + home
            + ", Zeltrona, basketball, handball, volleyball, football, play board, coaching board, playbook, "
              R"(handbook, training planner, animation">)");
        line(R"(<meta name="description" content="Zeltrona, )" + home
             + R"(: a play board, handbook and training planner for basketball and other team sports.">)");
        line("</head>");
        line("<body>");
    }

    void writeTexts() {
        m_steps.emplace_back(SaveLogo{});
        line("<img src=\"" + std::string(kLogoImageName) + R"(" alt=" -Zeltrona Logo- ">)");
        if (!m_report.title.empty()) {
            line("<H2 ALIGN=CENTER>" + m_report.title + "</H2>");
        }
        line("<BR>");
        if (!m_report.heading.empty()) {
            std::string heading = m_report.heading;
            breakMarksToHtml(heading);
            line("<H4 ALIGN=LEFT>" + heading + "</H4>");
        }
    }

    void writeRow(bool images) {
        line("<tr>");
        for (int column = 1; column <= m_columns; ++column) {
            line("     <td>");
            if (images) {
                writeImage();
            } else {
                writeNote();
                if (column == m_columns) {
                    line(R"(<tr height="15"><td> </td><td> </td> </tr>)");
                }
            }
            line("     </td>");
        }
        line("</tr>");
    }

    void writeImage() {
        if (m_nextImage > m_report.frames) {
            return;
        }
        const auto frame = static_cast<std::int16_t>(m_nextImage++);
        m_steps.emplace_back(SaveFrame{frame});
        line("<img src=\"" + frameImageName(frame) + R"(" alt=" -Zeltrona sequence- ">)");
    }

    void writeNote() {
        if (m_nextNote > m_report.frames) {
            return;
        }
        const auto index = static_cast<std::size_t>(m_nextNote++ - 1);
        if (index >= m_report.notes.size() || m_report.notes[index].empty()) {
            return;
        }
        const std::vector<std::string> lines = m_report.wrapNote(m_report.notes[index]);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            line(i + 1 < lines.size() ? lines[i] + "<br>" : lines[i]);
        }
    }

    const Report& m_report;
    int m_columns;
    std::vector<ReportStep> m_steps;
    int m_nextImage = 1;
    int m_nextNote = 1;
};

} // namespace

std::string frameImageName(std::int16_t frame) {
    return "img" + std::to_string(frame) + ".bmp";
}

std::string webCharsetName(std::int16_t charset) {
    return "Windows-" + std::to_string(document::codePageOf(charset));
}

void breakMarksToHtml(std::string& text) {
    for (std::size_t at = text.find(document::kBreakMark); at != std::string::npos;
         at = text.find(document::kBreakMark)) {
        text.replace(at, 1, "<BR>");
    }
}

std::vector<ReportStep> reportSteps(const Report& report) {
    return ReportWriter(report).write();
}

} // namespace zeltrona::output
