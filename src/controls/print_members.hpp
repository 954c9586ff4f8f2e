#pragma once

#include "zendara/controls/print_check.hpp"
#include "zendara/controls/shared_members.hpp"
#include "zendara/print/print_panel.hpp"

namespace zendara
{

/// The print members that the controls share. Rectangles and places are in twips on the page of PrinterObj, which the
/// host owns. It holds no state: `Self` prints its plot in `print_plot`, and its legend, where it has one, in
/// `print_legend`.
template <class Self> class PrintMembers
{
public:
    /// Prints the plot.
    /// @param DrawFrame  with a frame and the caption
    /// @return  0 done, 1 the control is smaller than 750 twips in a direction, 2 no data or no printer
    std::int16_t PrintPlot(double left, double top, double width, double height, BooleanWord& DrawFrame)
    {
        return print_checked([&](PrintPanel& paper) {
            self().print_plot(paper, PaperBox{left, top, width, height}, DrawFrame);
        });
    }

    /// Prints the legend.
    /// @return  0 done, 1 no data or no printer
    std::int16_t PrintLegend(double left, double top, BooleanWord& DrawFrame)
    {
        return print_beside([&](PrintPanel& paper) { self().print_legend(paper, left, top, DrawFrame); });
    }

    /// Prints the statistics, in a measuring unit that the panel keeps.
    /// @return  0 done, 1 no data or no printer
    std::int16_t PrintPanelStatistic(double left, double top, std::string const& units)
    {
        return print_beside([&](PrintPanel& paper) {
            frame().record.Meas_unit = units;
            paper.DrawPanelStatistics(frame().record, left, top);
        });
    }

    /// Prints the panel's sizes.
    /// @return  0 done, 1 no data or no printer
    std::int16_t PrintPanelSize(double left, double top)
    {
        return print_beside([&](PrintPanel& paper) { paper.DrawPanelSize(frame().record, left, top); });
    }

protected:
    /// Prints a plot where nothing speaks against it.
    /// @return  why it was not printed, or 0
    template <class Routine> std::int16_t print_checked(Routine&& routine)
    {
        PrintCheck const check = self().check_print();
        if (check == PrintCheck::Ready)
            print(routine);
        return static_cast<std::int16_t>(check);
    }

    PrintCheck check_print() const { return check_plot_print(frame()); }

private:
    Self& self() { return static_cast<Self&>(*this); }
    ControlFrame& frame() { return static_cast<Self&>(*this).frame_; }
    ControlFrame const& frame() const { return static_cast<Self const&>(*this).frame_; }

    template <class Routine> std::int16_t print_beside(Routine&& routine)
    {
        if (!has_print_input(frame()))
            return 1;
        print(routine);
        return 0;
    }

    template <class Routine> void print(Routine&& routine)
    {
        PrintPanel paper;
        paper.PrinterObj = frame().printer;
        routine(paper);
    }
};

/// The arguments of a rectangle on paper, by value.
Arguments<4> print_box();
/// The optional DrawFrame behind them.
Argument draw_frame();

template <class C> Member print_plot_row()
{
    return method<&PrintMembers<C>::PrintPlot>("PrintPlot", "Prints the plot.", print_box() + draw_frame());
}

template <class C> std::vector<Member> print_data_rows()
{
    using P = PrintMembers<C>;
    auto const place = by_references("left", "top");
    return {
        method<&P::PrintPanelStatistic>("PrintPanelStatistic", "Prints the statistics.", by_reference("left"),
                                        by_reference("top"), by_reference("units")),
        method<&P::PrintPanelSize>("PrintPanelSize", "Prints the panel's sizes.", place),
    };
}

template <class C> std::vector<Member> print_block_rows()
{
    auto const place = by_references("left", "top");
    std::vector<Member> rows = {
        method<&PrintMembers<C>::PrintLegend>("PrintLegend", "Prints the legend.", place + draw_frame())};
    return join({std::move(rows), print_data_rows<C>()});
}

} // namespace zendara
