#include "listening_container.hpp"
#include "panels.hpp"
#include "support/failure_kind.hpp"
#include "trace_text.hpp"
#include "zendara/render/plots/contour.hpp"
#include "zendara/render/plots/contour_mesh.hpp"
#include "zendara/render/surface/recorder.hpp"
#include "zendara/support/interface.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>
#include <set>

namespace zendara::test
{

namespace
{

using Texts = std::vector<std::string>;

constexpr std::int16_t exact = 1, converted = 2, no_marks = 3;
constexpr std::int16_t low = 0, high = 1, automatic = 2;
constexpr std::int16_t black_white = 0, three_colors = 1, ten_colors = 2;

/// What a test passes to D2Contour.
struct Call {
    double distance = 10;
    std::int16_t marks = no_marks;
    std::int16_t reso = automatic;
    std::int16_t colored = black_white;
    double left = 0, top = 0, width = 0, height = 0;
    std::int16_t show_displ = 0;
};

void draw_on(Surface& surface, panel& record, Call const& call)
{
    record.D2Contour(surface, call.distance, call.marks, call.reso, call.colored, call.left, call.top, call.width,
                     call.height, call.show_displ);
}

std::vector<TraceRecord> contour(panel& record, Call const& call = {})
{
    auto const surface = Recorder::picture({0, 0, 400, 300});
    draw_on(*surface, record, call);
    return surface->take_record();
}

std::vector<std::string> lines_of(std::vector<TraceRecord> const& records)
{
    return text_of(only(records, "Line"));
}

/// A mesh with tables of nodes and triangles; every triangle is tested for every level.
class PlainMesh
{
public:
    struct Node {
        double x, y, z;
    };

    PlainMesh(int nx, int ny, std::vector<Node> const& nodes) : nodes_{{}}, triangles_(1)
    {
        nodes_.insert(nodes_.end(), nodes.begin(), nodes.end()); // both tables are numbered from 1
        triangles_.resize(static_cast<std::size_t>((nx - 1) * 2 * (ny - 1) + 1));
        for (int j = 1; j < ny; ++j)
            for (int i = 1; i < nx; ++i) {
                int const b = (j - 1) * nx;
                int const t = (nx - 1) * (j - 1) * 2;
                triangles_[static_cast<std::size_t>(t + i)] = {b + i, b + i + 1, b + i + nx};
                triangles_[static_cast<std::size_t>(t + i + nx - 1)] = {b + i + 1, b + i + 1 + nx, b + i + nx};
            }
    }

    std::vector<Node> nodes() const { return {nodes_.begin() + 1, nodes_.end()}; }

    std::vector<ContourMesh::Segment> segments(double level) const
    {
        std::vector<ContourMesh::Segment> found;
        for (std::size_t t = 1; t < triangles_.size(); ++t) {
            std::array<std::pair<int, int>, 2> pairs{};
            auto const crossed = [&](int a, int b) {
                double const za = corner(t, a).z, zb = corner(t, b).z;
                return !(za == zb || (za > level && zb > level) || (za < level && zb < level));
            };
            bool const is_first = crossed(1, 2);
            if (is_first)
                pairs[0] = {1, 2};
            if (crossed(1, 3))
                pairs[is_first ? 1 : 0] = {1, 3};
            if (crossed(2, 3))
                pairs[1] = {2, 3};
            if (pairs[1].first == 0)
                continue;
            auto const [x1, y1] = edge_point(t, pairs[0], level);
            auto const [x2, y2] = edge_point(t, pairs[1], level);
            found.push_back({x1, y1, x2, y2});
        }
        return found;
    }

private:
    Node const& corner(std::size_t triangle, int number) const
    {
        return nodes_[static_cast<std::size_t>(triangles_[triangle][static_cast<std::size_t>(number - 1)])];
    }

    std::pair<double, double> edge_point(std::size_t triangle, std::pair<int, int> pair, double level) const
    {
        Node const& a = corner(triangle, pair.first);
        Node const& b = corner(triangle, pair.second);
        return {a.x - (a.x - b.x) * (a.z - level) / (a.z - b.z), a.y - (a.y - b.y) * (a.z - level) / (a.z - b.z)};
    }

