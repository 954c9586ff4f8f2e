#include "listening_container.hpp"
#include "render/plots/histogram_drawing.hpp"
#include "zendara/render/plots/histogram_plot.hpp"
#include "zendara/support/process_state.hpp"

#include <set>

namespace zendara::test
{

namespace
{

/// Leaves no limits behind for other tests.
struct Histogram : testing::Test {
    void TearDown() override { set_histogram_limits({}); }
};

using Texts = std::vector<std::string>;

constexpr double repair = 4.8;
constexpr std::int16_t standing = 1, from_left = 3, from_right = 4;

std::vector<TraceRecord> bars_of(HistogramDrawing const& drawing)
{
    return only(drawing.plot, "FillBox");
}

HistogramCall call_of_type(std::int16_t plot_type, double stat_resol = 10)
{
    HistogramCall call;
    call.plot_type = plot_type;
    call.stat_resol = stat_resol;
    return call;
}

/// The counts behind the bars of an upright histogram without a curve, from bin 1 on.
std::vector<int> counts_of(std::vector<double> const& values, double low, double high, double stat_resol,
                           std::int16_t plot_type)
{
    auto const record = panel_of(values);
    record->setMaximalMinial(high, low);
    record->StdDev = 0; // the curve would raise the full scale
    auto const drawing = draw_on_screen(*record, call_of_type(plot_type, stat_resol));
    std::vector<int> counts(static_cast<std::size_t>(stat_resol));
    bool const is_upright = plot_type <= 2;
    HistogramCall const call;
    for (auto const& bar : bars_of(drawing)) {
        double const place = is_upright ? number(bar, 0) / call.breite : 1 - number(bar, 1) / call.hoehe;
        double const length =
            is_upright ? std::abs(number(bar, 3) - number(bar, 1)) / call.hoehe : number(bar, 0) / call.breite;
        counts.at(static_cast<std::size_t>(std::lround(place * stat_resol))) =
            static_cast<int>(std::lround(length * record->maxHauf));
    }
    return counts;
}

} // namespace

// --- Bins ----------------------------------------------------------------------------------------------------------

TEST_F(Histogram, EqualValuesAllGoToTheLastBin)
{
    for (double const value : {5.0, -5.0, 0.0}) {
        auto const upright = panel_of(std::vector<double>(6, value));
        auto const standing = bars_of(draw_on_screen(*upright, call_of_type(1)));
        ASSERT_EQ(standing.size(), 1u);
        EXPECT_NEAR(number(standing[0], 0), 299 * 0.9, 1e-9);
        EXPECT_EQ(upright->maxHauf, 6);

        auto const crosswise = panel_of(std::vector<double>(6, value));
        auto const lying = bars_of(draw_on_screen(*crosswise, call_of_type(3)));
        ASSERT_EQ(lying.size(), 1u);
        EXPECT_NEAR(number(lying[0], 1), 199 * 0.1, 1e-9);
    }
}

TEST_F(Histogram, ATieOfTwoBinsGoesToTheEvenOne)
{
    // Bins of width 1 from 0 on: 1 gives 1.5 and 2 gives 2.5, both 2.
    for (std::int16_t const type : {standing, from_left})
        EXPECT_EQ(counts_of({0, 1, 2, 3, 4, 8}, 0, 8, 8, type), (std::vector{1, 2, 0, 2, 0, 0, 0, 1})) << type;
}

TEST_F(Histogram, ValuesBeyondPlotLimitsFillTheEndBinsOfTheUprightFormAlone)
{
    std::vector<double> const values = {-5, -1, 0, 2.2, 4, 5, 9, 9};
    EXPECT_EQ(counts_of(values, 0, 4, 4, 1), (std::vector{3, 0, 1, 4}));
    EXPECT_EQ(counts_of(values, 0, 4, 4, 2), (std::vector{3, 0, 1, 4}));
    EXPECT_EQ(counts_of(values, 0, 4, 4, 3), (std::vector{1, 0, 1, 1}));
}

TEST_F(Histogram, BinsAgreeWithAPlainSearchForTheNearestMiddle)
{
    // Off the borders, the bin of a value is the one whose middle is nearest.
    UprightBins const upright{10, 20, 1.0F, 10};
    CrosswiseBins const crosswise{10, 20, 1.0, 10};
    for (auto const& site : random_sites(500, 300, 200, 9)) {
        double const value = 10 + (site.z - 450) / 10;
        int nearest = 1;
        for (int bin = 2; bin <= 10; ++bin)
            if (std::abs(value - (9.5 + bin)) < std::abs(value - (9.5 + nearest)))
                nearest = bin;
        EXPECT_EQ(upright(value), nearest) << value;
        EXPECT_EQ(crosswise(value), nearest) << value;
    }
    EXPECT_EQ(crosswise(9.99), no_bin);
    EXPECT_EQ(crosswise(20.01), no_bin);
}

// --- Few values or no spread ---------------------------------------------------------------------------------------

TEST_F(Histogram, ThreeValuesShowNothingButTheLabelsOfTheValueAxis)
{
    auto const record = panel_of({1, 2, 4});
    auto const drawing = draw_on_screen(*record, call_of_type(1, 3));
    EXPECT_TRUE(drawing.plot.empty());
    EXPECT_EQ(texts_of(drawing.axes), (Texts{"1.0000", "2.0000", "3.0000", "4.0000"}));
    EXPECT_TRUE(only(drawing.axes, "Line").empty());
    EXPECT_EQ(record->GaussMax, 0); // its stage has run, with bins of no width
}

TEST_F(Histogram, ThreeValuesShowTheCountAxisOfThePlotBefore)
{
    for (std::int16_t const type : {standing, from_left}) {
        auto const record = panel_of({1, 2, 4});
        record->maxHauf = 5;
        auto const drawing = draw_on_screen(*record, call_of_type(type));
        EXPECT_EQ(only(drawing.axes, "Line").size(), 5u) << type;
        EXPECT_TRUE(bars_of(drawing).empty());
        EXPECT_TRUE(only(drawing.plot, "Line").empty());
        if (type == from_left) {
            EXPECT_EQ(texts_of(drawing.axes), (Texts{"0", "5"}));
        }
    }
}

TEST_F(Histogram, APanelWithoutValuesFailsNowhere)
{
    for (std::int16_t type = 1; type <= 4; ++type) {
        panel fresh;
        auto call = call_of_type(type);
        EXPECT_TRUE(bars_of(draw_on_screen(fresh, call)).empty());
        EXPECT_EQ(call.x0, 45); // no failure has reduced it
    }
}

TEST_F(Histogram, WithoutSpreadThereAreBarsAndLabelsAndNoCurve)
{
    for (std::int16_t type = 1; type <= 4; ++type) {
        auto const record = panel_of({7, 7, 7, 7});
        auto const drawing = draw_on_screen(*record, call_of_type(type));
        EXPECT_EQ(bars_of(drawing).size(), 1u);
        EXPECT_TRUE(only(drawing.plot, "Line").empty());
        EXPECT_FALSE(texts_of(drawing.axes).empty());
        EXPECT_EQ(record->GaussMax, 1);
    }
}

// --- Count axis ----------------------------------------------------------------------------------------------------

TEST_F(Histogram, EveryTickOfTheCountAxisIsLabelledHoweverNarrow)
{
    std::vector<double> values(200, 1.0);
    values.push_back(2);
    auto const record = panel_of(values);
    record->StdDev = 0;
    auto const texts = texts_of(draw_on_screen(*record, call_of_type(1, 2)).axes);
    ASSERT_GE(texts.size(), 200u);
    for (std::size_t i = 0; i < 200; ++i)
        EXPECT_EQ(texts[i], std::to_string(i + 1));
}

TEST_F(Histogram, HangingBarsAreCountedFromTheUpperEdge)
{
    auto const record = panel_of({1, 1, 1, 2});
    record->StdDev = 0;
    auto const texts = texts_of(draw_on_screen(*record, call_of_type(2, 2)).axes);
    EXPECT_EQ(texts[0], "2"); // at the lowest tick
    EXPECT_EQ(texts[1], "1");
    EXPECT_EQ(texts[2], "0");
}

TEST_F(Histogram, APeakAboveTheBarsRaisesTheFullScale)
{
    auto const record = panel_of({5, 5.1, 4.9, 5.05, 4.95, 5, 5, 9, 1});
    draw_on_screen(*record, call_of_type(1, 40));
    auto const low_scale = record->maxHauf;
    record->setMaximalMinial(1000, -1000);
    draw_on_screen(*record, call_of_type(1, 40));
    EXPECT_LT(low_scale, 9);
    double const dz = 50 / record->StdDev / 20;
    double sum = 0;
    for (int k = 0; k <= 10; ++k)
        sum += std::exp(-0.5 * (k * dz) * (k * dz)) / std::sqrt(2 * std::acos(-1.0));
    EXPECT_EQ(record->maxHauf, std::lround(2 * sum * dz * 9));
    EXPECT_GT(record->maxHauf, 9);
    EXPECT_NEAR(record->GaussMax, 2 * sum * dz * 9 / 0.4, 1e-9);
}

// --- Curve and marks -----------------------------------------------------------------------------------------------

TEST_F(Histogram, TheCurveGoesThroughItsMarks)
{
    auto const record = panel_of({1, 2, 3, 3, 3, 4, 5, 9, -3});
    auto const drawing = draw_on_screen(*record, call_of_type(1, 5));
    auto const lines = lines_of(drawing.plot, QBColor(4), 2);
    ASSERT_GT(lines.size(), 280u);
    int marks = 0;
    for (auto const& mark : lines) {
        if (number(mark, 0) != number(mark, 2))
            continue;
        ++marks;
        for (auto const& piece : lines) {
            bool const is_at_mark = number(piece, 0) != number(piece, 2) && number(piece, 0) <= number(mark, 0) &&
                                    number(mark, 0) <= number(piece, 2);
            if (is_at_mark) {
                EXPECT_NEAR(number(mark, 1), (number(piece, 1) + number(piece, 3)) / 2, 2);
            }
        }
        EXPECT_EQ(number(mark, 3), 209); // ten units below the axis
    }
    EXPECT_EQ(marks, 3);
}

TEST_F(Histogram, MarksAtTheEndsOfTheAxisOrBeyondItAreLeftOutWithTheirLabels)
{
    auto const record = panel_of({10, 20, 30, 40});
    record->mean = 10; // at the lower end
    record->StdDev = 10;
    auto const texts = texts_of(draw_on_screen(*record, call_of_type(3)).axes);
    EXPECT_EQ(texts, (Texts{"1s", "2s", "0", "1"}));
}

TEST_F(Histogram, WithoutTheMeanNoMarkIsInArial)
{
    auto const record = panel_of({10, 20, 30, 40});
    record->mean = 0;
    record->StdDev = 15;
    HistogramCall call;
    auto const plot = inner_picture(call);
    auto const axes = Recorder::picture({});
    axes->Font = {"Courier", 20};
    call.run(*record, *plot, *axes);
    std::set<std::string> fonts;
    for (auto const& text : only(axes->take_record(), "Text"))
        if (item<std::int32_t>(text, 3) == QBColor(4))
            fonts.insert(item<std::string>(text, 4) + " " + item<std::string>(text, 0));
    EXPECT_EQ(fonts, (std::set<std::string>{"Symbol 1s", "Symbol 2s"}));
    EXPECT_EQ(axes->Font, (FontFace{"Symbol", 8}));
}

TEST_F(Histogram, OnTheScreenTheTextsAfterTheCurveAreInSymbolAndOnAPrinterInArial)
{
    auto const record = panel_of({10, 20, 30, 40, 50});
    record->vLcl = 12;
    record->vUcl = 48;
    auto const font_of = [](std::vector<TraceRecord> const& records, std::string const& text) {
        for (auto const& written : only(records, "Text"))
            if (item<std::string>(written, 0) == text)
                return item<std::string>(written, 4);
        return std::string("not written");
    };
    auto const screen = draw_on_screen(*record, {});
    EXPECT_EQ(font_of(screen.axes, "LCL"), "Symbol");
    EXPECT_EQ(font_of(screen.axes, "Mean"), "Arial");
    EXPECT_EQ(font_of(screen.axes, "-1s"), "Symbol");
    auto const printer = Recorder::printer(2.4, 2.4);
    EXPECT_EQ(font_of(draw_on(*printer, *record, paper_call(1)), "UCL"), "Arial");
}

TEST_F(Histogram, TheCurveIsLeftOutAboveTheFullScale)
{
    auto const record = panel_of({10, 20, 30, 40, 50});
    record->mean = 10; // highest at the lower end, where the first piece begins
    record->StdDev = 1e-3;
    auto const drawing = draw_on_screen(*record, {});
    for (auto const& line : lines_of(drawing.plot, QBColor(4), 2))
        EXPECT_GE(std::min(number(line, 1), number(line, 3)), -1e-9);
}

// --- Control limits ------------------------------------------------------------------------------------------------

TEST_F(Histogram, EqualLimitsOfThePanelAreNoLimits)
{
    auto const record = panel_of({10, 20, 30, 40, 50});
    record->vLcl = record->vUcl = 25;
    auto const texts = texts_of(draw_on_screen(*record, {}).axes);
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "LCL"), 0);
}

