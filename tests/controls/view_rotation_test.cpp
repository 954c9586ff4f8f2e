#include "control_fixture.hpp"
#include "zendara/controls/zv_plot_3d.hpp"
#include "zendara/controls/zv_plot_3db.hpp"
#include "zendara/controls/zv_plot_3ds.hpp"

#include <limits>

namespace zendara::test
{

namespace
{

using Names = std::vector<std::string>;

std::vector<Site> const twelve_sites = random_sites(12, 300, 200, 11);

/// A plotted control whose plot is 700 pixels wide and 200 high: a pixel is a degree.
template <class C> struct Dragged : testing::Test {
    Hosted<C> host;
    C& control = host.control;

    void SetUp() override
    {
        load(control, twelve_sites);
        ASSERT_EQ(control.Plot(), 0);
        host.child("PLOTA").Width(700 * 15);
        host.child("PLOTA").Height(200 * 15);
        host.events.clear();
        take_records();
    }

    void take_records()
    {
        host.take_record("PLOTA");
        host.take_record("FNPic");
    }

    void mouse(std::string_view event, float x, float y, std::string_view child = "PLOTA")
    {
        std::vector<Value> arguments = {std::int16_t{1}, std::int16_t{0}, x, y};
        host.child(child).raise(event, arguments);
    }
    void down(float x, float y, std::string_view child = "PLOTA") { mouse("MouseDown", x, y, child); }
    void move(float x, float y, std::string_view child = "PLOTA") { mouse("MouseMove", x, y, child); }
    void up(float x, float y, std::string_view child = "PLOTA") { mouse("MouseUp", x, y, child); }

    std::pair<int, int> view() const { return {control.GridRotation(), control.GridInclination()}; }
};

using Controls = testing::Types<ZvPlot3D, ZvPlot3DS, ZvPlot3DB>;
TYPED_TEST_SUITE(Dragged, Controls);

} // namespace

TYPED_TEST(Dragged, TurnsByADegreeForASevenHundredthOfTheWidthAndATwoHundredthOfTheHeight)
{
    this->down(300, 100);
    this->move(290, 95);
    EXPECT_EQ(this->view(), std::pair(50, 40));
    this->move(310, 104);
    EXPECT_EQ(this->view(), std::pair(30, 31));
}

TYPED_TEST(Dragged, RoundsHalvesToTheEvenDegree)
{
    this->down(300, 100);
    this->move(299.5F, 99.5F);
    EXPECT_EQ(this->view(), std::pair(40, 35));
    this->move(298.5F, 98.5F);
    EXPECT_EQ(this->view(), std::pair(42, 37));
    this->move(300.5F, 100.5F);
    EXPECT_EQ(this->view(), std::pair(40, 35));
}

TYPED_TEST(Dragged, TheInclinationStopsAt0AndAt90)
{
    this->down(300, 100);
    this->move(300, 46);
    EXPECT_EQ(this->view(), std::pair(40, 89));
    this->move(300, 45);
    EXPECT_EQ(this->view(), std::pair(40, 90));
    this->move(300, 44);
    EXPECT_EQ(this->view(), std::pair(40, 90));
    this->move(300, 136);
    EXPECT_EQ(this->view(), std::pair(40, 0));
}

TYPED_TEST(Dragged, TheRotationStopsAt0AtBothEndsAndDoesNotWrap)
{
    this->down(340, 100);
    this->move(21, 100);
    EXPECT_EQ(this->view(), std::pair(359, 35));
    this->move(20, 100);
    EXPECT_EQ(this->view(), std::pair(0, 35));
    this->move(381, 100);
    EXPECT_EQ(this->view(), std::pair(0, 35));
    this->move(380, 100);
    EXPECT_EQ(this->view(), std::pair(0, 35));
    this->move(379, 100);
    EXPECT_EQ(this->view(), std::pair(1, 35));
}

TYPED_TEST(Dragged, APointerFarOutsideOfAPlotFailsNowhere)
{
    this->down(300, 100);
    EXPECT_NO_THROW(this->move(1e30F, -1e30F));
    EXPECT_EQ(this->view(), std::pair(0, 90));
}

TYPED_TEST(Dragged, TurnsWhateverEnableRotationHolds)
{
    if constexpr (requires { this->control.EnableRotation; })
        this->control.EnableRotation = false;
    this->down(300, 100);
    this->move(290, 100);
    EXPECT_EQ(this->view(), std::pair(50, 35));
}

TYPED_TEST(Dragged, TheMouseIsRaisedWhateverBecomesOfThePreview)
{
    this->control.record().TestSizeX = std::numeric_limits<double>::infinity(); // no figure can be drawn of it
    this->control.record().HalfTestSizeX = std::numeric_limits<double>::infinity();
    this->host.events.clear();
    this->down(300, 100);
    this->move(290, 95);
    this->up(290, 95);
    EXPECT_EQ(this->host.events, (Names{"MouseDown", "MouseMove", "MouseUp"}));
    auto const failures = this->host.platform.take_failures(this->control.record());
    ASSERT_GE(failures.size(), 2u);
    EXPECT_EQ(failures[0].where, "rotation: begin");
    EXPECT_EQ(failures[1].where, "rotation: turn");
}

TYPED_TEST(Dragged, AMoveWithoutAButtonTurnsNothingAndReachesTheHost)
{
    this->move(290, 100);
    EXPECT_EQ(this->view(), std::pair(40, 35));
    EXPECT_FALSE(this->host.has_drawn());
    EXPECT_EQ(this->host.events, Names{"MouseMove"});
}

TYPED_TEST(Dragged, TheUserWatchesTheStoredPictureWhileTheHiddenSurfaceIsDrawn)
{
    auto& surface = this->host.child("PLOTA");
    auto& stored = this->host.child("RePlot");
    bool was_shown = false;
    this->host.platform.on_do_events = [&] { was_shown = stored.Visible() && !surface.Visible(); };
    this->down(300, 100);
    EXPECT_TRUE(was_shown);
    EXPECT_TRUE(stored.Visible());
    EXPECT_FALSE(surface.Visible());
    EXPECT_TRUE(this->host.has_drawn());
}

TYPED_TEST(Dragged, EveryEventReachesTheHostOnceWithItsArguments)
{
    std::vector<std::pair<std::string, float>> seen;
    this->control.on_event = [&](std::string_view name, std::span<Value> arguments) {
        seen.emplace_back(name, std::get<float>(arguments[2]));
    };
    this->down(300, 100);
    this->move(290, 100);
    this->move(290, 100); // draws nothing
    this->up(290, 100);
    EXPECT_EQ(seen, (std::vector<std::pair<std::string, float>>{
                        {"MouseDown", 300.F}, {"MouseMove", 290.F}, {"MouseMove", 290.F}, {"MouseUp", 290.F}}));
}

TYPED_TEST(Dragged, TheHostHearsOfADownAndAMoveBehindTheirEffectAndOfAnUpBeforeIt)
{
    std::vector<bool> had_drawn;
    this->control.on_event = [&](std::string_view, std::span<Value>) { had_drawn.push_back(this->host.has_drawn()); };
    this->down(300, 100);
    this->move(290, 100);
    this->up(290, 100);
    EXPECT_EQ(had_drawn, (std::vector<bool>{true, true, false}));
    EXPECT_TRUE(this->host.has_drawn());
}

TYPED_TEST(Dragged, GoesOnAndEndsOnTheStoredPictureThatThePointerHits)
{
    this->down(300, 100);
    this->move(290, 100, "RePlot");
    EXPECT_EQ(this->view(), std::pair(50, 35));
    this->take_records();
    this->up(290, 100, "RePlot");
    EXPECT_TRUE(this->host.has_drawn());
    EXPECT_TRUE(this->host.child("PLOTA").Visible());
    this->move(200, 100);
    EXPECT_EQ(this->view(), std::pair(50, 35));
    EXPECT_EQ(this->host.events, (Names{"MouseDown", "MouseMove", "MouseUp", "MouseMove"}));
}

TYPED_TEST(Dragged, StartsOnTheStoredPictureAfterAResize)
{
    this->control.window().resize(9000, 6000);
    ASSERT_TRUE(this->host.child("RePlot").Visible());
    this->down(300, 100, "RePlot");
    this->move(100, 100, "RePlot");
    EXPECT_NE(this->view().first, 40);
    EXPECT_EQ(this->host.events, (Names{"MouseDown", "MouseMove"}));
}

TYPED_TEST(Dragged, AMoveByLessThanADegreeDrawsNothing)
{
    this->down(300, 100);
    this->take_records();
    int turns = 0;
    this->host.platform.on_do_events = [&] { ++turns; };
    this->move(300.25F, 100);
    EXPECT_FALSE(this->host.has_drawn());
    EXPECT_EQ(turns, 0);
    this->move(299, 100);
    EXPECT_TRUE(this->host.has_drawn());
    EXPECT_EQ(turns, 1);
}

TYPED_TEST(Dragged, TheButtonComingUpDrawsThePlotInFull)
{
    this->down(300, 100);
    this->move(240, 80);
    this->take_records();
    this->up(240, 80);
    auto const in_full = text_of(this->host.take_record("PLOTA"));
    EXPECT_TRUE(this->host.child("PLOTA").Visible());
    EXPECT_FALSE(this->host.child("RePlot").Visible());
    this->control.SetPlotNotVaild();
    this->control.Plot();
    EXPECT_EQ(text_of(this->host.take_record("PLOTA")), in_full);
    EXPECT_EQ(this->view(), std::pair(100, 55));
}

TYPED_TEST(Dragged, AButtonThatComesDownAndUpOnTheSpotKeepsTheView)
{
    this->down(300, 100);
    this->up(300, 100);
    EXPECT_EQ(this->view(), std::pair(40, 35));
    EXPECT_TRUE(this->host.child("PLOTA").Visible());
}

TYPED_TEST(Dragged, WithoutSitesNothingTurnsAndTheEventsReachTheHost)
{
    Hosted<TypeParam> empty;
    std::vector<Value> at_right = {std::int16_t{1}, std::int16_t{0}, 100.F, 10.F};
    std::vector<Value> at_left = {std::int16_t{1}, std::int16_t{0}, 10.F, 10.F};
    empty.take_record("PLOTA");
    empty.child("PLOTA").raise("MouseDown", at_right);
    empty.child("PLOTA").raise("MouseMove", at_left);
    empty.child("PLOTA").raise("MouseUp", at_left);
    EXPECT_EQ(empty.control.GridRotation(), 40);
    EXPECT_TRUE(empty.take_record("PLOTA").empty());
    EXPECT_EQ(empty.events, (Names{"MouseDown", "MouseMove", "MouseUp"}));
}

TYPED_TEST(Dragged, TheDraggedViewIsKeptThoughNoSetterWouldTakeIt)
{
    this->down(300, 100);
    this->move(100, 100);
    this->up(100, 100);
    EXPECT_EQ(this->control.GridRotation(), 240);
    EXPECT_TRUE(this->host.changes.empty());
}

TYPED_TEST(Dragged, ClicksOfThePlotStillReachTheHost)
{
    this->host.child("PLOTA").raise("Click");
    this->host.child("PLOTA").raise("DblClick");
    EXPECT_EQ(this->host.events, (Names{"Click", "DblClick"}));
}

} // namespace zendara::test
