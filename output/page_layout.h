#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace zeltrona::output {

/// The two layouts of a printed play.
enum class PrintMode { BigPictures, SmallPictures };

/// The font of a printed text; the face is UTF-8, the size in points.
struct PageFont {
    std::string name = "Arial";
    std::int16_t charset = 238;
    int size = 8;
    bool bold = false;
    friend bool operator==(const PageFont&, const PageFont&) = default;
};

/// The logo at (x, y).
struct LogoOp {
    double x = 0, y = 0, width = 0, height = 0;
    friend bool operator==(const LogoOp&, const LogoOp&) = default;
};
/// One line of text with its left top corner at (x, y), black.
struct TextOp {
    double x = 0, y = 0;
    std::string text;
    PageFont font;
    friend bool operator==(const TextOp&, const TextOp&) = default;
};
/// The board of a frame, stretched to width x height.
struct PictureOp {
    std::int16_t frame = 0;
    double x = 0, y = 0, width = 0, height = 0;
    friend bool operator==(const PictureOp&, const PictureOp&) = default;
};
using PageOp = std::variant<LogoOp, TextOp, PictureOp>;

/// What stands on one page, in the order of painting.
struct Page {
    std::vector<PageOp> ops;
    friend bool operator==(const Page&, const Page&) = default;
};

/// How wide and high texts come out, in points.
class PageMeasure {
public:
    virtual ~PageMeasure() = default;
    virtual double textWidth(std::string_view utf8, const PageFont& font) const = 0;
    virtual double textHeight(std::string_view utf8, const PageFont& font) const = 0;
    /// Width with the main window's own font at 96 to the inch, its pixels taken as points as they stand:
    /// title and footer are centred by it.
    virtual double windowTextWidth(std::string_view utf8) const = 0;
};

/// Everything that the pages of a play depend on. Texts are UTF-8; lengths in points.
struct PrintJob {
    double width = 0;  ///< printable width of the paper
    double height = 0; ///< printable height
    std::int16_t court = 0;
    PrintMode mode = PrintMode::BigPictures;
    std::int16_t frames = 0;
    std::string title;
    std::vector<std::string> heading; ///< one entry for each stored line; empty when there is no heading
    std::vector<std::string> notes;   ///< notes[i] belongs to frame i + 1; fewer are taken as empty
    PageFont font;                    ///< face and character set; sizes are the layout's
};

/// Columns, rows of pictures and units (a row of pictures or a row of notes) of a page.
struct PageGrid {
    int columns = 0;
    int rows = 0;
    int units = 0;
    friend bool operator==(const PageGrid&, const PageGrid&) = default;
};
PageGrid pageGrid(PrintMode mode, std::int16_t court);

/// Whole points: margin, and width and height of a picture.
/// Reason: three small columns take a quarter of the free width each, not a third, so that a white strip is
/// left at
///         the right; printed plays have always looked so.
struct PageMetrics {
    std::int16_t margin = 0;
    float top = 0; ///< where the header's pen begins
    std::int16_t picW = 0;
    std::int16_t picH = 0;
    friend bool operator==(const PageMetrics&, const PageMetrics&) = default;
};
PageMetrics pageMetrics(double width, double height, PrintMode mode, std::int16_t court);

/// Number of pages; 0 for a play without frames.
std::int16_t PageCtn(std::int16_t frames, PrintMode mode, std::int16_t court);

/// The pages of the play in order, the header on the first, the footer on each. The rows of every page begin
/// at 170, whatever the header took, so a long heading runs into the first pictures.
std::vector<Page> layOutPages(const PrintJob& job, const PageMeasure& measure);

} // namespace zeltrona::output
