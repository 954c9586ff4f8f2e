#pragma once

#include "zendara/controls/line_scan_settings.hpp"
#include "zendara/controls/line_scan_view.hpp"
#include "zendara/controls/print_members.hpp"
#include "zendara/controls/raster_members.hpp"
#include "zendara/controls/shared_members.hpp"
#include "zendara/support/trap.hpp"

namespace zendara
{

class frmPlotOpt1D;

/// The values of one panel along a straight line, with an angle box that turns the line.
///
/// The line runs from edge to edge of the tested area: through a rotation point at an angle, or through two points.
/// Members beyond those told here are in SharedMembers and PrintMembers.
class ZvLineScan final : public SharedMembers<ZvLineScan>, public PrintMembers<ZvLineScan>
{
public:
    explicit ZvLineScan(Platform& platform);

    void InitProperties() override;
    std::vector<StoredProperty> const& stored_properties() const override;
    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

    /// Direction of the line in degrees, 0 to 359: 0 runs upward, 90 from the right to the left. Other angles are
    /// brought into the circle. Turns the line at once, as a user's entry into the angle box does.
    std::int16_t angle() const { return line_.angle_deg; }
    void angle(std::int16_t angle);

    /// Which form the line has. Clears the curve and shows the overview of the form.
    PlotTypeEnumLineScan PlotType() const { return static_cast<PlotTypeEnumLineScan>(line_.plot_type); }
    void PlotType(PlotTypeEnumLineScan plot_type);

    /// Points of the line in millimetres from the panel's centre. Setting one clears the curve; the next Plot draws.
    std::int16_t RotationPointX() const { return to_i16(line_.rotation_point.x); }
    std::int16_t RotationPointY() const { return to_i16(line_.rotation_point.y); }
    std::int16_t LineStartPointX() const { return to_i16(line_.line_start.x); }
    std::int16_t LineStartPointY() const { return to_i16(line_.line_start.y); }
    std::int16_t LineEndPointX() const { return to_i16(line_.line_end.x); }
    std::int16_t LineEndPointY() const { return to_i16(line_.line_end.y); }
    void RotationPointX(std::int16_t x) { set_coordinate(line_.rotation_point.x, x, "RotationPointX"); }
    void RotationPointY(std::int16_t y) { set_coordinate(line_.rotation_point.y, y, "RotationPointY"); }
    void LineStartPointX(std::int16_t x) { set_coordinate(line_.line_start.x, x, "LineStartPointX"); }
    void LineStartPointY(std::int16_t y) { set_coordinate(line_.line_start.y, y, "LineStartPointY"); }
    void LineEndPointX(std::int16_t x) { set_coordinate(line_.line_end.x, x, "LineEndPointX"); }
    void LineEndPointY(std::int16_t y) { set_coordinate(line_.line_end.y, y, "LineEndPointY"); }

    /// Whether the sites on the line are marked. Hides the marks; the next Plot shows them.
    Sites ShowSites() const { return shows_sites_ ? Sites::MarkSites : Sites::HideSites; }
    void ShowSites(Sites sites);

    /// Lays the control out and draws the curve.
    /// @return  0 done, 1 there are no data
    std::int16_t Plot();

    /// Colour around the curve; the curve keeps its own.
    Color BackColor() const { return frame_.window.BackColor(); }
    void BackColor(Color color);

    /// Opens the option dialog; its OK draws anew.
    void ShowPlotOption();

    /// Goes back to the limits of the data.
    void ReleasePlotLimit();

    /// Hides the overview and the options button; the curve then takes the whole control.
    BooleanWord HideLegend() const { return !frame_.legend_shown; }
    void HideLegend(BooleanWord is_hidden);

    /// Text in the upper edge of the curve's frame.
    std::string const& PlotCaption() const { return view_.Plot.caption(); }
    void PlotCaption(std::string_view caption);

    void PrintLegend(double, double, BooleanWord&) = delete; // a line scan has none

    /// Clears the curve.
    void SetPlotNotVaild() { view_.PLOTA.Cls(); }

    /// Reads the line. In the form of two points all four coordinates are filled. In the angle form StartX and StartY
    /// get the rotation point, EndX gets the number that came in as `angle`, and EndY stays: hosts learn the angle from
    /// the property.
    /// @return  0
    std::int16_t GetLineOrAngle(std::int16_t angle, double& StartX, double& StartY, double& EndX, double& EndY);

    /// Sets the form and the line of that form, in millimetres and degrees. Only the angle box draws.
    void SetLineOrAngle(std::int16_t PlotType, std::int16_t angle, double AngleX, double AngleY, double StartX,
                        double StartY, double EndX, double EndY);

private:
    template <class> friend class SharedMembers;
    template <class> friend class PrintMembers;

    static constexpr AboutKind about_kind = AboutKind::LineScan;

    void clear_display();
    void drop_stored_picture() {} // none is kept
    void set_coordinate(double& coordinate, std::int16_t value, std::string_view property);
    void write_angle(std::int16_t angle);

    TrapPlace place_of(char const* step);
    void lay_out();
    void show_again();
    void draw();
    void draw_angle_form();
    void draw_line_form();
    void draw_scan();
    void draw_curve();
    void mark_sites();
    void show_labels();
    void show_indicator(LineOverview& overview);
    void print_plot(PrintPanel& paper, PaperBox const& box, BooleanWord with_frame);

    void take_line(frmPlotOpt1D& dialog);

    void angle_text_changed();
    void angle_key_pressed(std::int16_t key);

    ControlFrame frame_;
    LineScanView view_;
    LineScanSettings line_;
    BooleanWord shows_sites_;
};

} // namespace zendara