TEST_F(Histogram, TheUprightFormShowsTheLimitsOfThePanelAlone)
{
    auto const record = panel_of({10, 20, 30, 40, 50});
    record->vLcl = 15;
    record->vUcl = 70; // beyond the axis
    set_histogram_limits({true, 22, 33});
    auto const drawing = draw_on_screen(*record, {});
    auto const limits = lines_of(drawing.plot, QBColor(1), 2);
    ASSERT_EQ(limits.size(), 2u);
    EXPECT_NEAR(number(limits[0], 0), 299.0 * 5 / 40, 1e-9);
    EXPECT_NEAR(number(limits[1], 0), 299.0 * 60 / 40, 1e-9);
    EXPECT_EQ(number(limits[0], 1), 0);
    EXPECT_EQ(number(limits[0], 3), 199);
}

TEST_F(Histogram, OnPaperTheLimitsStopShortByTheTop)
{
    auto const record = panel_of({10, 20, 30, 40, 50});
    record->vLcl = 15;
    record->vUcl = 35;
    auto const printer = Recorder::printer(2.4, 2.4);
    auto const limits = lines_of(draw_on(*printer, *record, paper_call(1)), QBColor(1), 4);
    ASSERT_EQ(limits.size(), 2u);
    EXPECT_EQ(number(limits[0], 1), 400);  // 960 / 2.4
    EXPECT_EQ(number(limits[0], 3), 1500); // 3600 / 2.4, not 400 more
}