    std::vector<Node> nodes_;
    std::vector<std::array<int, 3>> triangles_;
};

PlainMesh plain_mesh(panel const& record, std::int16_t reso)
{
    double const nop = record.GetNop();
    int n = static_cast<int>(std::sqrt(nop)) + 1;
    if (reso == high)
        n = std::max(25, static_cast<int>(std::sqrt(nop * 4)) + 1);
    if (reso == low)
        n = static_cast<int>(std::sqrt(nop * 0.5)) + 1;
    double const a = record.TestSizeX / record.TestSizeY;
    int const nx = std::max(2, a > 1 ? static_cast<int>(std::nearbyint(n * a)) : n);
    int const ny = std::max(2, a > 1 ? n : static_cast<int>(std::nearbyint(n / a)));
    double const dx = record.TestSizeX / (nx - 1);
    double const dy = record.TestSizeY / (ny - 1);
    std::vector<PlainMesh::Node> nodes;
    for (int j = 1; j <= ny; ++j)
        for (int i = 1; i <= nx; ++i) {
            double const x = (i - 1) * dx - record.HalfTestSizeX;
            double const y = (j - 1) * dy - record.HalfTestSizey;
            nodes.push_back({x, y, record.Interpolation(x, y)});
        }
    return {nx, ny, nodes};
}

/// The whole plot on the screen once more, without a short cut.
class PlainContour
{
public:
    PlainContour(panel& record, Surface& surface, Call const& call)
        : record_(record), surface_(surface), call_(call), mesh_(plain_mesh(record, call.reso)),
          cx_(std::nearbyint(surface.ScaleWidth() / 2)), cy_(std::nearbyint(surface.ScaleHeight() / 2)),
          scale_(
              std::min((surface.ScaleWidth() - 6) / record.TestSizeX, (surface.ScaleHeight() - 6) / record.TestSizeY))
    {
    }

    void draw()
    {
        surface_.Cls();
        surface_.Refresh();
        surface_.FillColor = QBColor(15);
        surface_.DrawStyle = 0;
        draw_box();
        surface_.Refresh();
        if (record_.GetNop() > 3)
            draw_lines_and_marks();
        auto const fill_style = surface_.FillStyle;
        surface_.FillStyle = 1;
        draw_box();
        surface_.FillStyle = fill_style;
    }

private:
    void draw_lines_and_marks()
    {
        double const mean = record_.mean;
        double const d = interval();
        ASSERT_LE(record_.range / 10000, d);
        take_color(record_.ColS2, static_cast<float>(mean));
        surface_.DrawWidth = 2;
        draw_level(mean);
        surface_.DrawWidth = 1;
        if (call_.colored == three_colors)
            surface_.ForeColor = static_cast<Color>(record_.ColS1);
        for (double level = mean + d; level < record_.maximal; level = level + d) {
            take_color(record_.ColS1, level);
            draw_level(level);
        }
        if (call_.colored == three_colors)
            surface_.ForeColor = static_cast<Color>(record_.ColS3);
        for (double level = mean - d; level > record_.mini; level = level - d) {
            take_color(record_.ColS3, level);
            draw_level(level);
        }
        draw_marks();
    }

    double interval() const
    {
        double const mean = std::abs(record_.mean);
        double const spread = record_.maxi - record_.mini;
        double const d = mean * call_.distance / 100;
        if (spread / 10000 > d)
            return spread * call_.distance / 100;
        if (mean < std::abs(record_.maxi))
            return std::abs(record_.maxi) * call_.distance / 100;
        if (mean < std::abs(record_.mini))
            return std::abs(record_.mini) * call_.distance / 100;
        return d;
    }

    void draw_level(double level)
    {
        for (auto const& [x1, y1, x2, y2] : mesh_.segments(level))
            surface_.Line(x1 * scale_ + cx_, cy_ - y1 * scale_, x2 * scale_ + cx_, cy_ - y2 * scale_,
                          surface_.ForeColor);
        surface_.Refresh();
    }

    void take_color(double of_three, double value)
    {
        if (call_.colored == three_colors)
            surface_.ForeColor = static_cast<Color>(of_three);
        if (call_.colored != ten_colors)
            return;
        double top = record_.maximal, bottom = record_.minimal;
        if (top != record_.maxi || bottom != record_.mini) {
            double const e = (record_.maximal - record_.minimal) / 8;
            top += e;
            bottom -= e;
        }
        double const s = (top - bottom) / 10;
        double const colors[] = {record_.col1, record_.col2, record_.col3, record_.col4, record_.col5,
                                 record_.col6, record_.col7, record_.col8, record_.col9};
        surface_.ForeColor = static_cast<Color>(record_.col10);
        for (int k = 9; k >= 1; --k)
            if (top - k * s <= value)
                surface_.ForeColor = static_cast<Color>(colors[k - 1]);
    }

