#pragma once

#include "zendara/controls/plot_frame_members.hpp"
#include "zendara/controls/print_members.hpp"

namespace zendara
{

/// What a control with a plot beside a legend has in its interface table beyond the rows that all of them have.
struct OwnRows {
    std::vector<Member> settings;            // behind the sizes
    std::vector<Member> colors;              // behind the read-outs
    std::vector<Member> further_prints = {}; // behind PrintPlot
};

/// The interface table of a control with a plot beside a legend, in the order of its slots.
template <class C> Interface plot_interface(std::string_view name, std::string_view help, OwnRows own)
{
    return {name, help,
            join({
                platform_rows<C>(),
                statistics_rows<C>(),
                size_rows<C>(),
                std::move(own.settings),
                {plot_row<C>(), back_color_row<C>(), show_plot_option_row<C>()},
                limit_rows<C>(),
                {set_panel_data_row<C>()},
                legend_and_caption_rows<C>(),
                {print_plot_row<C>()},
                std::move(own.further_prints),
                print_block_rows<C>(),
                read_out_rows<C>(),
                std::move(own.colors),
                {set_plot_not_valid_row<C>(), set_data_file_row<C>()},
            }),
            control_events()};
}

} // namespace zendara
