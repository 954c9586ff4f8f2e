#include "zendara/controls/zv_line_scan.hpp"

#include "zendara/controls/busy.hpp"
#include "zendara/controls/control_rows.hpp"
#include "zendara/dialogs/frm_about.hpp"
#include "zendara/dialogs/frm_plot_opt_1d.hpp"
#include "zendara/print/print_panel.hpp"
#include "zendara/render/plots/line_scan_labels.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/field_check.hpp"
#include "zendara/support/number_text.hpp"
#include "zendara/support/trap.hpp"

namespace zendara
{

namespace
{

constexpr std::int16_t steps_along_line = 88;
constexpr Color curve_color = QBColor(4);
constexpr std::int16_t key_up = 38;
constexpr std::int16_t key_down = 40;
constexpr int full_circle = 360;

/// A run for the screen takes the whole picture: what it is told of a rectangle is nothing.
struct NoBox {
    double left = 0, top = 0, width = 0, height = 0;
    std::int16_t show_disp = 0;
};

Enumeration const& plot_type_enumeration()
{
    static Enumeration const values{"PlotTypeEnumLineScan", {{"vbAngle", 1}, {"vbline", 2}}};
    return values;
}

} // namespace

ZvLineScan::ZvLineScan(Platform& platform) : Control(platform, "ZvLineScan", AboutKind::LineScan), view_(window_)
{
    forward({"Click", "DblClick", "MouseDown", "MouseMove", "MouseUp"}, {&window_, &view_.PLOTA, &view_.Plot});
    window_.on_resize = [this] { lay_out(); };
    window_.on("Show", [this](std::span<Value>) { show_again(); });
    view_.btnoptions.on("Click", [this](std::span<Value>) { ShowPlotOption(); });
    view_.AngleValue.on("Change", [this](std::span<Value>) { angle_text_changed(); });
    view_.AngleValue.on(
        "KeyDown", [this](std::span<Value> arguments) { angle_key_pressed(from_value<std::int16_t>(arguments[0])); });
    view_.UpDown1.on("Change", [this](std::span<Value>) { view_.AngleValue.Text(plain_text(view_.UpDown1.Value())); });
}

void ZvLineScan::InitProperties()
{
    Control::InitProperties();
    line_ = {};
    shows_sites_ = false;
    view_.show_form(false);
    view_.btnoptions.Enabled(true);
    view_.btnoptions.Visible(true);
    view_.Plot.caption("");
}

// --- Settings ------------------------------------------------------------------------------------------------------

void ZvLineScan::angle(std::int16_t angle)
{
    write_angle(within_circle(angle));
    report_change("Angle");
}

void ZvLineScan::PlotType(PlotTypeEnumLineScan plot_type)
{
    line_.plot_type = to_i16(static_cast<double>(plot_type));
    view_.PLOTA.Cls();
    view_.show_form(line_.is_line_form());
    report_change("PlotType");
}

std::int16_t ZvLineScan::RotationPointX() const
{
    return nearest_i16(line_.rotation_point.x);
}

std::int16_t ZvLineScan::RotationPointY() const
{
    return nearest_i16(line_.rotation_point.y);
}

std::int16_t ZvLineScan::LineStartPointX() const
{
    return nearest_i16(line_.line_start.x);
}

std::int16_t ZvLineScan::LineStartPointY() const
{
    return nearest_i16(line_.line_start.y);
}

std::int16_t ZvLineScan::LineEndPointX() const
{
    return nearest_i16(line_.line_end.x);
}

std::int16_t ZvLineScan::LineEndPointY() const
{
    return nearest_i16(line_.line_end.y);
}

void ZvLineScan::set_coordinate(double& coordinate, std::int16_t value, std::string_view property)
{
    view_.PLOTA.Cls();
    coordinate = value;
    report_change(property);
}

void ZvLineScan::ShowSites(Sites sites)
{
    shows_sites_ = sites != Sites::HideSites;
    view_.hide_marks();
    report_change("ShowSites");
}

void ZvLineScan::repaint_background()
{
    for (LineOverview* const overview : {&view_.by_angle, &view_.by_points})
        if (overview->shows_figure)
            trap(trap_place("BackColor", "figure"), [&] { draw_figure(*overview, nullptr); });
}

// Shown again in the form of two points, both overviews show; the one of the form covers the other.
void ZvLineScan::show_legend(bool is_shown)
{
    view_.FNLabel(0).Visible(is_shown);
    view_.btnoptions.Visible(is_shown);
    if (!line_.is_angle_form())
        view_.FNLabel(1).Visible(is_shown);
    lay_out();
}

void ZvLineScan::PlotCaption(std::string_view caption)
{
    view_.Plot.caption(caption);
    window_.Refresh();
    report_change("PlotCaption");
}

std::int16_t ZvLineScan::GetLineOrAngle(std::int16_t angle, double& StartX, double& StartY, double& EndX, double& EndY)
{
    if (line_.is_line_form()) {
        StartX = line_.line_start.x;
        StartY = line_.line_start.y;
        EndX = line_.line_end.x;
        EndY = line_.line_end.y;
    } else {
        StartX = line_.rotation_point.x;
        StartY = line_.rotation_point.y;
        EndX = angle;
    }
    return 0;
}

void ZvLineScan::SetLineOrAngle(std::int16_t PlotType, std::int16_t angle, double AngleX, double AngleY, double StartX,
                                double StartY, double EndX, double EndY)
{
    line_.plot_type = PlotType;
    view_.show_form(!line_.is_angle_form());
    if (line_.is_angle_form()) {
        line_.rotation_point = {AngleX, AngleY};
        write_angle(angle);
    } else {
        line_.line_start = {StartX, StartY};
        line_.line_end = {EndX, EndY};
    }
}

void ZvLineScan::clear_display()
{
    view_.PLOTA.Cls();
    view_.hide_marks();
    forget_plot();
}

// --- Angle entry ---------------------------------------------------------------------------------------------------

void ZvLineScan::write_angle(std::int16_t angle)
{
    view_.AngleValue.Text(plain_text(angle));
}

// Runs for every change of the text, by the user or by code. A text that is no angle becomes "0", which runs it again.
void ZvLineScan::angle_text_changed()
{
    std::string const text = view_.AngleValue.Text();
    if (!IsInRange(text, -1, full_circle) || !IsWholeText(text)) {
        view_.AngleValue.Text("0");
        return;
    }
    view_.PLOTA.Cls();
    line_.angle_deg = to_i16(parse_number(text).value_or(0));
    show_indicator(view_.by_angle);
    show_labels();
    draw_scan();
}

// The arrow keys go round the circle.
void ZvLineScan::angle_key_pressed(std::int16_t key)
{
    UpDown& arrows = view_.UpDown1;
    if (key == key_up) {
        std::int32_t const next = arrows.Value() + arrows.Increment;
        arrows.Value(next >= full_circle ? next - full_circle : next);
    } else if (key == key_down) {
        std::int32_t const next = arrows.Value() - arrows.Increment;
        arrows.Value(next < 0 ? next + full_circle : next);
    }
}

// --- Drawing -------------------------------------------------------------------------------------------------------

void ZvLineScan::draw()
{
    HourglassScope const hourglass(window_);
    lay_out();
    if (line_.is_angle_form())
        draw_angle_form();
    else if (plot_requested_)
        draw_line_form();
}

void ZvLineScan::draw_angle_form()
{
    TextBox& entry = view_.AngleValue;
    draw_figure(view_.by_angle, &view_.FNLabel(0));
    view_.FNLabel(0).caption("Angle :");
    if (parse_number(entry.Text()).value_or(0) == line_.angle_deg) {
        show_indicator(view_.by_angle);
        show_labels();
        draw_scan();
    }
    // Another text draws by its change handler; the same one is no change.
    if (std::string const text = plain_text(line_.angle_deg); entry.Text() != text)
        entry.Text(text);
}

void ZvLineScan::draw_line_form()
{
    view_.PLOTA.Cls();
    show_labels();
    draw_figure(view_.by_points, &view_.FNLabel(1));
    show_indicator(view_.by_points);
    draw_scan();
}

// Each step for itself: a failed one leaves the others.
void ZvLineScan::lay_out()
{
    trap(trap_place("layout", "smallest size"), [this] { view_.take_smallest_size(legend_shown_); });
    trap(trap_place("layout", "children"),
         [this] { view_.lay_out(legend_shown_, ScanValueText(record_.maximal)(record_.maximal)); });
    trap(trap_place("layout", "grid"), [this] {
        PictureBox& picture = view_.PLOTA;
        double left = 0, top = 0, width = picture.Width(), height = picture.Height();
        picture.Cls();
        picture.surface().set_picture(nullptr);
        record_.D1Plot_AdjustLines(picture.surface(), left, top, width, height);
    });
    show_again();
}

// Draws over what is there; failures leave it as it is.
void ZvLineScan::show_again()
{
    if (!plot_requested_)
        return;
    trap(trap_place("layout", "curve"), [this] { draw_curve(); });
    if (shows_sites_)
        trap(trap_place("layout", "marks"), [this] { mark_sites(); });
}

void ZvLineScan::draw_scan()
{
    if (!plot_requested_)
        return;
    draw_curve();
    if (shows_sites_)
        mark_sites();
}

void ZvLineScan::draw_curve()
{
    ScanArguments line = line_.for_curve();
    std::int16_t steps = steps_along_line;
    Color color = curve_color;
    NoBox box;
    record_.D1Plot(view_.PLOTA.surface(), steps, line.phi, line.is_angle, line.x1, line.y1, line.x2, line.y2, color,
                   box.left, box.top, box.width, box.height, box.show_disp);
}

void ZvLineScan::mark_sites()
{
    ScanArguments line = line_.for_curve();
    Color color = curve_color;
    NoBox box;
    record_.D1Plot_MarkSites(view_.PLOTA.surface(), &view_.picgrid, line.phi, line.is_angle, line.x1, line.y1, line.x2,
                             line.y2, color, box.left, box.top, box.width, box.height, box.show_disp);
}

void ZvLineScan::show_labels()
{
    EitherFormArguments line = line_.for_labels();
    record_.D1Plot_Show_lblXY(view_.lblX, view_.lblY, line.plotopt, line.phi, line.x1, line.y1, line.x2, line.y2,
                              line.x3, line.y3);
    view_.part_labels();
}

void ZvLineScan::draw_figure(LineOverview& overview, Widget* label)
{
    record_.GridPosShow(label, overview.picture.surface(), 0, 90);
    overview.shows_figure = true;
}

void ZvLineScan::show_indicator(LineOverview& overview)
{
    EitherFormArguments line = line_.for_labels();
    record_.draw_indicator(overview.line, overview.mark, line.plotopt, line.phi, line.x1, line.y1, line.x2, line.y2,
                           line.x3, line.y3, overview.picture.surface());
    overview.line.Refresh();
}

// --- The rest of the interface -------------------------------------------------------------------------------------

void ZvLineScan::ShowPlotOption()
{
    frmPlotOpt1D dialog(platform());
    dialog.SetValues(record_, line_.plot_type, line_.angle_deg, line_.rotation_point.x, line_.rotation_point.y,
                     line_.line_start.x, line_.line_start.y, line_.line_end.x, line_.line_end.y, shows_sites_);
    if (!confirms(dialog))
        return;
    ShowSites(dialog.GetMarkeSites() ? Sites::MarkSites : Sites::HideSites);
    take_line(dialog);
    DisabledScope const no_second_dialog(view_.btnoptions);
    draw();
}

void ZvLineScan::take_line(frmPlotOpt1D& dialog)
{
    std::int16_t angle = 0, mode = 0;
    PanelPoint rotation, start, end;
    dialog.GetResult(angle, rotation.x, rotation.y, start.x, start.y, end.x, end.y, mode);
    PlotType(static_cast<PlotTypeEnumLineScan>(mode));
    view_.UpDown1.Value(angle);
    SetLineOrAngle(mode, angle, rotation.x, rotation.y, start.x, start.y, end.x, end.y);
}

void ZvLineScan::print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame)
{
    EitherFormArguments const line = line_.for_labels();
    paper.Print_1DPlot(record_, line.phi, line.plotopt, line.x1, line.y1, line.x2, line.y2, line.x3, line.y3,
                       shows_sites_, PlotCaption(), box.left, box.top, box.width, box.height, with_frame);
}

