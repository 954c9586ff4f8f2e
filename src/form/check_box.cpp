#include "zendara/form/check_box.hpp"

#include "zendara/support/interface.hpp"

namespace zendara
{

void CheckBox::Value(std::int16_t value)
{
    value_ = value == unchecked || value == greyed ? value : checked;
    changed(Aspect::Content);
    raise("Click");
}

Interface const& CheckBox::host_interface() const
{
    using B = CheckBox;
    static Interface const table{
        "CheckBox", "A box with a tick.",
        join({place_and_looks(),
              {property<B, std::int16_t, &B::Value, &B::Value>("Value", "0 unchecked, 1 checked, 2 greyed.")}})};
    return table;
}

} // namespace zendara
