#include "zendara/controls/control.hpp"

#include "zendara/dialogs/frm_about.hpp"
#include "zendara/dialogs/option_dialog.hpp"
#include "zendara/panel/load.hpp"
#include "zendara/print/print_panel.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/interface.hpp"
#include "zendara/support/trap.hpp"

#include <cmath>

namespace zendara
{

namespace
{

constexpr double start_width_mm = 300;
constexpr double start_height_mm = 200;
constexpr double smallest_printed_twips = 750; // of the control, in both directions

Value default_of(Member const& property, Object& control)
{
    return property.stored->default_value ? *property.stored->default_value : property.get(control);
}

} // namespace

Control::Control(Platform& platform, std::string name, AboutKind about_kind)
    : window_(platform, std::move(name)), printer_(platform.default_printer()), about_kind_(about_kind)
{
    record_.container = &platform;
    platform.set_help_file(help_file_name(platform.application_path()));
}

// --- Saving ----------------------------------------------------------------------------------------------------------

void Control::InitProperties()
{
    record_.SizeX = start_width_mm;
    record_.SizeY = start_height_mm;
    set_test_width(start_width_mm);
    set_test_height(start_height_mm);
    legend_shown_ = true;
}

void Control::ReadProperties(PropertyBag const& store)
{
    for (Member const* const property : host_interface().stored_members())
        put_member(*this, property->stored->property_on_read,
                   store.ReadProperty(property->stored->key_on_read, default_of(*property, *this)));
}

void Control::WriteProperties(PropertyBag& store)
{
    for (Member const* const property : host_interface().stored_members())
        store.WriteProperty(property->stored->key, property->get(*this), default_of(*property, *this));
}

// --- Window and devices ----------------------------------------------------------------------------------------------

void Control::MouseIcon(Object* icon)
{
    window_.MouseIcon(icon);
    report_change("MouseIcon");
}

void Control::MousePointer(std::int16_t pointer)
{
    window_.MousePointer(pointer);
    report_change("MousePointer");
}

void Control::BackColor(Color color)
{
    set_background(color);
    repaint_background();
    report_change("BackColor");
}

void Control::take_background(Color color)
{
    set_background(color);
    report_change("BackColor");
}

void Control::HideLegend(BooleanWord is_hidden)
{
    legend_shown_ = !is_hidden;
    show_legend(!is_hidden);
    report_change("HideLegend");
}

void Control::About()
{
    frmAbout box(platform());
    box.SetTitle(static_cast<std::int16_t>(about_kind_));
    box.show_modal(window_);
}

bool Control::confirms(OptionDialog& dialog)
{
    dialog.show_modal(window_);
    return dialog.Redraw();
}

// --- Sizes -----------------------------------------------------------------------------------------------------------

void Control::PanelSizeX(double width)
{
    clear_display();
    record_.SizeX = width;
    set_test_width(width);
    end_size_setter("PanelSizeX");
}

void Control::PanelSizeY(double height)
{
    clear_display();
    record_.SizeY = height;
    set_test_height(height);
    end_size_setter("PanelSizeY");
}

void Control::TestSizeX(double width)
{
    set_test_width(width);
    image_valid_ = false;
    end_size_setter("TestSizeX");
}

void Control::TestSizeY(double height)
{
    set_test_height(height);
    image_valid_ = false;
    end_size_setter("TestSizeY");
}

void Control::set_test_width(double width)
{
    record_.TestSizeX = width;
    record_.HalfTestSizeX = width / 2;
}

void Control::set_test_height(double height)
{
    record_.TestSizeY = height;
    record_.HalfTestSizey = height / 2;
}

void Control::end_size_setter(std::string_view property)
{
    window_.Refresh();
    report_change(property);
}

void Control::default_sizes()
{
    if (record_.SizeX == 0)
        PanelSizeX(start_width_mm);
    if (record_.SizeY == 0)
        PanelSizeY(start_height_mm);
}

void Control::default_sizes_crossed()
{
    if (record_.SizeX == 0)
        PanelSizeY(start_height_mm);
    if (record_.SizeY == 0)
        PanelSizeX(start_width_mm);
}

void Control::fill_empty_sizes()
{
    if (record_.SizeX == 0) {
        record_.SizeX = start_width_mm;
        set_test_width(start_width_mm);
    }
    if (record_.SizeY == 0) {
        record_.SizeY = start_height_mm;
        set_test_height(start_height_mm);
    }
}

// --- Data and statistics ---------------------------------------------------------------------------------------------

std::int16_t Control::SetPanelData(HostArray<double>& x, HostArray<double>& y, HostArray<double>& Z)
{
    LoadResult const result = load_arrays(record_, x, y, Z, limits_set_);
    if (result != LoadResult::RunTimeFailure)
        show_no_plot();
    return static_cast<std::int16_t>(result);
}

std::int16_t Control::SetPanelData(std::span<double const> x, std::span<double const> y, std::span<double const> Z)
{
    auto const as_array = [](std::span<double const> values) {
        return HostArray<double>(0, {values.begin(), values.end()});
    };
    auto x_array = as_array(x), y_array = as_array(y), Z_array = as_array(Z);
    return SetPanelData(x_array, y_array, Z_array);
}

std::int16_t Control::SetDataFile(std::string_view datafile, double nops)
{
    LoadResult const result = load_file(record_, std::string(datafile), nops, limits_set_);
    show_no_plot();
    return static_cast<std::int16_t>(result);
}

double Control::GetPanelData(HostArray<double>& x, HostArray<double>& y, HostArray<double>& Z)
{
    return read_sites(record_, x, y, Z);
}

// New data never draw by themselves.
void Control::show_no_plot()
{
    clear_display();
    drop_stored_picture();
}

double Control::Interpolation(Value const& x, Value const& y) const
{
    return record_.Interpolation(to_double(x), to_double(y));
}

double Control::HiLo() const
{
    double const sum = record_.mini + record_.maxi;
    return sum == 0 ? 0 : std::abs((record_.maxi - record_.mini) / sum) * 100;
}

// A mean below zero reports 0 and not a magnitude.
double Control::StdDevPercent() const
{
    return record_.mean <= 0 ? 0 : std::abs(record_.StdDev / record_.mean) * 100;
}

// --- Plot ------------------------------------------------------------------------------------------------------------

std::int16_t Control::Plot()
{
    if (record_.GetNop() == 0)
        return 1;
    prepare_plot();
    plot_requested_ = true; // also where an empty size has just taken the old plot away
    show_plot();
    return 0;
}

BooleanWord Control::SetPlotLimit(double LPL, double UPL)
{
    if (record_.maximal == UPL && record_.minimal == LPL)
        return false;
    BooleanWord const is_taken = ApplyPlotLimit(record_, LPL, UPL);
    limits_set_ = is_taken;
    plot_again();
    return is_taken;
}

void Control::ReleasePlotLimit()
{
    limits_set_ = false;
    record_.setMaximalMinial(record_.maxi, record_.mini);
    limits_released();
    plot_again();
}

// With a new picture, where a plot is on the screen.
void Control::plot_again()
{
    if (!plot_requested_)
        return;
    image_valid_ = false;
    Plot();
}

void Control::forget_plot()
{
    plot_requested_ = false;
    image_valid_ = false;
}

// --- Printing --------------------------------------------------------------------------------------------------------

std::int16_t Control::PrintPlot(double left, double top, double width, double height, BooleanWord& DrawFrame)
{
    return print_checked([&](PrintPanel& paper) { print_plot(paper, {left, top, width, height}, DrawFrame); });
}

std::int16_t Control::PrintPanelStatistic(double left, double top, std::string_view units)
{
    return print_beside([&](PrintPanel& paper) {
        record_.Meas_unit = units;
        paper.DrawPanelStatistics(record_, left, top);
    });
}

std::int16_t Control::PrintPanelSize(double left, double top)
{
    return print_beside([&](PrintPanel& paper) { paper.DrawPanelSize(record_, left, top); });
}

Control::PrintCheck Control::check_print() const
{
    if (!has_print_input())
        return PrintCheck::NothingToPrint;
    bool const is_too_small = window_.Width() < smallest_printed_twips || window_.Height() < smallest_printed_twips;
    return is_too_small ? PrintCheck::ControlTooSmall : PrintCheck::Ready;
}

std::int16_t Control::print_checked(std::function<void(PrintPanel&)> const& routine)
{
    PrintCheck const check = check_print();
    if (check == PrintCheck::Ready)
        print(routine);
    return static_cast<std::int16_t>(check);
}

std::int16_t Control::print_beside(std::function<void(PrintPanel&)> const& routine)
{
    if (!has_print_input())
        return 1;
    print(routine);
    return 0;
}

void Control::print(std::function<void(PrintPanel&)> const& routine)
{
    PrintPanel paper;
    paper.PrinterObj = printer_;
    routine(paper);
}

// --- To the host -----------------------------------------------------------------------------------------------------

void Control::report_change(std::string_view property)
{
    if (on_change)
        on_change(property);
}

void Control::settings_changed(std::string_view property)
{
    image_valid_ = false;
    report_change(property);
}

Color Control::panel_color(double panel::*which) const
{
    return nearest_i32(record_.*which);
}

void Control::set_panel_color(double panel::*which, Color color, std::string_view property)
{
    record_.*which = color;
    window_.Refresh();
    settings_changed(property);
}

void Control::raise(std::string_view event, std::span<Value> arguments)
{
    if (on_event)
        on_event(event, arguments);
}

void Control::forward(std::initializer_list<std::string_view> events, std::initializer_list<Child*> children)
{
    for (Child* const child : children)
        for (std::string_view const event : events)
            child->on(event, [this, event](std::span<Value> arguments) { raise(event, arguments); });
}

TrapPlace Control::trap_place(char const* routine, char const* step)
{
    return {&platform(), record_, routine, step};
}

Object* Control::find_child(std::string_view name, std::optional<int> index)
{
    if (equals_ignoring_case(name, "PanelObj"))
        return &record_;
    return window_.find_child(name, index);
}

std::string help_file_name(std::string_view application_path)
{
    std::size_t const length = application_path.size();
    bool const ends_in_backslash = length >= 2 && application_path[length - 2] == '\\';
    return std::string(application_path) + (ends_in_backslash ? "" : "\\") + "zendara.hlp";
}

} // namespace zendara
