#include "trace_text.hpp"
#include "zendara/controls/control_classes.hpp"
#include "zendara/dialogs/dialog_classes.hpp"
#include "zendara/form/check_box.hpp"
#include "zendara/form/line_shape.hpp"
#include "zendara/form/option_button.hpp"
#include "zendara/platform/headless/headless_platform.hpp"
#include "zendara/render/surface/recorder.hpp"
#include "zendara/support/interface.hpp"

#include <gtest/gtest.h>

namespace zendara::test
{
namespace
{

/// A page beside a control, as a container shows it.
struct ShownPage {
    HeadlessPlatform platform{Pictures::Recorded};
    std::unique_ptr<Control> control;
    std::unique_ptr<PropertyPage> page;

    ShownPage(std::string_view control_name, std::string_view page_name) : control(make_control(control_name))
    {
        for (auto const& each : page_classes())
            if (each.name == page_name)
                page = each.make(platform);
        page->SelectedControls({control.get()});
        page->SelectionChanged();
    }

    std::unique_ptr<Control> make_control(std::string_view name)
    {
        auto made = find_control_class(name)->make(platform);
        made->InitProperties();
        return made;
    }

    template <class T> T& child(std::string_view name, std::optional<int> index = {})
    {
        return dynamic_cast<T&>(*page->find_child(name, index));
    }
    std::string text(std::string_view field) { return child<TextBox>(field).Text(); }
    /// What a field shows when a text has been typed into it.
    std::string type(std::string_view field, std::string const& text)
    {
        child<TextBox>(field).Text(text);
        return child<TextBox>(field).Text();
    }
    void choose(std::string_view group, int index) { child<OptionButton>(group, index).Value(true); }
    bool is_chosen(std::string_view group, int index) { return child<OptionButton>(group, index).Value(); }

