#include "panels.hpp"
#include "trace_text.hpp"
#include "zendara/render/plots/site_plot.hpp"
#include "zendara/render/surface/recorder.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace zendara::test
{

namespace
{

constexpr Color white = 0xFFFFFF;

/// What a test passes to D2BeamPlot.
struct Call {
    double bx = 10;
    double by = 6;
    double fwscal = 0.5;
    double alp2 = 40;
    double thet2 = 35;
    std::int16_t fprint = 0;
    PlotBox box = {};
    std::int16_t show_displ = 0;
};

std::vector<TraceRecord> plot_on(Recorder& surface, panel& record, Call const& call = {})
{
    record.D2BeamPlot(surface, call.bx, call.by, call.fwscal, call.alp2, call.thet2, call.fprint, call.box.left,
                      call.box.top, call.box.width, call.box.height, call.show_displ);
    return surface.take_record();
}

std::vector<TraceRecord> plot(panel& record, Call const& call = {})
{
    auto const surface = Recorder::picture({0, 0, 400, 300});
    return plot_on(*surface, record, call);
}

/// One polygon as it has to be.
struct Face {
    std::vector<std::int32_t> corners;
    Color fill_color;
    std::int16_t fill_style;
};

std::int32_t pixel(double coordinate)
{
    return static_cast<std::int32_t>(std::nearbyint(coordinate));
}

/// The bars worked out one by one. Sites have to differ in depth: their order is found by a plain sort.
class ObviousBars
{
public:
    ObviousBars(panel const& record, std::vector<Site> const& sites, Call const& call,
                std::array<int, 4> const& rectangle)
        : record_(record), sites_(sites), call_(call)
    {
        double const pi = 4 * std::atan(1.0);
        bool const is_limited = record.maximal != record.maxi || record.minimal != record.mini;
        double const e = (record.maximal - record.minimal) / 8;
        lo_ = is_limited ? record.minimal - e : record.mini;
        hi_ = is_limited ? record.maximal + e : record.maxi;
        low_ = hi_ != lo_ ? lo_ - (hi_ - lo_) * 0.1 : lo_ >= 0 ? 0.9 * lo_ - 0.001 : 1.1 * lo_ - 0.001;
        double const a = call.alp2 * pi / 180;
        double const t = call.thet2 * pi / 180;
        ca_ = std::cos(a);
        sa_ = std::sin(a);
        st_ = std::sin(t);
        ct_ = std::cos(t);
        double const bx = call.bx / 2, by = call.by / 2;
        ex_ = bx * ca_;
        ey_ = bx * sa_ * st_;
        fx_ = -by * sa_;
        fy_ = by * ca_ * st_;
        double const width =
            std::abs(ca_) * record.TestSizeX + std::abs(sa_) * record.TestSizeY + 2 * (std::abs(ex_) + std::abs(fx_));
        double const plate = st_ * (std::abs(ca_) * record.TestSizeY + std::abs(sa_) * record.TestSizeX) +
                             2 * (std::abs(ey_) + std::abs(fy_));
        double height = plate;
        if (hi_ - low_ > 0)
            height += (hi_ - low_) * call.fwscal * ct_;
        if (lo_ - low_ < 0)
            height -= (lo_ - low_) * call.fwscal * ct_;
        auto const [l, tt, w, h] = rectangle;
        double const sy = height == 0 ? 1 : (h - 10) / height;
        double const sx = width == 0 ? 1 : (w - 10) / width;
        s_ = std::min(sx, sy);
        cx_ = l + w / 2.0;
        base_ = (tt + h - 5) - (plate / 2) * s_;
        if (lo_ - low_ < 0)
            base_ += (lo_ - low_) * call.fwscal * ct_ * s_;
        for (double* const part : {&ex_, &ey_, &fx_, &fy_})
            *part *= s_;
        auto const depth = [&](Site const& site) { return sa_ * site.x + ca_ * site.y; };
        std::sort(sites_.begin(), sites_.end(),
                  [&](Site const& left, Site const& right) { return depth(left) > depth(right); });
    }

    std::vector<Face> faces()
    {
        for (Site const& site : sites_)
            if (site.z < low_) {
                if (call_.thet2 > 0)
                    add_flat(site, false);
                add_walls(site);
            }
        double const x = record_.HalfTestSizeX, y = record_.HalfTestSizey;
        std::vector<std::int32_t> plate;
        for (auto const& [px, py] : std::vector<std::pair<double, double>>{{-x, -y}, {x, -y}, {x, y}, {-x, y}}) {
            plate.push_back(pixel(s_ * (ca_ * px - sa_ * py) + cx_));
            plate.push_back(pixel(base_ - st_ * (sa_ * px + ca_ * py) * s_));
        }
        faces_.push_back({plate, white, 7});
        for (Site const& site : sites_) {
            if (call_.thet2 > 0)
                add_flat(site, site.z >= low_);
            if (site.z > low_)
                add_walls(site);
        }
        return faces_;
    }

private:
    // P1 to P4 are the corners 1 to 4 at the foot, T1 to T4 those at the top.
    std::map<std::string, std::pair<double, double>> corners(Site const& site) const
    {
        double const px = s_ * (ca_ * site.x - sa_ * site.y);
        double const py = st_ * (sa_ * site.x + ca_ * site.y) * s_;
        double const h = (site.z - low_) * call_.fwscal * ct_ * s_;
        std::map<std::string, std::pair<double, double>> all = {
            {"P1", {px - ex_ - fx_ + cx_, base_ - (py - ey_ - fy_)}},
            {"P2", {px + ex_ - fx_ + cx_, base_ - (py + ey_ - fy_)}},
            {"P3", {px + ex_ + fx_ + cx_, base_ - (py + ey_ + fy_)}},
            {"P4", {px - ex_ + fx_ + cx_, base_ - (py - ey_ + fy_)}}};
        for (std::string const number : {"1", "2", "3", "4"})
            all["T" + number] = {all["P" + number].first, all["P" + number].second - h};
        return all;
    }

    Color color(Site const& site) const
    {
        double const colors[] = {record_.col1, record_.col2, record_.col3, record_.col4, record_.col5,
                                 record_.col6, record_.col7, record_.col8, record_.col9, record_.col10};
        double const b = (hi_ - lo_) / 10;
        if (site.z < hi_ - 9 * b)
            return static_cast<Color>(colors[9]);
        for (int k = 1; k <= 9; ++k)
            if (hi_ - k * b <= site.z && (k == 1 || site.z < hi_ - (k - 1) * b))
                return static_cast<Color>(colors[k - 1]);
        return -1;
    }

    void add(Site const& site, std::initializer_list<char const*> names)
    {
        auto const all = corners(site);
        Face face{{}, color(site), 0};
        for (auto const* const name : names) {
            face.corners.push_back(pixel(all.at(name).first));
            face.corners.push_back(pixel(all.at(name).second));
        }
        faces_.push_back(face);
    }

    void add_flat(Site const& site, bool is_top)
    {
        if (is_top)
            add(site, {"T1", "T2", "T3", "T4"});
        else
            add(site, {"P1", "P2", "P3", "P4"});
    }

    void add_walls(Site const& site)
    {
        double const d = call_.alp2;
        if (call_.thet2 == 90)
            return;
        if (d < 90 || d > 270)
            add(site, {"P1", "P2", "T2", "T1"});
        if (d > 0 && d < 180)
            add(site, {"P1", "T1", "T4", "P4"});
        if (d > 90 && d < 270)
            add(site, {"P4", "T4", "T3", "P3"});
        if (d > 180 && d < 360)
            add(site, {"P3", "P2", "T2", "T3"});
    }

    panel const& record_;
    std::vector<Site> sites_;
    Call call_;
    std::vector<Face> faces_;
    double lo_ = 0, hi_ = 0, low_ = 0, ca_ = 0, sa_ = 0, st_ = 0, ct_ = 0, ex_ = 0, ey_ = 0, fx_ = 0, fy_ = 0, s_ = 0,
           cx_ = 0, base_ = 0;
};

void expect_faces(std::vector<TraceRecord> const& drawn, std::vector<Face> const& expected)
{
    ASSERT_EQ(drawn.size(), expected.size());
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        ASSERT_EQ(item<std::vector<std::int32_t>>(drawn[i], 0), expected[i].corners) << "polygon " << i;
        ASSERT_EQ(item<std::int32_t>(drawn[i], 1), expected[i].fill_color) << "polygon " << i;
        ASSERT_EQ(item<std::int32_t>(drawn[i], 2), expected[i].fill_style) << "polygon " << i;
    }
}

void expect_obvious_bars(panel& record, std::vector<Site> const& sites, Call const& call)
{
    SCOPED_TRACE(testing::Message() << "rotation " << call.alp2 << ", inclination " << call.thet2);
    expect_faces(only(plot(record, call), "Polygon"), ObviousBars(record, sites, call, {0, 0, 400, 300}).faces());
}

std::vector<Site> const forty_sites = random_sites(40, 300, 200, 7);

std::unique_ptr<panel> forty_bars()
{
    return make_panel(300, 200, forty_sites);
}

std::size_t count_of_polygons(std::vector<TraceRecord> const& records)
{
    return only(records, "Polygon").size();
}

} // namespace

