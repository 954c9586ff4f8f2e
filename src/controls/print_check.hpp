#pragma once

#include "zendara/controls/control_frame.hpp"

namespace zendara
{

/// Why a print member does nothing, as its result. Data and printer are tested before the control's size.
enum class PrintCheck : std::int16_t { Ready = 0, ControlTooSmall = 1, NothingToPrint = 2 };

/// The test ahead of every printed plot.
PrintCheck check_plot_print(ControlFrame const& frame);

/// The test ahead of a printed legend or data block: whether there are data and a printer.
bool has_print_input(ControlFrame const& frame);

} // namespace zendara
