#include "tools/art/catalogue.h"

#include "tools/art/body_drawing.h"
#include "tools/art/court_sheets.h"
#include "tools/art/ink.h"
#include "tools/art/logo.h"
#include "tools/art/parquet.h"
#include "tools/art/pixel_grid.h"
#include "tools/art/round_marks.h"
#include "tools/art/team_preview.h"
#include "tools/art/tool_icons.h"
#include "tools/art/transport_icons.h"

namespace zeltrona::art {

namespace {

using Files = std::vector<ArtFile>;

void addPicture(Files& files, const std::string& name, const QImage& picture) {
    files.push_back({name + ".png", picture, {}});
}

void addSvg(Files& files, const std::string& name, const VectorPicture& picture) {
    files.push_back({name + ".svg", {}, writeSvg(picture)});
}

void addCourts(Files& files) {
    const QImage small = drawSmallCourtSheet();
    const QImage big = drawBigCourtSheet();
    const QImage strip = drawPreviewStrip();
    addPicture(files, "picT", maskAsRgb(small));
    addPicture(files, "picTblack", small);
    addPicture(files, "picTbig", maskAsRgb(big));
    addPicture(files, "picTbigBlack", big);
    addPicture(files, "court_strip_black", maskAsRgb(strip));
    addPicture(files, "court_strip_white", maskAsRgb(invertedMask(strip)));
}

void addFloors(Files& files) {
    addPicture(files, "picTparket", drawParquet({360, 329}, BoardRun::Down, 12));
    addPicture(files, "picTbigParket", drawParquet({530, 290}, BoardRun::Across, 12));
    addPicture(files, "court_texture", drawParquet({160, 146}, BoardRun::Down, 6));
}

void addPlayers(Files& files) {
    addPicture(files, "pKrugMask", drawPlayerRing());
    addPicture(files, "pBall", drawBall());
    const BodyMasks bodies = drawBodySheets();
    addPicture(files, "bodies_skin", bodies.skin);
    addPicture(files, "bodies_shirt", bodies.jersey);
    addPicture(files, "bodies_mask", bodies.mask);
    for (int pose = 0; pose < kPoses; ++pose) {
        const BodyMasks masks = drawBody(static_cast<Pose>(pose), 90.0);
        addPicture(files, "body_pose_" + std::to_string(pose),
                   colourBody(masks, qRgb(255, 204, 153), qRgb(38, 92, 178)));
    }
}

void addTeamPreview(Files& files) {
    const TeamPreview preview = drawTeamPreview();
    addPicture(files, "config_base", preview.base);
    addPicture(files, "config_skin_region", preview.skinRegion);
    addPicture(files, "config_skin_mask", preview.skinMask);
    addPicture(files, "config_suit_region", preview.suitRegion);
    addPicture(files, "config_suit_mask", preview.suitMask);
}

void addTools(Files& files) {
    for (int scale = 1; scale <= 3; ++scale) {
        const std::string tail = scale == 1 ? "" : "_" + std::to_string(scale) + "x";
        addPicture(files, "tool_strip" + tail, drawToolStrip(kDarkInk, scale));
        addPicture(files, "tool_strip_light" + tail, drawToolStrip(kLightInk, scale));
    }
}

void addIcons(Files& files, const QColor& ink, const std::string& tail) {
    for (const Icon& icon : transportIcons(ink)) {
        addSvg(files, icon.name + tail, {{kToolSize, kToolSize}, icon.shapes});
    }
}

void addLogos(Files& files) {
    addSvg(files, "logo", logo(kDarkInk));
    addPicture(files, "logo", drawPixels(logo(kDarkInk), {320, 120}));
    addSvg(files, "logo_light", logo(kLightInk));
    addPicture(files, "logo_light", drawPixels(logo(kLightInk), {320, 120}));
    addPicture(files, "splash", drawPixels(splash(), {400, 200}).convertToFormat(QImage::Format_RGB888));
    addPicture(files, "splash_2x", drawPixels(splash(), {800, 400}).convertToFormat(QImage::Format_RGB888));
    addPicture(files, "logo_export", drawExportLogo());
    addSvg(files, "zeltrona", appIcon(512));
    for (const int size : {16, 24, 32, 48, 64, 128, 256, 512}) {
        addPicture(files, "zeltrona_" + std::to_string(size), drawPixels(appIcon(size), {size, size}));
    }
}

} // namespace

std::vector<ArtFile> drawAll() {
    Files files;
    addCourts(files);
    addFloors(files);
    addPlayers(files);
    addTeamPreview(files);
    addTools(files);
    addIcons(files, kDarkInk, "");
    addIcons(files, kLightInk, "_light");
    addIcons(files, kAccent, "_on");
    addLogos(files);
    return files;
}

} // namespace zeltrona::art
