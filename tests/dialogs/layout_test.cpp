#include "zendara/dialogs/dialog_classes.hpp"
#include "zendara/dialogs/row_layout.hpp"
#include "zendara/form/check_box.hpp"
#include "zendara/form/option_button.hpp"
#include "zendara/platform/headless/headless_platform.hpp"

#include <gtest/gtest.h>

#include <cctype>
#include <map>

namespace zendara::test
{
namespace
{

/// Every dialog and every page, in a container with real fonts and in one with the wide texts of a record.
class EveryLayout : public testing::TestWithParam<Pictures>
{
public:
    HeadlessPlatform platform{GetParam()};
    std::vector<std::unique_ptr<Window>> windows;

    EveryLayout()
    {
        for (DialogClass const& each : dialog_classes())
            windows.push_back(each.make(platform));
        windows.push_back(dialog_classes()[7].make(platform));
        dynamic_cast<OptionButton&>(*windows.back()->find_child("optline", 1)).Value(true);
        for (PageClass const& each : page_classes())
            windows.push_back(each.make(platform));
    }

    /// Calls `look` with every visible child, from the outside in.
    template <class Look> static void for_each_shown(Child& container, Look const& look)
    {
        for (Child* const child : container.children()) {
            if (!child->Visible())
                continue;
            look(*child);
            for_each_shown(*child, look);
        }
    }

    static bool shows_text(Child const& child)
    {
        return dynamic_cast<Label const*>(&child) != nullptr || dynamic_cast<OptionButton const*>(&child) != nullptr ||
               dynamic_cast<CheckBox const*>(&child) != nullptr || dynamic_cast<Button const*>(&child) != nullptr;
    }

    // Marks and lines lie on their picture.
    static bool takes_room(Child const& child)
    {
        return shows_text(child) || dynamic_cast<TextBox const*>(&child) != nullptr ||
               dynamic_cast<Frame const*>(&child) != nullptr || dynamic_cast<PictureBox const*>(&child) != nullptr;
    }

    static std::string name_of(Child const& child)
    {
        return child.Name() + (child.Index() ? "(" + std::to_string(*child.Index()) + ")" : "");
    }
};

INSTANTIATE_TEST_SUITE_P(Fonts, EveryLayout, testing::Values(Pictures::Drawn, Pictures::Recorded));

constexpr double tolerance = 0.5; // twips

TEST_P(EveryLayout, NothingReachesBeyondItsContainer)
{
    for (auto const& window : windows)
        for_each_shown(*window, [&](Child& child) {
            if (!takes_room(child))
                return;
            Child& container = *child.container();
            double const unit = child.twips_per_unit_x();
            EXPECT_GE(child.Left(), 0) << window->Name() << ' ' << name_of(child);
            EXPECT_GE(child.Top(), 0) << window->Name() << ' ' << name_of(child);
            EXPECT_LE((child.Left() + child.Width()) * unit, container.Width() + tolerance)
                << window->Name() << ' ' << name_of(child);
            EXPECT_LE((child.Top() + child.Height()) * unit, container.Height() + tolerance)
                << window->Name() << ' ' << name_of(child);
        });
}

TEST_P(EveryLayout, NothingOverlaps)
{
    auto const overlap = [](Child const& one, Child const& other) {
        return one.Left() + one.Width() > other.Left() + tolerance &&
               other.Left() + other.Width() > one.Left() + tolerance &&
               one.Top() + one.Height() > other.Top() + tolerance &&
               other.Top() + other.Height() > one.Top() + tolerance;
    };
    for (auto const& window : windows)
        for_each_shown(*window, [&](Child& child) {
            for (Child* const sibling : child.container()->children()) {
                bool const counts =
                    sibling != &child && sibling->Visible() && takes_room(*sibling) && takes_room(child);
                EXPECT_FALSE(counts && overlap(child, *sibling))
                    << window->Name() << ' ' << name_of(child) << ' ' << name_of(*sibling);
            }
        });
}

TEST_P(EveryLayout, NoLabelIsCut)
{
    for (auto const& window : windows)
        for_each_shown(*window, [&](Child& child) {
            bool const is_one_line = child.caption().find('\n') == std::string::npos; // others size themselves
            if (!shows_text(child) || child.caption().empty() || !is_one_line)
                return;
            auto const text = platform.text_extent(child.Font(), child.caption());
            EXPECT_LE(text.width, child.Width() + tolerance) << window->Name() << ' ' << name_of(child);
            EXPECT_LE(text.height, child.Height() + tolerance) << window->Name() << ' ' << name_of(child);
        });
}

TEST_P(EveryLayout, NoAccessKeyLeadsToTwoPlacesAndEachStandsInItsCaption)
{
    for (auto const& window : windows) {
        std::map<int, std::string> taken;
        for_each_shown(*window, [&](Child& child) {
            if (child.access_key == 0)
                return;
            auto const [owner, is_new] = taken.emplace(std::tolower(child.access_key), name_of(child));
            EXPECT_TRUE(is_new) << window->Name() << ' ' << name_of(child) << ' ' << owner->second;
            EXPECT_NE(child.caption().find(child.access_key), std::string::npos)
                << window->Name() << ' ' << name_of(child);
        });
    }
}

} // namespace
} // namespace zendara::test
