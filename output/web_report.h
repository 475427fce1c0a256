#pragma once

#include "output/frame_walk.h"
#include "platform/common_dialog.h"

#include <QImage>
#include <QString>

class QWidget;

namespace zeltrona::output {

/// Writes the page `fileName`, the logo and one picture a frame into its folder. Lines end in CR LF; texts
/// are bytes of the play's character set, as they stand. Errors: false when a file cannot be written; what
/// was written so far stays.
bool writeWebReport(FrameWalk& walk, const QString& fileName, const QImage& logo);

/// Asks for a name, and whether an old page may go as often as needed, then writes the report; ends quietly.
void exportWebReport(FrameWalk& walk, QWidget* parent, platform::CommonDialog& dialog, const QImage& logo);

} // namespace zeltrona::output
