#include "control_fixture.hpp"
#include "golden_picture.hpp"
#include "zendara/controls/zv_plot_2dc.hpp"

#include <cmath>

namespace zendara::test
{

namespace
{

using Names = std::vector<std::string>;

std::vector<Site> const ten_sites = random_sites(10, 300, 200, 11);

/// Sites in the corners of the usual panel, the same value along the lower and along the upper edge.
std::vector<Site> slope(double lower, double upper)
{
    return {{-150, -100, lower}, {150, -100, lower}, {-150, 100, upper}, {150, 100, upper}};
}

struct ContourControl : testing::Test {
    Hosted<ZvPlot2DC> host;
    ZvPlot2DC& control = host.control;

    /// Whether the plot has been drawn since the last question.
    bool has_drawn() { return !only(host.take_record("PLOTA"), "Box").empty(); }

    std::vector<std::string> plot()
    {
        host.take_record("PLOTA");
        control.Plot();
        return text_of(host.take_record("PLOTA"));
    }

    /// What the record draws on a picture of the control's size. The third argument is the distance in percent.
    std::vector<std::string> expected(double distance, ContourMarks marks, ContourResolution resolution,
                                      ContourColors colors)
    {
        auto const& picture = host.child("PLOTA");
        auto const surface = Recorder::picture({0, 0, picture.Width() / 15, picture.Height() / 15});
        auto const as_word = [](auto value) { return static_cast<std::int16_t>(value); };
        control.record().D2Contour(*surface, distance, as_word(marks), as_word(resolution), as_word(colors), 0, 0, 0, 0,
                                   0);
        return text_of(surface->take_record());
    }

    std::string interval_text()
    {
        control.Plot();
        return host.child("lblInterval").caption();
    }

