#include "zendara/dialogs/frm_plot_opt_1d.hpp"

#include "zendara/support/checked.hpp"
#include "zendara/support/field_check.hpp"
#include "zendara/support/number_text.hpp"
#include "zendara/support/trap.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace zendara
{

namespace
{

constexpr std::int16_t by_angle = 1;
constexpr std::int16_t by_points = 2;
constexpr int points = 3;
constexpr int plain_message_box = 0;

constexpr OptionRow hide_before_show[] = {{0, "Hide"}, {1, "Show"}};

struct LabelRow {
    char const* caption;
    char access_key;
};
// Each coordinate has its caption and its unit.
constexpr std::array<LabelRow, 14> labels = {{
    {"Rotation Point X: ", 'X'},
    {"mm", 0},
    {"Rotation Point Y: ", 'Y'},
    {"mm", 0},
    {"Start Angle: ", 'A'},
    {"degrees", 0},
    {"Start Point X: ", 'X'},
    {"mm", 0},
    {"Start Point Y: ", 'Y'},
    {"mm", 0},
    {"End Point X: ", 'E'},
    {"mm", 0},
    {"End Point Y: ", 'd'},
    {"mm", 0},
}};
constexpr int first_label_of_points = 6;

// The picture of the panel, in pixels: around it there is room for the mark on the start of the line.
constexpr LineOverview::Place picture_place = {12, 12, 212, 152};
constexpr double picture_part_width = 236;
constexpr double picture_part_height = 176;
constexpr int point_mark_size = 8;

/// A disc: the rotation point and the start in red, the end in blue.
std::shared_ptr<Image const> point_mark(Color color)
{
    auto image = std::make_shared<Image>(point_mark_size, point_mark_size, see_through);
    constexpr std::array<int, point_mark_size> indent = {2, 1, 0, 0, 0, 0, 1, 2};
    for (int y = 0; y < point_mark_size; ++y)
        for (int x = indent[static_cast<std::size_t>(y)]; x < point_mark_size - indent[static_cast<std::size_t>(y)];
             ++x)
            image->row(y)[x] = static_cast<std::uint32_t>(color);
    return image;
}

// The first argument of "Validate" is Cancel.
void hold_focus(std::span<Value> arguments)
{
    if (!arguments.empty())
        arguments[0] = BooleanWord(true).word;
}

double number_in(TextBox const& box)
{
    return parse_number(box.Text()).value_or(0);
}

} // namespace

frmPlotOpt1D::frmPlotOpt1D(Platform& platform)
    : OptionDialog(platform, "frmPlotOpt1D", "Line Scan"), optline(frame, "optline", 0, 2),
      resx(frame, "resx", 0, points), resy(frame, "resy", 0, points), AngleValue(frame, "AngleValue"),
      lblLine(frame, "lblLine", 0, static_cast<int>(labels.size())), marks(frame, hide_before_show),
      picture_part(frame, "picture_part"),
      overview(picture_part, {"Plot", "Picture1", "Line1", "Line2", "Picture2"}, picture_place),
      picgrid(picture_part, "picgrid", 0, points)
{
    optline(0).caption("Point + Angle : ");
    optline(1).caption("Two Points : ");
    optline(0).access_key = 'P';
    optline(1).access_key = 'T';
    for (int i = 0; i < lblLine.Count(); ++i)
        lblLine(i).caption(labels[static_cast<std::size_t>(i)].caption);
    build_picture();
    lay_out();
    choose_mode(by_angle);
    answer_fields();
}

void frmPlotOpt1D::build_picture()
{
    picture_part.has_border = false;
    picture_part.Move(0, 0, picture_part_width * platform().twips_per_pixel_x(),
                      picture_part_height * platform().twips_per_pixel_y());
    constexpr std::array<Color, points> colors = {QBColor(4), QBColor(4), QBColor(1)};
    for (int i = 0; i < points; ++i) {
        picgrid(i).Picture(point_mark(colors[static_cast<std::size_t>(i)]));
        picgrid(i).Move(0, 0, point_mark_size, point_mark_size);
    }
}

void frmPlotOpt1D::lay_out()
{
    for (TextBox* const box : {&resx(0), &resy(0), &resx(1), &resy(1), &resx(2), &resy(2), &AngleValue})
        box->Move(0, 0, number_box_width, text_box_height);

    // The fields of the two modes show in turn.
    RowLayout rows(frame);
    rows.add({&optline(0), &optline(1)});
    auto const first = rows.add({field_label(6, resx(1))}, {&resx(1), &lblLine(7)});
    auto const second = rows.add({field_label(8, resy(1))}, {&resy(1), &lblLine(9)});
    auto const third = rows.add({field_label(10, resx(2))}, {&resx(2), &lblLine(11)});
    rows.add({field_label(12, resy(2))}, {&resy(2), &lblLine(13)});
    rows.add_in_place_of(first, {field_label(0, resx(0))}, {&resx(0), &lblLine(1)});
    rows.add_in_place_of(second, {field_label(2, resy(0))}, {&resy(0), &lblLine(3)});
    rows.add_in_place_of(third, {field_label(4, AngleValue)}, {&AngleValue, &lblLine(5)});
    rows.add({&marks.optMark.caption}, {&marks.optMark.frame});
    rows.add({&picture_part});
    place(rows);
}

Label* frmPlotOpt1D::field_label(int index, TextBox& box)
{
    LabelRow const& row = labels[static_cast<std::size_t>(index)];
    label_field(lblLine(index), row.caption, row.access_key, box);
    return &lblLine(index);
}

void frmPlotOpt1D::answer_fields()
{
    optline(0).on("Click", [this](std::span<Value>) { choose_mode(by_angle); });
    optline(1).on("Click", [this](std::span<Value>) { choose_mode(by_points); });
    AngleValue.on("Change", [this](std::span<Value>) { angle_text_changed(); });
    for (int i = 0; i < points; ++i) {
        resx(i).on("Validate", [this, i](std::span<Value> arguments) {
            if (leave({resx, &panel::HalfTestSizeX, "TestSizeX exeded"}, i))
                hold_focus(arguments);
        });
        resy(i).on("Validate", [this, i](std::span<Value> arguments) {
            if (leave({resy, &panel::HalfTestSizey, "TestSizeY exeded"}, i))
                hold_focus(arguments);
        });
    }
}

void frmPlotOpt1D::SetValues(panel& wafo, std::int16_t PlotType, std::int16_t angle, double AngleX, double AngleY,
                             double StartX, double StartY, double EndX, double EndY, BooleanWord markS)
{
    keep_panel(wafo);
    is_ready_ = false;
    wafo.GridPosShow(nullptr, overview.picture.surface(), 0, 90);
    std::array<Point, points> const given = {{{AngleX, AngleY}, {StartX, StartY}, {EndX, EndY}}};
    for (int i = 0; i < points; ++i) {
        resx(i).Text(plain_text(given[static_cast<std::size_t>(i)].x));
        resy(i).Text(plain_text(given[static_cast<std::size_t>(i)].y));
    }
    AngleValue.Text(plain_text(angle));
    marks.open(markS);
    is_ready_ = true;
    for (int i = 0; i < points; ++i)
        move_mark(i);
    optline(PlotType - 1).Value(true);
}

void frmPlotOpt1D::GetResult(std::int16_t& RoAngle, double& x1, double& y1, double& x2, double& y2, double& x3,
                             double& y3, std::int16_t& mode)
{
    RoAngle = to_i16(angle_deg_);
    x1 = point(0).x;
    y1 = point(0).y;
    x2 = point(1).x;
    y2 = point(1).y;
    x3 = point(2).x;
    y3 = point(2).y;
    mode = optline(1).Value() ? by_points : by_angle;
}

void frmPlotOpt1D::choose_mode(std::int16_t mode)
{
    mode_ = mode;
    bool const is_by_angle = mode == by_angle;
    AngleValue.Visible(is_by_angle);
    for (int i = 0; i < points; ++i) {
        bool const is_of_mode = (i == 0) == is_by_angle;
        resx(i).Visible(is_of_mode);
        resy(i).Visible(is_of_mode);
        picgrid(i).Visible(is_of_mode);
    }
    for (int i = 0; i < lblLine.Count(); ++i)
        lblLine(i).Visible((i < first_label_of_points) == is_by_angle);
    if (is_ready_)
        draw_line();
}

// Runs for every change of the text. A text that is no angle becomes "0", which runs it again.
void frmPlotOpt1D::angle_text_changed()
{
    std::string const text = AngleValue.Text();
    if (!IsInRange(text, -1, 360) || !IsWholeText(text)) {
        AngleValue.Text("0");
        return;
    }
    angle_deg_ = parse_number(text).value_or(0);
    if (is_ready_)
        draw_line();
}

BooleanWord frmPlotOpt1D::leave(Axis const& axis, int index)
{
    TextBox& box = axis.fields(index);
    char const* message = nullptr;
    if (!IsNumberText(box.Text(), false))
        message = "Enter a numeric experssion";
    else if (std::abs(number_in(box)) > record().*axis.half_size)
        message = axis.too_far;
    if (message != nullptr) {
        show_input_error(message, plain_message_box);
        box.Text("0");
        return true;
    }
    move_mark(index);
    if (is_ready_)
        draw_line();
    return false;
}

// The picture follows as far as it can: a panel without a size has none, and the fields go on without it.
void frmPlotOpt1D::move_mark(int index)
{
    trap({&platform(), *this, "frmPlotOpt1D", "mark"}, [&] {
        constexpr double border = 4; // pixels, both sides together
        PictureBox const& plot = overview.picture;
        double const pixels_per_mm = std::min(divide(plot.Width() - border, record().TestSizeX),
                                              divide(plot.Height() - border, record().TestSizeY));
        auto const [x, y] = point(index);
        ImageBox& mark = picgrid(index);
        mark.Move(plot.Left() + plot.Width() / 2 + pixels_per_mm * x - mark.Width() / 2,
                  plot.Top() + plot.Height() / 2 - pixels_per_mm * y - mark.Height() / 2, mark.Width(), mark.Height());
    });
}

void frmPlotOpt1D::draw_line()
{
    trap({&platform(), *this, "frmPlotOpt1D", "line"}, [&] {
        std::int16_t mode = mode_;
        std::int16_t angle = to_i16(angle_deg_);
        auto [x1, y1] = point(0);
        auto [x2, y2] = point(1);
        auto const [x3, y3] = point(2);
        record().draw_indicator(overview.line, overview.mark, mode, angle, x1, y1, x2, y2, x3, y3,
                                overview.picture.surface());
        overview.line.Refresh();
    });
}

frmPlotOpt1D::Point frmPlotOpt1D::point(int index)
{
    return {number_in(resx(index)), number_in(resy(index))};
}

bool frmPlotOpt1D::has_identical_points()
{
    return point(1).x == point(2).x && point(1).y == point(2).y;
}

// Redraw stays True after a refused OK; Cancel takes it back.
void frmPlotOpt1D::confirm()
{
    redraw(true);
    if (mode_ == by_points && has_identical_points()) {
        show_input_error("Start point and end point are identical. This is not allowed.", plain_message_box);
        return;
    }
    Hide();
}

// The panel is kept until the dialog goes.
void frmPlotOpt1D::cancel()
{
    redraw(false);
    Hide();
}

Interface const& frmPlotOpt1D::host_interface() const
{
    using D = frmPlotOpt1D;
    static Interface const table{
        "frmPlotOpt1D", "Options of the line scan.",
        join({place_and_looks(),
              {method<&D::SetValues>("SetValues", "Fills the dialog.", by_reference("wafo"), by_value("PlotType"),
                                     by_value("angle"), by_value("AngleX"), by_value("AngleY"), by_value("StartX"),
                                     by_value("StartY"), by_value("EndX"), by_value("EndY"), by_value("markS")),
               redraw_row(), method<&D::GetMarkeSites>("GetMarkeSites", "Whether the sites on the line are marked."),
               method<&D::GetResult>("GetResult", "Reads the line.", by_reference("RoAngle"), by_reference("x1"),
                                     by_reference("y1"), by_reference("x2"), by_reference("y2"), by_reference("x3"),
                                     by_reference("y3"), by_reference("mode"))}})};
    return table;
}

} // namespace zendara
