#pragma once

#include "zendara/controls/control.hpp"
#include "zendara/controls/histogram_view.hpp"
#include "zendara/render/surface/drawing_state.hpp"

#include <optional>

namespace zendara
{

/// From which edge the bars of a histogram grow.
enum class PlotTyEnum : std::int32_t { vbbottom = 1, vbTop = 2, vbLeft = 3, vbRight = 4 };

/// The histogram of one panel's values, with a bell curve, sigma marks and control limits.
///
/// The upright forms show the limits vLcl and vUcl of the panel, the crosswise ones those of ShowControlLimit, which
/// all histograms of the process have in common. HideLegend hides the options button: there is no legend. Result 1 of
/// the print members of plots means that the control is narrower than its button or lower than 100 twips.
class ZvHistogram final : public Control
{
public:
    /// Also takes the control limits of the process away.
    explicit ZvHistogram(Platform& platform);

    void InitProperties() override;
    void ShowPlotOption() override;

    /// From which edge the bars grow; any other number becomes vbbottom. Takes effect with the next Plot.
    PlotTyEnum PlotType() const { return static_cast<PlotTyEnum>(plot_type_); }
    void PlotType(PlotTyEnum plot_type);

    /// Number of bins. 0 becomes 10; fractions are rounded half to even. Takes effect with the next Plot.
    /// @throws Failure  Overflow beyond 16 bits
    double Resolution() const { return resolution_; }
    void Resolution(double resolution);

    /// Colour of the bars: the panel's ColS2. Takes effect with the next Plot.
    Color BeamColor() const { return panel_color(&panel::ColS2); }
    void BeamColor(Color color) { set_panel_color(&panel::ColS2, color, "BeamColor"); }

    /// Colour of the bell curve and of the sigma marks: the panel's ColS1. Takes effect with the next Plot.
    Color GaussCurveColor() const { return panel_color(&panel::ColS1); }
    void GaussCurveColor(Color color) { set_panel_color(&panel::ColS1, color, "GaussCurveColor"); }

    /// Prints the plot in its compact form, without a frame. Result as that of PrintPlot.
    std::int16_t PrintPlot_THN(double left, double top, double width, double height);

    /// Does nothing: every Plot draws anew.
    void SetPlotNotVaild() override {}

    /// Takes top and height of the plot from another chart of the host, in twips in the control, and lays out at once.
    /// @param topC  0 goes back to the ordinary layout
    void SetChartDim(double topC, double heightC);

    /// Border of the frame: 0 none.
    void Borderstyle(std::int16_t Bstyle);

    /// Shows control limits on the crosswise histograms of the process. Takes effect with the next Plot.
    void ShowControlLimit(double LCLs, double UCLs);
    /// Takes those control limits away. Takes effect with the next Plot.
    void ResetControlLimit();

    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

private:
    void set_background(Color color) override { view_.BackColor(color); }
    void repaint_background() override;
    void show_legend(bool is_shown) override;
    void prepare_plot() override { fill_empty_sizes(); }
    void show_plot() override { draw(); }
    void clear_display() override;
    PrintCheck check_print() const override;
    void print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame) override;

    void lay_out();
    void lay_out_steps();
    void draw();
    void draw_again();
    void draw_statistic(std::int16_t plot_type, double resolution);

    /// What the plot on the screen was drawn from.
    struct DrawnWith {
        DrawingState plot, outer;
        std::int16_t plot_type;
        double resolution;
    };

    HistogramView view_;
    HistogramView::ChartDim chart_;
    std::optional<DrawnWith> drawn_with_;
    std::int16_t plot_type_ = 1;
    double resolution_ = 10;
};

} // namespace zendara
