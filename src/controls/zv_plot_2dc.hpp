#pragma once

#include "zendara/controls/contour_legend.hpp"
#include "zendara/controls/interval_color_members.hpp"
#include "zendara/controls/plot_frame_members.hpp"
#include "zendara/controls/print_members.hpp"

#include <string>

namespace zendara
{

/// The contour plot of one panel: lines of equal value, with legend, panel figure and options button.
///
/// Most members are those that the controls share; see SharedMembers, PlotFrameMembers, IntervalColorMembers and
/// PrintMembers. Settings take effect with the next Plot.
class ZvPlot2DC final : public PlotFrameMembers<ZvPlot2DC>,
                        public IntervalColorMembers<ZvPlot2DC>,
                        public PrintMembers<ZvPlot2DC>
{
public:
    explicit ZvPlot2DC(Platform& platform);

    void InitProperties() override;
    std::vector<StoredProperty> const& stored_properties() const override;
    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

    /// Distance of the lines, in percent or in the measuring unit; a negative one becomes 1.
    double Interval() const { return settings_.interval; }
    void Interval(double interval);

    /// Whether Interval is a percentage.
    BooleanWord IntervalInPercent() const { return settings_.is_in_percent; }
    void IntervalInPercent(BooleanWord is_in_percent);

    /// The unit that the legend shows behind Interval.
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
    Color MeanCurveColor() const { return curve_color(&panel::ColS2); }
    Color UpperCurveColor() const { return curve_color(&panel::ColS1); }
    Color LowerCurveColor() const { return curve_color(&panel::ColS3); }
    void MeanCurveColor(Color color) { set_panel_color(frame_, &panel::ColS2, color, "MeanCurveColor"); }
    void UpperCurveColor(Color color) { set_panel_color(frame_, &panel::ColS1, color, "UpperCurveColor"); }
    void LowerCurveColor(Color color) { set_panel_color(frame_, &panel::ColS3, color, "LowerCurveColor"); }

    /// Opens the option dialog; its OK draws anew.
    void ShowPlotOption();

    /// Prints the plot in its compact form. Result as that of PrintPlot.
    /// @param winfo  a line below the plot; comes back cut to what was printed
    std::int16_t PrintPlot_THN(double left, double top, double width, double height, std::string& winfo);

private:
    template <class> friend class SharedMembers;
    template <class> friend class PlotFrameMembers;
    template <class> friend class IntervalColorMembers;
    template <class> friend class PrintMembers;

    static constexpr AboutKind about_kind = AboutKind::Contours;

    struct Settings {
        double interval = 1;
        BooleanWord is_in_percent;
        std::string unit;
        ContourMarks marks = ContourMarks::Exact;
        ContourResolution resolution = ContourResolution::LowQuality;
        ContourColors colors = ContourColors::Three_ColorPlot;
    };

    void prepare_plot() { default_sizes_crossed(); }
    void fill_legend();
    void draw_lines();
    void print_plot(PrintPanel& paper, PaperBox const& box, BooleanWord with_frame);
    double distance_in_percent() const;
    std::string distance_text() const;
    Color curve_color(double panel::*curve) const;

    ControlFrame frame_;
    Settings settings_;
    PlotFrame plot_frame_;
    ContourLegend legend_;
};

} // namespace zendara