TEST_F(Histogram, TheCrosswiseFormShowsTheLimitsOfTheProcessAlone)
{
    auto const record = panel_of({10, 20, 30, 40, 50});
    record->vLcl = 15;
    record->vUcl = 35;
    EXPECT_TRUE(lines_of(draw_on_screen(*record, call_of_type(3)).plot, 0x800000, 1).empty());
    set_histogram_limits({true, 20, 20}); // equal ones count as well
    auto const drawing = draw_on_screen(*record, call_of_type(3));
    auto const limits = lines_of(drawing.plot, 0x800000, 1);
    ASSERT_EQ(limits.size(), 2u);
    EXPECT_EQ(text_of(limits[0]), "Line 299 149.25 0 149.25 8388608 1 0"); // 199 * 3 / 4 from the lower end
    auto const lcl = only(drawing.axes, "Text").at(0);
    EXPECT_EQ(item<std::string>(lcl, 4), "MS Sans Serif");
    EXPECT_EQ(item<std::int32_t>(lcl, 3), 0xFF0000);
    EXPECT_NEAR(number(lcl, 2), 149.25 - 200 / 15.0 / 2, 1e-9);
}

// --- What a run leaves behind --------------------------------------------------------------------------------------

TEST_F(Histogram, OnTheScreenTheUprightFormLeavesTheArgumentsAsTheyWere)
{
    auto const record = panel_of({10, 20, 30, 40, 50});
    HistogramCall call;
    draw_on_screen(*record, call);
    EXPECT_EQ(call.x0, 45);
    EXPECT_EQ(call.breite, 299);
    EXPECT_EQ(call.hoehe, 199);
    EXPECT_EQ(call.laenge, 4);
}

