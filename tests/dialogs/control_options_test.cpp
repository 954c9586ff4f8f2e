#include "controls/control_fixture.hpp"
#include "zendara/controls/control_classes.hpp"
#include "zendara/controls/zv_histogram.hpp"
#include "zendara/controls/zv_line_scan.hpp"
#include "zendara/controls/zv_plot_2d.hpp"
#include "zendara/controls/zv_plot_2dc.hpp"
#include "zendara/controls/zv_plot_2ds.hpp"
#include "zendara/controls/zv_plot_3d.hpp"
#include "zendara/controls/zv_plot_3db.hpp"
#include "zendara/controls/zv_plot_3ds.hpp"
#include "zendara/dialogs/dialog_classes.hpp"
#include "zendara/form/check_box.hpp"
#include "zendara/form/form.hpp"
#include "zendara/form/option_button.hpp"

namespace zendara::test
{
namespace
{

std::vector<Site> const four_sites = {{-90, -60, 1}, {90, -60, 2}, {90, 60, 3}, {-90, 60, 4}};

/// A plotted control, and a user who answers its dialog.
template <class C> struct Plotted : Hosted<C> {
    int opened = 0;

    Plotted()
    {
        load(this->control, four_sites);
        this->control.Plot();
        forget();
    }

    void forget()
    {
        this->changes.clear();
        this->take_record("PLOTA");
    }

    void type(Form& form, std::string_view field, std::string const& text)
    {
        dynamic_cast<TextBox&>(*form.find_child(field, {})).Text(text);
    }
    void press(Form& form, std::string_view button)
    {
        dynamic_cast<Button&>(*form.find_child(button, {})).raise("Click");
    }

    /// Opens the options, types into fields, and ends with a button.
    void answer(std::vector<std::pair<std::string, std::string>> const& entries, std::string const& button = "cmdOK")
    {
        this->platform.on_modal = [this, entries, button](Form& form) {
            ++opened;
            if (opened > 1)
                return; // nobody answers a second one
            for (auto const& [field, text] : entries)
                type(form, field, text);
            press(form, button);
        };
        opened = 0;
        this->control.ShowPlotOption();
    }

    /// Whether what has been drawn is what one Plot with the present settings draws.
    bool has_drawn_once()
    {
        auto const drawn = text_of(this->take_record("PLOTA"));
        this->control.SetPlotNotVaild();
        this->control.Plot();
        return !drawn.empty() && drawn == text_of(this->take_record("PLOTA"));
    }
};

std::string shown(Value const& value)
{
    return std::holds_alternative<Object*>(value) ? "object" : to_text(value);
}

template <class C> class EveryControlWithOptions : public testing::Test
{
};
using Controls =
    testing::Types<ZvPlot2D, ZvPlot2DS, ZvPlot2DC, ZvPlot3D, ZvPlot3DS, ZvPlot3DB, ZvHistogram, ZvLineScan>;
TYPED_TEST_SUITE(EveryControlWithOptions, Controls);

TYPED_TEST(EveryControlWithOptions, CancelChangesNothingAndDrawsNothing)
{
    Plotted<TypeParam> plotted;
    PropertyBag before, after;
    plotted.control.WriteProperties(before);
    bool const is_line_scan = plotted.control.host_interface().class_name == "ZvLineScan";
    bool const is_contour = plotted.control.host_interface().class_name == "ZvPlot2DC";
    plotted.answer({{is_line_scan ? "AngleValue" : is_contour ? "tdist" : "tresx", "17"}}, "cmdCancel");
    EXPECT_EQ(plotted.opened, 1);
    plotted.control.WriteProperties(after);
    ASSERT_EQ(before.entries().size(), after.entries().size());
    for (std::size_t i = 0; i < before.entries().size(); ++i)
        EXPECT_EQ(shown(before.entries()[i].value), shown(after.entries()[i].value)) << before.entries()[i].key;
    EXPECT_TRUE(plotted.take_record("PLOTA").empty());
    EXPECT_TRUE(plotted.changes.empty());
    EXPECT_TRUE(plotted.platform.take_messages().empty());
}

TYPED_TEST(EveryControlWithOptions, TheOptionsButtonOpensTheDialogInFrontOfTheControl)
{
    Plotted<TypeParam> plotted;
    Window* in_front_of = nullptr;
    plotted.platform.on_modal = [&](Form& form) {
        in_front_of = form.owner;
        EXPECT_EQ(form.caption(), "Define Plot Options");
    };
    bool const is_line_scan = plotted.control.host_interface().class_name == "ZvLineScan";
    plotted.template child<Button>(is_line_scan ? "btnoptions" : "Command1").raise("Click");
    EXPECT_EQ(in_front_of, &plotted.control.window());
}

TEST(OptionsOfTheMap, OkStoresThroughTheSettersAndDrawsOnce)
{
    Plotted<ZvPlot2D> plotted;
    plotted.answer({{"tresx", "20"}, {"tresy", "70"}});
    EXPECT_EQ(plotted.control.ResolutionX(), 20);
    EXPECT_EQ(plotted.control.ResolutionY(), 50) << "at most a quarter of 200 mm";
    EXPECT_EQ(plotted.changes, (std::vector<std::string>{"ResolutionX", "ResolutionY", "ShowSites"}));
    EXPECT_TRUE(plotted.has_drawn_once());
    EXPECT_EQ(plotted.opened, 1);
}

TEST(OptionsOfTheMap, AResolutionOf0ThatIsLetThroughBecomes5)
{
    Plotted<ZvPlot2D> plotted;
    plotted.control.ResolutionX(20);
    plotted.answer({{"tresx", ""}});
    EXPECT_EQ(plotted.control.ResolutionX(), 5);
}

TEST(OptionsOfTheMap, AnotherGroundGoesAroundThePlot)
{
    Plotted<ZvPlot2D> plotted;
    plotted.control.BackColor(QBColor(3));
    plotted.answer({});
    EXPECT_EQ(plotted.control.BackColor(), QBColor(3)) << "the plot itself is white, as it was";
    plotted.platform.on_modal = [&](Form& form) {
        dynamic_cast<CheckBox&>(*form.find_child("whiteback", {})).Value(0);
        plotted.press(form, "cmdOK");
    };
    plotted.control.ShowPlotOption();
    EXPECT_EQ(plotted.control.BackColor(), button_face);
}

TEST(OptionsOfTheMap, WithoutDataOkStoresAndDrawsNothing)
{
    Plotted<ZvPlot2D> plotted;
    ZvPlot2D empty(plotted.platform);
    empty.InitProperties();
    plotted.platform.on_modal = [&](Form& form) {
        plotted.type(form, "tresx", "9");
        plotted.press(form, "cmdOK");
    };
    empty.ShowPlotOption();
    EXPECT_EQ(empty.ResolutionX(), 9);
    EXPECT_TRUE(object_cast<Recorder>(empty.find_child("PLOTA", {}))->take_record().empty());
}

TEST(OptionsOfTheMap, TheyOpenAfterAMessageOfATooCoarseResolution)
{
    Plotted<ZvPlot2D> plotted;
    plotted.control.ResolutionX(60);
    plotted.control.TestSizeX(100);
    std::string shown;
    plotted.platform.on_modal = [&](Form& form) {
        shown = dynamic_cast<TextBox&>(*form.find_child("tresx", {})).Text();
        plotted.type(form, "tresx", "10");
        plotted.press(form, "cmdOK");
    };
    plotted.control.Plot();
    ASSERT_EQ(plotted.platform.take_messages().size(), 1u);
    EXPECT_EQ(shown, "25") << "the lowered value";
    EXPECT_EQ(plotted.control.ResolutionX(), 10);
}

TEST(OptionsOfTheSigmaMap, OkStoresAndDrawsOnce)
{
    Plotted<ZvPlot2DS> plotted;
    plotted.answer({{"tresx", "20"}, {"SSigma", "1.5"}});
    EXPECT_EQ(plotted.control.ResolutionX(), 20);
    EXPECT_EQ(plotted.control.SigmaRange(), 1.5);
    EXPECT_TRUE(plotted.has_drawn_once());
}

TEST(OptionsOfTheContourPlot, TheDialogsUnitsAreTheOppositeOfPercent)
{
    Plotted<ZvPlot2DC> plotted;
    ASSERT_FALSE(plotted.control.IntervalInPercent());
    std::int16_t opened_with = -1;
    plotted.platform.on_modal = [&](Form& form) {
        auto& units = dynamic_cast<CheckBox&>(*form.find_child("com2DC", {}));
        opened_with = units.Value();
        units.Value(0);
        plotted.type(form, "tdist", "12");
        plotted.press(form, "cmdOK");
    };
    plotted.control.ShowPlotOption();
    EXPECT_EQ(opened_with, 1);
    EXPECT_TRUE(plotted.control.IntervalInPercent());
    EXPECT_EQ(plotted.control.Interval(), 12);
    EXPECT_TRUE(plotted.has_drawn_once());
}

TEST(OptionsOfTheContourPlot, OkStoresTheChosenButtons)
{
    Plotted<ZvPlot2DC> plotted;
    plotted.platform.on_modal = [&](Form& form) {
        dynamic_cast<OptionButton&>(*form.find_child("OptExcon", 2)).Value(true);
        dynamic_cast<OptionButton&>(*form.find_child("OptQuali", 1)).Value(true);
        dynamic_cast<OptionButton&>(*form.find_child("Optcol", 2)).Value(true);
        plotted.press(form, "cmdOK");
    };
    plotted.control.ShowPlotOption();
    EXPECT_EQ(plotted.control.marksites(), ContourMarks::Converted);
    EXPECT_EQ(plotted.control.Resolution(), ContourResolution::HighQuality);
    EXPECT_EQ(plotted.control.PlotColored(), ContourColors::Ten_ColorPlot);
}

TEST(OptionsOfTheSurface, OkStoresThroughTheSettersAndDrawsOnce)
{
    Plotted<ZvPlot3D> plotted;
    plotted.answer({{"tresx", "20"}, {"tresy", "10"}, {"tscale", "55"}, {"talph", "200"}, {"tthet", "20"}});
    EXPECT_EQ(plotted.control.XResolution(), 20);
    EXPECT_EQ(plotted.control.YResolution(), 10);
    EXPECT_EQ(plotted.control.PlotScale(), 55);
    EXPECT_EQ(plotted.control.GridRotation(), 40) << "the setter takes up to 91";
    EXPECT_EQ(plotted.control.GridInclination(), 20);
    EXPECT_TRUE(plotted.has_drawn_once());
}

TEST(OptionsOfTheSurface, OkStoresThePlotType)
{
    Plotted<ZvPlot3D> plotted;
    plotted.platform.on_modal = [&](Form& form) {
        dynamic_cast<OptionButton&>(*form.find_child("optPlot", 1)).Value(true);
        plotted.press(form, "cmdOK");
    };
    plotted.control.ShowPlotOption();
    EXPECT_EQ(plotted.control.PlotType(), PlotTypeEnum::WireFrame);
}

TEST(OptionsOfTheSurface, AResolutionBeyondTheTestedAreaBringsTheMessageAndTheOptionsOnceMore)
{
    Plotted<ZvPlot3D> plotted;
    plotted.answer({{"tresx", "75.5"}}); // the dialog allows up to 300 / 4 + 1
    EXPECT_EQ(plotted.platform.take_messages().size(), 1u);
    EXPECT_EQ(plotted.opened, 2);
    EXPECT_EQ(plotted.control.XResolution(), 75);
}

TEST(OptionsOfTheSigmaSurface, OkStoresAndDrawsOnce)
{
    Plotted<ZvPlot3DS> plotted;
    plotted.answer({{"SSigma", "2"}, {"tthet", "10"}});
    EXPECT_EQ(plotted.control.SigmaRange(), 2);
    EXPECT_EQ(plotted.control.GridInclination(), 10);
    EXPECT_TRUE(plotted.has_drawn_once());
}

TEST(OptionsOfTheBars, OkStoresAndDrawsOnce)
{
    Plotted<ZvPlot3DB> plotted;
    plotted.answer({{"tresx", "8"}, {"tresy", "9"}, {"tscale", "0.5"}, {"talph", "10"}, {"tthet", "20"}});
    EXPECT_EQ(plotted.control.BeamWidth(), 8);
    EXPECT_EQ(plotted.control.BeamHeight(), 9);
    EXPECT_EQ(plotted.control.BeamScale(), 0.5);
    EXPECT_EQ(plotted.control.GridRotation(), 10);
    EXPECT_EQ(plotted.control.GridInclination(), 20);
    EXPECT_TRUE(plotted.has_drawn_once());
}

TEST(OptionsOfTheHistogram, OkWithAnotherResolutionStoresBothSettingsAndDrawsOnce)
{
    Plotted<ZvHistogram> plotted;
    plotted.platform.on_modal = [&](Form& form) {
        plotted.type(form, "tresx", "7");
        dynamic_cast<CheckBox&>(*form.find_child("whiteback", {})).Value(1);
        plotted.press(form, "cmdOK");
    };
    plotted.control.ShowPlotOption();
    EXPECT_EQ(plotted.control.Resolution(), 7);
    EXPECT_EQ(plotted.control.BackColor(), 0xFFFFFF);
    EXPECT_TRUE(plotted.has_drawn_once());
}

TEST(OptionsOfTheHistogram, AChangeOfTheGroundAloneIsLost)
{
    Plotted<ZvHistogram> plotted;
    plotted.platform.on_modal = [&](Form& form) {
        dynamic_cast<CheckBox&>(*form.find_child("whiteback", {})).Value(1);
        plotted.press(form, "cmdOK");
    };
    plotted.control.ShowPlotOption();
    EXPECT_EQ(plotted.control.BackColor(), button_face);
    EXPECT_TRUE(plotted.take_record("PLOTA").empty());
}

TEST(OptionsOfTheLineScan, OkStoresTheLineOfItsForm)
{
    Plotted<ZvLineScan> plotted;
    plotted.platform.on_modal = [&](Form& form) {
        dynamic_cast<OptionButton&>(*form.find_child("optline", 1)).Value(true);
        for (auto const& [name, index, text] :
             {std::tuple{"resx", 1, "-80"}, {"resy", 1, "-40"}, {"resx", 2, "80"}, {"resy", 2, "30"}})
            dynamic_cast<TextBox&>(*form.find_child(name, index)).Text(text);
        dynamic_cast<OptionButton&>(*form.find_child("optMark", 1)).Value(true);
        plotted.press(form, "cmdOK");
    };
    plotted.control.ShowPlotOption();
    EXPECT_EQ(plotted.control.PlotType(), PlotTypeEnumLineScan::vbline);
    EXPECT_EQ(plotted.control.LineStartPointX(), -80);
    EXPECT_EQ(plotted.control.LineStartPointY(), -40);
    EXPECT_EQ(plotted.control.LineEndPointX(), 80);
    EXPECT_EQ(plotted.control.LineEndPointY(), 30);
    EXPECT_EQ(plotted.control.ShowSites(), Sites::MarkSites);
    EXPECT_TRUE(plotted.child<Button>("btnoptions").Enabled());
}

TEST(OptionsOfTheLineScan, OkStoresTheAngleInTheArrowsToo)
{
    Plotted<ZvLineScan> plotted;
    plotted.answer({{"AngleValue", "33"}});
    EXPECT_EQ(plotted.control.angle(), 33);
    EXPECT_EQ(plotted.child<UpDown>("UpDown1").Value(), 33);
    EXPECT_FALSE(plotted.take_record("PLOTA").empty());
}

TEST(OptionsOfTheLineScan, CancelAfterARefusedOkStoresNothing)
{
    Plotted<ZvLineScan> plotted;
    plotted.platform.on_modal = [&](Form& form) {
        dynamic_cast<OptionButton&>(*form.find_child("optline", 1)).Value(true);
        plotted.press(form, "cmdOK"); // both points are (0, 0)
        EXPECT_TRUE(form.Visible());
    };
    plotted.control.ShowPlotOption();
    EXPECT_EQ(plotted.control.PlotType(), PlotTypeEnumLineScan::vbAngle);
    EXPECT_TRUE(plotted.take_record("PLOTA").empty());
}

TEST(AboutOfTheControls, NamesEachKind)
{
    HeadlessPlatform platform(Pictures::Recorded);
    std::vector<std::string> kinds;
    platform.on_modal = [&](Form& form) { kinds.push_back(form.caption().substr(form.caption().find(": ") + 2)); };
    for (ControlClass const& each : control_classes()) {
        auto const control = each.make(platform);
        control->About();
    }
    EXPECT_EQ(kinds, (std::vector<std::string>{"2D Plot", "2D Number Plot", "2D Sigma Range Plot", "2D Contur Plot",
                                               "3D Plot", "3D Sigma Range Plot", "3D Plot", "Histogram", "Line Scan"}));
}

// The sanitizer build of this test shows that nothing is left behind.
TYPED_TEST(EveryControlWithOptions, AThousandOpeningsLeaveTheControlAsItWas)
{
    Plotted<TypeParam> plotted;
    auto const children = plotted.control.window().children().size();
    int opened = 0;
    plotted.platform.on_modal = [&](Form&) { ++opened; };
    for (int i = 0; i < 1000; ++i)
        plotted.control.ShowPlotOption();
    EXPECT_EQ(opened, 1000);
    EXPECT_EQ(plotted.control.window().children().size(), children);
    EXPECT_TRUE(plotted.take_record("PLOTA").empty());
}

TEST(DialogsAndPages, AThousandOfEachComeAndGo)
{
    HeadlessPlatform platform(Pictures::Recorded);
    for (int i = 0; i < 1000; ++i) {
        for (DialogClass const& each : dialog_classes())
            ASSERT_FALSE(each.make(platform)->tab_order.empty());
        for (PageClass const& each : page_classes())
            ASSERT_FALSE(each.make(platform)->tab_order.empty());
    }
}

} // namespace
} // namespace zendara::test
