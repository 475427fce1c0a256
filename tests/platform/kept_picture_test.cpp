// Pictures of buttons are made once and shared: made anew with each window they would pile up in the
// toolkit's cache.
#include "assets/resources.h"
#include "platform/swatch.h"
#include "platform/themed_icon.h"

#include <QColor>
#include <QPalette>

#include <gtest/gtest.h>

namespace zeltrona::platform {
namespace {

QPalette darkPalette() {
    return {Qt::white, Qt::black, Qt::black, Qt::black, Qt::black, Qt::white, Qt::black};
}

TEST(ThemedIcon, IsTheSameEachTime) {
    assets::initResources();
    const QIcon first = themedIcon(QStringLiteral("anim_loop"), QPalette());
    ASSERT_FALSE(first.pixmap(20, 20).isNull());
    const QIcon second = themedIcon(QStringLiteral("anim_loop"), QPalette());
    EXPECT_EQ(first.cacheKey(), second.cacheKey());
    EXPECT_EQ(first.pixmap(20, 20).cacheKey(), second.pixmap(20, 20).cacheKey());
}

TEST(ThemedIcon, IsAnotherOnADarkGround) {
    assets::initResources();
    const QString name = QStringLiteral("anim_loop");
    const QPalette light(Qt::black, Qt::white, Qt::white, Qt::white, Qt::white, Qt::black, Qt::white);
    ASSERT_TRUE(isDark(darkPalette()));
    EXPECT_NE(themedIcon(name, light).pixmap(20, 20).toImage(),
              themedIcon(name, darkPalette()).pixmap(20, 20).toImage());
}

TEST(Swatch, OfOneColourIsOnePictureGreyedToo) {
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled}) {
        EXPECT_EQ(swatch(Qt::red).pixmap(QSize(16, 16), mode).cacheKey(),
                  swatch(Qt::red).pixmap(QSize(16, 16), mode).cacheKey());
    }
}

TEST(Swatch, ShowsItsColourWithinAGreyEdge) {
    for (const QColor& color : {QColor(255, 0, 0), QColor(0, 0, 255)}) {
        const QImage picture = swatch(color).pixmap(16, 16).toImage();
        EXPECT_EQ(picture.pixelColor(8, 8), color);
        EXPECT_EQ(picture.pixelColor(0, 0), QColor(128, 128, 128));
    }
}

} // namespace
} // namespace zeltrona::platform