    void draw_marks()
    {
        surface_.ForeColor = QBColor(0);
        surface_.DrawWidth = 1;
        std::vector<PlainMesh::Node> marked;
        if (call_.marks == converted)
            marked = mesh_.nodes();
        HostArray<double> place;
        place.redim(1, 2);
        for (std::int16_t site = 1; call_.marks == exact && site <= record_.GetNop(); ++site) {
            double const z = record_.GetGridValue(site, place);
            marked.push_back({place(1), place(2), z});
        }
        for (auto const& [x, y, z] : marked) {
            double const px = std::nearbyint(scale_ * x + cx_);
            double const py = std::nearbyint(cy_ - scale_ * y);
            surface_.Line(px - 3, py, px + 3, py, QBColor(0));
            if (z > record_.mean)
                surface_.Line(px, py - 3, px, py + 3, QBColor(0));
        }
    }

    void draw_box()
    {
        surface_.BoxStep(cx_ - scale_ * record_.HalfTestSizeX, cy_ - scale_ * record_.HalfTestSizey,
                         scale_ * record_.TestSizeX, scale_ * record_.TestSizeY, QBColor(0));
    }

    panel& record_;
    Surface& surface_;
    Call call_;
    PlainMesh mesh_;
    double cx_, cy_, scale_;
};

void expect_plain_contour(panel& record, Call const& call)
{
    auto const plain = Recorder::picture({0, 0, 400, 300});
    PlainContour(record, *plain, call).draw();
    auto const surface = Recorder::picture({0, 0, 400, 300});
    draw_on(*surface, record, call);
    auto const expected = plain->take_record();
    auto const drawn = surface->take_record();
    ASSERT_EQ(drawn.size(), expected.size());
    for (std::size_t i = 0; i < drawn.size(); ++i)
        ASSERT_EQ(drawn[i], expected[i]) << "call " << i << ": " << text_of(drawn[i]) << "\nnot "
                                         << text_of(expected[i]);
    EXPECT_EQ(surface->ForeColor, plain->ForeColor);
    EXPECT_EQ(surface->FillStyle, plain->FillStyle);
    EXPECT_EQ(surface->DrawWidth, plain->DrawWidth);
}

/// Four sites in the corners of a square of 100 mm; the raster of low quality is these four nodes.
std::unique_ptr<panel> square(double lower_left, double lower_right, double upper_left, double upper_right)
{
    return make_panel(100, 100,
                      {{-50, -50, lower_left}, {50, -50, lower_right}, {-50, 50, upper_left}, {50, 50, upper_right}});
}

/// What a mesh of two rows answers, its nodes one unit apart.
Texts segments(std::vector<double> values, double level)
{
    std::vector<double> x;
    for (std::size_t column = 0; column < values.size() / 2; ++column)
        x.push_back(static_cast<double>(column));
    Texts texts;
    ContourMesh(x, {0, 1}, std::move(values)).for_each_segment(level, [&](ContourMesh::Segment const& s) {
        std::ostringstream text;
        text << s.x1 << ' ' << s.y1 << ' ' << s.x2 << ' ' << s.y2;
        texts.push_back(text.str());
    });
    return texts;
}

/// The message boxes of one contour plot.
std::vector<ListeningContainer::Message> messages_of(panel& record, Call const& call)
{
    ListeningContainer container;
    record.container = &container;
    contour(record, call);
    record.container = nullptr;
    return container.messages;
}

// Of a picture of 400 by 300 pixels.
constexpr auto box_of_square = "Box 53 3 347 297 0 1 0 1 16777215";

} // namespace

// --- Segments ------------------------------------------------------------------------------------------------------

TEST(ContourMesh, ALevelCrossesTheLowerTrianglesOfARowFromTheLeftAndThenTheUpperOnes)
{
    EXPECT_EQ(segments({0, 1, 0, 0, 1, 0}, 0.5),
              (Texts{"0.5 0 0.5 0.5", "1.5 0 1.5 0.5", "0.5 0.5 0.5 1", "1.5 0.5 1.5 1"}));
}

TEST(ContourMesh, TheDiagonalFromTheLowerRightSettlesASaddle)
{
    EXPECT_EQ(segments({0, 1, 1, 0}, 0.5), (Texts{"0.5 0 0 0.5", "1 0.5 0.5 1"}));
    EXPECT_EQ(segments({1, 0, 0, 1}, 0.5), (Texts{"0.5 0 0 0.5", "1 0.5 0.5 1"}));
}

TEST(ContourMesh, ATriangleThatTouchesTheLevelWithACornerHasASegmentOfLengthZero)
{
    EXPECT_EQ(segments({1, 0, 0, 0}, 1), Texts{"0 0 0 0"});
    EXPECT_EQ(segments({1, 2, 2, 2}, 1), Texts{"0 0 0 0"});
}

TEST(ContourMesh, AnEdgeFlatOnTheLevelIsNotCrossedButItsEndsAre)
{
    EXPECT_EQ(segments({1, 0, 0, 0}, 0), Texts{"1 0 0 1"});
    EXPECT_EQ(segments({1, 1, 1, 1}, 1), Texts{});
}

TEST(ContourMesh, OfThreeCrossedEdgesTheOneFromTheFirstToTheThirdCornerIsDropped)
{
    // The first corner on the level, then the second one: there both ends are that corner.
    EXPECT_EQ(segments({1, 2, 0, 3}, 1), (Texts{"0 0 0.5 0.5", "0.5 0.5 0.333333 1"}));
    EXPECT_EQ(segments({2, 1, 0, 3}, 1), (Texts{"1 0 1 0", "1 0 0.333333 1"}));
}

TEST(ContourMesh, ALevelBeyondAllValuesCrossesNothing)
{
    EXPECT_EQ(segments({0, 1, 2, 3}, 3.5), Texts{});
    EXPECT_EQ(segments({0, 1, 2, 3}, -0.5), Texts{});
}

TEST(ContourMesh, EverySegmentIsThatOfThePlainLoopOverAllTriangles)
{
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        int const nx = 2 + static_cast<int>(random() % 12);
        int const ny = 2 + static_cast<int>(random() % 12);
        std::vector<double> x, y, values;
        for (int i = 0; i < nx; ++i)
            x.push_back(i * 1.7 - 9);
        for (int j = 0; j < ny; ++j)
            y.push_back(j * 0.3 - 1);
        std::vector<PlainMesh::Node> nodes;
        // Few whole values make flat parts and levels that hit nodes.
        for (double const py : y)
            for (double const px : x) {
                auto const thousandths = static_cast<double>(random() % 4000);
                values.push_back(round % 2 == 0 ? std::floor(thousandths / 1000) : thousandths / 1000);
                nodes.push_back({px, py, values.back()});
            }
        PlainMesh const plain(nx, ny, nodes);
        ContourMesh const mesh(x, y, values);
        for (double level = -0.5; level <= 4; level += 0.25) {
            auto const expected = plain.segments(level);
            std::size_t count = 0;
            mesh.for_each_segment(level, [&](ContourMesh::Segment const& s) {
                ASSERT_LT(count, expected.size());
                auto const& e = expected[count++];
                ASSERT_TRUE(s.x1 == e.x1 && s.y1 == e.y1 && s.x2 == e.x2 && s.y2 == e.y2) << "level " << level;
            });
            ASSERT_EQ(count, expected.size()) << "level " << level;
        }
    }
}

