#include "zendara/controls/line_scan_view.hpp"

#include <algorithm>
#include <memory>

namespace zendara
{

namespace
{

// In twips.
constexpr double smallest_width = 4000;
constexpr double smallest_height = 2850;
constexpr double smallest_height_without_legend = 1770;
constexpr double legend_height = 1400; // of the window's height
constexpr double value_label_left = 90;
constexpr double plot_top = 420;
constexpr double plot_left_gap = 50;       // between the value labels and the curve
constexpr double plot_beside = 250;        // what the curve leaves of the width, beyond its labels
constexpr double plot_below = 1025;        // what it leaves of the height
constexpr double position_label_top = 550; // of the position labels, under the curve
constexpr double overview_left_of_middle = 1500;
constexpr double button_width = 1095;
constexpr double button_height = 300;
constexpr double mark_size = 210;
constexpr double plus_top = 180;

// In pixels. So narrow that it leaves room for the button in the smallest window.
constexpr double overview_width = 159;
constexpr double overview_height = 90;
constexpr double picture_top = 26; // leaves room for the mark all around
constexpr double picture_height = 48;

constexpr int quarters = 4; // of both axes
constexpr Color scan_color = QBColor(2);

std::uint32_t pixel_of(Color color)
{
    return static_cast<std::uint32_t>(color);
}

/// A disc around the point that a site's mark is placed by: half its size from its corner.
std::shared_ptr<Image const> site_mark()
{
    constexpr int size = 14, middle = 7, radius = 3;
    auto image = std::make_shared<Image>(size, size, see_through);
    for (int y = -radius; y <= radius; ++y)
        for (int x = -radius; x <= radius; ++x)
            if (x * x + y * y <= radius * radius + 1)
                image->row(middle + y)[middle + x] = pixel_of(QBColor(4));
    return image;
}

} // namespace

LineScanView::LineScanView(Window& window)
    : Plot(window, "Plot"), PLOTA(Plot, "PLOTA"), picgrid(PLOTA, "picgrid", 0, 1), lblX(Plot, "lblX", 0, quarters + 1),
      lblY(Plot, "lblY", 0, quarters + 1), plus(Plot, "plus"), FNLabel(window, "FNLabel", 0, 2),
      by_angle(FNLabel(0), {"FNPic", "Line1", "Line2", "Line3", "picplus"}, {15, picture_top, 82, picture_height}),
      Frame1(FNLabel(0), "Frame1"), AngleValue(Frame1, "AngleValue"), UpDown1(Frame1, "UpDown1"),
      Label1(Frame1, "Label1"), by_points(FNLabel(1), {"Picture1", "Line6", "Line4", "Line5", "Picture2"},
                                          {20, picture_top, 118, picture_height}),
      btnoptions(window, "btnoptions"), copypic(window, "copypic"), window_(window)
{
    build_curve_area();
    build_overviews();
    btnoptions.caption("Plot-Options");
    btnoptions.Move(0, 0, button_width, button_height);
    copypic.Visible(false);
}

void LineScanView::build_curve_area()
{
    PLOTA.surface().start_scale_mode(scale_twips);
    PLOTA.BackColor(QBColor(15));
    PLOTA.Move(0, plot_top, 0, 0);
    picgrid.on_load = [](ImageBox& element) {
        element.Move(0, 0, mark_size, mark_size);
        element.Picture(site_mark());
    };
    picgrid.on_load(picgrid(0));
    picgrid(0).Visible(false);
    for (int i = 0; i <= quarters; ++i) {
        lblX(i).alignment = i < quarters ? Alignment::Center : Alignment::Right;
        lblX(i).AutoSize(true);
        lblY(i).Left(value_label_left);
        lblY(i).AutoSize(true);
    }
    plus.caption("+");
    plus.ForeColor(scan_color);
    plus.Font({"Arial", 10});
    plus.Top(plus_top);
    plus.AutoSize(true);
}

void LineScanView::build_overviews()
{
    double const pixel_x = window_.platform().twips_per_pixel_x();
    double const pixel_y = window_.platform().twips_per_pixel_y();
    for (int i = 0; i < FNLabel.Count(); ++i) {
        FNLabel(i).Move(0, 0, overview_width * pixel_x, overview_height * pixel_y);
    }
    FNLabel(0).caption("Angle");
    FNLabel(1).caption("Line");
    FNLabel(1).Visible(false);

    Frame1.has_border = false;
    Frame1.inner_unit(ScaleUnit::Pixels);
    Frame1.Move(110, 22, 46, 58);
    AngleValue.Move(0, 16, 32, 20);
    AngleValue.Text("0");
    UpDown1.Move(32, 16, 14, 20);
    UpDown1.Max = 359;
    UpDown1.Wrap = true;
    Label1.caption("degrees");
    Label1.Move(0, 40, 46, 14);
}

void LineScanView::take_smallest_size(bool has_legend)
{
    double const height = has_legend ? smallest_height : smallest_height_without_legend;
    if (window_.Width() < smallest_width || window_.Height() < height)
        window_.take_size(std::max(window_.Width(), smallest_width), std::max(window_.Height(), height));
}

void LineScanView::lay_out(bool has_legend, std::string const& top_text)
{
    double const width = window_.Width();
    double const height = window_.Height();
    Plot.Move(0, 0, width, has_legend ? height - legend_height : height);

    Label& top = lblY(quarters);
    top.caption(top_text);
    top.Refresh();
    double const labels_end = top.Left() + top.Width();
    PLOTA.Move(labels_end + plot_left_gap, PLOTA.Top(), Plot.Width() - (labels_end + plot_beside),
               Plot.Height() - plot_below);

    if (has_legend) {
        for (int i = 0; i < FNLabel.Count(); ++i) {
            FNLabel(i).Left(width / 2 - overview_left_of_middle);
            FNLabel(i).Top(height - FNLabel(0).Height());
        }
        btnoptions.Left(width - btnoptions.Width());
        btnoptions.Top(FNLabel(0).Top() + FNLabel(0).Height() - btnoptions.Height());
    }
    plus.Left(PLOTA.Left());
    lay_out_axes();
}

void LineScanView::lay_out_axes()
{
    double const under_curve = PLOTA.Height() + position_label_top;
    double x = PLOTA.Left();
    for (int i = 0; i < quarters; ++i) {
        lblX(i).Left(x - lblX(i).Width() / 2);
        lblX(i).Top(under_curve);
        x += PLOTA.Width() / quarters;
    }
    lblX(quarters).Left(PLOTA.Width() + PLOTA.Left() - lblX(quarters).Width());
    lblX(quarters).Top(under_curve);

    double y = PLOTA.Height() + plot_top;
    for (int i = 0; i <= quarters; ++i) {
        lblY(i).Top(y - lblY(i).Height() / 2);
        y -= PLOTA.Height() / quarters;
    }
    part_labels();
}

void LineScanView::part_labels()
{
    double taken_to = lblX(0).Left() + lblX(0).Width();
    double const free_to = lblX(quarters).Left();
    for (int i = 1; i < quarters; ++i) {
        double const right = lblX(i).Left() + lblX(i).Width();
        bool const has_room = lblX(i).Left() >= taken_to && right <= free_to;
        lblX(i).Visible(has_room);
        taken_to = has_room ? right : taken_to;
    }
    // The value axis is divided evenly: its inner labels show from the middle one on.
    double const pitch = PLOTA.Height() / quarters;
    lblY(2).Visible(2 * pitch >= lblY(2).Height());
    for (int const i : {1, 3})
        lblY(i).Visible(pitch >= lblY(i).Height());
}

void LineScanView::hide_marks()
{
    for (int i = 0; i < picgrid.Count(); ++i)
        picgrid(i).Visible(false);
}

void LineScanView::show_form(bool is_line)
{
    FNLabel(0).Visible(!is_line);
    FNLabel(1).Visible(is_line);
}

void LineScanView::BackColor(Color color)
{
    for (Child* const child :
         std::initializer_list<Child*>{&Plot, &plus, &by_angle.picture, &by_points.picture, &Frame1, &Label1, &window_})
        child->BackColor(color);
    for (int i = 0; i < FNLabel.Count(); ++i)
        FNLabel(i).BackColor(color);
    for (int i = 0; i <= quarters; ++i) {
        lblX(i).BackColor(color);
        lblY(i).BackColor(color);
    }
}

} // namespace zendara
