#include "listening_container.hpp"
#include "panels.hpp"
#include "support/failure_kind.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <random>
#include <string>

namespace zendara::test
{

namespace
{

struct Ends {
    double start_x = 0, start_y = 0, end_x = 0, end_y = 0;

    bool operator==(Ends const&) const = default;
};

std::ostream& operator<<(std::ostream& out, Ends const& ends)
{
    return out << '(' << ends.start_x << ", " << ends.start_y << ") to (" << ends.end_x << ", " << ends.end_y << ')';
}

/// A panel without sites that keeps its messages.
struct Area {
    std::unique_ptr<panel> record;
    ListeningContainer container;

    Area(double width, double height) : record(make_panel(width, height, {})) { record->container = &container; }

    Ends at_angle(double x, double y, std::int16_t phi)
    {
        Ends ends;
        record->D1Plot_calculate_ends_angle(x, y, phi, ends.start_x, ends.start_y, ends.end_x, ends.end_y);
        return ends;
    }

    Ends through(double x1, double y1, double x2, double y2)
    {
        Ends ends;
        record->D1Plot_calculate_ends_coord(x1, y1, x2, y2, ends.start_x, ends.start_y, ends.end_x, ends.end_y);
        return ends;
    }
};

/// The part of a line that lies in the area, by the range of its parameter between each pair of edges. Nothing for a
/// line that misses it.
std::optional<Ends> clipped(double half_width, double half_height, double x, double y, double dx, double dy)
{
    double enter = -1e300, leave = 1e300;
    auto const cut = [&](double place, double direction, double half) {
        double const one = (-half - place) / direction, other = (half - place) / direction;
        enter = std::max(enter, std::min(one, other));
        leave = std::min(leave, std::max(one, other));
    };
    cut(x, dx, half_width);
    cut(y, dy, half_height);
    if (enter > leave)
        return {};
    return Ends{x + enter * dx, y + enter * dy, x + leave * dx, y + leave * dy};
}

void expect_near(Ends const& actual, Ends const& expected, std::string const& which)
{
    constexpr double float_error = 2e-3; // of coordinates up to 150, along flat crossings
    EXPECT_NEAR(actual.start_x, expected.start_x, float_error) << which;
    EXPECT_NEAR(actual.start_y, expected.start_y, float_error) << which;
    EXPECT_NEAR(actual.end_x, expected.end_x, float_error) << which;
    EXPECT_NEAR(actual.end_y, expected.end_y, float_error) << which;
}

std::vector<ListeningContainer::Message> const one_message = {{"Value not applicable. Line outside panel.", 0, ""}};

} // namespace

// --- The angle form ------------------------------------------------------------------------------------------------

TEST(ScanEndsByAngle, AQuarterTurnRunsAlongTheAxesThroughThePoint)
{
    Area area(300, 200);
    EXPECT_EQ(area.at_angle(5, 7, 0), (Ends{5, -100, 5, 100}));
    EXPECT_EQ(area.at_angle(5, 7, 360), (Ends{5, -100, 5, 100}));
    EXPECT_EQ(area.at_angle(5, 7, 90), (Ends{150, 7, -150, 7}));
    EXPECT_EQ(area.at_angle(5, 7, 180), (Ends{5, 100, 5, -100}));
    EXPECT_EQ(area.at_angle(5, 7, 270), (Ends{-150, 7, 150, 7}));
}

TEST(ScanEndsByAngle, AxisLinesAreNeitherClippedNorRoundedNorEverMissed)
{
    Area area(300, 200);
    EXPECT_EQ(area.at_angle(1000.1, 7, 0), (Ends{1000.1, -100, 1000.1, 100}));
    EXPECT_EQ(area.at_angle(5, -999.9, 90), (Ends{150, -999.9, -150, -999.9}));
    EXPECT_TRUE(area.container.messages.empty());
}

TEST(ScanEndsByAngle, At45DegreesASquareIsCrossedFromCornerToCorner)
{
    Area area(200, 200);
    EXPECT_EQ(area.at_angle(0, 0, 45), (Ends{100, -100, -100, 100}));
    EXPECT_EQ(area.at_angle(0, 0, 225), (Ends{-100, 100, 100, -100}));
    EXPECT_TRUE(area.container.messages.empty());
}

TEST(ScanEndsByAngle, EveryAngleRunsInItsOwnDirectionFromEdgeToEdge)
{
    Area area(300, 200);
    std::mt19937 random(1);
    std::uniform_real_distribution<double> x(-149, 149), y(-99, 99);
    for (std::int16_t phi = 0; phi <= 359; ++phi) {
        double const x1 = x(random), y1 = y(random);
        double const direction = (phi + 90) * std::acos(-1.0) / 180;
        auto const expected = clipped(150, 100, x1, y1, std::cos(direction), std::sin(direction));
        ASSERT_TRUE(expected);
        expect_near(area.at_angle(x1, y1, phi), *expected, "phi " + std::to_string(phi));
    }
    EXPECT_TRUE(area.container.messages.empty());
}

TEST(ScanEndsByAngle, AnAngleBeyondTheCircleTakesTheGeneralWay)
{
    Area area(300, 200);
    // 450 degrees: the slope is next to nothing, both side edges are hit at one height, and that counts as one hit.
    EXPECT_EQ(area.at_angle(0, 7, 450), (Ends{-150, 7, -150, 7}));
    EXPECT_EQ(area.container.messages, one_message);
    EXPECT_EQ(failure_of([&] { area.at_angle(0, 7, -90); }), FailureKind::DivisionByZero);
    expect_near(area.at_angle(3, 4, 405), area.at_angle(3, 4, 225), "the line of 45 degrees, from the left");
}

// --- The form of two points ----------------------------------------------------------------------------------------

TEST(ScanEndsByPoints, EqualXRunUpwardOrDownwardAsThePointsDo)
{
    Area area(300, 200);
    EXPECT_EQ(area.through(5, -1, 5, 2), (Ends{5, -100, 5, 100}));
    EXPECT_EQ(area.through(5, 2, 5, -1), (Ends{5, 100, 5, -100}));
}

TEST(ScanEndsByPoints, EqualYRunToTheRightOrToTheLeftAsThePointsDo)
{
    Area area(300, 200);
    EXPECT_EQ(area.through(-1, 7, 2, 7), (Ends{-150, 7, 150, 7}));
    EXPECT_EQ(area.through(2, 7, -1, 7), (Ends{150, 7, -150, 7}));
}

TEST(ScanEndsByPoints, TwoIdenticalPointsRunDownwardThroughTheirX)
{
    Area area(300, 200);
    EXPECT_EQ(area.through(5, 7, 5, 7), (Ends{5, 100, 5, -100}));
}

TEST(ScanEndsByPoints, EachPairOfEdgesIsFound)
{
    Area area(300, 200);
    EXPECT_EQ(area.through(0, 0, 10, 5), (Ends{-150, -75, 150, 75}));      // left and right
    EXPECT_EQ(area.through(0, 0, 10, 20), (Ends{-50, -100, 50, 100}));     // lower and upper
    EXPECT_EQ(area.through(0, -100, 10, -90), (Ends{0, -100, 150, 50}));   // lower and right
    EXPECT_EQ(area.through(0, 100, 10, 110), (Ends{-150, -50, 0, 100}));   // left and upper
    EXPECT_EQ(area.through(0, -100, -10, -90), (Ends{0, -100, -150, 50})); // lower and left
    EXPECT_EQ(area.through(0, 100, 10, 90), (Ends{0, 100, 150, -50}));     // upper and right
}

TEST(ScanEndsByPoints, TheOrderOfThePointsIsTheOrderOfTheEnds)
{
    Area area(300, 200);
    EXPECT_EQ(area.through(10, 5, 0, 0), (Ends{150, 75, -150, -75}));
    EXPECT_EQ(area.through(10, -90, 0, -100), (Ends{150, 50, 0, -100}));
}

TEST(ScanEndsByPoints, TheScanRunsFromEdgeToEdgeWhereverThePointsLie)
{
    Area area(300, 200);
    EXPECT_EQ(area.through(1000, 500, 1010, 505), (Ends{-150, -75, 150, 75}));
}

TEST(ScanEndsByPoints, HitsAreRoundedToSmallFloats)
{
    Area area(300, 200);
    EXPECT_EQ(area.through(0, 0.1, 1, 1.1), (Ends{-100.1f, -100, 99.9f, 100}));
    EXPECT_NE(static_cast<double>(-100.1f), -100.1);
}

TEST(ScanEndsByPoints, RandomLinesAgreeWithTheRangeOfTheirParameter)
{
    Area area(300, 200);
    std::mt19937 random(2);
    std::uniform_real_distribution<double> x(-300, 300), y(-200, 200);
    int hits = 0, misses = 0;
    for (int i = 0; i < 5000; ++i) {
        double const x1 = x(random), y1 = y(random), x2 = x(random), y2 = y(random);
        // A line that passes a corner within the rounding may count either way.
        auto const inner = clipped(149.9, 99.9, x1, y1, x2 - x1, y2 - y1);
        auto const outer = clipped(150.1, 100.1, x1, y1, x2 - x1, y2 - y1);
        if (inner.has_value() != outer.has_value())
            continue;
        area.container.messages.clear();
        Ends const ends = area.through(x1, y1, x2, y2);
        std::string const which = "line " + std::to_string(i);
        if (!inner) {
            ++misses;
            EXPECT_EQ(area.container.messages, one_message) << which;
            EXPECT_EQ(ends, (Ends{0, 0, 0, 0})) << which;
            continue;
        }
        ++hits;
        EXPECT_TRUE(area.container.messages.empty()) << which;
        auto const expected = clipped(150, 100, x1, y1, x2 - x1, y2 - y1);
        if (std::abs(x2 - x1) > 1) // a steeper line would ask for a wider tolerance
            expect_near(ends, *expected, which);
    }
    EXPECT_GT(hits, 1000);
    EXPECT_GT(misses, 500);
}

// --- Lines that miss -----------------------------------------------------------------------------------------------

TEST(ScanThatMisses, CollapsesToTheCentreAndShowsTheMessage)
{
    Area area(300, 200);
    EXPECT_EQ(area.through(0, 300, 10, 310), (Ends{0, 0, 0, 0}));
    EXPECT_EQ(area.container.messages, one_message);
}

TEST(ScanThatMisses, ALineThatGrazesOneCornerCollapsesToIt)
{
    Area area(300, 200);
    EXPECT_EQ(area.through(150, 100, 151, 99), (Ends{150, 100, 150, 100}));
    EXPECT_EQ(area.through(-150, -100, -151, -99), (Ends{-150, -100, -150, -100}));
    EXPECT_EQ(area.container.messages.size(), 2u);
}

TEST(ScanThatMisses, TwoEqualHitsAreNone)
{
    Area area(0, 0);
    EXPECT_EQ(area.through(-1, -1, 1, 1), (Ends{0, 0, 0, 0}));
    EXPECT_EQ(area.container.messages, one_message);
}

TEST(ScanThatMisses, NeedsNobodyWhoShowsTheMessage)
{
    Area area(300, 200);
    area.record->container = nullptr;
    EXPECT_EQ(area.through(0, 300, 10, 310), (Ends{0, 0, 0, 0}));
}

} // namespace zendara::test
