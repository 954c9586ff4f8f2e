#include "zendara/form/option_button.hpp"

#include "zendara/support/interface.hpp"

namespace zendara
{

void OptionButton::Value(bool is_on)
{
    is_on_ = is_on;
    changed(Aspect::Content);
    if (!is_on)
        return;
    switch_off_others();
    raise("Click");
}

void OptionButton::switch_off_others()
{
    for (Child* const child : container()->children()) {
        auto* const other = dynamic_cast<OptionButton*>(child);
        if (other != nullptr && other != this && other->is_on_)
            other->Value(false);
    }
}

Interface const& OptionButton::host_interface() const
{
    using B = OptionButton;
    static Interface const table{
        "OptionButton", "A round button, one of several.",
        join({place_and_looks(), {property<B, bool, &B::Value, &B::Value>("Value", "Whether it is on.")}})};
    return table;
}

int chosen_index(ChildArray<OptionButton>& group)
{
    int const end = group.lower_bound() + group.Count();
    for (int i = group.lower_bound(); i < end; ++i)
        if (group(i).Value())
            return i;
    return group.lower_bound() - 1;
}

} // namespace zendara