TEST(ContourMesh, TheRasterOfAPanelReachesFromEdgeToEdge)
{
    auto const record = make_panel(300, 200, random_sites(20, 300, 200, 3));
    auto const mesh = ContourMesh::sampled(*record, 4, 3);
    ASSERT_EQ(mesh.columns(), 4u);
    ASSERT_EQ(mesh.rows(), 3u);
    double const x[] = {-150, -50, 50, 150};
    double const y[] = {-100, 0, 100};
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 4; ++column) {
            auto const node = mesh.node(column, row);
            EXPECT_EQ(node.x, x[column]);
            EXPECT_EQ(node.y, y[row]);
            EXPECT_EQ(node.value, record->Interpolation(x[column], y[row]));
        }
}

// --- The plot, call by call ----------------------------------------------------------------------------------------

TEST(D2Contour, DrawsBoxMeanLineUpperLinesLowerLinesMarksAndFrameInThisOrder)
{
    auto const record = square(0, 0, 10, 10);
    auto const surface = Recorder::picture({0, 0, 106, 106}); // one pixel to the millimetre
    // 30 percent of the largest value are 3: the levels are 5, 8 and 2.
    draw_on(*surface, *record, {.distance = 30, .marks = exact, .reso = low, .colored = three_colors});
    EXPECT_EQ(text_of(surface->take_record()), (Texts{
                                                   "Cls",
                                                   "Refresh",
                                                   "Box 3 3 103 103 0 1 0 1 16777215",
                                                   "Refresh",
                                                   "Line 3 53 53 53 32768 2 0",
                                                   "Line 103 53 53 53 32768 2 0",
                                                   "Refresh",
                                                   "Line 3 23 23 23 128 1 0",
                                                   "Line 103 23 23 23 128 1 0",
                                                   "Refresh",
                                                   "Line 3 83 83 83 8388608 1 0",
                                                   "Line 103 83 83 83 8388608 1 0",
                                                   "Refresh",
                                                   "Line 0 103 6 103 0 1 0",
                                                   "Line 100 103 106 103 0 1 0",
                                                   "Line 0 3 6 3 0 1 0",
                                                   "Line 3 0 3 6 0 1 0",
                                                   "Line 100 3 106 3 0 1 0",
                                                   "Line 103 0 103 6 0 1 0",
                                                   "Box 3 3 103 103 0 1 0 1 16777215",
                                               }));
}

