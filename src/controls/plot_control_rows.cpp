#include "zendara/controls/plot_control_rows.hpp"

#include "zendara/controls/plot_control.hpp"

namespace zendara
{

std::vector<Member> legend_and_caption_rows(SharedKeys const& keys)
{
    using P = PlotControl;
    return {
        hide_legend_row(keys, "Hides the legend."),
        caption_row<P, &P::PlotCaption, &P::PlotCaption>(keys),
    };
}

Member print_legend_row()
{
    return method<&PlotControl::PrintLegend>("PrintLegend", "Prints the legend.",
                                             by_references("left", "top") + draw_frame());
}

Member set_plot_not_valid_row()
{
    return set_plot_not_valid_row("Makes the next Plot draw anew.");
}

Interface plot_interface(std::string_view name, std::string_view help, SharedKeys const& keys, OwnRows own)
{
    return {name, help,
            join({
                platform_rows(keys),
                statistics_rows(),
                size_rows(keys),
                std::move(own.settings),
                {plot_row(), back_color_row(keys), show_plot_option_row()},
                limit_rows(),
                {set_panel_data_row()},
                legend_and_caption_rows(keys),
                {print_plot_row()},
                std::move(own.further_prints),
                {print_legend_row()},
                print_data_rows(),
                read_out_rows(),
                std::move(own.colors),
                {set_plot_not_valid_row(), set_data_file_row()},
            }),
            control_events()};
}

} // namespace zendara