namespace
{

std::vector<Member> line_rows()
{
    using Z = ZvLineScan;
    using I2 = std::int16_t;
    constexpr int place = store_place::settings;
    constexpr auto angle_form = "Point of the line by angle, in mm.";
    constexpr auto first_point = "First of two points, in mm.";
    constexpr auto second_point = "Second of two points, in mm.";
    return {
        property<Z, I2, &Z::angle, &Z::angle>("angle", "Direction of the line in degrees.")
            .saved(place + 1, "RotAngle", integer(0)),
        property<Z, PlotTypeEnumLineScan, &Z::PlotType, &Z::PlotType>(
            "PlotType", "Form of the line: by angle or through two points.")
            .of(plot_type_enumeration())
            .saved(place + 2, "1DPlotType", integer(1)),
        property<Z, I2, &Z::RotationPointX, &Z::RotationPointX>("RotationPointX", angle_form)
            .saved(place + 3, "1DRotationX", integer(0)),
        property<Z, I2, &Z::RotationPointY, &Z::RotationPointY>("RotationPointY", angle_form)
            .saved(place + 4, "1DRotationY", integer(0)),
        property<Z, I2, &Z::LineStartPointX, &Z::LineStartPointX>("LineStartPointX", first_point)
            .saved(place + 5, "1DLineStartX", integer(0)),
        property<Z, I2, &Z::LineStartPointY, &Z::LineStartPointY>("LineStartPointY", first_point)
            .saved(place + 6, "1DLineStartY", integer(0)),
        property<Z, I2, &Z::LineEndPointX, &Z::LineEndPointX>("LineEndPointX", second_point)
            .saved(place + 7, "1DLineEndX", integer(0)),
        property<Z, I2, &Z::LineEndPointY, &Z::LineEndPointY>("LineEndPointY", second_point)
            .saved(place + 8, "1DLineEndY", integer(0))
            .read_into("LineEndPointX"), // so the saved y comes back as the x
        property<Z, Sites, &Z::ShowSites, &Z::ShowSites>("ShowSites", "Marks the sites on the line.")
            .of(sites_enumeration())
            .saved(place, "1DMark", long_integer(0)),
    };
}

SharedKeys line_scan_keys()
{
    SharedKeys keys = SharedKeys::with_prefix("1D");
    keys.back_color = "BackColor";
    keys.default_caption = "";
    return keys;
}

} // namespace

Interface const& ZvLineScan::interface_table()
{
    using Z = ZvLineScan;
    static SharedKeys const keys = line_scan_keys();
    auto const line_or_angle = by_references("angle", "StartX", "StartY", "EndX", "EndY");
    auto const whole_line = by_references("PlotType", "angle", "AngleX", "AngleY", "StartX", "StartY", "EndX", "EndY");
    static Interface const table{
        "ZvLineScan", "Values of one panel along a line.",
        join({
            platform_rows(keys),
            statistics_rows(),
            size_rows(keys),
            line_rows(),
            {plot_row(), back_color_row(keys), show_plot_option_row()},
            limit_rows(),
            {set_panel_data_row(), hide_legend_row(keys, "Hides the overview."),
             caption_row<Z, &Z::PlotCaption, &Z::PlotCaption>(keys), print_plot_row()},
            print_data_rows(),
            read_out_rows(),
            {set_plot_not_valid_row("Clears the curve."), set_data_file_row(),
             method<&Z::GetLineOrAngle>("GetLineOrAngle", "Reads the line.", line_or_angle),
             method<&Z::SetLineOrAngle>("SetLineOrAngle", "Sets the form and its line.", whole_line)},
        }),
        control_events()};
    return table;
}

} // namespace zendara