TEST(D2Contour, OnPaperNothingIsClearedOrRefreshedAndPensAndMarksAreLarger)
{
    auto const record = square(0, 0, 10, 10);
    auto const printer = Recorder::printer(2.4, 2.4);
    // A rectangle of 206 by 306 units: two units to the millimetre, the centre at (113, 173).
    draw_on(*printer, *record,
            {.distance = 30,
             .marks = exact,
             .reso = low,
             .colored = three_colors,
             .left = 10,
             .top = 20,
             .width = 206,
             .height = 306,
             .show_displ = 1});
    EXPECT_EQ(text_of(printer->take_record()), (Texts{
                                                   "Box 13 73 213 273 0 1 0 1 16777215",
                                                   "Line 13 173 113 173 32768 4 0",
                                                   "Line 213 173 113 173 32768 4 0",
                                                   "Line 13 113 53 113 128 2 0",
                                                   "Line 213 113 53 113 128 2 0",
                                                   "Line 13 233 173 233 8388608 2 0",
                                                   "Line 213 233 173 233 8388608 2 0",
                                                   "Line -32 273 58 273 0 1 0",
                                                   "Line 168 273 258 273 0 1 0",
                                                   "Line -32 73 58 73 0 1 0",
                                                   "Line 13 28 13 118 0 1 0",
                                                   "Line 168 73 258 73 0 1 0",
                                                   "Line 213 28 213 118 0 1 0",
                                                   "Box 13 73 213 273 0 1 0 1 16777215",
                                               }));
}

TEST(D2Contour, EveryCallIsThatOfThePlainLoopOverAllTriangles)
{
    for (unsigned seed = 1; seed <= 30; ++seed) {
        double const width = seed % 3 == 0 ? 100 : 300;
        auto sites = random_sites(4 + static_cast<int>(seed * seed % 90), width, 200, seed);
        if (seed % 2 == 0) // steps with flat parts between them
            for (auto& site : sites)
                site.z = std::floor((site.z - 450) / 30);
        auto const record = make_panel(width, 200, sites);
        if (seed % 5 == 0)
            record->setMaximalMinial(record->mean + record->StdDev, record->mean - record->StdDev);
        Call call{.distance = seed % 2 == 0 ? 20.0 : 1.5};
        call.marks = static_cast<std::int16_t>(1 + seed % 3);
        call.reso = static_cast<std::int16_t>(seed / 3 % 3);
        call.colored = static_cast<std::int16_t>(seed / 2 % 3);
        expect_plain_contour(*record, call);
    }
}

TEST(D2Contour, TheFinestRasterIsThatOfThePlainLoop)
{
    // 103 rows and 155 columns have 31416 triangles.
    auto const record = make_panel(301, 200, random_sites(2601, 301, 200, 5));
    expect_plain_contour(*record, {.distance = 1, .reso = high, .colored = ten_colors});
}

// --- Few sites and equal values ------------------------------------------------------------------------------------

TEST(D2Contour, UpToThreeSitesOnlyTheEmptyBoxIsShown)
{
    for (int count = 0; count <= 3; ++count)
        for (std::int16_t const reso : {low, high, automatic}) {
            auto const record = make_panel(100, 100, random_sites(count, 100, 100, 1));
            EXPECT_EQ(text_of(contour(*record, {.marks = exact, .reso = reso})),
                      (Texts{"Cls", "Refresh", box_of_square, "Refresh", box_of_square}));
        }
}

TEST(D2Contour, FourSitesAreEnoughForLines)
{
    EXPECT_FALSE(lines_of(contour(*square(0, 0, 10, 10))).empty());
}

TEST(D2Contour, WithEqualValuesNoLineAndNoMessageAppears)
{
    auto const record = square(8, 8, 8, 8);
    EXPECT_TRUE(lines_of(contour(*record)).empty());
    EXPECT_TRUE(lines_of(contour(*record, {.distance = 0})).empty());
    EXPECT_TRUE(messages_of(*record, {}).empty());
    EXPECT_TRUE(messages_of(*record, {.distance = 0}).empty());
}

