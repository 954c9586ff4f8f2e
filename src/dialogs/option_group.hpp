#pragma once

#include "zendara/form/option_button.hpp"

#include <cstdint>
#include <span>
#include <vector>

namespace zendara
{

/// One button of a group.
struct OptionRow {
    int index;
    char const* caption;
};

/// A caption and option buttons side by side, of which one is on. Hosts know the buttons by their index; on the screen
/// they stand in the order of the rows.
class OptionGroup
{
public:
    OptionGroup(Child& container, char const* name, char const* caption, char access_key,
                std::span<OptionRow const> rows);

    Label caption;
    Frame frame;
    ChildArray<OptionButton> buttons;

    /// Switches the button of an index on. An index without a button is kept and leaves all off.
    void choose(int index);
    /// The index of the button that is on, or else what was last asked for.
    std::int16_t chosen();

private:
    int asked_for_;
};

} // namespace zendara
