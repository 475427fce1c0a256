#pragma once

#include "render/clip_box.h"
#include "render/line_primitives.h"

#include <span>

namespace zeltrona::render {

/// Whether the walk over pitches starts with its flag off or on. Off paints: the first dash, the first half
/// wave.
enum class PitchFlag { Off, On };

/// Every other stretch between neighbours of `points`, the first one when the flag is off; with the drawing's
/// pen. Stretches outside the box are left out, and count.
void addDashes(LineDrawing& out, std::span<const document::PointF> points, PitchFlag flag, const ClipBox& box,
               document::Color color);

/// A half circle over each stretch between neighbours, on alternating sides.
void addWave(LineDrawing& out, std::span<const document::PointF> points, PitchFlag flag, const ClipBox& box,
             document::Color color);

/// The half circle over the stretch from p to q: its middle, half its length, and the angles of the side.
/// Reason: the angles are made of 3.141, 6.282 and 9.423 and not of pi, so that old plays keep their very
/// pixels.
ArcPrimitive waveArc(document::PointF p, document::PointF q, PitchFlag flag);

} // namespace zeltrona::render