TEST(D2Contour, AStepTooSmallToMoveTheLevelEndsTheLines)
{
    auto const record = square(8, 8, 8, 8);
    record->mean = std::nextafter(8, 0);                                      // as the rounding of a sum leaves it
    EXPECT_EQ(only(contour(*record, {.distance = 0}), "Refresh").size(), 3u); // start, box, mean line
}

// --- Interval ------------------------------------------------------------------------------------------------------

TEST(D2Contour, TheIntervalIsAPercentageOfTheLargestMagnitudeAsARule)
{
    EXPECT_EQ(contour_reference(*square(6, 6, 10, 10), 10), 10);
    EXPECT_EQ(contour_reference(*square(-6, -6, -10, -10), 10), 10);
    EXPECT_EQ(contour_reference(*square(-1, -1, -1, 1), 10), 1); // of the largest value, though the smallest is as far
    EXPECT_EQ(contour_reference(*square(8, 8, 8, 8), 10), 8);
}

TEST(D2Contour, TheIntervalIsAPercentageOfTheSpreadWhereTheMeanIsTooSmallBesideIt)
{
    EXPECT_EQ(contour_reference(*square(-5, -5, 5, 5), 10), 10);
    EXPECT_EQ(contour_reference(*square(6, 6, 10, 10), 0.001), 4);
    EXPECT_EQ(contour_reference(*square(-5, -5, 5, 5.25), 1), 10.25); // the mean is a sixteenth
}

TEST(D2Contour, AMeanOf0TakesThePercentageOfTheSpread)
{
    // 30 percent of 10: levels 0, 3 and -3, each through both triangles.
    EXPECT_EQ(lines_of(contour(*square(-5, -5, 5, 5), {.distance = 30, .reso = low})).size(), 6u);
}

TEST(D2Contour, AnIntervalInTheUnitBecomesThePercentageThatLeadsBackToIt)
{
    for (auto const& record :
         {square(6, 6, 10, 10), square(-6, -6, -10, -10), square(-5, -5, 5, 5), square(8, 8, 8, 8),
          square(-5, -5, 5, 5.001), square(-20, 100, 3, 40), square(0, 0, 0, 1), square(-1, 0, 0, 0)})
        for (double const interval : {0.01, 0.5, 2.0, 30.0}) {
            double const percent = contour_percent(*record, interval);
            EXPECT_NEAR(contour_reference(*record, percent) * percent / 100, interval, interval * 1e-14)
                << record->mini << " to " << record->maxi;
        }
}

TEST(D2Contour, AnIntervalInTheUnitIsOnePercentWhereAllValuesAre0)
{
    EXPECT_EQ(contour_percent(*square(0, 0, 0, 0), 5), 1);
}

TEST(D2Contour, PlotLimitsEndTheUpperLinesAlone)
{
    auto const record = square(0, 0, 10, 10);
    record->setMaximalMinial(6, 4);
    // Levels 5 and 2; 8 lies above the limit.
    auto const lines = lines_of(contour(*record, {.distance = 30, .reso = low, .colored = three_colors}));
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_NE(lines[2].find(" 8388608 1 0"), std::string::npos);
}

// --- No lines possible ---------------------------------------------------------------------------------------------

TEST(D2Contour, AnIntervalOf0IsReportedInAMessageBoxAndTheEmptyBoxStays)
{
    auto const record = square(6, 6, 10, 10);
    auto const messages = messages_of(*record, {.distance = 0});
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].text, "Difference of Mean, Maximum, and Minimum too small");
    EXPECT_EQ(messages[0].style, 4096);
    EXPECT_EQ(messages[0].title, "No Contour Plot possible");
    EXPECT_EQ(text_of(contour(*record, {.distance = 0})), (Texts{"Cls", "Refresh", box_of_square, "Refresh"}));
}

TEST(D2Contour, ANegativeIntervalIsReportedToo)
{
    EXPECT_EQ(messages_of(*square(6, 6, 10, 10), {.distance = -5}).size(), 1u);
}

TEST(D2Contour, ATenThousandthOfTheRangeIsTheSmallestInterval)
{
    auto const record = square(0, 0, 10, 10);
    record->setMaximalMinial(16384, 0);
    auto const messages_at = [&](double interval) { return messages_of(*record, {.distance = interval * 10}).size(); };
    EXPECT_EQ(messages_at(1.6384), 0u);
    EXPECT_EQ(messages_at(1.6383), 1u);
}

