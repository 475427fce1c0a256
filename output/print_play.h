#pragma once

#include "output/frame_walk.h"
#include "output/page_layout.h"

#include <QFont>
#include <QImage>
#include <QPrinter>

class QWidget;

namespace zeltrona::output {

/// The texts, frames and font of the play, for paper whose printable part is width x height points.
PrintJob printJobOf(const document::PlayFile& play, const document::Session& session, PrintMode mode,
                    double width, double height);

/// Pages of a range, and how often.
struct PrintRange {
    int fromPage = 1;
    int toPage = 1;
    int copies = 1;
};

/// Prints the pages of the range. Frames ahead of the range are loaded and drawn too, since a frame without
/// players of a side shows those of the frame before. Errors: false when the printer gave up or the disk did
/// not take a whole file; the document is taken back and no half file stays. A file that could not be opened
/// stays as it is.
bool printPages(FrameWalk& walk, QPrinter& printer, PrintMode mode, const PrintRange& range,
                const QFont& windowFont, const QImage& logo);

/// The whole printing with its dialog. A range the wrong way round is told and asked again; a cancel prints
/// nothing.
void printPlay(FrameWalk& walk, QWidget* parent, PrintMode mode, const QImage& logo);

} // namespace zeltrona::output
