#include "panels.hpp"
#include "render/surface/block_glyphs.hpp"
#include "trace_text.hpp"
#include "zendara/render/plots/site_plot.hpp"
#include "zendara/render/surface/raster_picture.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace zendara::test
{

namespace
{

constexpr std::int16_t style_edges = 1, style_all_lines = 2, style_white = 3, style_sigma = 4, style_intervals = 5;
constexpr Color white = 0xFFFFFF;
constexpr auto system_white = static_cast<Color>(0x80000000u);

/// What a test passes to D3Plot.
struct Call {
    double resx = 20;
    double resy = 20;
    double fwscal = 40;
    double alp2 = 40;
    double thet2 = 35;
    std::int16_t style = style_edges;
    double sigma_range = 0.5;
    std::int16_t fprint = 0;
    PlotBox box = {};
    std::int16_t show_displ = 0;
};

std::vector<TraceRecord> plot_on(Recorder& surface, panel& record, Call const& call = {})
{
    record.D3Plot(surface, call.resx, call.resy, call.fwscal, call.alp2, call.thet2, call.style, call.sigma_range,
                  call.fprint, call.box.left, call.box.top, call.box.width, call.box.height, call.show_displ);
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

/// The surface worked out node by node, each asked for anew, in a rectangle (left, top, width, height).
class ObviousSurface
{
public:
    ObviousSurface(panel const& record, Call const& call, std::array<int, 4> const& rectangle)
        : record_(record), call_(call)
    {
        double const pi = 4 * std::atan(1.0);
        bool const is_limited = record.maximal != record.maxi || record.minimal != record.mini;
        double const e = (record.maximal - record.minimal) / 8;
        double const lo = is_limited ? record.minimal - e : record.mini;
        double const hi = is_limited ? record.maximal + e : record.maxi;
        low_ = record.maxi != record.mini ? record.mini - (record.maxi - record.mini) * 0.1
               : record.mini >= 0         ? 0.9 * record.mini - 0.001
                                          : 1.1 * record.mini - 0.001;
        double a = call.alp2 * pi / 180;
        double const t = call.thet2 * pi / 180;
        if (a < 0)
            a += 2 * pi;
        if (a >= 360)
            a -= 2 * pi;
        quadrant_ = a < pi / 2 ? 1 : a < pi ? 2 : a < 3 * pi / 2 ? 3 : a < 2 * pi ? 4 : 0;

        nxh_ = static_cast<int>(std::nearbyint(record.HalfTestSizeX / call.resx));
        nyh_ = static_cast<int>(std::nearbyint(record.HalfTestSizey / call.resy));
        if (nxh_ < 4) {
            nxh_ = 4;
            call_.resx = record.HalfTestSizeX / 4;
        }
        if (nyh_ < 4) {
            nyh_ = 4;
            call_.resy = record.HalfTestSizey / 4;
        }
        ca_ = call_.resx * std::cos(a);
        cb_ = call_.resy * std::cos(a);
        sa_ = call_.resx * std::sin(a);
        sb_ = call_.resy * std::sin(a);
        st_ = std::sin(t);
        ct_ = std::cos(t);
        auto const [l, tt, w, h] = rectangle;
        double const s1 = ((w - 6) / 2.0) / (std::abs(ca_) * nxh_ + std::abs(sb_) * nyh_);
        double const s2 = (h - 6) / (2 * st_ * (std::abs(sa_) * nxh_ + std::abs(cb_) * nyh_) + call.fwscal * ct_);
        s_ = (st_ == 0 && call.fwscal == 0) ? s1 : std::min(s1, s2);
        zs_ = s_ * call.fwscal;
        hi2_ = height(hi);
        lo2_ = height(lo);
        b_ = (hi2_ - lo2_) / 10;
        cx_ = l + w / 2.0;
        base_ = (tt + h - 3) - (std::abs(sa_) * nxh_ + std::abs(cb_) * nyh_) * s_ * st_;
    }

    std::vector<Face> faces() const
    {
        std::vector<Face> list;
        bool const fills = call_.style == 1 || call_.style == 3 || call_.style == 4 || call_.style == 5;
        auto const add = [&](std::vector<std::int32_t> corners, Color color) {
            list.push_back({std::move(corners), color, static_cast<std::int16_t>(fills ? 0 : 1)});
        };
        for (int r = 0; r < 2 * nyh_; ++r)
            for (int k = 0; k < 2 * nxh_; ++k) {
                int i = 0, j = 0, next_i = 0, next_j = 0;
                switch (quadrant_) {
                case 1:
                    i = nxh_ - k, j = nyh_ - r, next_i = i - 1, next_j = j - 1;
                    break;
                case 2:
                    i = nxh_ - k, j = r - nyh_, next_i = i - 1, next_j = j + 1;
                    break;
                case 3:
                    i = k - nxh_, j = r - nyh_, next_i = i + 1, next_j = j + 1;
                    break;
                case 4:
                    i = k - nxh_, j = nyh_ - r, next_i = i + 1, next_j = j - 1;
                    break;
                default:
                    return {};
                }
                Node const A = node(i, j), B = node(next_i, j), C = node(i, next_j), D = node(next_i, next_j);
                if (r == 0)
                    add({A.x, A.foot, B.x, B.foot, B.x, B.top, A.x, A.top}, white);
                if (k == 0)
                    add({C.x, C.foot, A.x, A.foot, A.x, A.top, C.x, C.top}, white);
                add({A.x, A.top, B.x, B.top, D.x, D.top, C.x, C.top}, color((A.h + B.h + C.h + D.h) / 4));
                if (k == 2 * nxh_ - 1)
                    add({D.x, D.top, B.x, B.top, B.x, B.foot, D.x, D.foot}, white);
                if (r == 2 * nyh_ - 1)
                    add({C.x, C.top, D.x, D.top, D.x, D.foot, C.x, C.foot}, white);
            }
        return list;
    }

private:
    struct Node {
        double h;
        std::int32_t x, foot, top;
    };

    double height(double z) const { return (z - low_) * zs_ / (record_.maxi - low_); }

    Node node(int i, int j) const
    {
        double const h = height(record_.Interpolation(i * call_.resx, j * call_.resy));
        double const x = cx_ + s_ * (i * ca_ - j * sb_);
        double const yb = base_ - s_ * st_ * (i * sa_ + j * cb_);
        return {h, pixel(x), pixel(yb), pixel(yb - ct_ * h)};
    }

    Color color(double m) const
    {
        double found = 15;
        if (call_.style == 1 || call_.style == 5) {
            double const colors[] = {record_.col1, record_.col2, record_.col3, record_.col4, record_.col5,
                                     record_.col6, record_.col7, record_.col8, record_.col9, record_.col10};
            for (int k = 1; k <= 9; ++k)
                if (hi2_ - k * b_ <= m && (k == 1 || m < hi2_ - (k - 1) * b_))
                    found = colors[k - 1];
            if (m < hi2_ - 9 * b_)
                found = colors[9];
        } else if (call_.style == 4) {
            double const ls = height(record_.mean - call_.sigma_range * record_.StdDev);
            double const us = height(record_.mean + call_.sigma_range * record_.StdDev);
            found = ls > m && hi2_ != lo2_ ? record_.ColS3 : us < m && hi2_ != lo2_ ? record_.ColS1 : record_.ColS2;
        }
        bool const is_top_view = call_.alp2 == 0 && call_.thet2 == 90 && call_.fprint == 0;
        if (found == 15)
            return is_top_view ? system_white : white;
        return static_cast<Color>(found);
    }

    panel const& record_;
    Call call_;
    int quadrant_ = 0, nxh_ = 0, nyh_ = 0;
    double low_ = 0, ca_ = 0, cb_ = 0, sa_ = 0, sb_ = 0, st_ = 0, ct_ = 0, s_ = 0, zs_ = 0, hi2_ = 0, lo2_ = 0, b_ = 0,
           cx_ = 0, base_ = 0;
};

void expect_faces(std::vector<TraceRecord> const& drawn, std::vector<Face> const& expected)
{
    ASSERT_EQ(drawn.size(), expected.size());
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        ASSERT_EQ(item<std::vector<std::int32_t>>(drawn[i], 0), expected[i].corners) << "polygon " << i;
        ASSERT_EQ(item<std::int32_t>(drawn[i], 1), expected[i].fill_color) << "polygon " << i;
        ASSERT_EQ(item<std::int32_t>(drawn[i], 2), expected[i].fill_style) << "polygon " << i;
        ASSERT_EQ(item<std::int32_t>(drawn[i], 3), pen_solid) << "polygon " << i;
    }
}

void expect_obvious_surface(panel& record, Call const& call)
{
    SCOPED_TRACE(testing::Message() << "rotation " << call.alp2 << ", inclination " << call.thet2 << ", style "
                                    << call.style);
    auto const expected = ObviousSurface(record, call, {0, 0, 400, 300}).faces();
    ASSERT_FALSE(expected.empty());
    expect_faces(only(plot(record, call), "Polygon"), expected);
}

std::unique_ptr<panel> random_panel(int sites = 40)
{
    return make_panel(300, 200, random_sites(sites, 300, 200, 7));
}

std::unique_ptr<panel> flat_panel(double value)
{
    auto sites = random_sites(20, 300, 200, 3);
    for (auto& site : sites)
        site.z = value;
    return make_panel(300, 200, sites);
}

/// The cells' tops alone: without walls every polygon of an 8 by 8 raster but the 32 around it.
std::set<Color> colors_of_polygons(std::vector<TraceRecord> const& records)
{
    std::set<Color> colors;
    for (auto const& polygon : only(records, "Polygon"))
        colors.insert(item<std::int32_t>(polygon, 1));
    return colors;
}

std::size_t count_of_polygons(std::vector<TraceRecord> const& records)
{
    return only(records, "Polygon").size();
}

// Tops and walls of a raster.
constexpr std::size_t faces_of(std::size_t columns, std::size_t rows)
{
    return columns * rows + 2 * columns + 2 * rows;
}

} // namespace

TEST(D3Plot, EveryPolygonIsThatOfTheObviousComputationInAllQuadrantsAndStyles)
{
    auto const record = random_panel();
    for (double const rotation : {0.0, 40.0, 90.0, 91.0, 135.0, 180.0, 200.0, 269.5, 270.0, 300.0, 359.0})
        for (std::int16_t const style : std::vector<std::int16_t>{0, 1, 2, 3, 4, 5, 9})
            expect_obvious_surface(*record, {.resx = 11, .resy = 9, .alp2 = rotation, .style = style});
}

TEST(D3Plot, EveryPolygonIsThatOfTheObviousComputationForAllInclinationsScalesAndSites)
{
    for (int const sites : {4, 9, 10, 500}) {
        auto const record = random_panel(sites);
        for (double const inclination : {-20.0, 0.0, 1.0, 60.0, 90.0, 91.0})
            for (double const scale : {0.0, 1.0, 40.0, 500.0})
                for (double const rotation : {20.0, 110.0, 250.0, 340.0})
                    expect_obvious_surface(
                        *record, {.resx = 30, .resy = 20, .fwscal = scale, .alp2 = rotation, .thet2 = inclination});
    }
}

TEST(D3Plot, PlotLimitsWidenTheBandsByAnEighthAndLeaveTheHeights)
{
    auto const record = random_panel();
    auto const free = plot(*record);
    record->setMaximalMinial(520, 480);
    for (double const rotation : {40.0, 130.0, 220.0, 310.0})
        expect_obvious_surface(*record, {.alp2 = rotation});
    auto const limited = only(plot(*record), "Polygon");
    for (std::size_t i = 0; i < limited.size(); ++i)
        EXPECT_EQ(limited[i].items[0], only(free, "Polygon")[i].items[0]);
    record->setMaximalMinial(100, 50); // all values lie above
    EXPECT_EQ(colors_of_polygons(plot(*record)), (std::set<Color>{static_cast<Color>(record->col1), white}));
    record->setMaximalMinial(1000, 900); // all values lie below
    EXPECT_EQ(colors_of_polygons(plot(*record)), (std::set<Color>{static_cast<Color>(record->col10), white}));
}

TEST(D3Plot, AtThreeSitesOrFewerTheSurfaceIsClearedAndNothingElseHappens)
{
    for (int count = 0; count <= 3; ++count) {
        auto const record = random_panel(count);
        EXPECT_EQ(text_of(plot(*record)), (std::vector<std::string>{"Cls", "Refresh"})) << count;
    }
}

TEST(D3Plot, ARasterHasAtLeastEightByEightCells)
{
    auto const record = random_panel();
    EXPECT_EQ(count_of_polygons(plot(*record, {.resx = 37.5, .resy = 25})), faces_of(8, 8));
    EXPECT_EQ(count_of_polygons(plot(*record, {.resx = 100, .resy = 100})), faces_of(8, 8));
    expect_obvious_surface(*record, {.resx = 100, .resy = 9});
    expect_obvious_surface(*record, {.resx = 9, .resy = 100});
}

TEST(D3Plot, HalfARasterIsRoundedToTheEvenNumberOfCells)
{
    auto const record = random_panel();
    EXPECT_EQ(count_of_polygons(plot(*record, {.resx = 150 / 4.5, .resy = 25})), faces_of(8, 8));
    EXPECT_EQ(count_of_polygons(plot(*record, {.resx = 150 / 5.5, .resy = 25})), faces_of(12, 8));
}

TEST(D3Plot, SeenStraightDownThePlotIsAFlatMapOfColours)
{
    auto const record = random_panel();
    auto const records = only(plot(*record, {.resx = 37.5, .resy = 25, .alp2 = 0, .thet2 = 90}), "Polygon");
    std::set<std::int32_t> rows;
    for (auto const& polygon : records)
        rows.insert(item<std::vector<std::int32_t>>(polygon, 0)[1]);
    EXPECT_EQ(rows.size(), 9u); // feet and tops fall together
    EXPECT_GT(colors_of_polygons(records).size(), 4u);
}

TEST(D3Plot, SeenStraightDownWhiteCellsTakeTheSystemsColour)
{
    auto const record = random_panel();
    std::set<Color> const both = {system_white, white}; // white walls
    for (std::int16_t const style : {style_all_lines, style_white, std::int16_t{0}}) {
        EXPECT_EQ(colors_of_polygons(plot(*record, {.alp2 = 0, .thet2 = 90, .style = style})), both);
        for (Call const& other :
             {Call{.alp2 = 1, .thet2 = 90, .style = style}, Call{.alp2 = 0, .thet2 = 89, .style = style},
              Call{.alp2 = 0, .thet2 = 90, .style = style, .fprint = 1}})
            EXPECT_EQ(colors_of_polygons(plot(*record, other)), std::set{white});
    }
}

TEST(D3Plot, AnIntervalColourOf15IsWhiteAndNoColour)
{
    auto const record = flat_panel(5);
    for (double panel::*const color : {&panel::col1, &panel::col2, &panel::col10})
        (*record).*color = 15;
    EXPECT_EQ(colors_of_polygons(plot(*record)), std::set{white});
    EXPECT_EQ(colors_of_polygons(plot(*record, {.alp2 = 0, .thet2 = 90})), (std::set{system_white, white}));
}

TEST(D3Plot, BeyondTheFullCircleNoCellIsDrawn)
{
    auto const record = random_panel();
    for (double const rotation : {360.0, 400.0, -361.0, 20000.0})
        EXPECT_EQ(count_of_polygons(plot(*record, {.alp2 = rotation})), 0u) << rotation;
    // 360 radians are the limit that is tested: here a full circle is taken off, and 57 remain.
    EXPECT_EQ(count_of_polygons(plot(*record, {.alp2 = 20627})), 0u);
    EXPECT_EQ(record->Low, record->mini); // the scale is put back all the same
}

TEST(D3Plot, ARotationOfMinus90IsThatOf270)
{
    auto const record = random_panel();
    expect_obvious_surface(*record, {.alp2 = -90});
    auto const minus = plot(*record, {.alp2 = -90});
    auto const plus = plot(*record, {.alp2 = 270});
    EXPECT_EQ(text_of(minus), text_of(plus));
}

TEST(D3Plot, AFlatPanelStandsOnABaseTenPercentBelowIt)
{
    for (double const value : {5.0, -5.0, 0.0}) {
        auto const record = flat_panel(value);
        double const low = (value < 0 ? 1.1 : 0.9) * value - 0.001;
        auto const polygons = only(plot(*record, {.thet2 = 0}), "Polygon");
        std::set<std::int32_t> heights;
        for (auto const& polygon : polygons)
            for (std::size_t i = 1; i < 8; i += 2)
                heights.insert(item<std::vector<std::int32_t>>(polygon, 0)[i]);
        EXPECT_EQ(heights.size(), 2u) << value; // feet and tops
        EXPECT_LT(low, value);
        expect_obvious_surface(*record, {});
    }
}

TEST(D3Plot, AFlatPanelHasOnlyTheMiddleSigmaColour)
{
    auto const record = flat_panel(5);
    EXPECT_EQ(colors_of_polygons(plot(*record, {.style = style_sigma})),
              (std::set<Color>{static_cast<Color>(record->ColS2), white}));
}

TEST(D3Plot, LowIsTakenFromTheDataWhileThePlotRunsAndPutBackBehindIt)
{
    auto const record = random_panel();
    record->setMaximalMinial(520, 480);
    double low_while_running = 0;
    class Watching : public Recorder
    {
    public:
        std::function<void()> on_refresh;
        void Refresh() override { on_refresh(); }
    } surface;
    surface.set_area({0, 0, 400, 300});
    surface.on_refresh = [&] { low_while_running = record->Low; };
    plot_on(surface, *record);
    EXPECT_EQ(low_while_running, record->mini - (record->maxi - record->mini) * 0.1);
    EXPECT_EQ(record->Low, 480);
    EXPECT_EQ(record->range, 40);
}

TEST(D3Plot, EveryRowIsShownAsItComes)
{
    auto const record = random_panel();
    auto const records = plot(*record, {.resx = 37.5, .resy = 20});
    EXPECT_EQ(only(records, "Cls").size(), 1u);
    EXPECT_EQ(only(records, "Refresh").size(), 1u + 10u);
    EXPECT_EQ(records.back().name, "Refresh");
}

TEST(D3Plot, OnAPrinterNothingIsShownAndTheRectangleIsInDevicePixels)
{
    auto const record = random_panel();
    auto const printer = Recorder::printer(2.4, 1.2);
    Call const call{.fprint = 1, .box = {240, 120, 7200, 4800}, .show_displ = 1};
    auto const records = plot_on(*printer, *record, call);
    EXPECT_TRUE(only(records, "Cls").empty());
    EXPECT_TRUE(only(records, "Refresh").empty());
    expect_faces(only(records, "Polygon"), ObviousSurface(*record, call, {100, 100, 3000, 4000}).faces());
}

TEST(D3Plot, OnAPictureForPaperTheRectangleIsThatOfTheCaller)
{
    auto const record = random_panel();
    Call const call{.box = {150, 300, 3000, 2250}, .show_displ = 1};
    auto const records = plot(*record, call);
    EXPECT_TRUE(only(records, "Cls").empty());
    expect_faces(only(records, "Polygon"), ObviousSurface(*record, call, {10, 20, 200, 150}).faces());
}

TEST(D3Plot, APrinterWithoutResolutionIsTakenForOneOf300DotsPerInch)
{
    auto const record = random_panel();
    auto const printer = Recorder::printer(0, 0);
    Call const call{.fprint = 1, .box = {480, 960, 4800, 2400}, .show_displ = 1};
    expect_faces(only(plot_on(*printer, *record, call), "Polygon"),
                 ObviousSurface(*record, call, {100, 200, 1000, 500}).faces());
}

TEST(D3Plot, ACellSizeOf0BecomesTheLargestOneInTheRepairedRectangle)
{
    auto const record = random_panel();
    auto const records = plot(*record, {.resx = 0, .resy = 25, .box = {48, 96, 960, 480}});
    expect_faces(only(records, "Polygon"),
                 ObviousSurface(*record, {.resx = 37.5, .resy = 25}, {10, 20, 200, 100}).faces());
}

TEST(D3Plot, NothingOfAPanelWithoutSizeOrOfAScaleWithoutEndFails)
{
    auto const empty = make_panel(0, 0, random_sites(9, 300, 200, 1));
    EXPECT_NO_THROW(plot(*empty));
    panel fresh;
    EXPECT_NO_THROW(plot(fresh));
    auto const record = random_panel();
    EXPECT_NO_THROW(plot(*record, {.fwscal = 1e308}));
    EXPECT_NO_THROW(plot(*record, {.alp2 = 1e308, .thet2 = -1e308}));
    EXPECT_NO_THROW(plot(*record, {.alp2 = std::nan("")}));
}

TEST(D3Plot, ARasterOfMoreColumnsThanSixteenBitsCountDrawsNothing)
{
    auto const record = random_panel();
    EXPECT_EQ(count_of_polygons(plot(*record, {.resx = 0.008, .resy = 25})), 0u); // 37500 columns
    EXPECT_EQ(count_of_polygons(plot(*record, {.resx = 37.5, .resy = 0.005})), 0u);
}

TEST(D3Plot, AColourBeyond32BitsLeavesTheFillAsItWas)
{
    auto const record = flat_panel(5);
    record->ColS2 = 1e20;
    EXPECT_EQ(colors_of_polygons(plot(*record, {.style = style_sigma})), std::set{white}); // as the walls left it
}

TEST(D3Plot, NearerCellsHideWhatLiesBehindThemUnlessAllLinesShow)
{
    auto const record = random_panel();
    BlockGlyphs glyphs;
    auto const black_pixels = [&](std::int16_t style) {
        RasterPicture picture(200, 150, glyphs);
        record->D3Plot(picture, 10, 10, 200, 30, 20, style, 0, 0, 0, 0, 0, 0, 0);
        auto const image = picture.image();
        int count = 0;
        for (int y = 0; y < image->height(); ++y)
            count += static_cast<int>(std::count(image->row(y), image->row(y) + image->width(), 0u));
        return count;
    };
    EXPECT_GT(black_pixels(style_all_lines), black_pixels(style_white) + 500);
    EXPECT_EQ(black_pixels(style_white), black_pixels(style_intervals));
}

} // namespace zendara::test