TEST(D2BeamPlot, EveryPolygonIsThatOfTheObviousComputationInAllQuadrants)
{
    auto const record = forty_bars();
    for (double const rotation : {0.0, 40.0, 90.0, 135.0, 180.0, 200.0, 270.0, 300.0, 359.0, 360.0, 400.0, -30.0})
        for (double const inclination : {-20.0, 0.0, 1.0, 35.0, 89.0, 90.0, 95.0})
            expect_obvious_bars(*record, forty_sites, {.alp2 = rotation, .thet2 = inclination});
}

TEST(D2BeamPlot, EveryPolygonIsThatOfTheObviousComputationUnderPlotLimits)
{
    auto const record = forty_bars();
    for (auto const& [highest, lowest] : {std::pair{520.0, 480.0}, {600.0, 400.0}, {545.0, 535.0}, {100.0, 50.0}}) {
        record->setMaximalMinial(highest, lowest);
        for (double const rotation : {40.0, 130.0, 220.0, 310.0})
            expect_obvious_bars(*record, forty_sites, {.alp2 = rotation});
    }
}

TEST(D2BeamPlot, WithLimitsTheWrongWayRoundThePlateRisesToTheBars)
{
    auto const record = forty_bars();
    record->setMaximalMinial(450, 550);
    expect_obvious_bars(*record, forty_sites, {});
}