    void put(std::string_view property, Value const& value)
    {
        put_member(*control, property, value);
        page->SelectionChanged();
    }
    double property(std::string_view name) { return to_double(get_member(*control, name)); }
    double applied(std::string_view name)
    {
        page->ApplyChanges();
        return property(name);
    }
    std::size_t drawn_previews()
    {
        return only(object_cast<Recorder>(page->find_child("Plot", {}))->take_record(), "Cls").size();
    }
};

TEST(PropertyPages, EveryControlHasThePageOfThePanelAndThatOfItsOwnKind)
{
    auto const names = [](std::string_view control) {
        std::vector<std::string> list;
        for (auto const* const page : pages_of(control))
            list.emplace_back(page->name);
        return list;
    };
    EXPECT_EQ(names("ZvPlot2D"), (std::vector<std::string>{"PanelInfoProp", "Plot2DProp"}));
    EXPECT_EQ(names("ZvPlot3DB"), (std::vector<std::string>{"PanelInfoProp"}));
    EXPECT_EQ(names("ZvLineScan"), (std::vector<std::string>{"PanelInfoProp", "LineScanAngleProp"}));
}

TEST(PropertyPages, ALetterInThePanelWidthBecomes300AndMarksThePageChanged)
{
    ShownPage shown("ZvPlot2D", "PanelInfoProp");
    shown.put("PanelSizeX", 210.5);
    EXPECT_EQ(shown.text("txtPanelSizeX"), "210.5");
    EXPECT_FALSE(shown.page->Changed()) << "reading is no edit";
    EXPECT_EQ(shown.type("txtPanelSizeX", "21a"), "300");
    EXPECT_TRUE(shown.page->Changed());
    EXPECT_EQ(shown.type("txtPanelSizeY", "x"), "200");
}

TEST(PropertyPages, ApplyWritesTheFieldsAndThePageIsUnchangedAgain)
{
    ShownPage shown("ZvPlot2D", "PanelInfoProp");
    shown.type("txtPanelSizeX", "120.5");
    shown.child<CheckBox>("showLeg").Value(1);
    EXPECT_EQ(shown.applied("PanelSizeX"), 120.5);
    EXPECT_EQ(shown.property("HideLegend"), -1);
    EXPECT_FALSE(shown.page->Changed());
}

TEST(PropertyPages, OnlyTheFirstSelectedControlIsReadAndWritten)
{
    ShownPage shown("ZvPlot2D", "PanelInfoProp");
    auto const second = shown.make_control("ZvPlot2D");
    put_member(*second, "PanelSizeX", 77.0);
    shown.page->SelectedControls({shown.control.get(), second.get()});
    shown.page->SelectionChanged();
    EXPECT_EQ(shown.text("txtPanelSizeX"), "300");
    shown.type("txtPanelSizeX", "150");
    EXPECT_EQ(shown.applied("PanelSizeX"), 150);
    EXPECT_EQ(to_double(get_member(*second, "PanelSizeX")), 77);
}

TEST(PropertyPages, WithoutASelectedControlTheyFail)
{
    ShownPage shown("ZvPlot2D", "PanelInfoProp");
    shown.page->SelectedControls({});
    EXPECT_THROW(shown.page->SelectionChanged(), Failure);
    EXPECT_THROW(shown.page->ApplyChanges(), Failure);
}

TEST(PropertyPages, AnEmptiedResolutionOfAMapBecomes5)
{
    ShownPage shown("ZvPlot2D", "Plot2DProp");
    EXPECT_EQ(shown.type("txtResolution", "2"), "2");
    EXPECT_EQ(shown.type("txtResolution", ""), "5");
    EXPECT_EQ(shown.type("tytResolution", "-"), "5");
    shown.type("tytResolution", "2.5");
    EXPECT_EQ(shown.applied("ResolutionY"), 2.5);
    EXPECT_EQ(shown.property("ResolutionX"), 5);
}

TEST(PropertyPages, AnEmptiedScaleStaysEmptyAndLeavesThePropertyAsItWas)
{
    ShownPage shown("ZvPlot3D", "Plot3DProp");
    shown.put("PlotScale", 60.0);
    EXPECT_EQ(shown.type("txtPlotScale", ""), "");
    shown.type("txtXResolution", "7");
    EXPECT_EQ(shown.applied("PlotScale"), 60);
    EXPECT_EQ(shown.property("XResolution"), 7) << "the other fields are written";
    EXPECT_TRUE(shown.platform.take_messages().empty());
    EXPECT_EQ(shown.type("txtPlotScale", "a"), "40");
}

TEST(PropertyPages, TheSitesAreReadAndWrittenAsABooleanWord)
{
    ShownPage shown("ZvPlot2DS", "Plot2DSProp");
    shown.put("ShowSites", std::int16_t{-1});
    EXPECT_EQ(shown.child<CheckBox>("chkShowSites").Value(), 1);
    shown.child<CheckBox>("chkShowSites").Value(0);
    EXPECT_TRUE(shown.page->Changed());
    EXPECT_EQ(shown.applied("ShowSites"), 0);
    EXPECT_EQ(shown.type("txtSigmaRange", ""), "0.5");
}

TEST(PropertyPages, TheMarksOfTheContourPageAreCrossed)
{
    ShownPage shown("ZvPlot2DC", "Plot2DCProp");
    std::vector<double> written;
    for (int index = 1; index <= 3; ++index) {
        shown.choose("OptExcon", index);
        written.push_back(shown.applied("marksites"));
    }
    EXPECT_EQ(written, (std::vector<double>{2, 1, 3}));
    shown.put("marksites", std::int16_t{1});
    EXPECT_TRUE(shown.is_chosen("OptExcon", 2));
    EXPECT_EQ(shown.child<OptionButton>("OptExcon", 2).caption(), "exact");
}

TEST(PropertyPages, TheOtherGroupsOfTheContourPageFollowTheirIndices)
{
    ShownPage shown("ZvPlot2DC", "Plot2DCProp");
    for (int index = 0; index <= 2; ++index) {
        shown.choose("Optcol", index);
        shown.choose("OptQuali", index);
        EXPECT_EQ(shown.applied("PlotColored"), index);
        EXPECT_EQ(shown.property("Resolution"), index);
    }
}

TEST(PropertyPages, TheButtonOfTheContourPageIsThePropertyItself)
{
    ShownPage shown("ZvPlot2DC", "Plot2DCProp");
    shown.child<CheckBox>("com2DC").Value(1);
    EXPECT_EQ(shown.applied("IntervalInPercent"), -1);
    EXPECT_EQ(shown.type("txtInterval", ""), "");
    EXPECT_EQ(shown.type("txtInterval", "1e2"), "1");
}

TEST(PropertyPages, ThePlotTypeOfTheSurfacePageFollowsTheDialogsIndices)
{
    ShownPage shown("ZvPlot3D", "Plot3DProp");
    EXPECT_TRUE(shown.is_chosen("optPlot", 0)) << "plot type 1";
    std::vector<double> written;
    for (int index = 0; index < 3; ++index) {
        shown.choose("optPlot", index);
        written.push_back(shown.applied("PlotType"));
    }
    EXPECT_EQ(written, (std::vector<double>{1, 3, 2}));
}

TEST(PropertyPages, ThePlotTypesOfTheHistogramPageStandInOrder)
{
    ShownPage shown("ZvHistogram", "HistogrammProp");
    std::vector<double> written;
    for (int index = 0; index < 4; ++index) {
        shown.choose("optPlot", index);
        written.push_back(shown.applied("PlotType"));
    }
    EXPECT_EQ(written, (std::vector<double>{1, 2, 3, 4}));
    EXPECT_EQ(shown.type("txtResolution", ""), "0.01");
}

TEST(PropertyPages, AnAngleThatIsRefusedBecomesTheLastAcceptedOne)
{
    ShownPage shown("ZvPlot3D", "Plot3DProp");
    EXPECT_EQ(shown.type("txtGridRotation", "60"), "60");
    EXPECT_EQ(shown.type("txtGridRotation", "400"), "60");
    EXPECT_EQ(shown.type("txtGridRotation", "6x"), "60");
    EXPECT_EQ(shown.type("txtGridRotation", "95"), "90");
    EXPECT_EQ(shown.type("txtGridInclination", "361"), "35");
    EXPECT_EQ(shown.applied("GridRotation"), 90);
    EXPECT_TRUE(shown.type("txtGridInclination", "").empty());
}

TEST(PropertyPages, AnAcceptedAngleDrawsThePreviewAnew)
{
    ShownPage shown("ZvPlot3DS", "Plot3DSProp");
    shown.drawn_previews();
    shown.type("txtGridInclination", "20");
    EXPECT_EQ(shown.drawn_previews(), 1u);
    shown.type("txtGridInclination", "x");
    EXPECT_EQ(shown.drawn_previews(), 1u) << "for the 20 that returns";
}

TEST(PropertyPages, TheRotationOfThePanelRunsTo359)
{
    ShownPage shown("ZvPlot3DS", "Plot3DSProp");
    EXPECT_EQ(shown.type("txtPanelRotation", "359"), "359");
    EXPECT_EQ(shown.type("txtPanelRotation", "361"), "359");
    EXPECT_EQ(shown.type("txtPanelRotation", "360"), "0");
    EXPECT_EQ(shown.type("txtPanelRotation", "200"), "200");
    EXPECT_EQ(shown.applied("PanelRotation"), 200);
}

TEST(PropertyPages, AnAngleOfTheLineScanThatIsRefusedBecomes0)
{
    ShownPage shown("ZvLineScan", "LineScanAngleProp");
    EXPECT_EQ(shown.type("txtAngle", "359"), "359");
    EXPECT_EQ(shown.type("txtAngle", "360"), "0");
    EXPECT_TRUE(shown.page->Changed());
    EXPECT_EQ(shown.type("txtAngle", "45"), "45");
    EXPECT_EQ(shown.applied("angle"), 45);
}

TEST(PropertyPages, AnAcceptedAngleTurnsTheIndicatorOfTheLineScan)
{
    ShownPage shown("ZvLineScan", "LineScanAngleProp");
    auto const& line = dynamic_cast<LineShape&>(*shown.page->find_child("Line1", {}));
    EXPECT_EQ(line.X1(), line.X2()) << "angle 0 runs upward";
    shown.type("txtAngle", "90");
    EXPECT_EQ(line.Y1(), line.Y2()) << "angle 90 runs from the right to the left";
    EXPECT_GT(line.X1(), line.X2());
}

TEST(PropertyPages, ALineOutsideThePanelShowsNoMessage)
{
    ShownPage shown("ZvLineScan", "LineScanAngleProp");
    shown.put("RotationPointX", std::int16_t{1000});
    shown.type("txtAngle", "10");
    EXPECT_TRUE(shown.platform.take_messages().empty());
}

TEST(PropertyPages, AControlOfAnotherKindFails)
{
    ShownPage shown("ZvPlot2D", "Plot2DProp");
    auto const other = shown.make_control("ZvHistogram");
    shown.page->SelectedControls({other.get()});
    EXPECT_THROW(shown.page->SelectionChanged(), Failure);
}

} // namespace
} // namespace zendara::test