TEST_F(Histogram, OnTheScreenTheCrosswiseFormExchangesWidthAndHeight)
{
    auto const record = panel_of({10, 20, 30, 40, 50});
    auto call = call_of_type(4);
    draw_on_screen(*record, call);
    EXPECT_EQ(call.breite, 199);
    EXPECT_EQ(call.hoehe, 299);
    EXPECT_EQ(call.x0, 45);
}

TEST_F(Histogram, OnPaperTheArgumentsComeBackInPixels)
{
    auto const record = panel_of({10, 20, 30, 40, 50});
    auto const printer = Recorder::printer(2, 3);
    auto upright = paper_call(1);
    upright.run(*record, *printer, *printer);
    EXPECT_EQ(upright.x0, 600);
    EXPECT_EQ(upright.left, 600);
    EXPECT_EQ(upright.breite, 2400);
    EXPECT_EQ(upright.y0, 320);
    EXPECT_EQ(upright.top, 320);
    EXPECT_EQ(upright.hoehe, 1200);
    EXPECT_EQ(upright.laenge, 20);
    auto crosswise = paper_call(3);
    crosswise.run(*record, *printer, *printer);
    EXPECT_EQ(crosswise.breite, 1200);
    EXPECT_EQ(crosswise.hoehe, 2400);
    EXPECT_EQ(crosswise.laenge, 20);
    EXPECT_EQ(printer->FillColor, QBColor(2));
}

