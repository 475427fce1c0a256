#include "tests/art/pictures.h"
#include "tools/art/ink.h"
#include "tools/art/transport_icons.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

#include <gtest/gtest.h>
#include <set>

namespace zeltrona::art {

namespace {

/// The cell of the strip; 0 the first tool released, 1 pressed, and so on.
QImage cell(const QString& strip, int index) {
    return committed(strip).copy(index * 20, 0, 20, 20);
}

int inkedPixels(const QImage& picture, QRgb ink) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            count += picture.pixel(x, y) == ink ? 1 : 0;
        }
    }
    return count;
}

class Tools : public ::testing::TestWithParam<int> {
protected:
    QImage released = cell("tool_strip.png", 2 * GetParam());
    QImage pressed = cell("tool_strip.png", 2 * GetParam() + 1);
};

} // namespace

TEST_P(Tools, AreClearAroundTheirSignWhenReleased) {
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(qAlpha(released.pixel(i, 0)), 0) << i;
        EXPECT_EQ(qAlpha(released.pixel(0, i)), 0) << i;
        EXPECT_EQ(qAlpha(released.pixel(i, 19)), 0) << i;
        EXPECT_EQ(qAlpha(released.pixel(19, i)), 0) << i;
    }
}

TEST_P(Tools, ShowTheSameSignInsetByOneWhenPressed) {
    for (int y = 0; y < 19; ++y) {
        for (int x = 0; x < 19; ++x) {
            const bool inked = released.pixel(x, y) == kDarkInk.rgb();
            EXPECT_EQ(pressed.pixel(x + 1, y + 1) == kDarkInk.rgb(), inked) << x << ' ' << y;
        }
    }
}

TEST_P(Tools, StandOnTheAccentWhenPressed) {
    EXPECT_GE(inkedPixels(pressed, kAccent.rgb()), 120);
    EXPECT_LT(luminance(pressed.pixel(9, 0)), luminance(kAccent.rgb())) << "dark upper edge";
    EXPECT_GT(luminance(pressed.pixel(19, 10)), luminance(kAccent.rgb())) << "bright right edge";
}

TEST_P(Tools, HaveALightSisterForDarkPalettes) {
    const QImage light = cell("tool_strip_light.png", 2 * GetParam());
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 20; ++x) {
            EXPECT_EQ(qAlpha(light.pixel(x, y)), qAlpha(released.pixel(x, y))) << x << ' ' << y;
        }
    }
    EXPECT_GT(inkedPixels(light, kLightInk.rgb()), 10);
}

TEST_P(Tools, HaveASignOfTheirOwn) {
    for (int other = 0; other < 11; ++other) {
        if (other != GetParam()) {
            EXPECT_GE(countDifferences(released, cell("tool_strip.png", 2 * other)), 25) << other;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(OfTheBox, Tools, ::testing::Range(0, 11));

TEST(Icons, AreThereInThreeInks) {
    for (const Icon& icon : transportIcons(kDarkInk)) {
        for (const char* tail : {"", "_light", "_on"}) {
            QFile file(QStringLiteral(ZELTRONA_SOURCE_DIR "/assets/art/") + QString::fromStdString(icon.name)
                       + QLatin1String(tail) + QLatin1String(".svg"));
            EXPECT_TRUE(file.exists()) << icon.name << tail;
        }
    }
}

TEST(Icons, AreWellFormedPathsOnly) {
    const QDir folder(QStringLiteral(ZELTRONA_SOURCE_DIR "/assets/art"));
    const QStringList names = folder.entryList({QStringLiteral("*.svg")});
    EXPECT_GE(names.size(), 60);
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QXmlStreamReader reader(&file);
        std::set<QString> elements;
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isStartElement()) {
                elements.insert(reader.name().toString());
            }
        }
        EXPECT_FALSE(reader.hasError()) << name.toStdString();
        EXPECT_EQ(elements, (std::set<QString>{"svg", "path"})) << name.toStdString();
    }
}

TEST(Icons, HaveEqualWeightWhereTheyAreOpposites) {
    const auto weightOf = [](const char* name) {
        for (const Icon& icon : transportIcons(kDarkInk)) {
            if (icon.name == name) {
                return inkedPixels(drawPixels({{20, 20}, icon.shapes}, {80, 80}), kDarkInk.rgb());
            }
        }
        return 0;
    };
    EXPECT_NEAR(weightOf("anim_first"), weightOf("anim_last"), 12);
    EXPECT_NEAR(weightOf("anim_prev"), weightOf("anim_next"), 12);
    EXPECT_NEAR(weightOf("speed_up"), weightOf("speed_down"), 12);
    EXPECT_NEAR(weightOf("seq_up"), weightOf("seq_down"), 12);
    EXPECT_GE(weightOf("anim_play"), 1000);
}

TEST(Mark, ReadsAtSixteenPixels) {
    const QImage icon = committed("zeltrona_16.png");
    EXPECT_EQ(qAlpha(icon.pixel(0, 0)), 0);
    // Both bars of the letter lie on whole pixels: nothing but white in the middle of them.
    for (int x = 6; x <= 9; ++x) {
        EXPECT_EQ(icon.pixel(x, 3), qRgb(255, 255, 255)) << x;
        EXPECT_EQ(icon.pixel(x, 9), qRgb(255, 255, 255)) << x;
        EXPECT_NE(icon.pixel(x, 1), qRgb(255, 255, 255)) << x;
        EXPECT_NE(icon.pixel(x, 14), qRgb(255, 255, 255)) << x;
    }
}

TEST(Mark, IsPrintedOnWhitePaper) {
    const QImage logo = committed("logo_export.png");
    for (const QPoint& corner : {QPoint(0, 0), QPoint(172, 0), QPoint(0, 52), QPoint(172, 52)}) {
        EXPECT_EQ(logo.pixel(corner), qRgb(255, 255, 255));
    }
    EXPECT_GE(inkedPixels(logo, kAccent.rgb()), 600);
    EXPECT_GE(inkedPixels(logo, kDarkInk.rgb()), 200);
}

} // namespace zeltrona::art
