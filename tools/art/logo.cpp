#include "tools/art/logo.h"

#include "tools/art/ink.h"
#include "tools/art/lettering.h"
#include "tools/art/path_parts.h"

namespace zeltrona::art {

namespace {

void append(std::vector<Shape>& all, const std::vector<Shape>& more) {
    all.insert(all.end(), more.begin(), more.end());
}

Shape nameAt(double x, double y, double height, const QColor& ink, double width) {
    const std::vector<Shape> name{{wordmark(), ink, width * 10.0 / height}};
    return placed(name, height / 10.0, x, y).front();
}

QPainterPath rectangle(double x, double y, double width, double height) {
    return polygon({{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}});
}

} // namespace

std::vector<Shape> mark(const QColor& ball, const QColor& cut, Seams seams) {
    std::vector<Shape> shapes{{circle({32, 32}, 31), ball, 0.0}};
    if (seams == Seams::On) {
        const QColor seam = ball.darker(125);
        append(shapes, {{polyline({{11.5, 11.5}, {52.5, 52.5}}), seam, 2.4},
                        {arc({1.5, 62.5}, 33.0, 4.5, 81.0), seam, 2.4},
                        {arc({62.5, 1.5}, 33.0, 184.5, 81.0), seam, 2.4}});
    }
    // The bars lie on whole pixels of the smallest icon, a quarter of this grid.
    append(shapes, {{polyline({{18, 16}, {44, 16}, {19, 40}, {38, 40}}), cut, 8.0},
                    {polygon({{57, 40}, {38, 28}, {38, 52}}), cut, 0.0}});
    return shapes;
}

VectorPicture appIcon(int pixels) {
    return {{64, 64}, mark(kAccent, Qt::white, pixels >= 48 ? Seams::On : Seams::Off)};
}

VectorPicture logo(const QColor& ink) {
    VectorPicture picture{{320, 120}, placed(mark(kAccent, Qt::white, Seams::On), 80.0 / 64.0, 4, 20)};
    picture.shapes.push_back(nameAt(104, 46, 26, ink, 5.0));
    return picture;
}

VectorPicture splash() {
    VectorPicture picture{{400, 200}, {{rectangle(0, 0, 400, 200), kNight, 0.0}}};
    append(picture.shapes, {{polyline({{-2, 17}, {402, 17}}), kNightLine, 2.0},
                            {polyline({{-2, 183}, {402, 183}}), kNightLine, 2.0},
                            {polyline({{82, 17}, {82, 183}}), kNightLine, 2.0},
                            {circle({82, 100}, 64), kNightLine, 2.0}});
    append(picture.shapes, placed(mark(kAccent, Qt::white, Seams::On), 96.0 / 64.0, 34, 52));
    picture.shapes.push_back(nameAt(154, 87, 26, Qt::white, 5.0));
    return picture;
}

QImage drawExportLogo() {
    VectorPicture picture{{173, 53}, {{rectangle(0, 0, 173, 53), Qt::white, 0.0}}};
    append(picture.shapes, placed(mark(kAccent, Qt::white, Seams::Off), 46.0 / 64.0, 2, 3.5));
    picture.shapes.push_back(nameAt(57, 19.5, 14, kDarkInk, 2.8));
    return drawPixels(picture, picture.size).convertToFormat(QImage::Format_RGB888);
}

} // namespace zeltrona::art