    void expect_legend(bool has_scale, bool has_key)
    {
        for (int row = 1; row <= 10; ++row) {
            EXPECT_EQ(host.child("ScaleValue", row).Visible(), has_scale);
            EXPECT_EQ(host.child("scalCol", row).Visible(), has_scale);
        }
        for (int curve = 1; curve <= 3; ++curve) {
            EXPECT_EQ(host.child("lblCurve", curve).Visible(), has_key);
            EXPECT_EQ(host.child("curveCol", curve).Visible(), has_key);
        }
        EXPECT_TRUE(host.child("lblInterval").Visible());
    }
};

} // namespace

// --- A new control -------------------------------------------------------------------------------------------------

TEST_F(ContourControl, StartsWithThePublishedValues)
{
    EXPECT_EQ(control.PanelSizeX(), 300);
    EXPECT_EQ(control.PanelSizeY(), 200);
    EXPECT_EQ(control.Interval(), 1);
    EXPECT_FALSE(control.IntervalInPercent());
    EXPECT_EQ(control.MeasurementUnit(), "");
    EXPECT_EQ(control.marksites(), ContourMarks::Exact);
    EXPECT_EQ(control.Resolution(), ContourResolution::LowQuality);
    EXPECT_EQ(control.PlotColored(), ContourColors::Three_ColorPlot);
    EXPECT_EQ(control.MeanCurveColor(), QBColor(2));
    EXPECT_EQ(control.UpperCurveColor(), QBColor(4));
    EXPECT_EQ(control.LowerCurveColor(), QBColor(1));
    EXPECT_FALSE(control.HideLegend());
    EXPECT_EQ(control.PlotCaption(), "Panel");
    EXPECT_TRUE(host.changes.empty());
}

// --- Settings ------------------------------------------------------------------------------------------------------

TEST_F(ContourControl, ANegativeIntervalIsStoredAs1)
{
    control.Interval(-3);
    EXPECT_EQ(control.Interval(), 1);
    control.Interval(0);
    EXPECT_EQ(control.Interval(), 0);
    control.Interval(0.25);
    EXPECT_EQ(control.Interval(), 0.25);
}

TEST_F(ContourControl, SettingsWaitForTheNextPlot)
{
    load(control, ten_sites);
    control.Plot();
    EXPECT_TRUE(has_drawn());
    control.Plot();
    EXPECT_FALSE(has_drawn());
    auto const draws_after = [&](auto&& set) {
        set();
        EXPECT_FALSE(has_drawn());
        control.Plot();
        return has_drawn();
    };
    EXPECT_TRUE(draws_after([&] { control.Interval(20); }));
    EXPECT_TRUE(draws_after([&] { control.IntervalInPercent(true); }));
    EXPECT_TRUE(draws_after([&] { control.MeasurementUnit("nm"); }));
    EXPECT_TRUE(draws_after([&] { control.marksites(ContourMarks::Converted); }));
    EXPECT_TRUE(draws_after([&] { control.Resolution(ContourResolution::Automatic); }));
    EXPECT_TRUE(draws_after([&] { control.PlotColored(ContourColors::Ten_ColorPlot); }));
    EXPECT_TRUE(draws_after([&] { control.MeanCurveColor(1); }));
    EXPECT_TRUE(draws_after([&] { control.UpperCurveColor(1); }));
    EXPECT_TRUE(draws_after([&] { control.LowerCurveColor(1); }));
    EXPECT_FALSE(draws_after([&] { control.PlotCaption("other"); }));
}

TEST_F(ContourControl, TheCurveColoursAreThoseOfThePanelsThreeColours)
{
    control.MeanCurveColor(11);
    control.UpperCurveColor(12);
    control.LowerCurveColor(13);
    EXPECT_EQ(control.record().ColS2, 11);
    EXPECT_EQ(control.record().ColS1, 12);
    EXPECT_EQ(control.record().ColS3, 13);
    EXPECT_EQ(control.MeanCurveColor(), 11);
    EXPECT_EQ(control.UpperCurveColor(), 12);
    EXPECT_EQ(control.LowerCurveColor(), 13);
}

// --- Drawing -------------------------------------------------------------------------------------------------------

TEST_F(ContourControl, DrawsTheLinesOfItsSettings)
{
    load(control, ten_sites);
    control.Interval(2.5);
    control.IntervalInPercent(true);
    control.marksites(ContourMarks::Converted);
    control.Resolution(ContourResolution::HighQuality);
    control.PlotColored(ContourColors::Ten_ColorPlot);
    EXPECT_EQ(plot(),
              expected(2.5, ContourMarks::Converted, ContourResolution::HighQuality, ContourColors::Ten_ColorPlot));
}

TEST_F(ContourControl, AnIntervalInTheUnitIsTakenAsAPercentageOfTheReferenceOfThePlot)
{
    load(control, slope(0, 10));
    control.Interval(3);
    // Of the largest value, 10, they are 30 percent.
    EXPECT_EQ(plot(), expected(30, ContourMarks::Exact, ContourResolution::LowQuality, ContourColors::Three_ColorPlot));
}

TEST_F(ContourControl, AnIntervalInTheUnitWithAMeanOf0IsTakenOfTheSpreadAndThePlotAppears)
{
    load(control, slope(-5, 5));
    ASSERT_EQ(control.mean(), 0);
    control.Interval(3);
    control.marksites(ContourMarks::None);
    auto const drawn = plot();
    EXPECT_EQ(drawn, expected(30, ContourMarks::None, ContourResolution::LowQuality, ContourColors::Three_ColorPlot));
    EXPECT_GE(std::count_if(drawn.begin(), drawn.end(), [](auto const& line) { return line.starts_with("Line"); }), 6);
    EXPECT_TRUE(host.platform.take_messages().empty());
}

TEST_F(ContourControl, APanelOfZerosShowsItsEmptyFrameWithoutAWord)
{
    load(control, slope(0, 0));
    control.marksites(ContourMarks::None);
    EXPECT_EQ(plot().size(), 2u + 2u + 1u + 1u); // cleared, box, mean line without a segment, frame
    EXPECT_TRUE(host.platform.take_messages().empty());
}

TEST_F(ContourControl, LinesThatLieTooCloseAreReportedToTheUser)
{
    load(control, slope(5, 10));
    control.Interval(0);
    control.Plot();
    auto const messages = host.platform.take_messages();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].text, "Difference of Mean, Maximum, and Minimum too small");
    EXPECT_EQ(messages[0].title, "No Contour Plot possible");
}

