#include "tools/art/court_plan.h"
#include "tools/art/round_lines.h"

#include <cmath>
#include <numbers>

namespace zeltrona::art {

namespace {

bool within(double value, double from, double to) {
    return from <= value && value < to;
}

bool isBoundary(const CourtPlan& plan, double across, double along) {
    const double outer = plan.halfWidth + plan.weight;
    const bool endLine = within(along, -plan.weight, 0.0) && across < outer;
    const bool sideLine = within(across, plan.halfWidth, outer) && along >= -plan.weight;
    const bool middleLine = std::abs(along - plan.length / 2) < plan.weight / 2.0 && across < outer;
    return endLine || sideLine || middleLine;
}

double laneEdgeAt(const CourtPlan& plan, double along) {
    return plan.laneHalfAtEnd + (plan.laneHalf - plan.laneHalfAtEnd) * along / plan.laneLength;
}

bool isLaneMark(const CourtPlan& plan, double across, double along) {
    const double edge = laneEdgeAt(plan, along);
    for (const LaneMark& mark : plan.laneMarks) {
        if (within(along, mark.from, mark.to) && within(across, edge, edge + plan.laneMarkLength)) {
            return true;
        }
    }
    return false;
}

bool isLane(const CourtPlan& plan, double across, double along) {
    if (!within(along, 0.0, plan.laneLength)) {
        return false;
    }
    const double edge = laneEdgeAt(plan, along);
    const bool outerSide = within(across, edge - plan.weight, edge);
    const bool innerSide = within(across, plan.innerLaneHalf - plan.weight, plan.innerLaneHalf);
    const bool freeThrowLine = along >= plan.laneLength - plan.weight && across < edge;
    return outerSide || innerSide || freeThrowLine;
}

bool isFreeThrowCircle(const CourtPlan& plan, double across, double along) {
    const double fromLine = along - (plan.laneLength - plan.weight / 2.0);
    if (!isCircleLine(across, fromLine, plan.circle, plan.weight)) {
        return false;
    }
    if (fromLine >= 0.0) {
        return true;
    }
    // Dashes and gaps of one length, a dash in the middle of the half circle, gaps where it meets the line.
    constexpr int kDashes = 7;
    const double turn = std::abs(std::atan2(across, -fromLine)) / std::numbers::pi * (2 * kDashes + 1);
    return plan.dashedInnerHalf && std::fmod(turn + 0.5, 2.0) < 1.0;
}

bool isThreePoint(const CourtPlan& plan, double across, double along) {
    if (along < 0.0) {
        return false;
    }
    if (along < plan.threePointEnd) {
        return within(across, plan.threePointHalf - plan.weight, plan.threePointHalf);
    }
    return isCircleLine(across, along - plan.basket, plan.threePoint, plan.weight);
}

bool isUnderBasket(const CourtPlan& plan, double across, double along) {
    if (plan.underBasket <= 0.0) {
        return false;
    }
    const double line = std::round(plan.underBasket) - 0.5;
    if (along < plan.basket) {
        return along >= plan.board && std::abs(across - line) < 0.5;
    }
    return isThinCircle(across, along - plan.basket, line);
}

bool isBasket(const CourtPlan& plan, double across, double along) {
    const bool board = within(along, plan.board - plan.weight, plan.board) && across < plan.boardHalf;
    const bool neck = within(along, plan.board, plan.basket - plan.ring) && across < 1.0;
    return board || neck || isThinCircle(across, along - plan.basket, plan.ring);
}

bool isSideMark(const CourtPlan& plan, double across, double along) {
    if (!within(along, plan.sideMark, plan.sideMark + plan.weight)) {
        return false;
    }
    const double outer = plan.halfWidth + plan.weight;
    return plan.sideMarkLength < 0.0 ? within(across, outer, outer - plan.sideMarkLength)
                                     : within(across, plan.halfWidth - plan.sideMarkLength, plan.halfWidth);
}

bool isCentreCircle(const CourtPlan& plan, double across, double along) {
    const double fromMiddle = along - plan.length / 2;
    return isCircleLine(across, fromMiddle, plan.circle, plan.weight)
           || isCircleLine(across, fromMiddle, plan.innerCentreCircle, plan.weight);
}

} // namespace

bool isCourtLine(const CourtPlan& plan, double across, double along) {
    if (along >= plan.length / 2 + plan.weight / 2.0) {
        return false;
    }
    const double side = std::abs(across);
    return isBoundary(plan, side, along) || isLane(plan, side, along) || isLaneMark(plan, side, along)
           || isFreeThrowCircle(plan, side, along) || isThreePoint(plan, side, along)
           || isUnderBasket(plan, side, along) || isBasket(plan, side, along) || isSideMark(plan, side, along)
           || isCentreCircle(plan, side, along);
}

} // namespace zeltrona::art
