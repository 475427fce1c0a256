#pragma once

#include "document/vendor.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace zeltrona::output {

/// The page that the report's title names.
inline constexpr std::string_view kHomePage = document::kWebAddress;

/// What the web report is made of. Texts are bytes in the play's code page: they go into the page as they
/// stand.
struct Report {
    std::int16_t court = 0;
    std::int16_t frames = 0;
    std::int16_t charset = 238;
    std::string title;
    std::string heading;            ///< line breaks as the stored mark
    std::vector<std::string> notes; ///< notes[i] belongs to frame i + 1; fewer are taken as empty
    /// Breaks a note into the lines that it takes beside its picture; one line when it fits.
    std::function<std::vector<std::string>(const std::string&)> wrapNote;
};

/// One line of the page, without its line end.
struct ReportLine {
    std::string text;
    friend bool operator==(const ReportLine&, const ReportLine&) = default;
};
/// The logo is saved beside the page at this moment.
struct SaveLogo {
    friend bool operator==(const SaveLogo&, const SaveLogo&) = default;
};
/// The board of a frame is saved beside the page at this moment.
struct SaveFrame {
    std::int16_t frame = 0;
    friend bool operator==(const SaveFrame&, const SaveFrame&) = default;
};
using ReportStep = std::variant<ReportLine, SaveLogo, SaveFrame>;

/// Name of a frame's picture: "img", the number, ".bmp".
std::string frameImageName(std::int16_t frame);
inline constexpr std::string_view kLogoImageName = "Zeltronalogo.bmp";

/// "Windows-" and the code page of the character set; "Windows-1252" for one that has none here.
std::string webCharsetName(std::int16_t charset);

/// Puts "<BR>" for every stored break mark (the byte 174).
void breakMarksToHtml(std::string& text);

/// The whole report in the order of its making. The notes row's closing row stands inside the open cell, so
/// the markup nests there; browsers show it as meant, and pages in use look so.
std::vector<ReportStep> reportSteps(const Report& report);

} // namespace zeltrona::output