TEST_F(ContourControl, DrawsThePanelFigureFlat)
{
    load(control, ten_sites);
    host.take_record("FNPic");
    control.Plot();
    auto const& picture = host.child("FNPic");
    auto const surface = Recorder::picture({0, 0, picture.Width() / 15, picture.Height() / 15});
    control.record().GridPosShow(nullptr, *surface, 0, 90);
    EXPECT_EQ(text_of(host.take_record("FNPic")), text_of(surface->take_record()));
}

TEST_F(ContourControl, ARasterTooFineForThePlotEndsTheLayoutQuietlyAndTheNextPlotDraws)
{
    load(control, random_sites(5000, 300, 200, 1));
    control.Interval(20);
    control.Resolution(ContourResolution::HighQuality);
    EXPECT_EQ(control.Plot(), 0);
    EXPECT_FALSE(has_drawn());
    EXPECT_EQ(control.MousePointer(), 0);
    EXPECT_TRUE(host.child("Command1").Visible());
    control.Resolution(ContourResolution::LowQuality);
    control.Plot();
    EXPECT_TRUE(has_drawn());
}

TEST_F(ContourControl, APanelWithoutWidthGetsAHeightOf200AndTheOtherWayRoundAWidthOf300)
{
    load(control, ten_sites);
    control.PanelSizeX(0);
    control.PanelSizeY(0);
    control.Plot();
    EXPECT_EQ(control.PanelSizeY(), 200);
    EXPECT_EQ(control.PanelSizeX(), 0);
    control.PanelSizeX(100);
    control.PanelSizeY(0);
    control.Plot();
    EXPECT_EQ(control.PanelSizeX(), 300);
    EXPECT_EQ(control.PanelSizeY(), 0);
}

// --- Legend --------------------------------------------------------------------------------------------------------

TEST_F(ContourControl, TheLegendFollowsThePlotsColoursAtOnce)
{
    expect_legend(false, true);
    control.PlotColored(ContourColors::Ten_ColorPlot);
    expect_legend(true, false);
    control.PlotColored(ContourColors::BWhitePlot);
    expect_legend(false, false);
    control.PlotColored(ContourColors::Three_ColorPlot);
    expect_legend(false, true);
    EXPECT_FALSE(has_drawn());
}

TEST_F(ContourControl, OnlyTheTenColourPlotFillsTheScale)
{
    load(control, ten_sites);
    control.Interval(20);
    control.Plot();
    EXPECT_EQ(host.child("ScaleValue", 1).caption(), "");
    control.PlotColored(ContourColors::Ten_ColorPlot);
    control.Plot();
    EXPECT_NE(host.child("ScaleValue", 1).caption(), "");
    EXPECT_EQ(host.child("scalCol", 1).BackColor(), QBColor(4));
    EXPECT_EQ(host.child("scalCol", 10).BackColor(), QBColor(5));
}

TEST_F(ContourControl, TheKeyOfThreeColoursShowsTheColoursOfTheLines)
{
    load(control, ten_sites);
    control.Interval(20);
    control.UpperCurveColor(101);
    control.MeanCurveColor(102);
    control.LowerCurveColor(103);
    control.Plot();
    Names captions;
    for (int curve = 1; curve <= 3; ++curve) {
        EXPECT_EQ(host.child("curveCol", curve).BackColor(), 100 + curve);
        captions.push_back(host.child("lblCurve", curve).caption());
    }
    EXPECT_EQ(captions, (Names{"Upper lines", "Mean line", "Lower lines"}));
}

