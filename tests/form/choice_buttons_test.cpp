#include "zendara/form/check_box.hpp"
#include "zendara/form/form.hpp"
#include "zendara/form/option_button.hpp"
#include "zendara/platform/headless/headless_platform.hpp"
#include "zendara/support/interface.hpp"

#include <gtest/gtest.h>

namespace zendara
{
namespace
{

struct ChoiceButtons : testing::Test {
    HeadlessPlatform platform{Pictures::Recorded};
    Form form{platform, "form"};
    Frame frame{form, "frame"};
    Frame other_frame{form, "other_frame"};
    ChildArray<OptionButton> group{frame, "group", 1, 3};
    OptionButton stranger{other_frame, "stranger"};
    CheckBox box{frame, "box"};
    int clicks = 0;

    void count_clicks(Child& child)
    {
        child.on("Click", [this](std::span<Value>) { ++clicks; });
    }
};

TEST_F(ChoiceButtons, AnOptionButtonThatGoesOnSwitchesTheOthersOfItsContainerOff)
{
    stranger.Value(true);
    group(1).Value(true);
    group(3).Value(true);
    EXPECT_FALSE(group(1).Value());
    EXPECT_FALSE(group(2).Value());
    EXPECT_TRUE(group(3).Value());
    EXPECT_TRUE(stranger.Value()) << "it lies in another container";
    EXPECT_EQ(chosen_index(group), 3);
}

TEST_F(ChoiceButtons, AGroupWithoutAButtonOnAnswersOneBelowItsFirstIndex)
{
    EXPECT_EQ(chosen_index(group), 0);
}

TEST_F(ChoiceButtons, OnlyTheOptionButtonThatGoesOnRaisesClick)
{
    group(1).Value(true);
    count_clicks(group(1));
    group(2).Value(true);
    EXPECT_EQ(clicks, 0) << "going off is no click";
    group(1).Value(true);
    EXPECT_EQ(clicks, 1);
    group(1).Value(false);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ChoiceButtons, TheClickOfAnOptionButtonFindsItsGroupAlreadySwitched)
{
    group(1).Value(true);
    int seen = -1;
    group(2).on("Click", [&](std::span<Value>) { seen = chosen_index(group); });
    group(2).Value(true);
    EXPECT_EQ(seen, 2);
}

TEST_F(ChoiceButtons, PuttingTheValueOfACheckBoxRaisesClick)
{
    count_clicks(box);
    put_member(box, "Value", std::int16_t{1});
    EXPECT_TRUE(box.is_checked());
    put_member(box, "Value", std::int16_t{0});
    EXPECT_FALSE(box.is_checked());
    EXPECT_EQ(clicks, 2);
}

TEST_F(ChoiceButtons, ACheckBoxTakesTrueAsCheckedAndKeepsGreyed)
{
    box.Value(BooleanWord(true).word);
    EXPECT_EQ(box.Value(), 1);
    box.Value(2);
    EXPECT_EQ(box.Value(), 2);
    EXPECT_FALSE(box.is_checked());
}

TEST_F(ChoiceButtons, HostsReadAnOptionButtonAsABooleanWord)
{
    group(2).Value(true);
    EXPECT_EQ(to_double(get_member(group(2), "Value")), -1);
    EXPECT_EQ(to_double(get_member(group(1), "Value")), 0);
}

} // namespace
} // namespace zendara
