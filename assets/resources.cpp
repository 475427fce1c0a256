#include "assets/resources.h"

#include <QtGlobal>

// The macro names symbols of the global namespace, so these two cannot stand in ours.
static void initArt() {
    Q_INIT_RESOURCE(art);
}

static void initStrings() {
    Q_INIT_RESOURCE(strings);
}

namespace zeltrona::assets {

void initResources() {
    initArt();
    initStrings();
}

} // namespace zeltrona::assets
