#pragma once

namespace zeltrona::art {

/// True when (dx, dy) from the middle lies on a circle line of the given weight whose outer edge has the
/// radius `outer`; never for a radius of 0.
bool isRing(double dx, double dy, double outer, double weight);

/// True when the pixel whose middle is (dx, dy) away belongs to a circle line one pixel thick with the radius
/// `radius`: one pixel a column in the flat eighths and one a row in the steep ones, so that no step is
/// doubled.
bool isThinCircle(double dx, double dy, double radius);

/// One of the two: a circle line of whole weight with the outer radius `outer`; at weight 1 the thin one.
bool isCircleLine(double dx, double dy, double outer, int weight);

} // namespace zeltrona::art
