#include "tools/art/path_parts.h"

#include <QRectF>

#include <cmath>

namespace zeltrona::art {

QPainterPath polyline(std::initializer_list<QPointF> points) {
    QPainterPath path(*points.begin());
    for (const QPointF& point : points) {
        if (&point != points.begin()) {
            path.lineTo(point);
        }
    }
    return path;
}

QPainterPath polygon(std::initializer_list<QPointF> points) {
    QPainterPath path = polyline(points);
    path.closeSubpath();
    return path;
}

QPainterPath circle(QPointF middle, double radius) {
    QPainterPath path;
    path.addEllipse(middle, radius, radius);
    return path;
}

QPainterPath arc(QPointF middle, double radius, double startDegrees, double sweepDegrees) {
    const QRectF box(middle.x() - radius, middle.y() - radius, 2 * radius, 2 * radius);
    QPainterPath path;
    path.arcMoveTo(box, startDegrees);
    path.arcTo(box, startDegrees, sweepDegrees);
    return path;
}

QPainterPath together(std::initializer_list<QPainterPath> paths) {
    QPainterPath all;
    for (const QPainterPath& path : paths) {
        all.addPath(path);
    }
    return all;
}

QPainterPath arrowHead(QPointF from, QPointF tip, double length, double halfWidth) {
    const double reach = std::hypot(tip.x() - from.x(), tip.y() - from.y());
    const QPointF ahead = (tip - from) / reach;
    const QPointF aside(-ahead.y(), ahead.x());
    const QPointF back = tip - ahead * length;
    return polygon({tip, back + aside * halfWidth, back - aside * halfWidth});
}

} // namespace zeltrona::art
