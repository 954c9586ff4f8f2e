#include "zendara/form/up_down.hpp"

#include "zendara/support/interface.hpp"

#include <algorithm>

namespace zendara
{

void UpDown::Value(std::int32_t value)
{
    value_ = value;
    changed(Aspect::Content);
    raise("Change");
}

void UpDown::step(std::int32_t by)
{
    std::int64_t const wanted = std::int64_t{value_} + by;
    bool const is_beyond = wanted < Min || wanted > Max;
    std::int64_t const other_bound = by > 0 ? Min : Max;
    std::int64_t const next =
        is_beyond && Wrap ? other_bound : std::clamp<std::int64_t>(wanted, Min, std::max(Min, Max));
    if (next != value_)
        Value(static_cast<std::int32_t>(next));
}

Interface const& UpDown::host_interface() const
{
    using U = UpDown;
    static Interface const table{"UpDown", "A pair of arrow buttons that counts a number up and down.",
                                 join({place_and_looks(),
                                       {property<U, std::int32_t, &U::Value, &U::Value>("Value", "The number."),
                                        field<&U::Increment>("Increment", "What a click adds or takes away."),
                                        field<&U::Min>("Min", "Lowest number that clicks reach."),
                                        field<&U::Max>("Max", "Highest number that clicks reach."),
                                        field<&U::Wrap>("Wrap", "Whether clicks go on at the other bound.")}})};
    return table;
}

} // namespace zendara
