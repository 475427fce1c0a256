#include "tools/art/transport_icons.h"

#include "tools/art/path_parts.h"

namespace zeltrona::art {

namespace {

constexpr double kStroke = 2.0;

QPainterPath box(double left, double top, double right, double bottom) {
    return polygon({{left, top}, {right, top}, {right, bottom}, {left, bottom}});
}

QPainterPath rightTriangle(double left, double right, double half) {
    return polygon({{left, 10.0 - half}, {right, 10.0}, {left, 10.0 + half}});
}

QPainterPath leftTriangle(double left, double right, double half) {
    return polygon({{right, 10.0 - half}, {left, 10.0}, {right, 10.0 + half}});
}

std::vector<Icon> playIcons(const QColor& ink) {
    return {
        {"anim_first", {{together({box(3, 4, 5.5, 16), leftTriangle(6, 17, 6.5)}), ink, 0.0}}},
        {"anim_prev", {{together({leftTriangle(2, 10, 6.0), leftTriangle(10, 18, 6.0)}), ink, 0.0}}},
        {"anim_play", {{rightTriangle(4.5, 17.0, 7.5), ink, 0.0}}},
        {"anim_pause", {{together({box(4, 3.5, 8, 16.5), box(12, 3.5, 16, 16.5)}), ink, 0.0}}},
        {"anim_stop", {{box(4, 4, 16, 16), ink, 0.0}}},
        {"anim_next", {{together({rightTriangle(2, 10, 6.0), rightTriangle(10, 18, 6.0)}), ink, 0.0}}},
        {"anim_last", {{together({box(14.5, 4, 17, 16), rightTriangle(3, 14, 6.5)}), ink, 0.0}}},
        {"anim_loop",
         {{together({arc({10, 10}, 6.5, 20, 130), arc({10, 10}, 6.5, 200, 130)}), ink, kStroke},
          {together({polygon({{16.9, 4.6}, {16.9, 10.2}, {11.9, 7.6}}),
                     polygon({{3.1, 15.4}, {3.1, 9.8}, {8.1, 12.4}})}),
           ink, 0.0}}},
    };
}

std::vector<Icon> arrowIcons(const QColor& ink) {
    return {
        {"speed_up", {{polygon({{10, 5.5}, {16.5, 14}, {3.5, 14}}), ink, 0.0}}},
        {"speed_down", {{polygon({{10, 14.5}, {16.5, 6}, {3.5, 6}}), ink, 0.0}}},
        {"seq_up", {{polyline({{7, 4}, {13, 10}, {7, 16}}), ink, 2.6}}},
        {"seq_down", {{polyline({{13, 4}, {7, 10}, {13, 16}}), ink, 2.6}}},
        {"page_prev", {{polyline({{13, 4}, {7, 10}, {13, 16}}), ink, 2.6}}},
        {"page_next", {{polyline({{7, 4}, {13, 10}, {7, 16}}), ink, 2.6}}},
        {"court_first",
         {{together({polyline({{5, 4}, {5, 16}}), polyline({{15, 4}, {9, 10}, {15, 16}})}), ink, 2.6}}},
        {"court_prev", {{polyline({{13, 4}, {7, 10}, {13, 16}}), ink, 2.6}}},
        {"court_next", {{polyline({{7, 4}, {13, 10}, {7, 16}}), ink, 2.6}}},
        {"court_last",
         {{together({polyline({{15, 4}, {15, 16}}), polyline({{5, 4}, {11, 10}, {5, 16}})}), ink, 2.6}}},
    };
}

std::vector<Icon> viewIcons(const QColor& ink) {
    QPainterPath run(QPointF{4, 16});
    run.cubicTo({4, 7}, {15.5, 13}, {15.5, 6});
    const QPainterPath glass = together({circle({8.5, 8.5}, 5.5), polyline({{12.6, 12.6}, {17, 17}})});
    const QPainterPath minus = polyline({{6, 8.5}, {11, 8.5}});
    return {
        {"curve_showhide",
         {{run, ink, kStroke}, {circle({4, 16}, 2.6), ink, 0.0}, {circle({15.5, 4.6}, 2.6), ink, 0.0}}},
        {"zoom_in", {{glass, ink, kStroke}, {together({minus, polyline({{8.5, 6}, {8.5, 11}})}), ink, 1.6}}},
        {"zoom_out", {{glass, ink, kStroke}, {minus, ink, 1.6}}},
        {"close", {{together({polyline({{5, 5}, {15, 15}}), polyline({{15, 5}, {5, 15}})}), ink, kStroke}}},
    };
}

} // namespace

std::vector<Icon> transportIcons(const QColor& ink) {
    std::vector<Icon> icons = playIcons(ink);
    for (const std::vector<Icon>& more : {arrowIcons(ink), viewIcons(ink)}) {
        icons.insert(icons.end(), more.begin(), more.end());
    }
    return icons;
}

} // namespace zeltrona::art
