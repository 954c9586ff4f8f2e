// The whole drawing of a histogram, call by call, against the one worked out in histogram_expected.hpp.

#include "render/plots/histogram_expected.hpp"

namespace zendara::test
{

namespace
{

std::vector<double> random_values(int count, unsigned seed)
{
    std::vector<double> values;
    for (auto const& site : random_sites(count, 300, 200, seed))
        values.push_back(site.z);
    return values;
}

/// Panels that differ in what matters to a histogram.
struct Sample {
    std::string name;
    std::vector<double> values;
    double lower_limit = 0, upper_limit = 0; // plot limits; equal ones for none
    double lcl = 0, ucl = 0;
};

std::vector<Sample> const samples = {
    {"four values", {1, 2, 4, 8}},
    {"negative values", {-3, -1.5, -2, -9, -4, -4.5, -4.25}},
    {"a peak over the bars", {5, 5.1, 4.9, 5.05, 4.95, 5, 5, 9, 1}},
    {"tiny values", {1e-7, 2e-7, 3e-7, 2.5e-7, 2.2e-7}},
    {"huge values", {1e9, 2e9, 3e9, 2.5e9, 2.2e9}},
    {"49 values", random_values(49, 1)},
    {"1000 values", random_values(1000, 2)},
    {"narrow plot limits", random_values(60, 3), 480, 520},
    {"wide plot limits", random_values(60, 3), 300, 700},
    {"control limits", random_values(60, 4), 0, 0, 470, 530},
    {"control limits outside", random_values(60, 4), 0, 0, 400, 700},
    {"no spread", std::vector<double>(20, 5.0)},
    {"no spread below zero", std::vector<double>(20, -5.0)},
};

std::unique_ptr<panel> panel_of(Sample const& sample)
{
    auto record = test::panel_of(sample.values);
    if (sample.lower_limit != sample.upper_limit)
        record->setMaximalMinial(sample.upper_limit, sample.lower_limit);
    record->vLcl = sample.lcl;
    record->vUcl = sample.ucl;
    record->ColS1 = 0x123456;
    record->ColS2 = 0x654321;
    return record;
}

void expect_on_screen(Sample const& sample, HistogramCall call)
{
    SCOPED_TRACE(sample.name + ", type " + std::to_string(call.plot_type));
    auto const record = panel_of(sample);
    auto const plot = inner_picture(call);
    auto const axes = Recorder::picture({0, 0, call.breite + 100, call.hoehe + 60});
    ExpectedHistogram const expected(*record, sample.values, call, *plot, *axes);
    call.run(*record, *plot, *axes);
    expect_same_drawing(plot->take_record(), expected.plot);
    expect_same_drawing(axes->take_record(), expected.axes);
    EXPECT_EQ(record->maxHauf, expected.full_scale);
    EXPECT_NEAR(record->GaussMax, expected.curve_factor, 1e-9 * expected.curve_factor);
    EXPECT_EQ(plot->DrawWidth, 1);
}

void expect_on_paper(Recorder& paper, Sample const& sample, HistogramCall call)
{
    SCOPED_TRACE(sample.name + ", type " + std::to_string(call.plot_type));
    auto const record = panel_of(sample);
    paper.ScaleMode(scale_pixels);
    paper.take_record();
    ExpectedHistogram const expected(*record, sample.values, call, paper, paper);
    call.run(*record, paper, paper);
    expect_same_drawing(paper.take_record(), expected.axes);
    EXPECT_EQ(paper.DrawWidth, 1);
}

struct HistogramPicture : testing::TestWithParam<std::int16_t> {
    void TearDown() override { set_histogram_limits({}); }

    HistogramCall call(double stat_resol) const
    {
        HistogramCall made;
        made.plot_type = GetParam();
        made.stat_resol = stat_resol;
        return made;
    }
};

} // namespace

TEST_P(HistogramPicture, OnTheScreenIsTheObviousOne)
{
    for (auto const& sample : samples)
        for (double const stat_resol : {10.0, 7.0, 1.0, 40.0, 7.6})
            expect_on_screen(sample, call(stat_resol));
}

TEST_P(HistogramPicture, OnTheScreenIsTheObviousOneInFractionsOfPixels)
{
    auto made = call(9);
    made.x0 = 44.4;
    made.y0 = 10.6;
    made.breite = 211.7;
    made.hoehe = 133.3;
    made.left = 2.25;
    made.top = 3.75;
    for (auto const& sample : samples)
        expect_on_screen(sample, made);
}

TEST_P(HistogramPicture, OnAPrinterIsTheObviousOne)
{
    for (auto const& sample : samples) {
        auto const narrow = Recorder::printer(2.4, 2.4);
        expect_on_paper(*narrow, sample, paper_call(GetParam()));
        auto const uneven = Recorder::printer(1.5, 3);
        expect_on_paper(*uneven, sample, paper_call(GetParam()));
    }
}

TEST_P(HistogramPicture, OnAPictureInThePlaceOfAPrinterIsTheObviousOne)
{
    for (auto const& sample : samples) {
        auto const picture = Recorder::picture({0, 0, 600, 500});
        expect_on_paper(*picture, sample, paper_call(GetParam()));
    }
}

TEST_P(HistogramPicture, WithTheControlLimitsOfTheProcessIsTheObviousOne)
{
    set_histogram_limits({true, 460, 1e6});
    for (auto const& sample : samples)
        expect_on_screen(sample, call(10));
    auto const printer = Recorder::printer(2.4, 2.4);
    expect_on_paper(*printer, samples[5], paper_call(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(InAllForms, HistogramPicture, testing::Values<std::int16_t>(1, 2, 3, 4),
                         [](auto const& tested) { return "Type" + std::to_string(tested.param); });

} // namespace zendara::test