TEST_F(Histogram, OnPaperNothingIsRefreshed)
{
    auto const record = panel_of({10, 20, 30, 40, 50});
    for (std::int16_t type = 1; type <= 4; ++type) {
        auto const printer = Recorder::printer(2.4, 2.4);
        EXPECT_TRUE(only(draw_on(*printer, *record, paper_call(type)), "Refresh").empty());
    }
}

TEST_F(Histogram, NeitherSurfaceIsCleared)
{
    auto const record = panel_of({10, 20, 30, 40, 50});
    auto const drawing = draw_on_screen(*record, {});
    EXPECT_TRUE(only(drawing.plot, "Cls").empty());
    EXPECT_TRUE(only(drawing.axes, "Cls").empty());
}

TEST_F(Histogram, TypesThreeAndFourAreTheCrosswiseForms)
{
    auto const record = panel_of({10, 20, 30, 40, 50});
    for (std::int16_t const type : {from_left, from_right}) {
        auto const by_type = draw_on_screen(*record, call_of_type(type));
        HistogramCall call;
        auto const plot = inner_picture(call);
        auto const axes = Recorder::picture({});
        std::int16_t right = type == 4 ? -1 : 0;
        record->Statistic_Quer(right, *plot, *axes, call.x0, call.y0, call.breite, call.hoehe, 10, call.laenge,
                               call.left, call.top, call.show_disp);
        EXPECT_EQ(text_of(by_type.plot), text_of(plot->take_record()));
        EXPECT_EQ(text_of(by_type.axes), text_of(axes->take_record()));
    }
}

