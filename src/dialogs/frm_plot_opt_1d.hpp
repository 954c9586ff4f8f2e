#pragma once

#include "zendara/dialogs/option_dialog.hpp"
#include "zendara/form/line_overview.hpp"

#include <cstdint>

namespace zendara
{

/// The option dialog of the line scan: where its line runs over the panel, either through a rotation point at an angle
/// (mode 1) or through two points (mode 2). A picture of the panel shows the line and its points as they are typed.
///
/// A coordinate is looked at when the user leaves its field; a bad one is replaced by "0" and the focus stays.
class frmPlotOpt1D final : public OptionDialog
{
public:
    explicit frmPlotOpt1D(Platform& platform);

    ChildArray<OptionButton> optline; // 0 point and angle, 1 two points
    ChildArray<TextBox> resx, resy;   // 0 rotation point, 1 start point, 2 end point
    TextBox AngleValue;
    ChildArray<Label> lblLine; // 0 to 5 belong to mode 1, the others to mode 2
    SiteMarks marks;
    Frame picture_part;
    LineOverview overview;        // Plot; the line is Picture1, the mark on its start Picture2
    ChildArray<ImageBox> picgrid; // the three points

    /// Fills the dialog before it is shown. Lengths in millimetres from the panel's centre, the angle in degrees.
    /// @param PlotType  mode, 1 or 2
    /// @param markS     whether the sites on the line are marked
    /// @throws Failure  SubscriptOutOfRange for another mode
    void SetValues(panel& wafo, std::int16_t PlotType, std::int16_t angle, double AngleX, double AngleY, double StartX,
                   double StartY, double EndX, double EndY, BooleanWord markS);

    BooleanWord GetMarkeSites() { return marks.is_shown(); }
    /// Reads the fields: the angle, rotation point, start point and end point, and the mode.
    void GetResult(std::int16_t& RoAngle, double& x1, double& y1, double& x2, double& y2, double& x3, double& y3,
                   std::int16_t& mode);

    Interface const& host_interface() const override;

private:
    struct Point {
        double x, y;
    };
    struct Axis {
        ChildArray<TextBox>& fields;
        double panel::*half_size;
        char const* too_far;
    };

    void lay_out();
    Label* field_label(int index, TextBox& box);
    void build_picture();
    void answer_fields();

    void choose_mode(std::int16_t mode);
    void angle_text_changed();
    /// Answers whether the focus stays.
    BooleanWord leave(Axis const& axis, int index);
    void move_mark(int index);
    void draw_line();
    Point point(int index);
    bool has_identical_points();

    void confirm() override;
    void cancel() override;

    double angle_deg_ = 0;
    std::int16_t mode_ = 1;
    bool is_ready_ = false; // the fields are filled
};

} // namespace zendara