TEST_F(ContourControl, TheIntervalLabelShowsTheDistanceWithItsUnitOrAsAPercentage)
{
    load(control, ten_sites);
    control.Interval(12.5);
    EXPECT_EQ(interval_text(), "Interval: 12.5");
    control.MeasurementUnit("nm");
    EXPECT_EQ(interval_text(), "Interval: 12.5 nm");
    control.IntervalInPercent(true);
    EXPECT_EQ(interval_text(), "Interval: 12.5 %");
}

TEST_F(ContourControl, AUnitOfAnyLengthIsCutAtTheLegendsEdgeAndTakesNothingFromThePlot)
{
    load(control, ten_sites);
    control.Plot();
    double const column_left = host.child("frmove").Left();
    double const plot_width = host.child("PLOTA").Width();
    control.MeasurementUnit(std::string(500, 'm'));
    control.Plot();
    auto const& label = host.child("lblInterval");
    EXPECT_EQ(host.child("legende").Width(), 1890);
    EXPECT_EQ(label.Left() + label.Width(), 1890);
    EXPECT_EQ(host.child("frmove").Left(), column_left);
    EXPECT_EQ(host.child("PLOTA").Width(), plot_width);
}

TEST_F(ContourControl, NothingOfTheColumnOverlaps)
{
    auto const bottom_of = [](Child const& child) { return child.Top() + child.Height(); };
    auto& legend = host.child("legende");
    EXPECT_GE(host.child("ScaleValue", 1).Top(), host.child("lblInterval").Top() + 165);
    EXPECT_LE(host.child("ScaleValue", 10).Top() + 180, legend.Height());
    EXPECT_LE(host.child("lblCurve", 3).Top() + 180, legend.Height());
    EXPECT_LE(bottom_of(legend), host.child("frleg").Height());
    EXPECT_LE(bottom_of(host.child("frleg")), host.child("FNLabel").Top());
    EXPECT_LE(bottom_of(host.child("FNPic")), host.child("FNLabel").Height());
    EXPECT_LE(bottom_of(host.child("FNLabel")), host.child("Command1").Top());
    EXPECT_LE(bottom_of(host.child("Command1")), 3180); // the smallest control
}

TEST_F(ContourControl, TheTextsOfTheLegendShareItsBackColour)
{
    control.BackColor(0x123456);
    EXPECT_EQ(host.child("lblInterval").BackColor(), 0x123456);
    EXPECT_EQ(host.child("lblCurve", 2).BackColor(), 0x123456);
    EXPECT_EQ(host.child("frleg").BackColor(), 0x123456);
    EXPECT_NE(host.child("curveCol", 2).BackColor(), 0x123456);
}

// --- Interface -----------------------------------------------------------------------------------------------------

TEST_F(ContourControl, NamesTheValuesOfItsEnumerations)
{
    auto const items_of = [&](std::string_view member) {
        std::string text;
        auto const& values = *control.host_interface().find(member)->enumeration;
        text += values.name;
        for (auto const& item : values.items)
            text += " " + std::string(item.name) + "=" + std::to_string(item.value);
        return text;
    };
    EXPECT_EQ(items_of("marksites"), "ExconEnum Exact=1 Converted=2 None=3");
    EXPECT_EQ(items_of("Resolution"), "ResoEnum LowQuality=0 HighQuality=1 Automatic=2");
    EXPECT_EQ(items_of("PlotColored"), "DrawColEnum BWhitePlot=0 Three_ColorPlot=1 Ten_ColorPlot=2");
}

