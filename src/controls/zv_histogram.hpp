#pragma once

#include "zendara/controls/histogram_view.hpp"
#include "zendara/controls/print_members.hpp"
#include "zendara/controls/shared_members.hpp"

namespace zendara
{

/// From which edge the bars of a histogram grow.
enum class PlotTyEnum : std::int32_t { vbbottom = 1, vbTop = 2, vbLeft = 3, vbRight = 4 };

/// The histogram of one panel's values, with a bell curve, sigma marks and control limits.
///
/// The upright forms show the limits vLcl and vUcl of the panel, the crosswise ones those of ShowControlLimit, which
/// all histograms of the process have in common. Members beyond those told here are in SharedMembers and PrintMembers;
/// result 1 of the print members of plots means that the control is narrower than its button or lower than 100 twips.
class ZvHistogram final : public SharedMembers<ZvHistogram>, public PrintMembers<ZvHistogram>
{
public:
    /// Also takes the control limits of the process away.
    explicit ZvHistogram(Platform& platform);

    void InitProperties() override;
    std::vector<StoredProperty> const& stored_properties() const override;
    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

    /// From which edge the bars grow; any other number becomes vbbottom. Takes effect with the next Plot.
    PlotTyEnum PlotType() const { return static_cast<PlotTyEnum>(plot_type_); }
    void PlotType(PlotTyEnum plot_type);

    /// Number of bins. 0 becomes 10; fractions are rounded half to even. Takes effect with the next Plot.
    /// @throws Failure  Overflow beyond 16 bits
    double Resolution() const { return resolution_; }
    void Resolution(double resolution);

    /// Colour of the bars: the panel's ColS2. Takes effect with the next Plot.
    Color BeamColor() const { return to_i32(frame_.record.ColS2); }
    void BeamColor(Color color);

    /// Colour of the bell curve and of the sigma marks: the panel's ColS1. Takes effect with the next Plot.
    Color GaussCurveColor() const { return to_i32(frame_.record.ColS1); }
    void GaussCurveColor(Color color);

    /// Draws the histogram.
    /// @return  0 done, 1 there are no data
    std::int16_t Plot();

    /// Colour around the plot; the plot keeps its own.
    Color BackColor() const { return frame_.window.BackColor(); }
    void BackColor(Color color);

    /// Opens the option dialog; its OK draws anew.
    void ShowPlotOption();

    /// Hides the options button: there is no legend beside a histogram.
    BooleanWord HideLegend() const { return !frame_.legend_shown; }
    void HideLegend(BooleanWord is_hidden);

    void PrintLegend(double, double, BooleanWord&) = delete; // a histogram has none

    /// Prints the plot in its compact form, without a frame. Result as that of PrintPlot.
    std::int16_t PrintPlot_THN(double left, double top, double width, double height);

    /// Does nothing: every Plot draws anew.
    void SetPlotNotVaild() {}

    /// Takes top and height of the plot from another chart of the host, in twips in the control, and lays out at once.
    /// @param topC  0 goes back to the ordinary layout
    void SetChartDim(double topC, double heightC);

    /// Border of the frame: 0 none.
    void Borderstyle(std::int16_t Bstyle);

    /// Shows control limits on the crosswise histograms of the process. Takes effect with the next Plot.
    void ShowControlLimit(double LCLs, double UCLs);
    /// Takes those control limits away. Takes effect with the next Plot.
    void ResetControlLimit();

private:
    template <class> friend class SharedMembers;
    template <class> friend class PrintMembers;

    static constexpr AboutKind about_kind = AboutKind::Histogram;

    void clear_display();
    void drop_stored_picture() {} // none is kept
    void lay_out();
    void draw();
    PrintCheck check_print() const;
    void print_plot(PrintPanel& paper, PaperBox const& box, BooleanWord with_frame);

    ControlFrame frame_;
    HistogramView view_;
    HistogramView::ChartDim chart_;
    std::int16_t plot_type_ = 1;
    double resolution_ = 10;
};

} // namespace zendara
