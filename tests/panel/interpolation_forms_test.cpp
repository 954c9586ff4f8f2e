#include "panel/panel_samples.hpp"
#include "zendara/panel/panel.hpp"
#include "zendara/panel/row_kernels.hpp"
#include "zendara/support/trap.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <random>
#include <span>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace zendara
{
namespace
{

using samples::bits;
using samples::Sample;
using samples::Site;

// --- A slow and obvious computation, written without the library ---------------------------------------------------

class ObviousInterpolation
{
public:
    explicit ObviousInterpolation(Sample const& sample)
        : sites_(sample.sites), s_(sample.size_x + sample.size_y),
          pitch_(std::sqrt(4 * sample.size_x * sample.size_y / static_cast<double>(sample.sites.size()))),
          half_(std::lrint(std::max(sample.size_x, sample.size_y) / pitch_))
    {
        for (std::size_t s = 0; s < sites_.size(); ++s)
            cells_[{cell(sites_[s].x), cell(sites_[s].y)}].push_back(s);
    }

    double at(double x, double y)
    {
        bool const by_buckets = sites_.size() >= 10;
        d_.fill(by_buckets ? 4 * s_ : 3 * s_);
        n_.fill(0);
        if (by_buckets)
            search(x, y);
        else
            for (std::size_t s = 0; s < sites_.size(); ++s)
                offer(x, y, s);
        if (d_[0] == 0)
            return sites_[n_[0]].Z;
        double const z1 = sites_[n_[0]].Z, z2 = sites_[n_[1]].Z, z3 = sites_[n_[2]].Z, z4 = sites_[n_[3]].Z;
        double const q1 = d_[0] * d_[0], q2 = d_[1] * d_[1], q3 = d_[2] * d_[2], q4 = d_[3] * d_[3];
        return (z1 / q1 + z2 / q2 + z3 / q3 + z4 / q4) / (1 / q1 + 1 / q2 + 1 / q3 + 1 / q4);
    }

private:
    long cell(double coordinate) const { return std::lrint(coordinate / pitch_ + static_cast<double>(half_)); }

    void search(double x, double y)
    {
        long const cx = cell(x), cy = cell(y);
        double const px = x / pitch_ - std::floor(x / pitch_), py = y / pitch_ - std::floor(y / pitch_);
        double r = std::min(px < 0.5 ? px : 1 - px, py < 0.5 ? py : 1 - py);
        offer_all(x, y, cx, cy);
        for (long ring = 1; d_[3] > r * r; ++ring) {
            r = r + pitch_;
            for (long k = -ring; k < ring; ++k)
                offer_all(x, y, cx + k, cy + ring);
            for (long k = ring; k > -ring; --k)
                offer_all(x, y, cx + ring, cy + k);
            for (long k = ring; k > -ring; --k)
                offer_all(x, y, cx + k, cy - ring);
            for (long k = -ring; k < ring; ++k)
                offer_all(x, y, cx - ring, cy + k);
        }
    }

    void offer_all(double x, double y, long i, long j)
    {
        auto const found = cells_.find({i, j});
        if (found != cells_.end())
            for (std::size_t const s : found->second)
                offer(x, y, s);
    }

    void offer(double x, double y, std::size_t s)
    {
        double d = std::sqrt((x - sites_[s].x) * (x - sites_[s].x) + (y - sites_[s].y) * (y - sites_[s].y));
        if (d < d_[0]) {
            d_[3] = d_[2], n_[3] = n_[2];
            d_[2] = d_[1], n_[2] = n_[1];
            d_[1] = d_[0], n_[1] = n_[0];
            d_[0] = d, n_[0] = s;
            d = 2 * s_;
        }
        if (d < d_[1]) {
            d_[3] = d_[2], n_[3] = n_[2];
            d_[2] = d_[1], n_[2] = n_[1];
            d_[1] = d, n_[1] = s;
            d = 2 * s_;
        }
        if (d < d_[2]) {
            d_[3] = d_[2], n_[3] = n_[2];
            d_[2] = d, n_[2] = s;
            d = 2 * s_;
        }
        if (d < d_[3])
            d_[3] = d, n_[3] = s;
    }

    std::vector<Site> sites_;
    double s_, pitch_;
    long half_;
    std::map<std::pair<long, long>, std::vector<std::size_t>> cells_;
    std::array<double, 4> d_{};
    std::array<std::size_t, 4> n_{};
};

// --- Points to look at ---------------------------------------------------------------------------------------------

struct Points {
    std::vector<double> x, y;
};

// Rows over the panel and beyond: a raster, odd places, the sites' own coordinates and the middles between them.
Points friendly_points(Sample const& sample, std::size_t count)
{
    Points points;
    std::mt19937_64 random(count);
    std::uniform_real_distribution<double> part(-0.7, 0.7);
    std::uniform_int_distribution<std::size_t> site(0, sample.sites.size() - 1);
    for (std::size_t i = 0; i < count; ++i) {
        double const place = (static_cast<double>(i) + 0.5) / static_cast<double>(count) - 0.5;
        points.x.push_back(place * sample.size_x);
        points.y.push_back(part(random) * sample.size_y);
        if (i % 4 == 0)
            points.y.back() = place * sample.size_y;
        if (i % 4 == 1)
            points.y.back() = sample.sites[site(random)].y;
        if (i % 4 == 2)
            points.y.back() = (sample.sites[site(random)].y + sample.sites[site(random)].y) / 2;
    }
    for (std::size_t i = 0; i < count / 4; ++i) {
        points.x.push_back(sample.sites[site(random)].x);
        points.x.push_back((sample.sites[site(random)].x + sample.sites[site(random)].x) / 2);
        points.x.push_back(2 * part(random) * sample.size_x);
    }
    return points;
}

// Few, since a step that fails takes its time.
Points hostile_points(Sample const& sample)
{
    double const infinity = std::numeric_limits<double>::infinity();
    double const nan = std::numeric_limits<double>::quiet_NaN();
    double const size = std::abs(sample.size_x) + std::abs(sample.size_y);
    std::vector<double> const values = {0.0,       -0.0,  sample.sites[0].x, size,  -size, 3 * size,
                                        1e-300,    -1e18, 1e5 * size,        1e154, 1e200, 1e308,
                                        -infinity, nan};
    return {values, values};
}

std::vector<RowForm> forms_that_run_here()
{
    std::vector<RowForm> forms;
    for (RowForm const form : row_forms)
        if (can_run(form))
            forms.push_back(form);
    return forms;
}

/// The values at all points as one form finds them, row by row.
std::vector<double> values_by_form(panel const& record, RowForm form, Points const& points)
{
    std::size_t const columns = points.x.size();
    std::vector<double> values(columns * points.y.size());
    for (std::size_t row = 0; row < points.y.size(); ++row)
        interpolate_row(record, form, points.x, points.y[row], std::span(values).subspan(row * columns, columns));
    return values;
}

template <class At> std::vector<double> values_by_point(Points const& points, At&& at)
{
    std::vector<double> values;
    for (double const y : points.y)
        for (double const x : points.x)
            values.push_back(at(x, y));
    return values;
}

/// Some five of the points where two forms differ, in words.
std::string differences(Points const& points, std::vector<double> const& expected, std::vector<double> const& actual)
{
    std::ostringstream text;
    int count = 0;
    for (std::size_t k = 0; k < expected.size() && count < 5; ++k)
        if (bits(expected[k]) != bits(actual[k])) {
            ++count;
            text << "at " << points.x[k % points.x.size()] << ", " << points.y[k / points.x.size()] << ' ' << actual[k]
                 << " instead of " << expected[k] << '\n';
        }
    return text.str();
}

void expect_forms_equal(panel const& record, Points const& points, std::string const& name,
                        std::vector<RowForm> const& forms = forms_that_run_here())
{
    std::vector<double> const expected =
        values_by_point(points, [&](double x, double y) { return interpolation_step_by_step(record, x, y); });
    for (RowForm const form : forms)
        EXPECT_EQ(differences(points, expected, values_by_form(record, form, points)), "")
            << name << ", " << name_of(form);
    EXPECT_EQ(differences(points, expected,
                          values_by_point(points, [&](double x, double y) { return record.Interpolation(x, y); })),
              "")
        << name << ", point by point";
}

// --- Tests ---------------------------------------------------------------------------------------------------------

TEST(InterpolationForms, StepByStepAgreesWithAnObviousComputation)
{
    for (std::uint64_t const seed : {1u, 2u})
        for (Sample const& sample : samples::random_panels(seed)) {
            if (sample.name == "squares that vanish" || sample.name == "large values" || sample.size_x > 1e100)
                continue; // here faults are part of the rule
            panel record;
            samples::fill(record, sample);
            ObviousInterpolation obvious(sample);
            Points const points = friendly_points(sample, 24);
            for (double const y : points.y)
                for (double const x : points.x) {
                    double const expected = obvious.at(x, y);
                    if (!std::isfinite(expected))
                        continue;
                    ASSERT_EQ(interpolation_step_by_step(record, x, y), expected)
                        << sample.name << " at " << x << ", " << y;
                }
        }
}

TEST(InterpolationForms, AreEqualOnRandomPanels)
{
    for (std::uint64_t const seed : {11u, 12u})
        for (Sample const& sample : samples::random_panels(seed)) {
            panel record;
            samples::fill(record, sample);
            expect_forms_equal(record, friendly_points(sample, 32), sample.name);
            expect_forms_equal(record, hostile_points(sample), sample.name);
        }
}

TEST(InterpolationForms, AreEqualOnMeasuredPanels)
{
    std::vector<samples::DataSet> const sets = samples::data_sets();
    if (sets.empty())
        GTEST_SKIP() << "no data folder";
    for (samples::DataSet const& set : sets) {
        panel record;
        samples::fill(record, set.sample);
        expect_forms_equal(record, friendly_points(set.sample, 64), set.sample.name);
        expect_forms_equal(record, hostile_points(set.sample), set.sample.name);
    }
}

TEST(InterpolationForms, StepByStepAgreesWithAnObviousComputationOnMeasuredPanels)
{
    std::vector<samples::DataSet> const sets = samples::data_sets();
    if (sets.empty())
        GTEST_SKIP() << "no data folder";
    for (samples::DataSet const& set : sets) {
        panel record;
        samples::fill(record, set.sample);
        ObviousInterpolation obvious(set.sample);
        Points const points = friendly_points(set.sample, 24);
        for (double const y : points.y)
            for (double const x : points.x)
                ASSERT_EQ(interpolation_step_by_step(record, x, y), obvious.at(x, y))
                    << set.sample.name << " at " << x << ", " << y;
    }
}

TEST(InterpolationForms, AreEqualWhereTheTableIsOlderThanTheSites)
{
    for (Sample const& sample : samples::random_panels(21)) {
        if (sample.sites.size() < 10)
            continue;
        Points points = friendly_points(sample, 8);
        points.x.insert(points.x.end(), {-1e18, 1e200, std::numeric_limits<double>::infinity()});
        points.y.push_back(1e200);

        panel record;
        samples::fill(record, sample);
        Site const& last = sample.sites.back();
        record.SetGridValueD(3, last.x, last.y, 77);
        expect_forms_equal(record, points, sample.name + ", a site moved");

        record.reset();
        record.SetNop(10);
        for (std::size_t s = 10; s-- > 0;)
            record.SetGridValue(sample.sites[s].x, sample.sites[s].y, sample.sites[s].Z);
        expect_forms_equal(record, points, sample.name + ", fewer sites under the old lists");

        record.SetNop(500);
        expect_forms_equal(record, points, sample.name + ", more sites under the old lists");
    }
}

TEST(InterpolationForms, AreEqualAfterAFailedBuildAndOnOddSizes)
{
    for (auto const& [size_x, size_y] :
         {std::pair{0.0, 50.0}, {50.0, 0.0}, {0.0, 0.0}, {-20.0, -30.0}, {-1e-3, -1e3}, {1e308, 1e308}, {7.0, 9.0}}) {
        Sample sample = samples::random_panels(31)[5];
        panel record;
        samples::fill(record, sample);
        Points points = friendly_points(sample, 12);
        points.x.insert(points.x.end(), {-1e18, 1e200, std::numeric_limits<double>::infinity()});
        points.y.push_back(1e200);

        record.SizeX = size_x;
        record.SizeY = size_y;
        expect_forms_equal(record, points, "size changed after the build");
        trap({nullptr, record, "test", "statistics"}, [&] { record.MaxMin(); });
        expect_forms_equal(record, points, "size changed ahead of a build");
    }
}

TEST(InterpolationForms, AreEqualBeforeMaxMin)
{
    for (Sample const& sample : samples::random_panels(41)) {
        panel record;
        samples::store(record, sample);
        expect_forms_equal(record, friendly_points(sample, 12), sample.name);
        expect_forms_equal(record, hostile_points(sample), sample.name);
    }
}

class EachRowForm : public testing::TestWithParam<RowForm>
{
};

TEST_P(EachRowForm, EqualsTheStepByStepSearch)
{
    if (!can_run(GetParam()))
        GTEST_SKIP() << "this machine or this build cannot run the row kernel in the form: " << name_of(GetParam());
    for (Sample const& sample : samples::random_panels(51)) {
        panel record;
        samples::fill(record, sample);
        expect_forms_equal(record, friendly_points(sample, 16), sample.name, {GetParam()});
        expect_forms_equal(record, hostile_points(sample), sample.name, {GetParam()});
    }
}

INSTANTIATE_TEST_SUITE_P(RowForms, EachRowForm, testing::ValuesIn(row_forms), [](auto const& info) {
    std::string name(name_of(info.param));
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
});

TEST(RowForms, ThePlainOneRunsEverywhereAndTheBestOneHere)
{
    EXPECT_TRUE(can_run(RowForm::Plain));
    EXPECT_TRUE(can_run(best_row_form()));
    for (RowForm const form : forms_that_run_here())
        EXPECT_LE(kernels_of(form).wide_lanes, kernels_of(best_row_form()).wide_lanes) << name_of(form);
}

TEST(RowForms, EachHasKernelsOfItsOwnWidth)
{
    for (RowForm const form : forms_that_run_here()) {
        std::size_t const narrow = form == RowForm::FourLanes ? 4 : form == RowForm::TwoLanes ? 2 : 1;
        EXPECT_EQ(kernels_of(form).narrow_lanes, narrow) << name_of(form);
    }
}

TEST(MaxMin, AgreesWithTheStatisticsOfTheMeasuredPanels)
{
    std::vector<samples::DataSet> const sets = samples::data_sets();
    if (sets.empty())
        GTEST_SKIP() << "no data folder";
    for (samples::DataSet const& set : sets) {
        panel record;
        samples::fill(record, set.sample);
        EXPECT_EQ(record.mini, set.least) << set.sample.name;
        EXPECT_EQ(record.maxi, set.most) << set.sample.name;
        EXPECT_NEAR(record.mean, set.mean, 1e-12 * std::abs(set.mean)) << set.sample.name;
        EXPECT_NEAR(record.StdDev, set.deviation, 1e-12 * set.deviation) << set.sample.name;
    }
}

} // namespace
} // namespace zendara