TEST(D2BeamPlot, AScaleOf0IsDrawnFlat)
{
    auto const record = forty_bars();
    expect_obvious_bars(*record, forty_sites, {.fwscal = 0});
}

TEST(D2BeamPlot, SortsManySitesByDepth)
{
    auto const sites = random_sites(3000, 300, 200, 9);
    auto const record = make_panel(300, 200, sites);
    for (double const rotation : {33.0, 270.0})
        expect_obvious_bars(*record, sites, {.alp2 = rotation});
}

TEST(D2BeamPlot, EquallyDeepBarsKeepTheOrderOfTheSort)
{
    // Three equal depths: the middle one is the pivot, and one swap turns the outer two over.
    auto const record = make_panel(300, 200, {{-50, 0, 1}, {0, 0, 2}, {50, 0, 3}});
    auto const polygons = only(plot(*record, {.alp2 = 0, .thet2 = 90}), "Polygon");
    ASSERT_EQ(polygons.size(), 4u); // the plate and three tops
    std::vector<Color> colors;
    for (std::size_t i = 1; i < 4; ++i)
        colors.push_back(item<std::int32_t>(polygons[i], 1));
    // Painted from the last to the first of 3, 2, 1.
    EXPECT_EQ(colors, (std::vector<Color>{static_cast<Color>(record->col10), static_cast<Color>(record->col5),
                                          static_cast<Color>(record->col1)}));
}

TEST(D2BeamPlot, WithoutSitesOnlyThePlateAppears)
{
    panel record;
    record.TestSizeX = 300;
    record.TestSizeY = 200;
    record.HalfTestSizeX = 150;
    record.HalfTestSizey = 100;
    auto const records = plot(record, {.box = {48, 96, 960, 960}});
    auto const polygons = only(records, "Polygon");
    ASSERT_EQ(polygons.size(), 1u);
    EXPECT_EQ(item<std::int32_t>(polygons[0], 2), fill_diagonal_cross);
    // The missing tables are a failure, so the rectangle is 10, 20, 200, 200.
    auto const corners = item<std::vector<std::int32_t>>(polygons[0], 0);
    EXPECT_GE(*std::min_element(corners.begin(), corners.end()), 10);
    EXPECT_LE(*std::max_element(corners.begin(), corners.end()), 220);
    EXPECT_EQ((corners[0] + corners[4]) / 2, 110);
}