TEST(D2Contour, WithANegativeLeftACrossStandsInForTheMessage)
{
    auto const record = square(6, 6, 10, 10);
    EXPECT_TRUE(messages_of(*record, {.distance = 0, .left = -1}).empty());
    EXPECT_EQ(
        text_of(contour(*record, {.distance = 0, .left = -1})),
        (Texts{"Cls", "Refresh", box_of_square, "Refresh", "Line 53 3 294 294 128 2 0", "Line 53 294 294 3 128 2 0"}));
}

TEST(D2Contour, OnPaperTheCrossStandsInForTheMessage)
{
    auto const record = square(6, 6, 10, 10);
    Call const call{.distance = 0, .left = 10, .top = 20, .width = 206, .height = 306, .show_displ = 1};
    EXPECT_TRUE(messages_of(*record, call).empty());
    EXPECT_EQ(text_of(contour(*record, call)), (Texts{"Box 13 73 213 273 0 1 0 1 16777215",
                                                      "Line 13 73 200 200 128 2 0", "Line 13 200 200 73 128 2 0"}));
}

// --- Colours -------------------------------------------------------------------------------------------------------

TEST(D2Contour, BlackAndWhiteLinesTakeTheColourOfTheSurfaceAndMarksAreBlack)
{
    auto const record = square(0, 0, 10, 10);
    auto const surface = Recorder::picture({0, 0, 106, 106});
    surface->ForeColor = 777;
    draw_on(*surface, *record, {.distance = 30, .marks = exact, .reso = low});
    auto const lines = only(surface->take_record(), "Line");
    ASSERT_EQ(lines.size(), 6u + 6u);
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(item<std::int32_t>(lines[i], 4), i < 6 ? 777 : 0);
    EXPECT_EQ(surface->ForeColor, 0);
}

TEST(D2Contour, InTenColoursALineTakesTheColourOfItsBand)
{
    auto const record = square(0, 0, 10, 10);
    // Bands of 1: level 8 begins the second one from the top, 5 the fifth, 2 the eighth.
    auto const lines = only(contour(*record, {.distance = 30, .reso = low, .colored = ten_colors}), "Line");
    ASSERT_EQ(lines.size(), 6u);
    EXPECT_EQ(item<std::int32_t>(lines[0], 4), record->col5);
    EXPECT_EQ(item<std::int32_t>(lines[2], 4), record->col2);
    EXPECT_EQ(item<std::int32_t>(lines[4], 4), record->col8);
}

TEST(D2Contour, WithPlotLimitsTheOuterBandsLieBeyondThem)
{
    auto const record = square(0, 0, 10, 10);
    record->setMaximalMinial(9, 1);
    // From 10 down in bands of 1 again.
    auto const lines = only(contour(*record, {.distance = 30, .reso = low, .colored = ten_colors}), "Line");
    ASSERT_EQ(lines.size(), 6u);
    EXPECT_EQ(item<std::int32_t>(lines[0], 4), record->col5);
    record->setMaximalMinial(4, 3); // e is 0.125: everything above 4 is the top band, below 3 the lowest
    auto const narrow = only(contour(*record, {.distance = 30, .reso = low, .colored = ten_colors}), "Line");
    ASSERT_EQ(narrow.size(), 4u);
    EXPECT_EQ(item<std::int32_t>(narrow[0], 4), record->col1);
    EXPECT_EQ(item<std::int32_t>(narrow[2], 4), record->col10);
}

TEST(D2Contour, TheColourOfTheMeanLineIsThatOfTheMeanInSinglePrecision)
{
    auto const record = square(0, 0, 10, 10);
    record->mean = 5 - 1e-12; // in the sixth band; 5 in single precision
    auto const lines = only(contour(*record, {.distance = 40, .reso = low, .colored = ten_colors}), "Line");
    EXPECT_EQ(item<std::int32_t>(lines.at(0), 4), record->col5);
    record->mean = 5 - 1e-6;
    auto const others = only(contour(*record, {.distance = 40, .reso = low, .colored = ten_colors}), "Line");
    EXPECT_EQ(item<std::int32_t>(others.at(0), 4), record->col6);
}

// --- Raster and marks ----------------------------------------------------------------------------------------------

namespace
{

/// Columns and rows of the raster, from the marks on its nodes.
std::pair<std::size_t, std::size_t> raster_of(panel& record, std::int16_t reso)
{
    auto const surface = Recorder::picture({0, 0, 4000, 3000});
    draw_on(*surface, record, {.distance = 1000, .marks = converted, .reso = reso});
    std::set<double> columns, rows;
    for (auto const& line : only(surface->take_record(), "Line"))
        if (item<double>(line, 2) - item<double>(line, 0) == 6 && item<double>(line, 1) == item<double>(line, 3)) {
            columns.insert(item<double>(line, 0));
            rows.insert(item<double>(line, 1));
        }
    return {columns.size(), rows.size()};
}

using Raster = std::pair<std::size_t, std::size_t>;

} // namespace

