#include "zendara/dialogs/option_group.hpp"

#include "zendara/dialogs/number_field.hpp"
#include "zendara/dialogs/row_layout.hpp"

#include <algorithm>

namespace zendara
{

namespace
{

int lowest_index(std::span<OptionRow const> rows)
{
    int lowest = rows.front().index;
    for (OptionRow const& row : rows)
        lowest = std::min(lowest, row.index);
    return lowest;
}

} // namespace

OptionGroup::OptionGroup(Child& container, char const* name, char const* caption_text, char access_key,
                         std::span<OptionRow const> rows)
    : caption(container, std::string("lbl") + name), frame(container, std::string("frm") + name),
      buttons(frame, name, lowest_index(rows), static_cast<int>(rows.size())), asked_for_(buttons.lower_bound() - 1)
{
    frame.has_border = false;
    RowLayout::Children in_order;
    for (OptionRow const& row : rows) {
        buttons(row.index).caption(row.caption);
        in_order.push_back(&buttons(row.index));
    }
    label_field(caption, caption_text, access_key, *in_order.front());
    RowLayout layout(frame);
    layout.add(std::move(in_order));
    layout.place();
}

void OptionGroup::choose(int index)
{
    asked_for_ = index;
    for (int i = buttons.lower_bound(); i < buttons.lower_bound() + buttons.Count(); ++i)
        if (i != index && buttons(i).Value())
            buttons(i).Value(false);
    if (index >= buttons.lower_bound() && index < buttons.lower_bound() + buttons.Count())
        buttons(index).Value(true);
}

std::int16_t OptionGroup::chosen()
{
    int const index = chosen_index(buttons);
    return static_cast<std::int16_t>(index < buttons.lower_bound() ? asked_for_ : index);
}

} // namespace zendara
