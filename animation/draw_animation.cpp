#include "animation/draw_animation.h"

namespace zeltrona::animation {

namespace {

/// One side as a tick shows it.
struct Side {
    std::string_view kind;
    const std::vector<PlayerRec>& cur;
    const std::vector<PlayerRec>& records;
    document::Color color;
    document::Color fontColor;
};

Side offenceOf(const AnimationScene& scene) {
    return {kMovingOffence, scene.set.offAnimCur, scene.frame.offPlayers, scene.session.colorOff,
            scene.session.colorOffFont};
}

Side defenceOf(const AnimationScene& scene) {
    return {kMovingDefence, scene.set.defAnimCur, scene.frame.defPlayers, scene.session.colorDef,
            scene.session.colorDefFont};
}

void drawSide(render::Board& board, const AnimationScene& scene, const Side& side) {
    const bool circles = side.cur.front().txt == "0" || scene.session.bodyType != 1;
    for (std::size_t i = 0; i < side.cur.size(); ++i) {
        const PlayerRec& player = side.cur[i];
        if (circles) {
            render::drawPlayers(board, player.x, player.y, side.color, player.txt, side.fontColor,
                                scene.session.fontCharset);
        } else {
            drawPlayerBody(board, scene, side.kind, i);
        }
    }
}

} // namespace

void drawPlayerBody(render::Board& board, const AnimationScene& scene, std::string_view kind,
                    std::size_t index) {
    const Side side = kind == kMovingOffence ? offenceOf(scene) : defenceOf(scene);
    const PlayerRec& moving = side.cur[index];
    const PlayerRec& shown = index < side.records.size() ? side.records[index] : moving;
    render::BodyLook look;
    look.x = moving.x;
    look.y = moving.y;
    look.angle = moving.angle;
    look.body = moving.body;
    look.skin = shown.skin;
    look.teamColor = side.color;
    look.text = shown.txt;
    look.textColor = side.fontColor;
    look.charset = scene.session.fontCharset;
    render::paintBody(board, look);
}

void drawAnimationBalls(render::Board& board, const AnimationScene& scene) {
    for (const PlayerRec& ball : scene.set.ballAnimCur) {
        render::drawBallAt(board, ball.x, ball.y);
    }
}

void drawAnimationStep(render::Board& board, const AnimationScene& scene) {
    board.pic.cls();
    render::drawCourt(board, scene.session);
    render::drawTriangles(board, scene.frame.triangles);
    drawSide(board, scene, offenceOf(scene));
    drawSide(board, scene, defenceOf(scene));
    drawAnimationBalls(board, scene);
    board.pic.refresh();
}

} // namespace zeltrona::animation
