#include "zendara/render/plots/scan_line.hpp"

#include "zendara/support/checked.hpp"
#include "zendara/support/container.hpp"

#include <cmath>
#include <utility>

namespace zendara
{

namespace
{

constexpr std::string_view line_outside_panel = "Value not applicable. Line outside panel.";

// Slope, intercept and hits are 32-bit floats: which edge counts as hit at a corner hangs on their rounding.
struct Hit {
    float x = 0;
    float y = 0;

    bool operator==(Hit const&) const = default;
};

/// Looks for the two places where a line y = slope * x + intercept crosses the edges of the tested area.
class EdgeSearch
{
public:
    EdgeSearch(panel const& record, double slope, double x, double y)
        : half_width_(record.HalfTestSizeX), half_height_(record.HalfTestSizey), slope_(to_f32(slope)),
          intercept_(to_f32(y - slope_ * x))
    {
    }

    /// @return  whether there are two different places
    bool run()
    {
        try_lower_edge();
        try_upper_edge();
        if (count_ < 2)
            try_left_edge();
        if (count_ < 2)
            try_right_edge();
        return count_ == 2 && first_ != second_;
    }

    Hit const& first() const { return first_; }

    /// The scan towards a larger x. At equal x it starts at the first hit.
    ScanLine rightward() const
    {
        bool const first_is_left = first_.x <= second_.x;
        Hit const& start = first_is_left ? first_ : second_;
        Hit const& end = first_is_left ? second_ : first_;
        return {start.x, start.y, end.x, end.y};
    }

private:
    bool is_in_width(double x) const { return -half_width_ <= x && x <= half_width_; }
    bool is_in_height(double y) const { return -half_height_ <= y && y <= half_height_; }

    void take_first(double x, double y)
    {
        first_ = {to_f32(x), to_f32(y)};
        count_ = 1;
    }

    void take_second(double x, double y)
    {
        second_ = {to_f32(x), to_f32(y)};
        ++count_;
    }

    void try_lower_edge()
    {
        double const x = divide(-half_height_ - intercept_, slope_);
        if (is_in_width(x))
            take_first(x, -half_height_);
    }

    void try_upper_edge()
    {
        double const x = divide(half_height_ - intercept_, slope_);
        if (!is_in_width(x))
            return;
        if (count_ == 1)
            take_second(x, half_height_);
        else
            take_first(x, half_height_);
    }

    void try_left_edge()
    {
        double const y = intercept_ - slope_ * half_width_;
        if (!is_in_height(y))
            return;
        if (count_ == 0)
            take_first(-half_width_, y);
        else if (to_f32(y) != first_.y)
            take_second(-half_width_, y);
    }

    // No line crosses the right edge alone: a hit here without one before counts as a miss.
    void try_right_edge()
    {
        double const y = slope_ * half_width_ + intercept_;
        if (is_in_height(y) && to_f32(y) != first_.y)
            take_second(half_width_, y);
    }

    double half_width_, half_height_;
    float slope_, intercept_;
    int count_ = 0;
    Hit first_, second_;
};

enum class Direction { Rightward, Leftward };

ScanLine reversed(ScanLine const& line)
{
    return {line.end_x, line.end_y, line.start_x, line.start_y};
}

ScanLine sloped_scan(panel& record, double slope, double x, double y, Direction direction)
{
    EdgeSearch search(record, slope, x, y);
    if (!search.run()) {
        if (record.container != nullptr)
            record.container->message_box(line_outside_panel, 0, "");
        return {search.first().x, search.first().y, search.first().x, search.first().y};
    }
    ScanLine const line = search.rightward();
    return direction == Direction::Rightward ? line : reversed(line);
}

ScanLine upward_scan(panel const& record, double x)
{
    return {x, -record.HalfTestSizey, x, record.HalfTestSizey};
}

ScanLine rightward_scan(panel const& record, double y)
{
    return {-record.HalfTestSizeX, y, record.HalfTestSizeX, y};
}

// The direction of a scan lies a quarter turn on from its angle.
double slope_at(std::int16_t phi)
{
    double const pi = 4 * std::atan(1.0);
    double const radians = (phi + 90) * pi / 180;
    return divide(std::sin(radians), std::cos(radians));
}

void give_out(ScanLine const& line, double& xstart, double& ystart, double& xend, double& yend)
{
    xstart = line.start_x;
    ystart = line.start_y;
    xend = line.end_x;
    yend = line.end_y;
}

} // namespace

ScanLine scan_at_angle(panel& record, double x, double y, std::int16_t phi)
{
    switch (phi) {
    case 0:
    case 360:
        return upward_scan(record, x);
    case 90:
        return reversed(rightward_scan(record, y));
    case 180:
        return reversed(upward_scan(record, x));
    case 270:
        return rightward_scan(record, y);
    default:
        return sloped_scan(record, slope_at(phi), x, y, phi < 180 ? Direction::Leftward : Direction::Rightward);
    }
}

ScanLine scan_through(panel& record, double x1, double y1, double x2, double y2)
{
    if (x1 == x2) {
        ScanLine const line = upward_scan(record, x1);
        return y1 < y2 ? line : reversed(line);
    }
    if (y1 == y2) {
        ScanLine const line = rightward_scan(record, y1);
        return x1 < x2 ? line : reversed(line);
    }
    return sloped_scan(record, divide(y2 - y1, x2 - x1), x1, y1, x1 < x2 ? Direction::Rightward : Direction::Leftward);
}

void panel::D1Plot_calculate_ends_coord(double& x1, double& y1, double& x2, double& y2, double& xstart, double& ystart,
                                        double& xend, double& yend)
{
    give_out(scan_through(*this, x1, y1, x2, y2), xstart, ystart, xend, yend);
}

void panel::D1Plot_calculate_ends_angle(double& x1, double& y1, std::int16_t& phi, double& xstart, double& ystart,
                                        double& xend, double& yend)
{
    give_out(scan_at_angle(*this, x1, y1, phi), xstart, ystart, xend, yend);
}

} // namespace zendara
