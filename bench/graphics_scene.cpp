#include "bench/graphics_scene.h"

#include "render/redraw.h"

#include <QFont>
#include <QGraphicsItem>
#include <QPainter>

namespace zeltrona::bench {

namespace {

QColor colorOf(document::Color color) {
    return QColor::fromRgb(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
}

/// The floor with its lines.
QPixmap courtOf(const HeavyBoard& heavy, const render::BoardArt& art) {
    render::BoardSurface pic;
    render::Board board{pic, art};
    render::drawCourt(board, heavy.session);
    return QPixmap::fromImage(pic.image());
}

/// A sprite without its label, cut out by its mask.
QPixmap spriteOf(const document::PlayerRec& player, document::Color team, const render::BoardArt& art) {
    render::BoardSurface pic(50, 50);
    render::Board board{pic, art};
    pic.setBackColor(0xFF00FF);
    render::paintBody(board, {0, 0, player.angle, player.body, player.skin, team, "", 0, 238});
    QPixmap sprite = QPixmap::fromImage(pic.image());
    sprite.setMask(sprite.createMaskFromColor(QColor(255, 0, 255)));
    return sprite;
}

void addSide(QGraphicsScene& scene, const std::vector<document::PlayerRec>& players, document::Color team,
             document::Color ink, const render::BoardArt& art) {
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(11);
    font.setBold(true);
    font.setStyleStrategy(QFont::NoAntialias);
    for (const document::PlayerRec& player : players) {
        auto* item = scene.addPixmap(spriteOf(player, team, art));
        item->setPos(player.x, player.y);
        auto* label = new QGraphicsSimpleTextItem(QString::fromStdString(player.txt), item);
        label->setFont(font);
        label->setBrush(colorOf(ink));
        label->setPos(25 - label->boundingRect().width() / 2, 25 - label->boundingRect().height() / 2);
    }
}

void addMarks(QGraphicsScene& scene, const document::FrameRecords& frame, const render::BoardArt& art) {
    for (const document::ShadowRec& shadow : frame.shadows) {
        scene.addEllipse(shadow.x, shadow.y, shadow.w - shadow.x, shadow.h - shadow.y, colorOf(shadow.color),
                         colorOf(shadow.color));
    }
    for (const document::TriangleRec& t : frame.triangles) {
        scene.addPolygon(QPolygonF({{t.x, t.y}, {t.x + 12, t.y}, {t.x + 6, t.y - 12}}),
                         QPen(colorOf(t.color), 2));
    }
    for (const document::TxtPicRec& text : frame.txtPics) {
        QFont font(QString::fromStdString(text.fontName));
        font.setPixelSize(text.fontSize * 96 / 72);
        font.setStyleStrategy(QFont::NoAntialias);
        auto* item = scene.addSimpleText(QString::fromStdString(text.text), font);
        item->setBrush(colorOf(text.color));
        item->setPos(text.x, text.y - item->boundingRect().height());
    }
    QPixmap ball = QPixmap::fromImage(art.pBall);
    ball.setMask(ball.createMaskFromColor(Qt::black));
    for (const document::BallRec& at : frame.balls) {
        scene.addPixmap(ball)->setPos(at.x - 13, at.y - 20);
    }
}

} // namespace

GraphicsBoard::GraphicsBoard(const HeavyBoard& heavy, const render::BoardArt& art)
    : m_view(&m_scene), m_image(render::boardSizeOf(heavy.session.court), QImage::Format_RGB32) {
    m_scene.setSceneRect(m_image.rect());
    m_scene.addPixmap(courtOf(heavy, art));
    addMarks(m_scene, heavy.frame, art);
    addSide(m_scene, heavy.frame.offPlayers, heavy.session.colorOff, heavy.session.colorOffFont, art);
    addSide(m_scene, heavy.frame.defPlayers, heavy.session.colorDef, heavy.session.colorDefFont, art);
    m_view.setFrameShape(QFrame::NoFrame);
    m_view.resize(m_image.size());
}

const QImage& GraphicsBoard::redraw() {
    QPainter painter(&m_image);
    m_view.render(&painter);
    return m_image;
}

} // namespace zeltrona::bench
