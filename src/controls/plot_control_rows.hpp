#pragma once

#include "zendara/controls/control_rows.hpp"

namespace zendara
{

/// What a control with a plot beside a legend has in its interface table beyond the rows that all of them have.
struct OwnRows {
    std::vector<Member> settings;            // behind the sizes
    std::vector<Member> colors;              // behind the read-outs
    std::vector<Member> further_prints = {}; // behind PrintPlot
};

/// The interface table of a control with a plot beside a legend, in the order of its slots.
Interface plot_interface(std::string_view name, std::string_view help, SharedKeys const& keys, OwnRows own);

std::vector<Member> legend_and_caption_rows(SharedKeys const& keys);
Member print_legend_row();
Member set_plot_not_valid_row();

/// The row of the member that a control with rotation by mouse carries for hosts; nothing reads it.
template <class C> Member enable_rotation_row()
{
    return field<&C::EnableRotation>("EnableRotation", "Carried for hosts: a drag turns the view whatever it holds.");
}

} // namespace zendara
