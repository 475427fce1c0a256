#include "tests/animation/playback_builders.h"
#include "tests/animation/transport_bench.h"

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <optional>

namespace zeltrona::animation {
namespace {

using document::PointF;
using test::frameHead;
using test::TransportBench;

// A pick and roll in three frames. The tables below are the same play once more, as geometry.
std::string pickAndRoll() {
    return test::configOf(3, 2) + frameHead(1)
           + "off0=180,250\noff1=60,200\noff2=250,120\ndef0=182,215\ndef1=240,90\n"
             "Ball0=190,250,\n"
             "off1curve=60,200,66,196,74,190,84,186,95,185,105,188,\n"
             "Triangle0=255,30,300,\n"
           + frameHead(2)
           + "off0=180,250\noff1=105,188\noff2=205,215\ndef0=182,215\ndef1=218,190\n"
             "Ball0=190,250,\n"
             "off0curve=180,250,190,240,202,231,216,224,231,219,246,210,\n"
             "Ball0curve=190,250,200,240,212,231,226,224,241,219,256,210,\n"
           + frameHead(3)
           + "off0=246,210\noff1=105,188\noff2=140,60\ndef0=220,200\ndef1=218,190\n"
             "Ball0=256,210,\n"
             "Ball0curve=256,210,220,160,180,110,150,75,\n";
}

struct Way {
    PointF from;
    PointF to;
    std::vector<PointF> path = {};
};
using Objects = std::map<std::string, Way>;

const std::vector<PointF> kCut{{60, 200}, {66, 196}, {74, 190}, {84, 186}, {95, 185}, {105, 188}};
const std::vector<PointF> kDribble{{180, 250}, {190, 240}, {202, 231}, {216, 224}, {231, 219}, {246, 210}};
const std::vector<PointF> kBall{{190, 250}, {200, 240}, {212, 231}, {226, 224}, {241, 219}, {256, 210}};
const std::vector<PointF> kPass{{256, 210}, {220, 160}, {180, 110}, {150, 75}};

std::vector<Objects> stepsOfThePlay() {
    const Way stands{{105, 188}, {105, 188}};
    return {
        {{"off0", {{180, 250}, {180, 250}}},
         {"off1", {{60, 200}, {105, 188}, kCut}},
         {"off2", {{250, 120}, {205, 215}}},
         {"def0", {{182, 215}, {182, 215}}},
         {"def1", {{240, 90}, {218, 190}}},
         {"ball0", {{190, 250}, {190, 250}}}},
        {{"off0", {{180, 250}, {246, 210}, kDribble}},
         {"off1", stands},
         {"off2", {{205, 215}, {140, 60}}},
         {"def0", {{182, 215}, {220, 200}}},
         {"def1", {{218, 190}, {218, 190}}},
         {"ball0", {{190, 250}, {256, 210}, kBall}}},
        {{"off0", {{246, 210}, {246, 210}}},
         {"off1", stands},
         {"off2", {{140, 60}, {140, 60}}},
         {"def0", {{220, 200}, {220, 200}}},
         {"def1", {{218, 190}, {218, 190}}},
         {"ball0", {{256, 210}, {256, 210}, kPass}}},
    };
}

/// Where a way has come to after `tick` ticks, by lengths along the line.
PointF placeOn(const Way& way, int tick) {
    if (!way.path.empty()) {
        const auto point = static_cast<std::size_t>(tick);
        return point < way.path.size() ? way.path[point] : way.to;
    }
    const double dx = way.to.x - way.from.x;
    const double dy = way.to.y - way.from.y;
    const double length = std::hypot(dx, dy);
    const double share = 3.0 * tick >= length ? 1.0 : 3.0 * tick / length;
    return {static_cast<float>(way.from.x + dx * share), static_cast<float>(way.from.y + dy * share)};
}

/// Ticks until a way is at its end for good.
int ticksOf(const Way& way) {
    const double length = std::hypot(way.to.x - way.from.x, way.to.y - way.from.y);
    const int straight = std::max(1, static_cast<int>(std::ceil(length / 3.0)));
    return way.path.empty() ? straight : static_cast<int>(way.path.size());
}

using Row = std::map<std::string, PointF>;

std::vector<Row> expectedTable() {
    std::vector<Row> table;
    for (const Objects& step : stepsOfThePlay()) {
        int ticks = 0;
        for (const auto& [name, way] : step) {
            ticks = std::max(ticks, ticksOf(way));
        }
        for (int tick = 1; tick <= ticks; ++tick) {
            Row row;
            for (const auto& [name, way] : step) {
                row[name] = placeOn(way, tick);
            }
            table.push_back(row);
        }
    }
    return table;
}

void addGroup(Row& row, const std::string& name, const std::vector<PlayerRec>& players) {
    for (std::size_t i = 0; i < players.size(); ++i) {
        row[name + std::to_string(i)] = {players[i].x, players[i].y};
    }
}

std::vector<Row> recordedTable(TransportBench& bench) {
    std::vector<Row> table;
    bench.host.onDraw = [&bench, &table] {
        Row row;
        addGroup(row, "off", bench.set.offAnimCur);
        addGroup(row, "def", bench.set.defAnimCur);
        addGroup(row, "ball", bench.set.ballAnimCur);
        table.push_back(row);
    };
    cmdAnimPlay_Click(bench.transport);
    bench.run();
    return table;
}

TEST(SamplePlay, EveryObjectStandsWhereTheGeometrySaysInEveryTick) {
    TransportBench bench(pickAndRoll());
    const std::vector<Row> expected = expectedTable();
    const std::vector<Row> recorded = recordedTable(bench);
    ASSERT_EQ(recorded.size(), expected.size());
    EXPECT_EQ(recorded.size(), 36U + 57U + 4U) << "105.1 units, 168.1 units, four points of a pass";
    for (std::size_t tick = 0; tick < expected.size(); ++tick) {
        ASSERT_EQ(recorded[tick].size(), expected[tick].size());
        for (const auto& [name, place] : expected[tick]) {
            ASSERT_NEAR(recorded[tick].at(name).x, place.x, 1e-4) << name << " in tick " << tick + 1;
            ASSERT_NEAR(recorded[tick].at(name).y, place.y, 1e-4) << name << " in tick " << tick + 1;
        }
    }
}

} // namespace
} // namespace zeltrona::animation
