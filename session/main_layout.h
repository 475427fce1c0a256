#pragma once

#include <QPoint>
#include <QSize>

#include <cstdint>

namespace zeltrona::session {

/// Where things stand in the main window for a family of courts, in pixels at 96 to the inch.
struct CourtLayout {
    QSize window; ///< menu included
    QPoint pic;
    QPoint Frame1;
    QPoint pToolAnim;
    friend bool operator==(const CourtLayout&, const CourtLayout&) = default;
};

/// A court outside 1 to 9 keeps the layout that the window is made with, which is that of the half courts.
CourtLayout courtLayoutOf(std::int16_t court);

} // namespace zeltrona::session
