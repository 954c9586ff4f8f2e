// What holds for all nine controls, each asked by itself.
#include "all_controls.hpp"
#include "control_fixture.hpp"
#include "zendara/form/window_painter.hpp"

#include <limits>

namespace zendara::test
{

namespace
{

using Names = std::vector<std::string>;

std::vector<Site> const ten_sites = random_sites(10, 300, 200, 11);

/// A control on recording surfaces.
template <class C> struct EachControl : testing::Test {
    Hosted<C> host;
    C& control = host.control;

    /// What has been drawn since the last question, over all surfaces.
    Names drawn()
    {
        Names lines;
        for (auto const* const name : {"PLOTA", "FNPic", "Picture1", "histPic"})
            if (control.find_child(name, {}) != nullptr)
                for (std::string const& line : text_of(host.take_record(name)))
                    lines.push_back(name + (": " + line));
        return lines;
    }

    void load_and_plot()
    {
        load(control, ten_sites);
        ASSERT_EQ(control.Plot(), 0);
        drawn();
    }
};
TYPED_TEST_SUITE(EachControl, AllControls);

template <class C> struct EachPlotControl : EachControl<C> {
};
TYPED_TEST_SUITE(EachPlotControl, PlotControls);

template <class C> struct EachPicturelessControl : EachControl<C> {
};
TYPED_TEST_SUITE(EachPicturelessControl, PicturelessControls);

/// A control whose pictures hold pixels.
template <class C> struct PaintedControl {
    HeadlessPlatform platform;
    C control{platform};

    PaintedControl()
    {
        control.InitProperties();
        control.window().resize(6000, 4500);
    }

    std::shared_ptr<Image const> pixels_of(std::string_view picture)
    {
        return object_cast<Surface>(control.find_child(picture, {}))->image();
    }
};

/// Those of the lines that put something on a surface.
Names only_shapes(Names lines)
{
    std::erase_if(lines, [](std::string const& line) {
        for (auto const* const call : {": Cls", ": Refresh", ": ScaleMode", ": SetPicture"})
            if (line.find(call) != std::string::npos)
                return true;
        return false;
    });
    return lines;
}

/// The name under which a change of a property is reported; empty for the carriers that report nothing.
std::string reported_name(std::string_view property)
{
    if (property == "PrinterObj" || property == "EnableRotation")
        return {};
    return property == "angle" ? "Angle" : property == "marksites" ? "MarkSites" : std::string(property);
}

} // namespace

// --- A new control ---------------------------------------------------------------------------------------------------

TYPED_TEST(EachControl, StartsWithThePublishedValues)
{
    EXPECT_EQ(this->control.PanelSizeX(), 300);
    EXPECT_EQ(this->control.PanelSizeY(), 200);
    EXPECT_EQ(this->control.TestSizeX(), 300);
    EXPECT_EQ(this->control.TestSizeY(), 200);
    EXPECT_FALSE(this->control.HideLegend());
    EXPECT_EQ(this->control.MousePointer(), 0);
    if constexpr (HasLegend<TypeParam>) {
        EXPECT_EQ(this->control.PlotCaption(), "Panel");
    } else if constexpr (std::is_same_v<TypeParam, ZvLineScan>) {
        EXPECT_EQ(this->control.PlotCaption(), "");
    }
}

TYPED_TEST(EachControl, PrintsToTheDefaultPrinterAndTellsOfTheHelpFile)
{
    EXPECT_EQ(this->control.PrinterObj(), this->host.platform.default_printer());
    EXPECT_EQ(this->host.platform.help_file(), this->host.platform.application_path() + "\\zendara.hlp");
}

// --- Settings --------------------------------------------------------------------------------------------------------

TYPED_TEST(EachControl, EverySetterReportsItsPublicName)
{
    this->load_and_plot();
    for (Member const& member : this->control.host_interface().members) {
        if (member.put == nullptr)
            continue;
        this->host.changes.clear();
        member.put(this->control, member.get(this->control));
        std::string const name = reported_name(member.name);
        EXPECT_EQ(this->host.changes, name.empty() ? Names{} : Names{name}) << member.name;
    }
}

TYPED_TEST(EachControl, GettersNeverFailWhateverThePanelHolds)
{
    panel& record = this->control.record();
    for (double const broken : {1e300, -1e300, std::numeric_limits<double>::quiet_NaN()}) {
        for (double panel::*const color :
             {&panel::col1, &panel::col2, &panel::col3, &panel::col4, &panel::col5, &panel::col6, &panel::col7,
              &panel::col8, &panel::col9, &panel::col10, &panel::ColS1, &panel::ColS2, &panel::ColS3})
            record.*color = broken;
        if constexpr (std::is_same_v<TypeParam, ZvLineScan>) {
            this->control.SetLineOrAngle(2, 0, 0, 0, broken, broken, broken, broken);
            EXPECT_THROW(this->control.SetLineOrAngle(1, 0, broken, broken, 0, 0, 0, 0), Failure);
        }
        for (Member const& member : this->control.host_interface().members)
            if (member.get != nullptr) {
                EXPECT_NO_THROW(member.get(this->control)) << member.name << " with " << broken;
            }
        PropertyBag store;
        EXPECT_NO_THROW(this->control.WriteProperties(store));
        EXPECT_EQ(store.entries().size(), this->control.host_interface().stored_members().size());
    }
}

// --- Plot ------------------------------------------------------------------------------------------------------------

TYPED_TEST(EachControl, PlotWithoutDataAnswers1AndLeavesTheScreen)
{
    this->drawn();
    EXPECT_EQ(this->control.Plot(), 1);
    EXPECT_EQ(this->drawn(), Names{});
}

TYPED_TEST(EachControl, NewDataDoNotDrawByThemselves)
{
    this->drawn();
    load(this->control, ten_sites);
    EXPECT_EQ(only_shapes(this->drawn()), Names{});
}

TYPED_TEST(EachPlotControl, ASecondPlotWithoutAChangeDrawsNothing)
{
    this->load_and_plot();
    EXPECT_EQ(this->control.Plot(), 0);
    EXPECT_EQ(this->drawn(), Names{});
}

TYPED_TEST(EachPicturelessControl, EveryPlotDrawsAnew)
{
    this->load_and_plot();
    EXPECT_EQ(this->control.Plot(), 0);
    EXPECT_NE(only_shapes(this->drawn()), Names{});
}

TYPED_TEST(EachControl, AnEmptySizeAtPlotLeavesAPlotThatLimitsDrawAgain)
{
    load(this->control, ten_sites);
    this->control.record().SizeX = 0;
    EXPECT_EQ(this->control.Plot(), 0);
    this->drawn();
    EXPECT_TRUE(this->control.SetPlotLimit(490, 510));
    EXPECT_NE(only_shapes(this->drawn()), Names{});
}

TYPED_TEST(EachControl, IsLoadedAndPlottedWithoutAnyNamesAsText)
{
    std::vector<double> const x = {-100, 100, 0, 50, -50}, y = {-50, 50, 0, -20, 20}, z = {1, 2, 3, 4, 5};
    Control& control = this->control;
    EXPECT_EQ(control.SetPanelData(x, y, z), 0);
    EXPECT_EQ(control.Plot(), 0);
    EXPECT_EQ(control.Maximum(), 5);
    EXPECT_EQ(control.SetPanelData(x, std::span(y).first(4), std::span(z).first(3)), 1); // the upper bounds differ
}

// --- Resize ----------------------------------------------------------------------------------------------------------

TYPED_TEST(EachPlotControl, AResizeStretchesTheStoredPictureAndDrawsNothing)
{
    PaintedControl<TypeParam> on;
    load(on.control, ten_sites);
    ASSERT_EQ(on.control.Plot(), 0);
    auto const drawn = on.pixels_of("PLOTA");
    on.control.window().resize(9000, 6000);

    auto const& stored = dynamic_cast<ImageBox&>(*on.control.find_child("RePlot", {}));
    auto const& plot = dynamic_cast<PictureBox&>(*on.control.find_child("PLOTA", {}));
    EXPECT_TRUE(stored.Visible());
    EXPECT_FALSE(plot.Visible());
    EXPECT_EQ(stored.Width(), plot.Width());
    EXPECT_EQ(stored.Height(), plot.Height());
    ASSERT_NE(stored.Picture(), nullptr);
    EXPECT_TRUE(*stored.Picture() == *drawn);

    // What the user sees there is that picture and nothing else, stretched.
    auto const shown = paint_child(on.control.window(), on.platform.glyphs());
    auto expected = Image(shown);
    int const left = static_cast<int>((stored.Left() + stored.container()->Left()) / 15);
    int const top = static_cast<int>((stored.Top() + stored.container()->Top()) / 15);
    int const width = static_cast<int>(stored.Width() / 15);
    int const height = static_cast<int>(stored.Height() / 15);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            expected.row(top + y)[left + x] =
                drawn->row((2 * y + 1) * drawn->height() / (2 * height))[(2 * x + 1) * drawn->width() / (2 * width)];
    EXPECT_TRUE(shown == expected);
}

TYPED_TEST(EachPicturelessControl, AResizeDrawsInTheNewSize)
{
    this->load_and_plot();
    this->control.window().resize(9000, 6000);
    EXPECT_NE(only_shapes(this->drawn()), Names{});
}

// --- The colour around the plot --------------------------------------------------------------------------------------

TYPED_TEST(EachControl, ABackColourIsThatOfEverythingAroundThePlotWhetherDrawnOrNot)
{
    constexpr Color blue = 0xC08040;
    for (bool const is_plotted : {false, true}) {
        PaintedControl<TypeParam> on;
        if (is_plotted) {
            load(on.control, ten_sites);
            ASSERT_EQ(on.control.Plot(), 0);
        }
        on.control.BackColor(blue);
        for (auto const* const name : {"FNPic", "Picture1", "histPic"})
            if (on.control.find_child(name, {}) != nullptr) {
                EXPECT_EQ(on.pixels_of(name)->row(0)[0], static_cast<std::uint32_t>(blue)) << name << is_plotted;
            }
        auto const shown = paint_child(on.control.window(), on.platform.glyphs());
        constexpr int inside_the_border = 4;
        EXPECT_EQ(shown.row(shown.height() - inside_the_border)[inside_the_border], static_cast<std::uint32_t>(blue));
    }
}

TYPED_TEST(EachControl, ABackColourBehindAPlotShowsTheSameFiguresOnIt)
{
    constexpr Color blue = 0xC08040;
    PaintedControl<TypeParam> before, behind;
    for (auto* const on : {&before, &behind})
        load(on->control, ten_sites);
    before.control.BackColor(blue);
    before.control.Plot();
    behind.control.Plot();
    behind.control.BackColor(blue);
    for (auto const* const name : {"FNPic", "Picture1", "histPic", "PLOTA"})
        if (before.control.find_child(name, {}) != nullptr) {
            EXPECT_TRUE(*before.pixels_of(name) == *behind.pixels_of(name)) << name;
        }
}

} // namespace zendara::test
