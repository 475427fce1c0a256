#pragma once

#include <QPainterPath>
#include <QPointF>

#include <initializer_list>

namespace zeltrona::art {

/// A line through the points.
QPainterPath polyline(std::initializer_list<QPointF> points);

/// The closed area between the points.
QPainterPath polygon(std::initializer_list<QPointF> points);

QPainterPath circle(QPointF middle, double radius);

/// A part of a circle line, from `startDegrees` over `sweepDegrees`, counter-clockwise from the right as
/// seen.
QPainterPath arc(QPointF middle, double radius, double startDegrees, double sweepDegrees);

/// All paths as one.
QPainterPath together(std::initializer_list<QPainterPath> paths);

/// A filled arrowhead with its point at `tip`, coming from the direction of `from`.
QPainterPath arrowHead(QPointF from, QPointF tip, double length, double halfWidth);

} // namespace zeltrona::art
