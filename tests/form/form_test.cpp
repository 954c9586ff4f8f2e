#include "zendara/form/check_box.hpp"
#include "zendara/form/form.hpp"
#include "zendara/form/option_button.hpp"
#include "zendara/form/window_painter.hpp"
#include "zendara/platform/headless/headless_platform.hpp"

#include <gtest/gtest.h>

namespace zendara
{
namespace
{

struct Forms : testing::Test {
    HeadlessPlatform platform{Pictures::Recorded};
    Window owner{platform, "owner"};
    Form form{platform, "form"};
};

TEST_F(Forms, AFormShowsOnlyWhileItIsUp)
{
    EXPECT_FALSE(form.Visible());
    bool was_visible = false;
    Window* seen_owner = nullptr;
    platform.on_modal = [&](Form& shown) {
        was_visible = shown.Visible();
        seen_owner = shown.owner;
    };
    form.show_modal(owner);
    EXPECT_TRUE(was_visible);
    EXPECT_EQ(seen_owner, &owner);
    EXPECT_FALSE(form.Visible());
}

TEST_F(Forms, ClosingTheWindowPressesTheCancelButton)
{
    Button cancel(form, "cancel");
    form.cancel_button = &cancel;
    int presses = 0;
    cancel.on("Click", [&](std::span<Value>) { ++presses; });
    form.show_modal(owner);
    EXPECT_EQ(presses, 1) << "a form that nobody answers is cancelled";
}

TEST_F(Forms, AFormThatTheUserHasHiddenIsNotCancelled)
{
    Button cancel(form, "cancel");
    form.cancel_button = &cancel;
    int presses = 0;
    cancel.on("Click", [&](std::span<Value>) { ++presses; });
    platform.on_modal = [](Form& shown) { shown.Hide(); };
    form.show_modal(owner);
    EXPECT_EQ(presses, 0);
}

TEST_F(Forms, TheTabKeyGoesFromTheTopDownAndFromTheLeftToTheRight)
{
    Button last(form, "last");
    Frame frame(form, "frame");
    TextBox lower(frame, "lower");
    OptionButton right(frame, "right");
    CheckBox left(frame, "left");
    Label label(frame, "label");
    frame.Move(0, 0, 1000, 1000);
    right.Move(500, 100, 0, 0);
    left.Move(100, 100, 0, 0);
    lower.Move(100, 400, 0, 0);
    last.Move(1000, 0, 0, 0);
    EXPECT_EQ(in_reading_order(form), (std::vector<Child*>{&left, &right, &lower, &last}));
}

TEST_F(Forms, AnAccessKeyLeadsFromALabelToItsFieldWhileTheLabelShows)
{
    Frame frame(form, "frame");
    Label label(frame, "label");
    TextBox field(frame, "field");
    CheckBox box(frame, "box");
    label.access_key = 'X';
    label.access_key_target = &field;
    box.access_key = 'W';
    EXPECT_EQ(form.target_of('x'), &field);
    EXPECT_EQ(form.target_of('W'), &box);
    EXPECT_EQ(form.target_of('q'), nullptr);
    label.Visible(false);
    EXPECT_EQ(form.target_of('x'), nullptr);
}

} // namespace
} // namespace zendara