TEST_F(Histogram, ACurveOnTheScreenBringsTheDefaultPrinterToItsInitialState)
{
    auto const printer = Recorder::printer(2.4, 2.4);
    ListeningContainer container;
    container.printer = printer.get();
    auto const listened = [&](std::vector<double> const& values) {
        auto record = panel_of(values);
        record->container = &container;
        return record;
    };
    auto const spoil = [&] {
        printer->FontTransparent = false;
        printer->Font = {"Courier", 20};
        printer->DrawWidth = printer->DrawStyle = printer->FillStyle = 5;
        printer->FillColor = printer->ForeColor = 77;
    };
    for (std::int16_t type = 1; type <= 4; ++type) {
        spoil();
        draw_on_screen(*listened({10, 20, 30, 40}), call_of_type(type));
        EXPECT_TRUE(printer->FontTransparent);
        EXPECT_EQ(printer->Font, (FontFace{"Arial", 8}));
        EXPECT_EQ(printer->DrawWidth, 1);
        EXPECT_EQ(printer->DrawStyle, 0);
        EXPECT_EQ(printer->FillStyle, 0);
        EXPECT_EQ(printer->FillColor, QBColor(15));
        EXPECT_EQ(printer->ForeColor, QBColor(0));
        spoil();
        draw_on_screen(*listened({7, 7, 7, 7}), call_of_type(type)); // no curve
        EXPECT_EQ(printer->ForeColor, 77);
    }
    auto const other = Recorder::printer(2.4, 2.4);
    draw_on(*other, *listened({10, 20, 30, 40}), paper_call(1));
    EXPECT_EQ(printer->ForeColor, 77);
}

// --- Failures ------------------------------------------------------------------------------------------------------

TEST_F(Histogram, AValueJustUnderTheMaximumMayFallBehindTheLastBinAndIsNotCounted)
{
    // Ten bins of 0.7; in single precision they are narrower, so that the value lies in the eleventh.
    double const just_under = std::nextafter(7.0, 0.0);
    auto const record = panel_of({0, 7, 7, just_under, 3.4});
    record->StdDev = 0;
    HistogramCall call;
    call.left = 9.6;
    call.top = 4.8;
    call.laenge = 12;
    auto const drawing = draw_on_screen(*record, call);
    EXPECT_EQ(record->maxHauf, 2); // the two at 7
    EXPECT_EQ(bars_of(drawing).size(), 3u);
    EXPECT_DOUBLE_EQ(call.x0, 45 / repair);
    EXPECT_DOUBLE_EQ(call.y0, 12 / repair);
    EXPECT_DOUBLE_EQ(call.hoehe, 199 / repair);
    EXPECT_EQ(call.breite, 299); // left alone
    EXPECT_DOUBLE_EQ(call.left, 2);
    EXPECT_DOUBLE_EQ(call.top, 1);
    EXPECT_EQ(call.laenge, 2); // 2.5, half to even
    // In the double precision of the crosswise form it is in the tenth bin.
    auto crosswise = call_of_type(3);
    draw_on_screen(*record, crosswise);
    EXPECT_EQ(record->maxHauf, 3);
    EXPECT_EQ(crosswise.x0, 45);
}

TEST_F(Histogram, AfterAFailureTheDrawingGoesOnInTheReducedScale)
{
    auto const record = panel_of({0, 7, 7, std::nextafter(7.0, 0.0), 3.4});
    record->StdDev = 0;
    auto const drawing = draw_on_screen(*record, call_of_type(1));
    // The edges were found before the failure: bottom 211, ticks from 41 on.
    auto const ticks = only(drawing.axes, "Line");
    EXPECT_EQ(number(ticks.at(0), 0), 41);
    EXPECT_DOUBLE_EQ(number(ticks.at(0), 1), 211 - 199 / repair / 2);
    EXPECT_DOUBLE_EQ(number(ticks.at(0), 2), 45 / repair);
    auto const last_bar = bars_of(drawing).at(2);
    EXPECT_NEAR(number(last_bar, 0), 299 * 0.9, 1e-9);
    EXPECT_DOUBLE_EQ(number(last_bar, 1), 0);
    EXPECT_DOUBLE_EQ(number(last_bar, 3), 199 / repair);
}

