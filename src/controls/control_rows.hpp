#pragma once

#include "zendara/controls/control.hpp"
#include "zendara/support/interface.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace zendara
{

// Rows of the interface tables that all controls have. Each control lists them in its own order of slots.

/// Where a saved property stands in the order of reading.
namespace store_place
{
constexpr int back_color = 1;
constexpr int width = 2;
constexpr int height = 3;
constexpr int colors = 10;   // from here on
constexpr int settings = 30; // from here on, a control's own
constexpr int legend = 90;
constexpr int caption = 91;
constexpr int pointer = 92;
constexpr int icon = 93;
} // namespace store_place

/// The keys of what all controls save; they differ from control to control. Saved documents hold them, and they stand
/// as they are, their faults included.
struct SharedKeys {
    std::string back_color;
    std::string width, height;
    std::string legend;
    std::string caption; // where the control has one
    std::string pointer, icon;
    std::string default_caption = "Panel";
    std::string width_on_read = width, height_on_read = height;

    static SharedKeys with_prefix(std::string const& prefix);
};

/// The word that the store has for a 16-bit integer and for a 32-bit one.
inline Value integer(std::int16_t value)
{
    return value;
}
inline Value long_integer(std::int32_t value)
{
    return value;
}

/// A property that is a colour.
template <class C, Color (C::*Getter)() const, void (C::*Setter)(Color)>
Member color_property(std::string_view name, std::string_view help)
{
    return property<C, Color, Getter, Setter>(name, help).of_type(Type::Color);
}

/// The row of the caption of the plot's frame.
template <class C, std::string const& (C::*Getter)() const, void (C::*Setter)(std::string_view)>
Member caption_row(SharedKeys const& keys)
{
    return text_property<C, Getter, Setter>("PlotCaption", "Caption of the plot.")
        .of_kind(MemberKind::PutGet)
        .saved(store_place::caption, keys.caption, keys.default_caption);
}

std::vector<Member> platform_rows(SharedKeys const& keys);
std::vector<Member> statistics_rows();
std::vector<Member> size_rows(SharedKeys const& keys);
Member plot_row();
Member back_color_row(SharedKeys const& keys);
Member show_plot_option_row();
std::vector<Member> limit_rows();
Member set_panel_data_row();
Member set_data_file_row();
Member hide_legend_row(SharedKeys const& keys, std::string_view help);
Member print_plot_row();
std::vector<Member> print_data_rows();
std::vector<Member> read_out_rows();
Member set_plot_not_valid_row(std::string_view help);

/// The arguments of a rectangle on paper.
Arguments<4> print_box();
/// The optional argument behind them.
Argument draw_frame();

/// The events that a control raises for its host.
std::vector<Event> control_events();

Enumeration const& sites_enumeration();

} // namespace zendara
