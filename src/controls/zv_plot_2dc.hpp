#pragma once

#include "zendara/controls/contour_legend.hpp"
#include "zendara/controls/plot_control.hpp"
#include "zendara/controls/ten_interval_colors.hpp"

#include <string>

namespace zendara
{

/// The contour plot of one panel: lines of equal value, with legend, panel figure and options button.
///
/// Used as ZvPlot2D is. Settings take effect with the next Plot.
class ZvPlot2DC final : public PlotControl, public TenIntervalColors
{
public:
    explicit ZvPlot2DC(Platform& platform);

    void InitProperties() override;
    void ShowPlotOption() override;

    /// Distance of the lines, in percent or in the measuring unit; a negative one becomes 1.
    double Interval() const { return settings_.interval; }
    void Interval(double interval);

    /// Whether Interval is a percentage.
    BooleanWord IntervalInPercent() const { return settings_.is_in_percent; }
    void IntervalInPercent(BooleanWord is_in_percent);

    /// The unit that the legend shows behind Interval, cut where the legend ends.
    std::string const& MeasurementUnit() const { return settings_.unit; }
    void MeasurementUnit(std::string_view unit);

    /// What is marked: a plus above the mean, a minus otherwise.
    ContourMarks marksites() const { return settings_.marks; }
    void marksites(ContourMarks marks);

    /// How fine the raster is; its nodes follow the number of sites.
    ContourResolution Resolution() const { return settings_.resolution; }
    void Resolution(ContourResolution resolution);

    /// The colours of the lines. The legend changes at once.
    ContourColors PlotColored() const { return settings_.colors; }
    void PlotColored(ContourColors colors);

    /// Colours of the three kinds of lines.
    Color MeanCurveColor() const { return panel_color(&panel::ColS2); }
    Color UpperCurveColor() const { return panel_color(&panel::ColS1); }
    Color LowerCurveColor() const { return panel_color(&panel::ColS3); }
    void MeanCurveColor(Color color) { set_panel_color(&panel::ColS2, color, "MeanCurveColor"); }
    void UpperCurveColor(Color color) { set_panel_color(&panel::ColS1, color, "UpperCurveColor"); }
    void LowerCurveColor(Color color) { set_panel_color(&panel::ColS3, color, "LowerCurveColor"); }

    /// Prints the plot in its compact form. Result as that of PrintPlot.
    /// @param winfo  a line below the plot; comes back cut to what was printed
    std::int16_t PrintPlot_THN(double left, double top, double width, double height, std::string& winfo);

    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

private:
    struct Settings {
        double interval = 1;
        BooleanWord is_in_percent;
        std::string unit;
        ContourMarks marks = ContourMarks::Exact;
        ContourResolution resolution = ContourResolution::LowQuality;
        ContourColors colors = ContourColors::Three_ColorPlot;
    };

    void fill_legend() override;
    void draw_plot() override;
    void print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame) override;
    double distance_in_percent() const;
    std::string distance_text() const;

    Settings settings_;
    ContourLegend legend_;
};

} // namespace zendara
