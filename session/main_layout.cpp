#include "session/main_layout.h"

#include "document/session.h"

namespace zeltrona::session {

namespace {

/// The window's sizes are kept in twips, as the play board always had them.
constexpr int kTwipsPerPixel = 15;

/// The board leans to the left, so that the tool box has its place beside it.
constexpr int kPicLeft = 8;
constexpr int kPicTop = 15;

constexpr int pixels(int twips) {
    return twips / kTwipsPerPixel;
}

} // namespace

CourtLayout courtLayoutOf(std::int16_t court) {
    if (document::isBigCourt(court)) {
        return {{pixels(9090), pixels(8130)}, {kPicLeft, kPicTop}, {61, 324}, {94, 371}};
    }
    return {{pixels(6500), pixels(8130)}, {kPicLeft, kPicTop}, {21, 362}, {54, 411}};
}

} // namespace zeltrona::session
