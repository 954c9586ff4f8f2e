#include "printing.hpp"

#include "drawing.hpp"
#include "user_error.hpp"

#include <utility>

namespace zendara::program
{

PrintedControl::PrintedControl(LoadedControl& loaded, PaperSurface& page, std::string const& data_file)
    : loaded_(loaded), data_file_(data_file)
{
    put_member(loaded.control(), "PrinterObj", &page);
}

bool PrintedControl::has_legend() const
{
    return loaded_.control().host_interface().find("PrintLegend") != nullptr;
}

bool PrintedControl::shows_legend() const
{
    return has_legend() && to_double(get_member(loaded_.control(), "HideLegend")) == 0;
}

void PrintedControl::print_plot(PageBox const& box)
{
    constexpr double too_small = 1;
    double const result = call("PrintPlot", {box.left, box.top, box.width, box.height});
    if (result == too_small)
        throw UserError("--pixels: a control this small cannot be printed");
    if (result != 0)
        nothing_to_plot();
}

void PrintedControl::print_legend(double left, double top)
{
    print_block("PrintLegend", {left, top});
}

void PrintedControl::print_size(double left, double top)
{
    print_block("PrintPanelSize", {left, top});
}

void PrintedControl::print_statistic(double left, double top, std::string const& units)
{
    print_block("PrintPanelStatistic", {left, top, units});
}

double PrintedControl::call(char const* member, std::vector<Value> arguments)
{
    Value const result = call_member(loaded_.control(), member, arguments);
    tell_messages(loaded_.platform());
    return to_double(result);
}

void PrintedControl::print_block(char const* member, std::vector<Value> arguments)
{
    if (call(member, std::move(arguments)) != 0)
        nothing_to_plot();
}

void PrintedControl::nothing_to_plot() const
{
    throw UserError(data_file_ + ": there is nothing to plot", Exit::NothingToPlot);
}

} // namespace zendara::program
