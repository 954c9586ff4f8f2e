#include "zendara/controls/histogram_view.hpp"

#include <array>

namespace zendara
{

namespace
{

// In twips.
constexpr double border = 120;
constexpr double caption_height = 240; // of the frame, above the picture
constexpr double button_width = 1125;
constexpr double button_height = 255;

// In pixels. The plot has room for counts of four digits at its left and for two lines of text under it.
constexpr double plot_left = 48;
constexpr double plot_top = 12;
constexpr double plot_margin = 40; // right of and under the plot
constexpr double plot_margin_beside_chart = 20;
constexpr double origin_mark = 7;

enum FrameLine { left_line, upper_line, right_line, lower_line, frame_lines };

constexpr std::array<char const*, 7> sigma_captions = {"-3s", "-2s", "-1s", "Mean", "+1s", "+2s", "+3s"};

} // namespace

HistogramView::HistogramView(Window& window)
    : frmhist(window, "frmhist"), histPic(window, "histPic"), PLOTA(histPic, "PLOTA"),
      Line1(PLOTA, "Line1", 0, frame_lines), Line2(histPic, "Line2"), Line3(histPic, "Line3"),
      lblX(window, "lblX", 0, static_cast<int>(sigma_captions.size())), Command1(window, "Command1"),
      copypic(window, "copypic"), window_(window)
{
    frmhist.caption("Histogram");
    histPic.inner_unit(ScaleUnit::Pixels);
    PLOTA.inner_unit(ScaleUnit::Pixels);
    PLOTA.BackColor(QBColor(15));
    PLOTA.Move(plot_left, plot_top, 0, 0);
    for (int i = 0; i < lblX.Count(); ++i) {
        lblX(i).caption(sigma_captions[static_cast<std::size_t>(i)]);
        lblX(i).Font({"Symbol", 8});
        lblX(i).Visible(false);
    }
    Command1.caption("Plot-Options");
    Command1.Move(0, 0, button_width, button_height);
    copypic.Visible(false);
}

void HistogramView::lay_out(double width, double height, ChartDim const& chart)
{
    Command1.Move(width - Command1.Width(), height - Command1.Height(), Command1.Width(), Command1.Height());
    frmhist.Move(frmhist.Left(), frmhist.Top(), width, height);
    histPic.Move(frmhist.Left() + border, frmhist.Top() + caption_height, frmhist.Width() - 2 * border,
                 frmhist.Height() - caption_height - border);
    lay_out_plot(chart);
    lay_out_lines();
}

void HistogramView::lay_out_plot(ChartDim const& chart)
{
    double const width = histPic.surface().ScaleWidth() - PLOTA.Left();
    if (chart.top == 0) {
        PLOTA.Move(PLOTA.Left(), PLOTA.Top(), width - plot_margin,
                   histPic.surface().ScaleHeight() - PLOTA.Top() - plot_margin);
        return;
    }
    Platform const& platform = window_.platform();
    // Both terms of the top by the pixel's width; hosts that line charts up rely on it.
    PLOTA.Move(PLOTA.Left(), (chart.top - histPic.Top()) / platform.twips_per_pixel_x(),
               width - plot_margin_beside_chart, chart.height / platform.twips_per_pixel_y());
}

void HistogramView::lay_out_lines()
{
    double const width = PLOTA.Width();
    double const height = PLOTA.Height();
    Line1(left_line).Y2(height);
    Line1(upper_line).X2(width);
    Line1(right_line).place(width - 1, Line1(right_line).Y1(), width - 1, height);
    Line1(lower_line).place(Line1(lower_line).X1(), height - 1, width, height - 1);
    double const x = PLOTA.Left();
    double const y = height + PLOTA.Top() - 1;
    Line2.place(x, y, x - origin_mark, y);
    Line3.place(x, y, x, y + origin_mark);
}

void HistogramView::BackColor(Color color)
{
    histPic.BackColor(color);
    frmhist.BackColor(color);
    window_.BackColor(color);
}

} // namespace zendara
