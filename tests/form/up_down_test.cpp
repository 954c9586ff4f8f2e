#include "zendara/form/up_down.hpp"
#include "zendara/platform/headless/headless_platform.hpp"
#include "zendara/support/interface.hpp"

#include <gtest/gtest.h>

namespace zendara::test
{

namespace
{

struct Counted : testing::Test {
    HeadlessPlatform platform{Pictures::Recorded};
    Window window{platform, "window"};
    UpDown arrows{window, "arrows"};
    int changes = 0;

    Counted()
    {
        arrows.on("Change", [this](std::span<Value>) { ++changes; });
    }
};

using UpDownTest = Counted;

} // namespace

TEST_F(UpDownTest, SettingTheNumberRaisesChangeEvenWhenItIsTheSame)
{
    put_member(arrows, "value", std::int16_t{7});
    EXPECT_EQ(arrows.Value(), 7);
    arrows.Value(7);
    EXPECT_EQ(changes, 2);
}

TEST_F(UpDownTest, NumbersSetByCodeMayLieOutsideTheBounds)
{
    arrows.Value(-5);
    EXPECT_EQ(arrows.Value(), -5);
    arrows.Value(1000);
    EXPECT_EQ(arrows.Value(), 1000);
}

TEST_F(UpDownTest, ClicksCountByTheIncrementUpToTheBounds)
{
    arrows.Min = 0;
    arrows.Max = 10;
    arrows.Increment = 4;
    for (int const expected : {4, 8, 10}) {
        arrows.click_up();
        EXPECT_EQ(arrows.Value(), expected);
    }
    changes = 0;
    arrows.click_up();
    EXPECT_EQ(arrows.Value(), 10);
    EXPECT_EQ(changes, 0);
    for (int const expected : {6, 2, 0}) {
        arrows.click_down();
        EXPECT_EQ(arrows.Value(), expected);
    }
}

TEST_F(UpDownTest, WithWrapClicksGoOnAtTheOtherBound)
{
    arrows.Max = 359;
    arrows.Wrap = true;
    arrows.click_down();
    EXPECT_EQ(arrows.Value(), 359);
    arrows.click_up();
    EXPECT_EQ(arrows.Value(), 0);
}

} // namespace zendara::test