TEST(D2Contour, AWidePanelHasTheBaseCountInItsRows)
{
    auto const record = make_panel(400, 200, random_sites(100, 400, 200, 2));
    EXPECT_EQ(raster_of(*record, automatic), (Raster{22, 11}));
    EXPECT_EQ(raster_of(*record, low), (Raster{16, 8}));
    EXPECT_EQ(raster_of(*record, high), (Raster{50, 25})); // 21 by the sites, at least 25
}

TEST(D2Contour, ATallPanelHasTheBaseCountInItsColumns)
{
    auto const record = make_panel(100, 250, random_sites(100, 100, 250, 2));
    EXPECT_EQ(raster_of(*record, automatic), (Raster{11, 28})); // 27.5 to the even neighbour
    auto const square_panel = make_panel(100, 100, random_sites(400, 100, 100, 2));
    EXPECT_EQ(raster_of(*square_panel, high), (Raster{41, 41}));
}

TEST(D2Contour, ANodeAboveTheMeanShowsAPlusAndAnotherAMinus)
{
    auto const record = square(0, 5, 5, 10);
    auto const surface = Recorder::picture({0, 0, 106, 106});
    draw_on(*surface, *record, {.distance = 1000, .marks = converted, .reso = low});
    auto const lines = lines_of(surface->take_record());
    EXPECT_EQ(Texts(lines.end() - 5, lines.end()),
              (Texts{"Line 0 103 6 103 0 1 0", "Line 100 103 106 103 0 1 0", "Line 0 3 6 3 0 1 0",
                     "Line 100 3 106 3 0 1 0", "Line 103 0 103 6 0 1 0"}));
}

TEST(D2Contour, TheFirstBoxTakesTheFillInForceAndTheFrameNone)
{
    auto const record = square(0, 0, 10, 10);
    auto const surface = Recorder::picture({0, 0, 106, 106});
    surface->FillStyle = fill_solid;
    draw_on(*surface, *record, {});
    auto const boxes = only(surface->take_record(), "Box");
    ASSERT_EQ(boxes.size(), 2u);
    EXPECT_EQ(item<std::int32_t>(boxes[0], 7), fill_solid);
    EXPECT_EQ(item<std::int32_t>(boxes[1], 7), fill_none);
    EXPECT_EQ(surface->FillStyle, fill_solid);
}

// --- Failures ------------------------------------------------------------------------------------------------------

TEST(D2Contour, APanelWithoutWidthOrHeightFailsToTheCaller)
{
    auto const flat = square(0, 0, 10, 10);
    flat->TestSizeY = 0;
    EXPECT_EQ(failure_of([&] { contour(*flat); }), FailureKind::DivisionByZero);
    auto const narrow = square(0, 0, 10, 10);
    narrow->TestSizeX = 0;
    EXPECT_EQ(failure_of([&] { contour(*narrow); }), FailureKind::DivisionByZero);
}

TEST(D2Contour, MoreTrianglesThanSixteenBitsCountFailToTheCaller)
{
    auto const record = make_panel(100, 100, random_sites(4225, 100, 100, 1));
    EXPECT_EQ(failure_of([&] { contour(*record, {.reso = high}); }), FailureKind::Overflow); // 131 by 131 nodes
    EXPECT_EQ(failure_of([&] { contour(*record, {.reso = automatic}); }), std::nullopt);
    auto const smaller = make_panel(100, 100, random_sites(4095, 100, 100, 1));
    EXPECT_EQ(failure_of([&] { contour(*smaller, {.reso = high}); }), std::nullopt); // 128 by 128
}

TEST(D2Contour, AResolutionOfAnotherNumberHasNoRaster)
{
    EXPECT_EQ(failure_of([&] { contour(*square(0, 0, 10, 10), {.reso = 7}); }), FailureKind::SubscriptOutOfRange);
}

TEST(D2Contour, HostsCallItByName)
{
    auto const record = square(0, 0, 10, 10);
    auto const surface = Recorder::picture({0, 0, 106, 106});
    std::vector<Value> arguments = {
        static_cast<Object*>(surface.get()), 30, std::int16_t{3}, std::int16_t{0}, std::int16_t{0}, 0, 0, 0, 0, 0};
    call_member(*record, "D2Contour", arguments);
    EXPECT_EQ(only(surface->take_record(), "Line").size(), 6u);
}

} // namespace zendara::test
