#include "zendara/controls/ten_interval_colors.hpp"

#include "zendara/controls/control_rows.hpp"

namespace zendara
{

std::vector<Member> interval_color_rows(std::string const& prefix, std::string const& prefix_on_read)
{
    using T = TenIntervalColors;
    constexpr auto help = "Colour of an interval.";
    auto const stored = [&](Member&& row, int interval, int start_color) {
        std::string const key = "InterCol" + std::to_string(interval);
        return std::move(row)
            .saved(store_place::colors + interval, prefix + key, long_integer(QBColor(start_color)))
            .read_from(prefix_on_read + key);
    };
    return {
        stored(color_property<T, &T::IntervalColor1, &T::IntervalColor1>("IntervalColor1", help), 1, 12),
        stored(color_property<T, &T::IntervalColor2, &T::IntervalColor2>("IntervalColor2", help), 2, 14),
        stored(color_property<T, &T::IntervalColor3, &T::IntervalColor3>("IntervalColor3", help), 3, 10),
        stored(color_property<T, &T::IntervalColor4, &T::IntervalColor4>("IntervalColor4", help), 4, 6),
        stored(color_property<T, &T::IntervalColor5, &T::IntervalColor5>("IntervalColor5", help), 5, 2),
        stored(color_property<T, &T::IntervalColor6, &T::IntervalColor6>("IntervalColor6", help), 6, 3),
        stored(color_property<T, &T::IntervalColor7, &T::IntervalColor7>("IntervalColor7", help), 7, 9),
        stored(color_property<T, &T::IntervalColor8, &T::IntervalColor8>("IntervalColor8", help), 8, 1),
        stored(color_property<T, &T::IntervalColor9, &T::IntervalColor9>("IntervalColor9", help), 9, 5),
        stored(color_property<T, &T::IntervalColor0, &T::IntervalColor0>("IntervalColor0", help), 0, 4),
    };
}

} // namespace zendara
