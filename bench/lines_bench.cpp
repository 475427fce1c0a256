#include "bench/heavy_board.h"
#include "bench/ratio_report.h"
#include "render/line_geometry.h"
#include "render/redraw.h"

#include <QApplication>
#include <QGraphicsPathItem>
#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QPainter>

#include <array>
#include <benchmark/benchmark.h>
#include <cstring>

using namespace zeltrona;

namespace {

const render::BoardArt& art() {
    static const render::BoardArt loaded = render::loadBoardArt();
    return loaded;
}

render::BoardSurface surfaceOf(const document::Session& session) {
    const QSize size = render::boardSizeOf(session.court);
    return render::BoardSurface(size.width(), size.height());
}

void copyPixels(benchmark::State& state, std::int16_t court) {
    const QSize size = render::boardSizeOf(court);
    const QImage from(size, QImage::Format_RGB32);
    QImage to(size, QImage::Format_RGB32);
    for (auto step : state) {
        std::memcpy(to.bits(), from.constBits(), static_cast<std::size_t>(from.sizeInBytes()));
        benchmark::ClobberMemory();
    }
}

void copyHalfCourt(benchmark::State& state) {
    copyPixels(state, 1);
}
BENCHMARK(copyHalfCourt)->Unit(benchmark::kMicrosecond);

void copyWholeCourt(benchmark::State& state) {
    copyPixels(state, 3);
}
BENCHMARK(copyWholeCourt)->Unit(benchmark::kMicrosecond);

void redrawHeavyBoard(benchmark::State& state) {
    const bench::HeavyBoard heavy;
    render::BoardSurface pic = surfaceOf(heavy.session);
    render::Board board{pic, art()};
    for (auto step : state) {
        render::redrawBoard(board, {heavy.session, heavy.frame}, 0, 0);
        benchmark::DoNotOptimize(pic.image().constBits());
    }
}
BENCHMARK(redrawHeavyBoard)->Unit(benchmark::kMicrosecond);

void drawWavyCurves(benchmark::State& state) {
    const bench::WavyBoard wavy;
    render::BoardSurface pic = surfaceOf(wavy.session);
    render::Board board{pic, art()};
    for (auto step : state) {
        render::drawPaths(board, {wavy.session, wavy.frame}, 0, 0);
        benchmark::DoNotOptimize(pic.image().constBits());
    }
}
BENCHMARK(drawWavyCurves)->Unit(benchmark::kMicrosecond);

void workOutWavyCurves(benchmark::State& state) {
    const bench::WavyBoard wavy;
    for (auto step : state) {
        render::LineDrawing drawing;
        render::drawPaths(drawing, {wavy.frame.lines, 1, -1, {0, 0, 532, 295}}, 0, 0);
        benchmark::DoNotOptimize(drawing.primitives.data());
    }
}
BENCHMARK(workOutWavyCurves)->Unit(benchmark::kMicrosecond);

/// The picture of one object of the heavy board, cut out of a board that shows nothing else; clear where it
/// is the same as the empty board.
QPixmap pictureOf(const bench::HeavyBoard& heavy, const document::FrameRecords& only) {
    const auto imageOf = [&heavy](const document::FrameRecords& frame) {
        render::BoardSurface pic = surfaceOf(heavy.session);
        render::Board board{pic, art()};
        render::redrawBoard(board, {heavy.session, frame}, 0, 0);
        return pic.image();
    };
    const QImage empty = imageOf({});
    QImage shown = imageOf(only).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QRect used;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            if (shown.pixel(x, y) == empty.pixel(x, y)) {
                shown.setPixel(x, y, 0);
            } else {
                used |= QRect(x, y, 1, 1);
            }
        }
    }
    return QPixmap::fromImage(shown.copy(used));
}

/// A body without its label, which is a text item of its own as on the board.
void addPlayer(QGraphicsScene& scene, const bench::HeavyBoard& heavy, const document::PlayerRec& player) {
    document::FrameRecords only;
    only.offPlayers = {player};
    only.offPlayers[0].txt = " ";
    scene.addPixmap(pictureOf(heavy, only))->setPos(player.x, player.y);
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(11);
    font.setBold(true);
    font.setStyleStrategy(QFont::NoAntialias);
    auto* label = scene.addSimpleText(QString::fromStdString(player.txt), font);
    label->setPos(player.x + 20, player.y + 18);
    label->setBrush(Qt::white);
}

