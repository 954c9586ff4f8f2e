#pragma once

#include "zendara/controls/control_frame.hpp"
#include "zendara/panel/load.hpp"

namespace zendara
{

/// The public members that all nine controls have in common, written once. It holds no state: `Self` owns a
/// ControlFrame as `frame_`, names its `about_kind`, and answers `clear_display`, `drop_stored_picture` and `Plot`.
template <class Self> class SharedMembers : public Control
{
public:
    Window& window() override { return frame().window; }
    panel& record() override { return frame().record; }

    /// The surface that the print members draw on; the host keeps it alive. nullptr for none.
    Surface* PrinterObj() const { return frame().printer; }
    void PrinterObj(Surface* printer) { frame().printer = printer; }

    /// Handles of the platform for the control itself, 0 where it has none.
    std::int32_t hdc() const { return frame().platform().device_handle(); }
    std::int32_t hwnd() const { return frame().platform().window_handle(); }

    /// The picture of the pointer; the host keeps it alive. nullptr for none.
    Object* MouseIcon() const { return frame().window.MouseIcon(); }
    void MouseIcon(Object* icon)
    {
        frame().window.MouseIcon(icon);
        frame().report_change("MouseIcon");
    }

    /// The form of the pointer: 0 the usual one, 11 the hourglass.
    std::int16_t MousePointer() const { return frame().window.MousePointer(); }
    void MousePointer(std::int16_t pointer)
    {
        frame().window.MousePointer(pointer);
        frame().report_change("MousePointer");
    }

    /// Shows the about box.
    void About() { frame().show_about(Self::about_kind); }

    /// Statistics of the data, whatever the plot limits are.
    double mean() const { return frame().record.mean; }
    double StdDev() const { return frame().record.StdDev; }
    double Maximum() const { return frame().record.maxi; }
    double Minimum() const { return frame().record.mini; }
    double range() const { return frame().record.maxi - frame().record.mini; }
    /// Spread in percent of the sum of the extremes; 0 when that sum is 0.
    double HiLo() const { return frame().hi_lo(); }
    /// Standard deviation in percent of the mean; 0 when the mean is not positive.
    double StdDevPercent() const { return frame().std_dev_percent(); }

    /// Width of the panel in millimetres. Takes the plot away and sets the width of the tested area as well.
    double PanelSizeX() const { return frame().record.SizeX; }
    void PanelSizeX(double width)
    {
        self().clear_display();
        frame().record.SizeX = width;
        set_test_width(width);
        end_size_setter("PanelSizeX");
    }

    /// Height of the panel in millimetres. Takes the plot away and sets the height of the tested area as well.
    double PanelSizeY() const { return frame().record.SizeY; }
    void PanelSizeY(double height)
    {
        self().clear_display();
        frame().record.SizeY = height;
        set_test_height(height);
        end_size_setter("PanelSizeY");
    }

    /// Width and height in millimetres of the tested area, which the plot covers.
    double TestSizeX() const { return frame().record.TestSizeX; }
    void TestSizeX(double width)
    {
        set_test_width(width);
        frame().image_valid = false;
        end_size_setter("TestSizeX");
    }
    double TestSizeY() const { return frame().record.TestSizeY; }
    void TestSizeY(double height)
    {
        set_test_height(height);
        frame().image_valid = false;
        end_size_setter("TestSizeY");
    }

    /// Takes other limits for the colour scale, from the lowest to the highest value.
    /// @return  True when they were taken; False when they hold already or LPL is not below UPL
    BooleanWord SetPlotLimit(double LPL, double UPL)
    {
        auto& record = frame().record;
        if (record.maximal == UPL && record.minimal == LPL)
            return false;
        frame().limits_set = ApplyPlotLimit(record, LPL, UPL);
        BooleanWord const taken = frame().limits_set;
        plot_again();
        return taken;
    }

    /// Goes back to the limits of the data.
    void ReleasePlotLimit()
    {
        frame().limits_set = false;
        frame().record.setMaximalMinial(frame().record.maxi, frame().record.mini);
        plot_again();
    }

    /// Takes sites from three arrays, one element per site. Nothing is drawn before the next Plot.
    /// @return  0 done, 1 the upper bounds differ, 2 the lower bounds differ, 4 a run-time failure
    std::int16_t SetPanelData(HostArray<double>& x, HostArray<double>& y, HostArray<double>& Z)
    {
        LoadResult const result = load_arrays(frame().record, x, y, Z, frame().limits_set);
        if (result != LoadResult::RunTimeFailure)
            show_no_plot();
        return static_cast<std::int16_t>(result);
    }

    /// Takes sites from a raw data file: `nops` x values, as many y values, as many Z values. Nothing is drawn before
    /// the next Plot; the display is cleared also after a failure. A missing file is created, empty.
    /// @return  0 done, 4 a run-time failure
    std::int16_t SetDataFile(std::string const& datafile, double nops)
    {
        LoadResult const result = load_file(frame().record, datafile, nops, frame().limits_set);
        show_no_plot();
        return static_cast<std::int16_t>(result);
    }

    /// Reads the sites out into arrays from 1 on, which stay as they are when there is no site.
    /// @return  the number of sites
    double GetPanelData(HostArray<double>& x, HostArray<double>& y, HostArray<double>& Z)
    {
        return read_sites(frame().record, x, y, Z);
    }

    /// The value at any point of the panel, in millimetres from its centre.
    /// @throws Failure  TypeMismatch when an argument is no number
    double Interpolation(Value const& x, Value const& y)
    {
        return frame().record.Interpolation(to_double(x), to_double(y));
    }

    /// Empties the display; the data stay, and the next Plot draws them again.
    void clear() { self().clear_display(); }

protected:
    /// The size of a new control's panel, all of it tested.
    void start_sizes()
    {
        frame().record.SizeX = start_width;
        frame().record.SizeY = start_height;
        set_test_width(start_width);
        set_test_height(start_height);
    }

    /// An empty width gets the usual one, and so does an empty height.
    void default_sizes()
    {
        if (frame().record.SizeX == 0)
            PanelSizeX(start_width);
        if (frame().record.SizeY == 0)
            PanelSizeY(start_height);
    }

    /// As default_sizes, without a word to anybody and with the plot that is being made.
    void fill_empty_sizes()
    {
        if (frame().record.SizeX == 0) {
            frame().record.SizeX = start_width;
            set_test_width(start_width);
        }
        if (frame().record.SizeY == 0) {
            frame().record.SizeY = start_height;
            set_test_height(start_height);
        }
    }

    /// Crossed: an empty width defaults the height, and the other way round. Hosts of these controls rely on it.
    void default_sizes_crossed()
    {
        if (frame().record.SizeX == 0)
            PanelSizeY(start_height);
        if (frame().record.SizeY == 0)
            PanelSizeX(start_width);
    }

    /// Plot of the controls that keep no picture: 1 without data, otherwise draws and answers 0.
    std::int16_t plot_at_once()
    {
        if (frame().record.GetNop() == 0)
            return 1;
        frame().plot_requested = true;
        fill_empty_sizes();
        self().draw();
        return 0;
    }

    /// Runs Plot where one is on the screen, with a new picture.
    void plot_again()
    {
        if (!frame().plot_requested)
            return;
        frame().image_valid = false;
        self().Plot();
    }

    void set_test_width(double width)
    {
        frame().record.TestSizeX = width;
        frame().record.HalfTestSizeX = width / 2;
    }

    void set_test_height(double height)
    {
        frame().record.TestSizeY = height;
        frame().record.HalfTestSizey = height / 2;
    }

private:
    static constexpr double start_width = 300; // millimetres
    static constexpr double start_height = 200;

    Self& self() { return static_cast<Self&>(*this); }
    ControlFrame& frame() { return static_cast<Self&>(*this).frame_; }
    ControlFrame const& frame() const { return static_cast<Self const&>(*this).frame_; }

    void end_size_setter(std::string_view property)
    {
        frame().window.Refresh();
        frame().report_change(property);
    }

    // After a load: new data never draw by themselves.
    void show_no_plot()
    {
        self().clear_display();
        self().drop_stored_picture();
    }
};

/// Sets a colour of the panel as its public setters do.
inline void set_panel_color(ControlFrame& frame, double panel::*which, Color color, std::string_view property)
{
    frame.record.*which = color;
    frame.window.Refresh();
    frame.settings_changed(property);
}

/// The row of a property that is a colour.
template <class C, class Owner, Color (Owner::*Getter)() const, void (Owner::*Setter)(Color)>
Member color_row(std::string_view name, std::string_view help)
{
    return property<Owner, Color, Getter, Setter>(name, help).of_type(Type::Color);
}

// Rows of the interface tables. A control lists them in its own order of slots.

template <class C> std::vector<Member> platform_rows()
{
    using S = SharedMembers<C>;
    return {
        property<S, Surface*, &S::PrinterObj, &S::PrinterObj>("PrinterObj", "Output device of the print members.")
            .of_kind(MemberKind::GetSet),
        getter<&S::hdc>("hdc", "Device handle of the control."),
        getter<&S::hwnd>("hwnd", "Window handle of the control."),
        property<S, Object*, &S::MouseIcon, &S::MouseIcon>("MouseIcon", "Picture of the pointer.")
            .of_kind(MemberKind::GetSet)
            .of_type(Type::Picture),
        property<S, std::int16_t, &S::MousePointer, &S::MousePointer>("MousePointer", "Form of the pointer.")
            .of(pointer_enumeration()),
        method<&S::About>("About", "Shows the about box."),
    };
}

template <class C> std::vector<Member> statistics_rows()
{
    using S = SharedMembers<C>;
    return {
        getter<&S::StdDevPercent>("StdDevPercent", "Standard deviation in percent of the mean."),
        getter<&S::StdDev>("StdDev", "Sample standard deviation of the values."),
        getter<&S::HiLo>("HiLo", "Spread in percent of the sum of the extremes."),
        getter<&S::range>("range", "Largest less smallest value."),
        getter<&S::Maximum>("Maximum", "Largest value."),
        getter<&S::Minimum>("Minimum", "Smallest value."),
        getter<&S::mean>("mean", "Arithmetic mean of the values."),
    };
}

template <class C> std::vector<Member> size_rows()
{
    using S = SharedMembers<C>;
    return {
        property<S, double, &S::PanelSizeX, &S::PanelSizeX>("PanelSizeX", "Width of the panel in mm.")
            .of_kind(MemberKind::PutGet),
        property<S, double, &S::PanelSizeY, &S::PanelSizeY>("PanelSizeY", "Height of the panel in mm.")
            .of_kind(MemberKind::PutGet),
        property<S, double, &S::TestSizeX, &S::TestSizeX>("TestSizeX", "Width of the tested area in mm.")
            .of_kind(MemberKind::PutGet),
        property<S, double, &S::TestSizeY, &S::TestSizeY>("TestSizeY", "Height of the tested area in mm.")
            .of_kind(MemberKind::PutGet),
    };
}

template <class C> std::vector<Member> limit_rows()
{
    return {
        method<&C::ReleasePlotLimit>("ReleasePlotLimit", "Goes back to the limits of the data."),
        method<&C::SetPlotLimit>("SetPlotLimit", "Takes other limits for the colour scale.", by_reference("LPL"),
                                 by_reference("UPL")),
    };
}

template <class C> Member show_plot_option_row()
{
    return method<&C::ShowPlotOption>("ShowPlotOption", "Opens the option dialog.");
}

template <class C> Member set_panel_data_row()
{
    return method<&SharedMembers<C>::SetPanelData>("SetPanelData", "Takes the sites from arrays.", by_reference("x"),
                                                   by_reference("y"), by_reference("Z"));
}

template <class C> Member set_data_file_row()
{
    return method<&SharedMembers<C>::SetDataFile>("SetDataFile", "Takes the sites from a raw data file.",
                                                  by_reference("datafile"), by_reference("nops"));
}

template <class C> std::vector<Member> read_out_rows()
{
    using S = SharedMembers<C>;
    return {
        method<&S::clear>("clear", "Empties the display."),
        method<&S::GetPanelData>("GetPanelData", "Reads the sites out.", by_reference("x"), by_reference("y"),
                                 by_reference("Z")),
        method<&S::Interpolation>("Interpolation", "Value at any point of the panel.", by_reference("x"),
                                  by_reference("y")),
    };
}

} // namespace zendara