TEST_F(ContourControl, ThePrintMembersAreFoundByTheirArguments)
{
    auto const& compact = *control.host_interface().find("PrintPlot_THN");
    ASSERT_EQ(compact.arguments.size(), 5u);
    EXPECT_EQ(compact.arguments[3].name, "height");
    EXPECT_FALSE(compact.arguments[3].is_by_reference);
    EXPECT_EQ(compact.arguments[4].name, "winfo");
    EXPECT_EQ(compact.arguments[4].type, Type::Bstr);
    EXPECT_TRUE(compact.arguments[4].is_by_reference);
    EXPECT_EQ(compact.type, Type::I2);
}

TEST_F(ContourControl, ClicksOfFourSourcesReachTheHost)
{
    for (auto const* const name : {"PLOTA", "frmove", "Frplot", "frleg", "Command1"})
        host.child(name).raise("Click");
    control.window().raise("Click");
    EXPECT_EQ(host.events, (Names{"Click", "Click", "Click", "Click"}));
}

// --- Saving --------------------------------------------------------------------------------------------------------

TEST_F(ContourControl, EverySettingSurvivesTheStore)
{
    control.PanelSizeX(123);
    control.Interval(2.5);
    control.IntervalInPercent(true);
    control.MeasurementUnit("nm");
    control.marksites(ContourMarks::None);
    control.Resolution(ContourResolution::Automatic);
    control.PlotColored(ContourColors::Ten_ColorPlot);
    control.MeanCurveColor(1);
    control.UpperCurveColor(2);
    control.LowerCurveColor(3);
    control.IntervalColor0(4);
    PropertyBag store;
    control.WriteProperties(store);
    Hosted<ZvPlot2DC> other;
    other.control.ReadProperties(store);
    EXPECT_EQ(other.control.PanelSizeX(), 123);
    EXPECT_EQ(other.control.Interval(), 2.5);
    EXPECT_TRUE(other.control.IntervalInPercent());
    EXPECT_EQ(other.control.MeasurementUnit(), "nm");
    EXPECT_EQ(other.control.marksites(), ContourMarks::None);
    EXPECT_EQ(other.control.Resolution(), ContourResolution::Automatic);
    EXPECT_EQ(other.control.PlotColored(), ContourColors::Ten_ColorPlot);
    EXPECT_EQ(other.control.MeanCurveColor(), 1);
    EXPECT_EQ(other.control.UpperCurveColor(), 2);
    EXPECT_EQ(other.control.LowerCurveColor(), 3);
    EXPECT_EQ(other.control.IntervalColor0(), 4);
}

TEST_F(ContourControl, AnEmptyStoreGivesTheStartValuesAndOtherPanelSizes)
{
    control.Interval(7);
    control.PlotColored(ContourColors::Ten_ColorPlot);
    control.UpperCurveColor(2);
    control.ReadProperties(PropertyBag());
    EXPECT_EQ(control.Interval(), 1);
    EXPECT_EQ(control.PlotColored(), ContourColors::Three_ColorPlot);
    EXPECT_EQ(control.UpperCurveColor(), QBColor(4));
    EXPECT_EQ(control.PanelSizeX(), 210);
    EXPECT_EQ(control.PanelSizeY(), 195);
    expect_legend(false, true);
}

// --- Picture -------------------------------------------------------------------------------------------------------

TEST(ContourPicture, ShowsTheLinesOfAHillInTenColours)
{
    std::vector<Site> hill;
    for (int i = -4; i <= 4; ++i)
        for (int j = -3; j <= 3; ++j)
            hill.push_back({i * 30.0, j * 25.0, 100 - i * i * 2.0 - j * j * 3.0 + i * 4.0});
    auto const record = make_panel(300, 200, hill);
    HeadlessPlatform platform;
    Window window(platform, "window");
    PictureBox picture(window, "picture");
    picture.BackColor(QBColor(15));
    picture.Move(0, 0, 180 * 15, 120 * 15);
    record->D2Contour(picture.surface(), 8, 1, 1, 2, 0, 0, 0, 0, 0);
    EXPECT_TRUE(matches_golden(*picture.surface().image(), "contour_hill"));
}

} // namespace zendara::test
