#pragma once

#include "zendara/form/children.hpp"
#include "zendara/form/property_bag.hpp"
#include "zendara/panel/panel.hpp"
#include "zendara/support/geometry.hpp"

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace zendara
{

class OptionDialog;
class PrintPanel;
struct TrapPlace;
enum class AboutKind : std::int16_t;

/// Whether a plot marks the sites.
enum class Sites : std::int32_t { HideSites = 0, MarkSites = -1 };

/// What all nine controls are: a window with one panel in it, the settings that every plot has, and the ways in and out
/// for data, statistics, events, saving and printing.
///
/// Order of life: make it, then InitProperties or ReadProperties, then window().resize. After that: sizes, data, Plot.
/// Lengths on the panel are millimetres, lengths of windows and pages twips. Settings take effect with the next Plot;
/// plot limits and a resize draw at once.
class Control : public Object
{
public:
    /// Gets the events that the control raises to its host: name and arguments.
    using EventSink = std::function<void(std::string_view, std::span<Value>)>;
    /// Gets the public name of each property that has changed.
    using ChangeSink = std::function<void(std::string_view)>;

    EventSink on_event;
    ChangeSink on_change;

    Window& window() { return window_; }
    panel& record() { return record_; }
    Platform& platform() const { return window_.platform(); }

    // --- Saving -----------------------------------------------------------------------------------------------------

    /// The start values of a new control.
    virtual void InitProperties();
    /// Reads the saved properties through their public setters, in the order in which they are saved.
    /// @throws Failure  TypeMismatch or Overflow for a value that its property cannot take
    void ReadProperties(PropertyBag const& store);
    /// Writes the properties. It never stops in the middle: getters never fail.
    void WriteProperties(PropertyBag& store);

    // --- Window and devices -----------------------------------------------------------------------------------------

    /// The surface that the print members draw on; the host keeps it alive. nullptr for none.
    Surface* PrinterObj() const { return printer_; }
    void PrinterObj(Surface* printer) { printer_ = printer; }

    /// Handles of the platform for the control itself, 0 where it has none.
    std::int32_t hdc() const { return platform().device_handle(); }
    std::int32_t hwnd() const { return platform().window_handle(); }

    /// The picture of the pointer; the host keeps it alive. nullptr for none.
    Object* MouseIcon() const { return window_.MouseIcon(); }
    void MouseIcon(Object* icon);

    /// The form of the pointer: 0 the usual one, 11 the hourglass.
    std::int16_t MousePointer() const { return window_.MousePointer(); }
    void MousePointer(std::int16_t pointer);

    /// Colour around the plot; the plot keeps its own.
    Color BackColor() const { return window_.BackColor(); }
    void BackColor(Color color);

    /// Hides what stands beside the plot.
    BooleanWord HideLegend() const { return !legend_shown_; }
    void HideLegend(BooleanWord is_hidden);

    /// Shows the about box.
    void About();
    /// Opens the option dialog; its OK draws anew.
    virtual void ShowPlotOption() = 0;

    // --- Sizes ------------------------------------------------------------------------------------------------------

    /// Width and height of the panel. Setting one takes the plot away and sets that of the tested area as well.
    double PanelSizeX() const { return record_.SizeX; }
    void PanelSizeX(double width);
    double PanelSizeY() const { return record_.SizeY; }
    void PanelSizeY(double height);

    /// Width and height of the tested area, which the plot covers.
    double TestSizeX() const { return record_.TestSizeX; }
    void TestSizeX(double width);
    double TestSizeY() const { return record_.TestSizeY; }
    void TestSizeY(double height);

    // --- Data -------------------------------------------------------------------------------------------------------

    /// Takes sites from three arrays, one element per site. Nothing is drawn before the next Plot.
    /// @return  0 done, 1 the upper bounds differ, 2 the lower bounds differ, 4 a run-time failure
    std::int16_t SetPanelData(HostArray<double>& x, HostArray<double>& y, HostArray<double>& Z);
    /// The same from any memory, bounds counted from 0.
    std::int16_t SetPanelData(std::span<double const> x, std::span<double const> y, std::span<double const> Z);

    /// Takes sites from a raw data file: `nops` x values, as many y values, as many Z values. Nothing is drawn before
    /// the next Plot; the display is cleared also after a failure. A missing file is created, empty.
    /// @return  0 done, 4 a run-time failure
    std::int16_t SetDataFile(std::string_view datafile, double nops);

    /// Reads the sites out into arrays from 1 on, which stay as they are when there is no site.
    /// @return  the number of sites
    double GetPanelData(HostArray<double>& x, HostArray<double>& y, HostArray<double>& Z);

    /// The value at any point of the panel.
    /// @throws Failure  TypeMismatch when an argument is no number
    double Interpolation(Value const& x, Value const& y) const;

    // --- Statistics -------------------------------------------------------------------------------------------------

    /// Statistics of the data, whatever the plot limits are.
    double mean() const { return record_.mean; }
    double StdDev() const { return record_.StdDev; }
    double Maximum() const { return record_.maxi; }
    double Minimum() const { return record_.mini; }
    double range() const { return record_.maxi - record_.mini; }
    /// Spread in percent of the sum of the extremes; 0 when that sum is 0.
    double HiLo() const;
    /// Standard deviation in percent of the mean; 0 when the mean is not positive.
    double StdDevPercent() const;

    // --- Plot -------------------------------------------------------------------------------------------------------

    /// Shows the plot, and draws it where the picture does not hold.
    /// @return  0 done, 1 there are no data
    std::int16_t Plot();

    /// Makes the next Plot draw anew.
    virtual void SetPlotNotVaild() = 0;

    /// Takes other limits for the colour scale, from the lowest to the highest value.
    /// @return  True when they were taken; False when they hold already or LPL is not below UPL
    BooleanWord SetPlotLimit(double LPL, double UPL);
    /// Goes back to the limits of the data.
    void ReleasePlotLimit();

    /// Empties the display; the data stay, and the next Plot draws them again.
    void clear() { clear_display(); }

    // --- Printing ---------------------------------------------------------------------------------------------------
    // On the page of PrinterObj, which the host owns.

    /// Prints the plot.
    /// @param DrawFrame  with a frame and the caption
    /// @return  0 done, 1 the control is smaller than a plot on it may be, 2 no data or no printer
    std::int16_t PrintPlot(double left, double top, double width, double height, BooleanWord& DrawFrame);

    /// Prints the statistics, in a measuring unit that the panel keeps.
    /// @return  0 done, 1 no data or no printer
    std::int16_t PrintPanelStatistic(double left, double top, std::string_view units);

    /// Prints the panel's sizes.
    /// @return  0 done, 1 no data or no printer
    std::int16_t PrintPanelSize(double left, double top);

    /// The panel as "PanelObj", then the children of the window.
    Object* find_child(std::string_view name, std::optional<int> index) override;

    // --- For the parts that a control is made of --------------------------------------------------------------------

    /// Tells the container that a property has changed, under its public name.
    void report_change(std::string_view property);
    /// Ends a setter that changes what the plot shows: the picture no longer holds, and the change is reported.
    void settings_changed(std::string_view property);
    /// A colour of the panel, the nearest one where it holds a number beyond all colours. Never fails.
    Color panel_color(double panel::*which) const;
    /// Sets a colour of the panel as its public setters do.
    void set_panel_color(double panel::*which, Color color, std::string_view property);
    /// Raises an event to the host.
    void raise(std::string_view event, std::span<Value> arguments);
    /// The place of a step that goes on behind its failure.
    TrapPlace trap_place(char const* routine, char const* step);

protected:
    /// Makes the window and the panel, takes the default printer and sets the help file.
    Control(Platform& platform, std::string name, AboutKind about_kind);

    /// Why a print member does nothing, as its result.
    enum class PrintCheck : std::int16_t { Ready = 0, ControlTooSmall = 1, NothingToPrint = 2 };

    // What each control does in its own way.

    /// Takes a colour around the plot.
    virtual void set_background(Color color) = 0;
    /// Shows what is drawn around the plot on the new colour.
    virtual void repaint_background() = 0;
    /// Shows or hides what stands beside the plot.
    virtual void show_legend(bool is_shown) = 0;
    /// Fills in missing settings ahead of a plot.
    virtual void prepare_plot() = 0;
    /// Brings the plot on the screen; there are data.
    virtual void show_plot() = 0;
    /// Empties the surface; no plot exists then.
    virtual void clear_display() = 0;
    /// Gives the stored picture up, where one is kept.
    virtual void drop_stored_picture() {}
    /// What else shows the limits of the scale, ahead of a new plot.
    virtual void limits_released() {}
    /// The test ahead of every printed plot: data and printer before the control's size.
    virtual PrintCheck check_print() const;
    virtual void print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame) = 0;

    // What they do alike.

    /// An empty width gets the usual one, and so does an empty height, as their setters do it.
    void default_sizes();
    /// Crossed: an empty width defaults the height, and the other way round. Hosts of these controls rely on it.
    void default_sizes_crossed();
    /// As default_sizes, without a word to anybody and with the plot that is being made.
    void fill_empty_sizes();

    /// New data or sizes: no plot of them exists yet.
    void forget_plot();
    /// Hands events of children on to the host, with their arguments as they are.
    void forward(std::initializer_list<std::string_view> events, std::initializer_list<Child*> children);

    /// What BackColor does where the caller draws anew.
    void take_background(Color color);

    /// Shows an option dialog modally in front of the control.
    /// @return  whether the settings in it are to be stored
    bool confirms(OptionDialog& dialog);

    bool has_print_input() const { return record_.GetNop() != 0 && printer_ != nullptr; }
    /// Prints with a new PrintPanel where nothing speaks against it.
    /// @return  why it was not printed, or 0
    std::int16_t print_checked(std::function<void(PrintPanel&)> const& routine);
    /// The same for what stands beside a plot. @return  0 done, 1 no data or no printer
    std::int16_t print_beside(std::function<void(PrintPanel&)> const& routine);

    Window window_;
    panel record_;
    BooleanWord limits_set_;     // plot limits of the host are in force
    BooleanWord plot_requested_; // Plot has been called on the present data
    BooleanWord image_valid_;    // the stored picture shows the present data and settings
    BooleanWord legend_shown_ = true;

private:
    void set_test_width(double width);
    void set_test_height(double height);
    void end_size_setter(std::string_view property);
    void show_no_plot();
    void plot_again();
    void print(std::function<void(PrintPanel&)> const& routine);

    Surface* printer_; // the host's or the platform's; nullptr for none
    AboutKind const about_kind_;
};

/// The name of the help file beside the application. The test for the backslash looks one letter short of the end, and
/// installed help files rely on it.
std::string help_file_name(std::string_view application_path);

} // namespace zendara
