#include "tools/art/court_facts.h"

namespace zeltrona::art {

namespace {

CourtFacts internationalFacts() {
    CourtFacts facts;
    facts.length = 28.0;
    facts.width = 15.0;
    facts.basket = 1.575;
    facts.ring = 0.45;
    facts.board = 1.2;
    facts.boardWidth = 1.8;
    facts.laneLength = 5.8;
    facts.laneWidth = 4.9;
    facts.laneWidthAtEnd = 4.9;
    facts.circle = 1.8;
    facts.threePoint = 6.75;
    facts.threePointGap = 0.9;
    facts.underBasket = 1.25;
    facts.sideMark = 8.325;
    facts.sideMarkLength = -0.15;
    facts.laneMarkLength = 0.1;
    facts.laneMarks = {{1.75, 1.8}, {2.6, 3.0}, {3.85, 3.9}, {4.7, 4.75}};
    return facts;
}

CourtFacts formerInternationalFacts() {
    CourtFacts facts = internationalFacts();
    facts.laneWidth = 3.6;
    facts.laneWidthAtEnd = 6.0;
    facts.dashedInnerHalf = true;
    facts.threePoint = 6.25;
    facts.threePointGap = 1.25;
    facts.underBasket = 0.0;
    facts.sideMark = 0.0;
    facts.sideMarkLength = 0.0;
    facts.laneMarks = {{1.75, 1.8}, {2.6, 2.9}, {3.75, 3.8}, {4.6, 4.65}};
    return facts;
}

CourtFacts northAmericanFacts() {
    CourtFacts facts;
    facts.length = 94.0;
    facts.width = 50.0;
    facts.basket = 5.25;
    facts.ring = 1.5;
    facts.board = 4.0;
    facts.boardWidth = 6.0;
    facts.laneLength = 19.0;
    facts.laneWidth = 16.0;
    facts.laneWidthAtEnd = 16.0;
    facts.innerLaneWidth = 12.0;
    facts.circle = 6.0;
    facts.innerCentreCircle = 2.0;
    facts.dashedInnerHalf = true;
    facts.threePoint = 23.75;
    facts.threePointGap = 3.0;
    facts.underBasket = 4.0;
    facts.sideMark = 28.0;
    facts.sideMarkLength = 3.0;
    facts.laneMarkLength = 0.5;
    facts.laneMarks = {{7.0, 8.0}, {11.0, 11.17}, {14.0, 14.17}, {17.0, 17.17}};
    return facts;
}

} // namespace

const std::array<CourtFacts, 3>& courtFacts() {
    static const std::array<CourtFacts, 3> facts{internationalFacts(), formerInternationalFacts(),
                                                 northAmericanFacts()};
    return facts;
}

} // namespace zeltrona::art