TEST(D2BeamPlot, AtRotation0OnlyTheFrontWallShows)
{
    auto const record = make_panel(300, 200, {{0, 0, 1}, {10, 50, 2}});
    // The plate, and for each bar a top and the wall 1-2.
    auto const polygons = only(plot(*record, {.alp2 = 0}), "Polygon");
    ASSERT_EQ(polygons.size(), 1u + 2u * 2u);
    auto const wall = item<std::vector<std::int32_t>>(polygons[2], 0);
    EXPECT_EQ(wall[1], wall[3]); // an upright box: level at foot and top
    EXPECT_EQ(wall[5], wall[7]);
    EXPECT_LT(wall[5], wall[1]);
}

TEST(D2BeamPlot, AtAQuarterTurnOneWallShowsAndBetweenThemTwo)
{
    auto const record = make_panel(300, 200, {{0, 0, 1}, {10, 50, 2}});
    for (double const rotation : {0.0, 90.0, 180.0, 270.0})
        EXPECT_EQ(count_of_polygons(plot(*record, {.alp2 = rotation})), 1u + 2u * 2u) << rotation;
    for (double const rotation : {1.0, 89.0, 91.0, 179.0, 181.0, 269.0, 271.0, 359.0})
        EXPECT_EQ(count_of_polygons(plot(*record, {.alp2 = rotation})), 1u + 2u * 3u) << rotation;
}

TEST(D2BeamPlot, BeyondTheFullCircleEachBarShowsItsTopAndTheWall12)
{
    auto const record = make_panel(300, 200, {{0, 0, 1}, {10, 50, 2}});
    EXPECT_EQ(count_of_polygons(plot(*record, {.alp2 = 400})), 1u + 2u * 2u);
}

TEST(D2BeamPlot, SeenStraightDownOnlyTopsShow)
{
    auto const record = forty_bars();
    EXPECT_EQ(count_of_polygons(plot(*record, {.thet2 = 90})), 1u + 40u);
}

TEST(D2BeamPlot, SeenAlongTheBaseOrFromBelowOnlyWallsShow)
{
    auto const record = forty_bars();
    for (double const inclination : {0.0, -10.0})
        EXPECT_EQ(count_of_polygons(plot(*record, {.alp2 = 0, .thet2 = inclination})), 1u + 40u);
}

TEST(D2BeamPlot, EqualValuesStandEquallyHighOnAPlateTenPercentBelow)
{
    for (double const value : {5.0, -5.0, 0.0}) {
        auto sites = forty_sites;
        for (auto& site : sites)
            site.z = value;
        auto const record = make_panel(300, 200, sites);
        expect_obvious_bars(*record, sites, {.fwscal = 20000});
        std::set<std::int32_t> heights;
        auto const polygons = only(plot(*record, {.fwscal = 20000, .alp2 = 0, .thet2 = 0}), "Polygon");
        for (std::size_t i = 1; i < polygons.size(); ++i) {
            auto const corners = item<std::vector<std::int32_t>>(polygons[i], 0);
            heights.insert(corners[1] - corners[5]);
        }
        EXPECT_EQ(heights.size(), 1u);
        EXPECT_GT(*heights.begin(), 0);
    }
}

TEST(D2BeamPlot, BarsBelowTheBaseHangUnderThePlateAndAreDrawnBeforeIt)
{
    // Limits of 80 and 100: the base lies at 77.5 - 2.5 * 1.
    auto const record = make_panel(300, 200, {{0, 0, 70}, {50, 50, 90}, {-50, -50, 120}});
    record->setMaximalMinial(100, 80);
    auto const polygons = only(plot(*record), "Polygon");
    // The hanging bar: its foot face and two walls, the plate, its foot face once more; the others: top and two walls.
    ASSERT_EQ(polygons.size(), 3u + 1u + 1u + 2u * 3u);
    EXPECT_EQ(item<std::int32_t>(polygons[3], 2), fill_diagonal_cross);
    auto const foot = item<std::vector<std::int32_t>>(polygons[0], 0);
    auto const wall = item<std::vector<std::int32_t>>(polygons[1], 0);
    EXPECT_EQ(foot[0], wall[0]);
    EXPECT_GT(wall[7], wall[1]); // downwards
}

