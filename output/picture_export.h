#pragma once

#include "output/frame_walk.h"
#include "platform/common_dialog.h"

#include <QString>

class QWidget;

namespace zeltrona::output {

/// Draws the frame and saves it as "img<frame>.bmp" in `folder` (with its closing separator).
/// Returns the bare name; empty when the file could not be written.
QString exportFrameImage(FrameWalk& walk, std::int16_t frame, const QString& folder);

/// Asks for a name and writes one bitmap a frame, "<base><frame>.bmp", over what is there. Ends quietly on a
/// cancel, on a name without a point, and at the first file that cannot be written; frames done so far stay.
/// Reason: the pictures go straight to their names, with no "img" file between, so that a report that lies in
/// the same folder keeps
///         its own.
/// Returns the number of pictures written.
int exportPictures(FrameWalk& walk, QWidget* parent, platform::CommonDialog& dialog);

} // namespace zeltrona::output
