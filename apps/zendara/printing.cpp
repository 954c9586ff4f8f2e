#include "printing.hpp"

#include "drawing.hpp"
#include "user_error.hpp"
#include "zendara/controls/plot_control.hpp"

namespace zendara::program
{

PrintedControl::PrintedControl(LoadedControl& loaded, PaperSurface& page, std::string const& data_file)
    : loaded_(loaded), control_(loaded.control()), with_legend_(dynamic_cast<PlotControl*>(&control_)),
      data_file_(data_file)
{
    control_.PrinterObj(&page);
}

bool PrintedControl::has_legend() const
{
    return with_legend_ != nullptr;
}

bool PrintedControl::shows_legend() const
{
    return has_legend() && !control_.HideLegend();
}

void PrintedControl::print_plot(PageBox const& box)
{
    constexpr std::int16_t too_small = 1;
    BooleanWord with_frame = true;
    std::int16_t const result = control_.PrintPlot(box.left, box.top, box.width, box.height, with_frame);
    tell_messages(loaded_.platform());
    if (result == too_small)
        throw UserError("--pixels: a control this small cannot be printed");
    if (result != 0)
        nothing_to_plot();
}

void PrintedControl::print_legend(double left, double top)
{
    BooleanWord with_frame = true;
    check_block(with_legend_->PrintLegend(left, top, with_frame));
}

void PrintedControl::print_size(double left, double top)
{
    check_block(control_.PrintPanelSize(left, top));
}

void PrintedControl::print_statistic(double left, double top, std::string const& units)
{
    check_block(control_.PrintPanelStatistic(left, top, units));
}

// Of what stands beside a plot: 0 where it was printed.
void PrintedControl::check_block(std::int16_t result)
{
    tell_messages(loaded_.platform());
    if (result != 0)
        nothing_to_plot();
}

void PrintedControl::nothing_to_plot() const
{
    throw UserError(data_file_ + ": there is nothing to plot", Exit::NothingToPlot);
}

} // namespace zendara::program
