#pragma once

#include "controls/print_check.hpp"
#include "controls/shared_members.hpp"

namespace zendara
{

/// The print members of the controls with a plot beside a legend. Rectangles and places are in twips on the page of
/// PrinterObj, which the host owns. It holds no state.
template <class Self> class PrintMembers
{
public:
    /// Prints the plot.
    /// @return  0 done, 1 the control is smaller than 750 twips in a direction, 2 no data or no printer
    std::int16_t PrintPlot(double, double, double, double, BooleanWord&) { return refuse_or_fail("PrintPlot"); }

    /// Prints the legend.
    /// @return  0 done, 1 no data or no printer
    std::int16_t PrintLegend(double, double, BooleanWord&) { return refuse_block_or_fail("PrintLegend"); }

    /// Prints the statistics, in a measuring unit that the panel keeps.
    /// @return  0 done, 1 no data or no printer
    std::int16_t PrintPanelStatistic(double, double, std::string const& units)
    {
        if (has_print_input(frame()))
            frame().record.Meas_unit = units;
        return refuse_block_or_fail("PrintPanelStatistic");
    }

    /// Prints the panel's sizes.
    /// @return  0 done, 1 no data or no printer
    std::int16_t PrintPanelSize(double, double) { return refuse_block_or_fail("PrintPanelSize"); }

protected:
    /// The result of a printed plot that is refused.
    /// @throws Failure  InvalidProcedureCall where it is not: this version has no page layout yet
    std::int16_t refuse_or_fail(char const* member)
    {
        auto const check = check_plot_print(frame());
        if (check == PrintCheck::Ready)
            no_page_layout(member);
        return static_cast<std::int16_t>(check);
    }

    std::int16_t refuse_block_or_fail(char const* member)
    {
        if (has_print_input(frame()))
            no_page_layout(member);
        return 1;
    }

private:
    ControlFrame& frame() { return static_cast<Self&>(*this).frame_; }
};

/// The arguments of a rectangle on paper, by value.
std::vector<Argument> print_box();
/// Those arguments with the optional DrawFrame behind them.
std::vector<Argument> with_draw_frame(std::vector<Argument> arguments);

template <class C> Member print_plot_row()
{
    return method<C, &PrintMembers<C>::PrintPlot>("PrintPlot", with_draw_frame(print_box()), "Prints the plot.");
}

template <class C> std::vector<Member> print_block_rows()
{
    using P = PrintMembers<C>;
    std::vector<Argument> const place = {by_reference("left"), by_reference("top")};
    return {
        method<C, &P::PrintLegend>("PrintLegend", with_draw_frame(place), "Prints the legend."),
        method<C, &P::PrintPanelStatistic>("PrintPanelStatistic",
                                           {by_reference("left"), by_reference("top"), by_reference("units")},
                                           "Prints the statistics."),
        method<C, &P::PrintPanelSize>("PrintPanelSize", place, "Prints the panel's sizes."),
    };
}

} // namespace zendara
