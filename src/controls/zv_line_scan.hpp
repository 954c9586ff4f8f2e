#pragma once

#include "zendara/controls/control.hpp"
#include "zendara/controls/line_scan_settings.hpp"
#include "zendara/controls/line_scan_view.hpp"

namespace zendara
{

class frmPlotOpt1D;

/// The values of one panel along a straight line, with an angle box that turns the line.
///
/// The line runs from edge to edge of the tested area: through a rotation point at an angle, or through two points.
/// HideLegend hides the overview and the options button; the curve then takes the whole control.
class ZvLineScan final : public Control
{
public:
    explicit ZvLineScan(Platform& platform);

    void InitProperties() override;
    void ShowPlotOption() override;

    /// Direction of the line in degrees, 0 to 359: 0 runs upward, 90 from the right to the left. Other angles are
    /// brought into the circle. Turns the line at once, as a user's entry into the angle box does.
    std::int16_t angle() const { return line_.angle_deg; }
    void angle(std::int16_t angle);

    /// Which form the line has. Clears the curve and shows the overview of the form.
    PlotTypeEnumLineScan PlotType() const { return static_cast<PlotTypeEnumLineScan>(line_.plot_type); }
    void PlotType(PlotTypeEnumLineScan plot_type);

    /// Points of the line in millimetres from the panel's centre, read as the nearest 16-bit numbers. Setting one
    /// clears the curve; the next Plot draws.
    std::int16_t RotationPointX() const;
    std::int16_t RotationPointY() const;
    std::int16_t LineStartPointX() const;
    std::int16_t LineStartPointY() const;
    std::int16_t LineEndPointX() const;
    std::int16_t LineEndPointY() const;
    void RotationPointX(std::int16_t x) { set_coordinate(line_.rotation_point.x, x, "RotationPointX"); }
    void RotationPointY(std::int16_t y) { set_coordinate(line_.rotation_point.y, y, "RotationPointY"); }
    void LineStartPointX(std::int16_t x) { set_coordinate(line_.line_start.x, x, "LineStartPointX"); }
    void LineStartPointY(std::int16_t y) { set_coordinate(line_.line_start.y, y, "LineStartPointY"); }
    void LineEndPointX(std::int16_t x) { set_coordinate(line_.line_end.x, x, "LineEndPointX"); }
    void LineEndPointY(std::int16_t y) { set_coordinate(line_.line_end.y, y, "LineEndPointY"); }

    /// Whether the sites on the line are marked. Hides the marks; the next Plot shows them.
    Sites ShowSites() const { return shows_sites_ ? Sites::MarkSites : Sites::HideSites; }
    void ShowSites(Sites sites);

    /// Text in the upper edge of the curve's frame.
    std::string const& PlotCaption() const { return view_.Plot.caption(); }
    void PlotCaption(std::string_view caption);

    /// Clears the curve.
    void SetPlotNotVaild() override { view_.PLOTA.Cls(); }

    /// Reads the line. In the form of two points all four coordinates are filled. In the angle form StartX and StartY
    /// get the rotation point, EndX gets the number that came in as `angle`, and EndY stays: hosts learn the angle from
    /// the property.
    /// @return  0
    std::int16_t GetLineOrAngle(std::int16_t angle, double& StartX, double& StartY, double& EndX, double& EndY);

    /// Sets the form and the line of that form, in millimetres and degrees. Only the angle box draws.
    void SetLineOrAngle(std::int16_t PlotType, std::int16_t angle, double AngleX, double AngleY, double StartX,
                        double StartY, double EndX, double EndY);

    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

private:
    void set_background(Color color) override { view_.BackColor(color); }
    void repaint_background() override;
    void show_legend(bool is_shown) override;
    void prepare_plot() override { fill_empty_sizes(); }
    void show_plot() override { draw(); }
    void clear_display() override;
    void limits_released() override { show_labels(); }
    void print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame) override;

    void set_coordinate(double& coordinate, std::int16_t value, std::string_view property);
    void write_angle(std::int16_t angle);
    void take_line(frmPlotOpt1D& dialog);

    void angle_text_changed();
    void angle_key_pressed(std::int16_t key);

    void lay_out();
    void show_again();
    void draw();
    void draw_angle_form();
    void draw_line_form();
    void draw_scan();
    void draw_curve();
    void mark_sites();
    void show_labels();
    void draw_figure(LineOverview& overview, Widget* label);
    void show_indicator(LineOverview& overview);

    LineScanView view_;
    LineScanSettings line_;
    BooleanWord shows_sites_;
};

} // namespace zendara
