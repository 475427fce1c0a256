#include "render/court_band.h"

#include "document/session.h"

namespace zeltrona::render {

std::optional<CourtBand> courtBandOf(std::int16_t court) {
    if (document::isBigCourt(court)) {
        return CourtBand{(court / 3 - 1) * 290, 530, 290};
    }
    if (document::isSmallCourt(court)) {
        const int halfCourtsBefore = (court - 1) / 3 * 2 + (court - 1) % 3;
        return CourtBand{halfCourtsBefore * 330, 360, 330};
    }
    return std::nullopt;
}

} // namespace zeltrona::render
