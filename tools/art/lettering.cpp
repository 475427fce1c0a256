#include "tools/art/lettering.h"

#include "tools/art/path_parts.h"

namespace zeltrona::art {

namespace {

QPainterPath letterR() {
    QPainterPath path(QPointF{0, 10});
    path.lineTo(0, 0);
    path.lineTo(3.6, 0);
    path.cubicTo({5.4, 0}, {6.4, 1.2}, {6.4, 2.8});
    path.cubicTo({6.4, 4.4}, {5.4, 5.6}, {3.6, 5.6});
    path.lineTo(0, 5.6);
    path.addPath(polyline({{3.4, 5.6}, {6.8, 10}}));
    return path;
}

QPainterPath letterO() {
    QPainterPath path;
    path.addEllipse(QPointF{4.6, 5}, 4.6, 5.0);
    return path;
}

} // namespace

QPainterPath wordmark() {
    QPainterPath word;
    const auto add = [&word](double x, const QPainterPath& letter) { word.addPath(letter.translated(x, 0)); };
    add(0.0, polyline({{0, 0}, {7, 0}, {0, 10}, {7, 10}}));
    add(10.6, together({polyline({{6, 0}, {0, 0}, {0, 10}, {6, 10}}), polyline({{0, 4.9}, {5.2, 4.9}})}));
    add(20.4, polyline({{0, 0}, {0, 10}, {5.8, 10}}));
    add(28.4, together({polyline({{0, 0}, {8, 0}}), polyline({{4, 0}, {4, 10}})}));
    add(39.8, letterR());
    add(49.4, letterO());
    add(62.2, polyline({{0, 10}, {0, 0}, {7, 10}, {7, 0}}));
    add(72.0, together({polyline({{0, 10}, {4, 0}, {8, 10}}), polyline({{1.36, 6.6}, {6.64, 6.6}})}));
    return word;
}

} // namespace zeltrona::art
