#include "zendara/render/plots/contour.hpp"

#include "zendara/render/plots/contour_mesh.hpp"
#include "zendara/render/surface/surface.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/container.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace zendara
{

namespace
{

constexpr double too_few_sites_for_lines = 3;
constexpr double fewest_nodes_of_high_quality = 25;
constexpr double most_lines = 10000; // in the range of the scale: more would be one black area
constexpr double margin = 6;         // of both sides together, in surface units

/// What the caller of D2Contour asks for.
struct ContourRequest {
    double distance;
    ContourMarks marks;
    ContourResolution resolution;
    ContourColors colors;
};

/// The rectangle that a host gives for a plot on paper, in surface units.
struct PaperBox {
    double left, top, width, height;
};

double spread_of(panel const& record)
{
    return record.maxi - record.mini;
}

/// The reference as long as the mean is not too small beside the spread.
double reference_beside_spread(panel const& record)
{
    double const mean = std::abs(record.mean);
    if (mean < std::abs(record.maxi))
        return std::abs(record.maxi);
    if (mean < std::abs(record.mini))
        return std::abs(record.mini);
    return mean;
}

double percent_of(double interval, double reference)
{
    return divide(interval * 100, reference);
}

double to_single(double value)
{
    if (!(std::abs(value) <= std::numeric_limits<float>::max()))
        fail(FailureKind::Overflow, "a number does not fit into single precision");
    return static_cast<float>(value);
}

/// One run of D2Contour. Nothing is trapped: a failure ends it.
class ContourPlot
{
public:
    ContourPlot(panel& record, Surface& surface, ContourRequest const& request, PaperBox const& box, bool is_for_paper)
        : record_(record), surface_(surface), request_(request), box_(box), is_for_paper_(is_for_paper)
    {
    }

    void run();

private:
    void take_rectangle();
    ContourMesh make_mesh() const;
    std::int16_t base_count() const;
    void find_scale();
    void draw_box();
    void draw_background();
    bool fix_interval();
    void show_that_no_lines_are_possible();
    void draw_mean_line(ContourMesh const& mesh);
    void draw_upper_lines(ContourMesh const& mesh);
    void draw_lower_lines(ContourMesh const& mesh);
    template <class IsInside> void draw_lines(ContourMesh const& mesh, double step, IsInside const& is_inside);
    void draw_level(ContourMesh const& mesh, double level);
    Color band_color(double value) const;
    void draw_marks(ContourMesh const& mesh);
    void mark_nodes(ContourMesh const& mesh);
    void mark_sites();
    void mark(double x, double y, double value);
    void draw_frame();
    void refresh_screen();

    bool has_three_colors() const { return request_.colors == ContourColors::Three_ColorPlot; }
    bool has_ten_colors() const { return request_.colors == ContourColors::Ten_ColorPlot; }
    double box_left() const { return finite(center_x_ - scale_ * record_.HalfTestSizeX); }
    double box_top() const { return finite(center_y_ - scale_ * record_.HalfTestSizey); }
    double box_width() const { return finite(scale_ * record_.TestSizeX); }
    double box_height() const { return finite(scale_ * record_.TestSizeY); }

    panel& record_;
    Surface& surface_;
    ContourRequest const request_;
    PaperBox const box_;
    bool const is_for_paper_;

    // The rectangle in surface units.
    std::int16_t width_ = 0, height_ = 0;
    std::int16_t center_x_ = 0, center_y_ = 0;
    double scale_ = 0;    // surface units per millimetre
    double interval_ = 0; // between two levels, in the measuring unit
};

void ContourPlot::run()
{
    take_rectangle();
    ContourMesh const mesh = make_mesh();
    find_scale();
    draw_background();
    if (record_.GetNop() > too_few_sites_for_lines) {
        if (!fix_interval()) {
            show_that_no_lines_are_possible();
            return;
        }
        draw_mean_line(mesh);
        draw_upper_lines(mesh);
        draw_lower_lines(mesh);
        draw_marks(mesh);
    }
    draw_frame();
}

void ContourPlot::take_rectangle()
{
    if (is_for_paper_) {
        width_ = to_i16(box_.width);
        height_ = to_i16(box_.height);
        center_x_ = to_i16(box_.width / 2 + box_.left);
        center_y_ = to_i16(box_.height / 2 + box_.top);
        return;
    }
    surface_.Cls();
    surface_.Refresh();
    width_ = to_i16(surface_.ScaleWidth());
    height_ = to_i16(surface_.ScaleHeight());
    center_x_ = to_i16(surface_.ScaleWidth() / 2);
    center_y_ = to_i16(surface_.ScaleHeight() / 2);
}

// Nodes and triangles are counted in 16 bits: a finer raster fails.
ContourMesh ContourPlot::make_mesh() const
{
    double const aspect = divide(record_.TestSizeX, record_.TestSizeY);
    std::int16_t const base = base_count();
    bool const is_wide = aspect > 1;
    std::int16_t columns = is_wide ? to_i16(base * aspect) : base;
    std::int16_t rows = is_wide ? base : to_i16(divide(base, aspect));
    if (columns == 1)
        columns = 2;
    if (rows == 1)
        rows = 2;
    auto const nodes = to_i16(1.0 * columns * rows);
    auto const triangles = to_i16((columns - 1.0) * 2 * (rows - 1.0));
    if (nodes < 1 || triangles < 1)
        fail(FailureKind::SubscriptOutOfRange, "the raster of a contour plot has no cells");
    return ContourMesh::sampled(record_, columns, rows);
}

// Nodes along the shorter side.
std::int16_t ContourPlot::base_count() const
{
    auto const by_root = [this](double share) { return std::floor(std::sqrt(record_.GetNop() * share)) + 1; };
    switch (request_.resolution) {
    case ContourResolution::LowQuality:
        return to_i16(by_root(0.5));
    case ContourResolution::HighQuality:
        return to_i16(std::max(by_root(4), fewest_nodes_of_high_quality));
    case ContourResolution::Automatic:
        return to_i16(by_root(1));
    }
    return 0;
}

// One scale for both axes, so that the panel keeps its proportions.
void ContourPlot::find_scale()
{
    double const scale_x = divide(width_ - margin, record_.TestSizeX);
    double const scale_y = divide(height_ - margin, record_.TestSizeY);
    scale_ = scale_x < scale_y ? scale_x : scale_y;
}

void ContourPlot::draw_box()
{
    surface_.BoxStep(box_left(), box_top(), box_width(), box_height(), QBColor(0));
}

void ContourPlot::draw_background()
{
    surface_.FillColor = QBColor(15);
    surface_.DrawStyle = pen_solid;
    draw_box();
    refresh_screen();
}

// Answers whether the lines lie far enough apart to mean anything.
bool ContourPlot::fix_interval()
{
    interval_ = finite(contour_reference(record_, request_.distance) * request_.distance / 100);
    return record_.range / most_lines <= interval_;
}

// On paper, and where the caller wants no message box, a cross. Its far corners are given as if the box began at 0, so
// that it is a little smaller than the box.
void ContourPlot::show_that_no_lines_are_possible()
{
    if (!is_for_paper_ && box_.left >= 0) {
        if (record_.container != nullptr)
            record_.container->message_box("Difference of Mean, Maximum, and Minimum too small", message_system_modal,
                                           "No Contour Plot possible");
        return;
    }
    surface_.DrawWidth = 2;
    surface_.Line(box_left(), box_top(), box_width(), box_height(), QBColor(4));
    surface_.Line(box_left(), box_height(), box_width(), box_top(), QBColor(4));
}

void ContourPlot::draw_mean_line(ContourMesh const& mesh)
{
    if (has_three_colors())
        surface_.ForeColor = to_i32(record_.ColS2);
    if (has_ten_colors())
        surface_.ForeColor = band_color(to_single(record_.mean)); // close to a border this may be the neighbour's
    surface_.DrawWidth = is_for_paper_ ? 4 : 2;
    draw_level(mesh, record_.mean);
}

void ContourPlot::draw_upper_lines(ContourMesh const& mesh)
{
    surface_.DrawWidth = is_for_paper_ ? 2 : 1;
    if (has_three_colors())
        surface_.ForeColor = to_i32(record_.ColS1);
    draw_lines(mesh, interval_, [this](double level) { return level < record_.maximal; });
}

// Down to the lowest value, whatever the limits of the scale are: they end the upper lines alone.
void ContourPlot::draw_lower_lines(ContourMesh const& mesh)
{
    if (has_three_colors())
        surface_.ForeColor = to_i32(record_.ColS3);
    draw_lines(mesh, -interval_, [this](double level) { return level > record_.mini; });
}

template <class IsInside> void ContourPlot::draw_lines(ContourMesh const& mesh, double step, IsInside const& is_inside)
{
    double before = record_.mean;
    double level = before + step;
    // A step too small to move the level would never come to an end.
    while (is_inside(level) && level != before) {
        if (has_ten_colors())
            surface_.ForeColor = band_color(level);
        draw_level(mesh, level);
        before = level;
        level += step;
    }
}

void ContourPlot::draw_level(ContourMesh const& mesh, double level)
{
    mesh.for_each_segment(level, [this](ContourMesh::Segment const& segment) {
        surface_.Line(finite(segment.x1 * scale_ + center_x_), finite(center_y_ - segment.y1 * scale_),
                      finite(segment.x2 * scale_ + center_x_), finite(center_y_ - segment.y2 * scale_),
                      surface_.ForeColor);
    });
    refresh_screen();
}

// With plot limits, the top and the bottom band are the stretches beyond them.
Color ContourPlot::band_color(double value) const
{
    std::array const colors = {record_.col1, record_.col2, record_.col3, record_.col4, record_.col5,
                               record_.col6, record_.col7, record_.col8, record_.col9};
    bool const has_limits = record_.maximal != record_.maxi || record_.minimal != record_.mini;
    double const beyond = has_limits ? finite(record_.maximal - record_.minimal) / 8 : 0;
    double const top = record_.maximal + beyond;
    double const bottom = record_.minimal - beyond;
    double const band = finite(top - bottom) / 10;
    for (std::size_t k = 1; k <= colors.size(); ++k)
        if (top - static_cast<double>(k) * band <= value)
            return to_i32(colors[k - 1]);
    return to_i32(record_.col10);
}

void ContourPlot::draw_marks(ContourMesh const& mesh)
{
    surface_.ForeColor = QBColor(0);
    surface_.DrawWidth = 1;
    if (request_.marks == ContourMarks::Converted)
        mark_nodes(mesh);
    if (request_.marks == ContourMarks::Exact)
        mark_sites();
}

void ContourPlot::mark_nodes(ContourMesh const& mesh)
{
    for (std::size_t row = 0; row < mesh.rows(); ++row)
        for (std::size_t column = 0; column < mesh.columns(); ++column) {
            auto const node = mesh.node(column, row);
            mark(node.x, node.y, node.value);
        }
}

void ContourPlot::mark_sites()
{
    HostArray<double> place;
    place.redim(1, 2);
    std::int32_t const count = to_i16(record_.GetNop());
    for (std::int32_t site = 1; site <= count; ++site) {
        double const value = record_.GetGridValue(static_cast<std::int16_t>(site), place);
        mark(place(1), place(2), value);
    }
}

// A plus above the mean, a minus otherwise.
void ContourPlot::mark(double x, double y, double value)
{
    int const arm = is_for_paper_ ? 45 : 3;
    int const center_x = to_i16(scale_ * x + center_x_);
    int const center_y = to_i16(center_y_ - scale_ * y);
    surface_.Line(center_x - arm, center_y, center_x + arm, center_y, QBColor(0));
    if (value > record_.mean)
        surface_.Line(center_x, center_y - arm, center_x, center_y + arm, QBColor(0));
}

void ContourPlot::draw_frame()
{
    auto const fill_style = surface_.FillStyle;
    surface_.FillStyle = fill_none;
    draw_box();
    surface_.FillStyle = fill_style;
}

void ContourPlot::refresh_screen()
{
    if (!is_for_paper_)
        surface_.Refresh();
}

} // namespace

double contour_reference(panel const& record, double distance)
{
    double const of_mean = std::abs(record.mean) * distance / 100;
    if (spread_of(record) / most_lines > of_mean)
        return spread_of(record);
    return reference_beside_spread(record);
}

double contour_percent(panel const& record, double interval)
{
    // Which reference holds depends on the percentage; the right one is that which its own percentage leads back to.
    double const spread = spread_of(record);
    if (spread > 0) {
        double const percent = percent_of(interval, spread);
        if (contour_reference(record, percent) == spread)
            return percent;
    }
    double const reference = reference_beside_spread(record);
    return reference == 0 ? 1 : percent_of(interval, reference);
}

void panel::D2Contour(Surface& Plot, double distance, std::int16_t marked_sites, std::int16_t reso,
                      std::int16_t colored, double left, double top, double width, double height,
                      std::int16_t ShowDispl)
{
    ContourRequest const request{distance, ContourMarks{marked_sites}, ContourResolution{reso}, ContourColors{colored}};
    ContourPlot(*this, Plot, request, {left, top, width, height}, ShowDispl == 1).run();
}

} // namespace zendara