TEST(D2BeamPlot, ABarOfJustTheBaseShowsItsTopAlone)
{
    // Limits of 100 and 20 widen to 110 and 10, and the base lies at 0.
    auto const record = make_panel(300, 200, {{0, 0, 0}, {50, 50, 200}});
    record->setMaximalMinial(100, 20);
    auto const polygons = only(plot(*record, {.alp2 = 0}), "Polygon");
    EXPECT_EQ(polygons.size(), 1u + 1u + 2u);
}

TEST(D2BeamPlot, ClearsTheScreenTwiceAndShowsEveryBarAsItComes)
{
    auto const record = forty_bars();
    auto const records = plot(*record);
    EXPECT_EQ(only(records, "Cls").size(), 2u);
    EXPECT_EQ(only(records, "Refresh").size(), 1u + 40u);
    EXPECT_EQ(records[0].name, "Cls");
    EXPECT_EQ(records[1].name, "Refresh");
    EXPECT_EQ(records[2].name, "Cls");
}

TEST(D2BeamPlot, OnAPrinterNothingIsClearedAndTheRectangleIsInDevicePixels)
{
    auto const record = forty_bars();
    auto const printer = Recorder::printer(2.4, 1.2);
    Call const call{.fprint = 1, .box = {240, 120, 7200, 4800}, .show_displ = 1};
    auto const records = plot_on(*printer, *record, call);
    EXPECT_TRUE(only(records, "Cls").empty());
    EXPECT_TRUE(only(records, "Refresh").empty());
    expect_faces(only(records, "Polygon"), ObviousBars(*record, forty_sites, call, {100, 100, 3000, 4000}).faces());
}

TEST(D2BeamPlot, OnAPictureForPaperNothingIsCleared)
{
    auto const record = forty_bars();
    Call const call{.box = {150, 300, 3000, 2250}, .show_displ = 1};
    auto const records = plot(*record, call);
    EXPECT_TRUE(only(records, "Cls").empty());
    expect_faces(only(records, "Polygon"), ObviousBars(*record, forty_sites, call, {10, 20, 200, 150}).faces());
}

TEST(D2BeamPlot, APrinterWithoutResolutionIsTakenForOneOf300DotsPerInch)
{
    auto const record = forty_bars();
    auto const printer = Recorder::printer(0, 0);
    Call const call{.fprint = 1, .box = {480, 960, 4800, 2400}, .show_displ = 1};
    expect_faces(only(plot_on(*printer, *record, call), "Polygon"),
                 ObviousBars(*record, forty_sites, call, {100, 200, 1000, 500}).faces());
}

TEST(D2BeamPlot, TheOutlinesAreBlackWhateverThePenWas)
{
    auto const record = forty_bars();
    auto const surface = Recorder::picture({0, 0, 400, 300});
    surface->ForeColor = 77;
    for (auto const& polygon : only(plot_on(*surface, *record), "Polygon"))
        EXPECT_EQ(item<std::int32_t>(polygon, 5), QBColor(0));
}

TEST(D2BeamPlot, PutsTheScaleBackWhenItEnds)
{
    auto const record = forty_bars();
    record->setMaximalMinial(520, 480);
    plot(*record);
    EXPECT_EQ(record->Low, 480);
    EXPECT_EQ(record->range, 40);
}

TEST(D2BeamPlot, AColourBeyond32BitsLeavesItsBarOut)
{
    auto const record = make_panel(300, 200, {{0, 0, 1}, {10, 50, 2}});
    record->col1 = 1e20;
    EXPECT_EQ(count_of_polygons(plot(*record)), 1u + 3u);
}

TEST(D2BeamPlot, NothingOfAPanelWithoutSizeOrOfAScaleWithoutEndFails)
{
    auto const empty = make_panel(0, 0, random_sites(9, 300, 200, 1));
    EXPECT_NO_THROW(plot(*empty, {.bx = 0, .by = 0, .fwscal = 0}));
    auto const record = forty_bars();
    EXPECT_NO_THROW(plot(*record, {.fwscal = 1e308}));
    EXPECT_NO_THROW(plot(*record, {.alp2 = 1e308, .thet2 = -1e308}));
    EXPECT_NO_THROW(plot(*record, {.bx = std::nan(""), .by = 1e308}));
}

} // namespace zendara::test
