#pragma once

#include "loaded_control.hpp"
#include "zendara/files/paper_surface.hpp"

#include <string>
#include <vector>

namespace zendara
{
class PlotControl;
}

namespace zendara::program
{

/// A rectangle on a page, in twips.
struct PageBox {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    double right() const { return left + width; }
    double bottom() const { return top + height; }
};

/// What a frame of the print members takes on a page: it lies one line lower than the box that is named.
inline constexpr double legend_width_twips = 2775;
inline constexpr double legend_height_twips = 2895;
inline constexpr double size_block_height_twips = 1630;
inline constexpr double statistic_block_height_twips = 2115;

/// One control on its way to paper, through the print members that hosts call.
class PrintedControl
{
public:
    /// @param data_file  named in messages
    PrintedControl(LoadedControl& loaded, PaperSurface& page, std::string const& data_file);

    bool has_legend() const;
    /// Whether the control would show its legend on the screen.
    bool shows_legend() const;

    /// @throws UserError  when there is nothing to plot, or the control is too small to be printed
    void print_plot(PageBox const& box);
    /// Of a control that has one.
    void print_legend(double left, double top);
    void print_size(double left, double top);
    void print_statistic(double left, double top, std::string const& units);

private:
    void check_block(std::int16_t result);
    [[noreturn]] void nothing_to_plot() const;

    LoadedControl& loaded_;
    Control& control_;
    PlotControl* with_legend_; // the same, where it has one
    std::string data_file_;
};

} // namespace zendara::program
