#include "output/page_painter.h"

#include "output/page_measure.h"

#include <QFontMetricsF>
#include <QPainter>

namespace zeltrona::output {
namespace {

struct Ink {
    QPainter& painter;
    const QImage& logo;
    const FramePicture& picture;

    void operator()(const LogoOp& op) const {
        painter.drawImage(QRectF(op.x, op.y, op.width, op.height), logo);
    }
    void operator()(const TextOp& op) const {
        const QFont font = pageFont(op.font);
        painter.setFont(font);
        painter.setPen(Qt::black);
        painter.drawText(QPointF(op.x, op.y + QFontMetricsF(font).ascent()), QString::fromStdString(op.text));
    }
    void operator()(const PictureOp& op) const {
        painter.drawImage(QRectF(op.x, op.y, op.width, op.height), picture(op.frame));
    }
};

} // namespace

void paintPage(QPainter& painter, const Page& page, const QImage& logo, const FramePicture& picture) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHint(QPainter::TextAntialiasing);
    const Ink ink{painter, logo, picture};
    for (const PageOp& op : page.ops) {
        std::visit(ink, op);
    }
}

} // namespace zeltrona::output