TEST_F(Histogram, AFailureOfTheCrosswiseFormExchangesTheAxesAgain)
{
    // So near the lower end that its bin comes out as 0.
    auto const record = panel_of({1, 1001, 1001, std::nextafter(1.0, 2.0), 301});
    record->StdDev = 0;
    auto call = call_of_type(4);
    call.left = 9.6;
    call.laenge = 12;
    auto const drawing = draw_on_screen(*record, call);
    EXPECT_EQ(record->maxHauf, 2);
    EXPECT_DOUBLE_EQ(call.breite, 299 / repair); // exchanged twice
    EXPECT_DOUBLE_EQ(call.hoehe, 199 / repair);
    EXPECT_DOUBLE_EQ(call.x0, 45 / repair);
    EXPECT_DOUBLE_EQ(call.y0, 12 / repair);
    EXPECT_DOUBLE_EQ(call.left, 2);
    EXPECT_EQ(call.laenge, 2);
    auto const last_bar = bars_of(drawing).at(2);
    EXPECT_DOUBLE_EQ(number(last_bar, 0), 2); // a full bar
    EXPECT_DOUBLE_EQ(number(last_bar, 2), 2 + 199 / repair);
    EXPECT_NEAR(number(last_bar, 1), 299 / repair / 10, 1e-9);
}

TEST_F(Histogram, EveryFailureReducesTheScaleOnceMore)
{
    // Without a table each of five values fails, and before them the table itself.
    for (std::int16_t const type : {standing, from_left}) {
        auto const record = panel_of({1, 2, 3, 4, 5});
        auto call = call_of_type(type, -5);
        auto const drawing = draw_on_screen(*record, call);
        EXPECT_NEAR(call.x0, 45 / std::pow(repair, 6), 1e-12);
        EXPECT_TRUE(bars_of(drawing).empty());
        EXPECT_EQ(record->maxHauf, 0);
    }
}

TEST_F(Histogram, MoreThan32767ValuesInOneBinOverflowItsCount)
{
    panel record;
    record.SetNop(32769); // all of value 0
    record.maximal = 1;
    record.minimal = -1;
    HistogramCall call;
    call.stat_resol = 3;
    auto const drawing = draw_on_screen(record, call);
    EXPECT_EQ(record.maxHauf, 32767);
    EXPECT_EQ(bars_of(drawing).size(), 1u);
    EXPECT_NEAR(call.hoehe, 199 / repair / repair, 1e-9);
}

TEST_F(Histogram, APeakBeyond16BitsLeavesTheFullScaleOfTheBars)
{
    auto const record = panel_of({1, 2, 3, 4, 5});
    record->setMaximalMinial(1e7, -1e7);
    HistogramCall call;
    draw_on_screen(*record, call);
    EXPECT_EQ(record->maxHauf, 5);
    EXPECT_NEAR(call.y0, 12 / repair, 1e-12);
    EXPECT_GT(record->GaussMax, 32767);
}

TEST_F(Histogram, APlotTooHighFor16BitsIsReducedAtOnce)
{
    auto const record = panel_of({1, 2, 3, 4, 4});
    record->StdDev = 0;
    HistogramCall call;
    call.hoehe = 40000;
    auto const drawing = draw_on_screen(*record, call);
    EXPECT_DOUBLE_EQ(call.hoehe, 40000 / repair);
    // The edge could not be found and is 0; ticks begin where the reduced place tells: 45 / 4.8 less 1, rounded.
    auto const tick = only(drawing.axes, "Line").at(0);
    EXPECT_EQ(number(tick, 0), 8);
    EXPECT_DOUBLE_EQ(number(tick, 1), -40000 / repair / 2);
}

TEST_F(Histogram, APrinterWithoutResolutionFailsNowhere)
{
    auto const record = panel_of({1, 2, 3, 4, 5});
    for (std::int16_t type = 1; type <= 4; ++type) {
        auto const printer = Recorder::printer(0, 0);
        auto call = paper_call(type);
        EXPECT_NO_THROW(call.run(*record, *printer, *printer));
        // At least the seven conversions have failed.
        EXPECT_LE(call.x0, 1200 / std::pow(repair, 7));
    }
}

TEST_F(Histogram, AColourBeyond32BitsTakesTheBarsAwayAndLeavesTheirFrames)
{
    auto const record = panel_of({1, 2, 3, 4, 5});
    record->ColS2 = 1e20;
    auto const drawing = draw_on_screen(*record, call_of_type(1, 5));
    EXPECT_TRUE(bars_of(drawing).empty());
    EXPECT_EQ(only(drawing.plot, "Box").size(), 5u);
}

} // namespace zendara::test
