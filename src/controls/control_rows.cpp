#include "zendara/controls/control_rows.hpp"

namespace zendara
{

namespace
{

using C = Control;

// The overload of SetPanelData that hosts call by its name.
constexpr std::int16_t (C::*set_panel_data)(HostArray<double>&, HostArray<double>&,
                                            HostArray<double>&) = &C::SetPanelData;

/// Forms of the pointer.
Enumeration const& pointer_enumeration()
{
    static Enumeration const values{"PointerEnum",
                                    {{"DefaultPointer", 0},
                                     {"ArrowPointer", 1},
                                     {"CrossPointer", 2},
                                     {"TextPointer", 3},
                                     {"HourglassPointer", 11},
                                     {"IconPointer", 99}}};
    return values;
}

} // namespace

SharedKeys SharedKeys::with_prefix(std::string const& prefix)
{
    return {prefix + "BackColor", prefix + "PANELWD",      prefix + "PANELHD",  prefix + "Legend",
            prefix + "Caption",   prefix + "MousePointer", prefix + "MouseIcon"};
}

std::vector<Member> platform_rows(SharedKeys const& keys)
{
    return {
        property<C, Surface*, &C::PrinterObj, &C::PrinterObj>("PrinterObj", "Output device of the print members.")
            .of_kind(MemberKind::GetSet),
        getter<&C::hdc>("hdc", "Device handle of the control."),
        getter<&C::hwnd>("hwnd", "Window handle of the control.").known_as(dispatch::window_handle),
        property<C, Object*, &C::MouseIcon, &C::MouseIcon>("MouseIcon", "Picture of the pointer.")
            .of_kind(MemberKind::GetSet)
            .of_type(Type::Picture)
            .saved(store_place::icon, keys.icon, Empty{}),
        property<C, std::int16_t, &C::MousePointer, &C::MousePointer>("MousePointer", "Form of the pointer.")
            .of(pointer_enumeration())
            .saved(store_place::pointer, keys.pointer, integer(0)),
        method<&C::About>("About", "Shows the about box.").known_as(dispatch::about_box),
    };
}

std::vector<Member> statistics_rows()
{
    return {
        getter<&C::StdDevPercent>("StdDevPercent", "Standard deviation in percent of the mean."),
        getter<&C::StdDev>("StdDev", "Sample standard deviation of the values."),
        getter<&C::HiLo>("HiLo", "Spread in percent of the sum of the extremes."),
        getter<&C::range>("range", "Largest less smallest value."),
        getter<&C::Maximum>("Maximum", "Largest value."),
        getter<&C::Minimum>("Minimum", "Smallest value."),
        getter<&C::mean>("mean", "Arithmetic mean of the values."),
    };
}

std::vector<Member> size_rows(SharedKeys const& keys)
{
    return {
        property<C, double, &C::PanelSizeX, &C::PanelSizeX>("PanelSizeX", "Width of the panel in mm.")
            .of_kind(MemberKind::PutGet)
            .saved(store_place::width, keys.width, integer(210))
            .read_from(keys.width_on_read),
        property<C, double, &C::PanelSizeY, &C::PanelSizeY>("PanelSizeY", "Height of the panel in mm.")
            .of_kind(MemberKind::PutGet)
            .saved(store_place::height, keys.height, integer(195))
            .read_from(keys.height_on_read),
        property<C, double, &C::TestSizeX, &C::TestSizeX>("TestSizeX", "Width of the tested area in mm.")
            .of_kind(MemberKind::PutGet),
        property<C, double, &C::TestSizeY, &C::TestSizeY>("TestSizeY", "Height of the tested area in mm.")
            .of_kind(MemberKind::PutGet),
    };
}

Member plot_row()
{
    return method<&C::Plot>("Plot", "Shows the plot: 0 done, 1 no data.");
}

Member back_color_row(SharedKeys const& keys)
{
    return color_property<C, &C::BackColor, &C::BackColor>("BackColor", "Colour around the plot.")
        .known_as(dispatch::back_color)
        .saved(store_place::back_color, keys.back_color);
}

Member show_plot_option_row()
{
    return method<&C::ShowPlotOption>("ShowPlotOption", "Opens the option dialog.");
}

std::vector<Member> limit_rows()
{
    return {
        method<&C::ReleasePlotLimit>("ReleasePlotLimit", "Goes back to the limits of the data."),
        method<&C::SetPlotLimit>("SetPlotLimit", "Takes other limits for the colour scale.",
                                 by_references("LPL", "UPL")),
    };
}

Member set_panel_data_row()
{
    return method<set_panel_data>("SetPanelData", "Takes the sites from arrays.", by_references("x", "y", "Z"));
}

Member set_data_file_row()
{
    return method<&C::SetDataFile>("SetDataFile", "Takes the sites from a raw data file.",
                                   by_references("datafile", "nops"));
}

Member hide_legend_row(SharedKeys const& keys, std::string_view help)
{
    return property<C, BooleanWord, &C::HideLegend, &C::HideLegend>("HideLegend", help)
        .of_kind(MemberKind::PutGet)
        .saved(store_place::legend, keys.legend, BooleanWord(false).word);
}

Member print_plot_row()
{
    return method<&C::PrintPlot>("PrintPlot", "Prints the plot.", print_box() + draw_frame());
}

std::vector<Member> print_data_rows()
{
    return {
        method<&C::PrintPanelStatistic>("PrintPanelStatistic", "Prints the statistics.",
                                        by_references("left", "top", "units")),
        method<&C::PrintPanelSize>("PrintPanelSize", "Prints the panel's sizes.", by_references("left", "top")),
    };
}

std::vector<Member> read_out_rows()
{
    return {
        method<&C::clear>("clear", "Empties the display."),
        method<&C::GetPanelData>("GetPanelData", "Reads the sites out.", by_references("x", "y", "Z")),
        method<&C::Interpolation>("Interpolation", "Value at any point of the panel.", by_references("x", "y")),
    };
}

Member set_plot_not_valid_row(std::string_view help)
{
    return method<&C::SetPlotNotVaild>("SetPlotNotVaild", help);
}

Arguments<4> print_box()
{
    return {by_value("left"), by_value("top"), by_value("width"), by_value("height")};
}

Argument draw_frame()
{
    return optional(by_reference("DrawFrame"), BooleanWord(true).word);
}

std::vector<Event> control_events()
{
    std::vector<Argument> const pointer = {by_reference("Button").as(Type::I2), by_reference("Shift").as(Type::I2),
                                           by_reference("x").as(Type::R4), by_reference("y").as(Type::R4)};
    return {
        {"Click", {}, "The user has clicked.", dispatch::click},
        {"DblClick", {}, "The user has clicked twice.", dispatch::double_click},
        {"MouseDown", pointer, "A button goes down; x and y in the child that was hit.", dispatch::mouse_down},
        {"MouseMove", pointer, "The pointer moves.", dispatch::mouse_move},
        {"MouseUp", pointer, "A button comes up.", dispatch::mouse_up},
    };
}

Enumeration const& sites_enumeration()
{
    static Enumeration const values{"Sites",
                                    {{"HideSites", static_cast<std::int32_t>(Sites::HideSites)},
                                     {"MarkSites", static_cast<std::int32_t>(Sites::MarkSites)}}};
    return values;
}

} // namespace zendara