/// The toolkit's own shapes for the primitives of one line.
void addLine(QGraphicsScene& scene, const document::LineRec& line) {
    const std::vector<document::LineRec> one{line};
    render::LineDrawing drawing;
    render::drawPaths(drawing, {one, 2, -1, {0, 0, 363, 332}}, 0, 0);
    QPainterPath path;
    for (const render::LinePrimitive& primitive : drawing.primitives) {
        if (const auto* s = std::get_if<render::SegmentPrimitive>(&primitive)) {
            path.moveTo(s->from.x, s->from.y);
            path.lineTo(s->to.x, s->to.y);
        } else if (const auto* a = std::get_if<render::ArcPrimitive>(&primitive)) {
            const QRectF box(a->centre.x - a->radius, a->centre.y - a->radius, 2 * a->radius, 2 * a->radius);
            path.arcMoveTo(box, a->start * 57.2958);
            path.arcTo(box, a->start * 57.2958, 180);
        } else if (const auto* b = std::get_if<render::BezierPrimitive>(&primitive)) {
            path.moveTo(b->points[0].x, b->points[0].y);
            for (std::size_t i = 0; i + 3 < b->points.size(); i += 3) {
                path.cubicTo(b->points[i + 1].x, b->points[i + 1].y, b->points[i + 2].x, b->points[i + 2].y,
                             b->points[i + 3].x, b->points[i + 3].y);
            }
        } else {
            const auto& p = std::get<render::PolygonPrimitive>(primitive).points;
            scene.addPolygon(
                QPolygonF({QPointF(p[0].x, p[0].y), QPointF(p[1].x, p[1].y), QPointF(p[2].x, p[2].y)}),
                QPen(Qt::darkBlue, 2), Qt::darkBlue);
        }
    }
    scene.addPath(path, QPen(Qt::darkBlue, 2));
}

void addMarks(QGraphicsScene& scene, const document::FrameRecords& frame) {
    for (const auto& shadow : frame.shadows) {
        scene.addEllipse(shadow.x, shadow.y, shadow.w - shadow.x, shadow.h - shadow.y, QPen(Qt::gray),
                         Qt::gray);
    }
    for (const auto& mark : frame.triangles) {
        scene.addPolygon(QPolygonF({QPointF(mark.x, mark.y), QPointF(mark.x + 12, mark.y),
                                    QPointF(mark.x + 6, mark.y - 12)}),
                         QPen(Qt::red, 2));
    }
    for (const auto& text : frame.txtPics) {
        scene.addSimpleText(QString::fromStdString(text.text), QFont(QStringLiteral("Arial"), 10))
            ->setPos(text.x, text.y);
    }
    for (const auto& ball : frame.balls) {
        scene.addPixmap(QPixmap::fromImage(art().pBall))->setPos(ball.x - 13, ball.y - 20);
    }
}

void renderGraphicsView(benchmark::State& state) {
    const bench::HeavyBoard heavy;
    QGraphicsScene scene(0, 0, 363, 332);
    scene.addPixmap(QPixmap::fromImage(art().picTparket));
    addMarks(scene, heavy.frame);
    for (const auto* side : {&heavy.frame.offPlayers, &heavy.frame.defPlayers}) {
        for (const document::PlayerRec& player : *side) {
            addPlayer(scene, heavy, player);
        }
    }
    for (const document::LineRec& line : heavy.frame.lines) {
        addLine(scene, line);
    }
    QImage picture(363, 332, QImage::Format_RGB32);
    for (auto step : state) {
        QPainter painter(&picture);
        scene.render(&painter);
        painter.end();
        benchmark::DoNotOptimize(picture.constBits());
    }
}
BENCHMARK(renderGraphicsView)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int count, char** arguments) {
    const QApplication application(count, arguments);
    const std::array ratios = {
        bench::Ratio{"heavy-board-with-lines-to-memcpy", "redrawHeavyBoard", "copyHalfCourt", 40},
        bench::Ratio{"heavy-board-with-lines-to-graphics-view", "redrawHeavyBoard", "renderGraphicsView",
                     1.0 / 3},
        bench::Ratio{"ten-wavy-curves-to-memcpy", "drawWavyCurves", "copyWholeCourt", 30},
    };
    return bench::runWithRatios(count, arguments, ratios);
}
