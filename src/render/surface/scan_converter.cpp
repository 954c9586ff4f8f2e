#include "zendara/render/surface/scan_converter.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <utility>

namespace zendara
{

namespace
{

// Writing of pixels.

template <std::size_t N> void store(std::uint32_t* at, std::array<std::uint32_t, N> const& pixels)
{
    std::memcpy(at, pixels.data(), sizeof pixels);
}

/// Fills count > 0 pixels. Most runs are a few pixels long: blocks that overlap need no loop for the rest.
inline void fill_run(std::uint32_t* first, std::int64_t count, std::uint32_t pixel)
{
    std::uint32_t* const last = first + count;
    std::array<std::uint32_t, 2> const two = {pixel, pixel};
    std::array<std::uint32_t, 4> const four = {pixel, pixel, pixel, pixel};
    if (count >= 64) {
        std::fill(first, last, pixel);
    } else if (count >= 4) {
        for (std::uint32_t* at = first; at < last - 4; at += 4)
            store(at, four);
        store(last - 4, four);
    } else if (count >= 2) {
        store(first, two);
        store(last - 2, two);
    } else {
        *first = pixel;
    }
}

/// The rising and the falling diagonals of the hatch.
bool is_on_hatch(std::int64_t x, std::int64_t y)
{
    return ((x - y) & 7) == 0 || ((x + y) & 7) == 7;
}

/// Paints columns left to right - 1 of a row, all of them inside the image.
inline void paint_run(std::uint32_t* row, std::int64_t y, std::int64_t left, std::int64_t right, Paint const& paint)
{
    if (!paint.is_hatched) {
        fill_run(row + left, right - left, paint.pixel);
        return;
    }
    for (std::int64_t x = left; x < right; ++x)
        if (is_on_hatch(x, y))
            row[x] = paint.pixel;
}

/// Paints what of columns left to right - 1 lies inside the image; the row does.
inline void paint_clipped_run(Image& image, std::int64_t y, std::int64_t left, std::int64_t right, Paint const& paint)
{
    left = std::max<std::int64_t>(left, 0);
    right = std::min<std::int64_t>(right, image.width());
    if (left < right)
        paint_run(image.row(static_cast<int>(y)), y, left, right, paint);
}

inline void paint_box(Image& image, PixelBox const& box, Paint const& paint)
{
    std::int64_t const left = std::max<std::int64_t>(box.left, 0);
    std::int64_t const top = std::max<std::int64_t>(box.top, 0);
    std::int64_t const right = std::min<std::int64_t>(box.right, image.width());
    std::int64_t const bottom = std::min<std::int64_t>(box.bottom, image.height());
    if (left >= right || top >= bottom)
        return;
    std::uint32_t* row = image.row(static_cast<int>(top));
    for (std::int64_t y = top; y < bottom; ++y, row += image.width())
        paint_run(row, y, left, right, paint);
}

// Exact slopes.

/// start + k * rise / run for k = first, first + 1 and so on. Exact for every line between 32-bit corners: k, rise and
/// run have at most 32 bits, and so the product has at most 64.
class Slope
{
public:
    Slope() = default;

    Slope(std::int64_t start, std::int64_t rise, std::uint64_t run, std::uint64_t first) : whole_(start), run_(run)
    {
        bool const is_falling = rise < 0;
        auto const height = static_cast<std::uint64_t>(is_falling ? -rise : rise);
        add_quotient(height, is_falling, whole_step_, rest_step_);
        if (first != 0)
            add_quotient(first * height, is_falling, whole_, rest_);
    }

    void next()
    {
        whole_ += whole_step_;
        rest_ += rest_step_;
        if (rest_ >= run_) {
            rest_ -= run_;
            ++whole_;
        }
    }

    std::int64_t rounded_up() const { return whole_ + (rest_ != 0 ? 1 : 0); }
    /// Halves go up.
    std::int64_t nearest() const { return whole_ + (2 * rest_ >= run_ ? 1 : 0); }

private:
    /// The whole part is rounded down, so that the rest is never negative.
    void add_quotient(std::uint64_t dividend, bool is_negative, std::int64_t& whole, std::uint64_t& rest) const
    {
        std::int64_t quotient = 0;
        rest = dividend;
        // Divisions are the dear part of small shapes, and most slopes are below 1 or short.
        if (dividend == run_) {
            quotient = 1;
            rest = 0;
        } else if (dividend > run_) {
            std::uint64_t const whole_part = divided(dividend, run_);
            quotient = static_cast<std::int64_t>(whole_part);
            rest = dividend - whole_part * run_;
        }
        whole += is_negative ? -quotient : quotient;
        if (is_negative && rest != 0) {
            --whole;
            rest = run_ - rest;
        }
    }

    static std::uint64_t divided(std::uint64_t dividend, std::uint64_t divisor)
    {
        constexpr std::uint64_t most = std::numeric_limits<std::uint32_t>::max();
        if (dividend <= most && divisor <= most)
            return static_cast<std::uint32_t>(dividend) / static_cast<std::uint32_t>(divisor);
        return dividend / divisor;
    }

    std::int64_t whole_ = 0;
    std::int64_t whole_step_ = 0;
    std::uint64_t rest_ = 0;
    std::uint64_t rest_step_ = 0;
    std::uint64_t run_ = 1;
};

/// An edge of a polygon on its way down through the image.
struct Edge {
    std::int64_t top = 0;    // first row that it crosses
    std::int64_t bottom = 0; // first row behind
    Slope slope;             // columns from `top` on
};

/// The edges of a polygon that cross rows of an image: no level ones, and none outside.
struct Edges {
    std::array<Edge, 4> items;
    std::size_t count = 0;
    std::int64_t top = std::numeric_limits<std::int64_t>::max();
    std::int64_t bottom = 0;

    void add(DevicePoint upper, DevicePoint lower, std::int64_t height)
    {
        if (upper.y > lower.y)
            std::swap(upper, lower);
        std::int64_t const first = std::max<std::int64_t>(upper.y, 0);
        std::int64_t const end = std::min<std::int64_t>(lower.y, height);
        if (first >= end)
            return;
        auto const rows = static_cast<std::uint64_t>(std::int64_t{lower.y} - upper.y);
        items[count++] = {
            first, end,
            Slope(upper.x, std::int64_t{lower.x} - upper.x, rows, static_cast<std::uint64_t>(first - upper.y))};
        top = std::min(top, first);
        bottom = std::max(bottom, end);
    }
};

/// The columns where a row's inside begins and ends, in order: at most one for each edge, always an even number.
struct Crossings {
    std::array<std::int64_t, 4> columns;
    std::size_t count = 0;

    void add(std::int64_t column)
    {
        std::size_t at = count++;
        for (; at > 0 && columns[at - 1] > column; --at)
            columns[at] = columns[at - 1];
        columns[at] = column;
    }
};

/// Two corners that lie opposite each other are both above the other two, so that some rows have four crossings.
bool has_two_peaks(std::array<DevicePoint, 4> const& p)
{
    auto const are_above = [](DevicePoint const& a, DevicePoint const& b, DevicePoint const& c, DevicePoint const& d) {
        return std::max(a.y, b.y) < std::min(c.y, d.y);
    };
    return are_above(p[0], p[2], p[1], p[3]) || are_above(p[1], p[3], p[0], p[2]);
}

/// One side of a polygon without a second peak, on its way from the top corner down.
class Side
{
public:
    /// @param turn  1 from corner to corner in their order, 3 against it
    Side(std::array<DevicePoint, 4> const& corners, std::size_t top, std::size_t turn, std::int64_t first_row)
        : corners_(corners), at_(top), turn_(turn)
    {
        go_on(first_row);
    }

    /// The row where the present edge ends.
    std::int64_t end() const { return end_; }
    std::int64_t column() const { return slope_.rounded_up(); }
    void next() { slope_.next(); }

    /// Takes the edge that crosses the row; there has to be one.
    void go_on(std::int64_t row)
    {
        DevicePoint from;
        do {
            from = corners_[at_];
            at_ = (at_ + turn_) % 4;
            end_ = corners_[at_].y;
        } while (end_ <= row);
        slope_ = Slope(from.x, std::int64_t{corners_[at_].x} - from.x, static_cast<std::uint64_t>(end_ - from.y),
                       static_cast<std::uint64_t>(row - from.y));
    }

private:
    std::array<DevicePoint, 4> const& corners_;
    std::size_t at_;
    std::size_t turn_;
    std::int64_t end_ = 0;
    Slope slope_;
};

/// Fills between the two sides of a polygon without a second peak: each row has just two crossings.
void fill_between_sides(Image& image, std::array<DevicePoint, 4> const& corners, Paint const& paint)
{
    std::size_t top = 0;
    std::int64_t bottom = corners[0].y;
    for (std::size_t i = 1; i < corners.size(); ++i) {
        if (corners[i].y < corners[top].y)
            top = i;
        bottom = std::max<std::int64_t>(bottom, corners[i].y);
    }
    std::int64_t y = std::max<std::int64_t>(corners[top].y, 0);
    bottom = std::min<std::int64_t>(bottom, image.height());
    if (y >= bottom)
        return;

    Side one(corners, top, 1, y);
    Side other(corners, top, 3, y);
    while (true) {
        std::int64_t const end = std::min({one.end(), other.end(), bottom});
        for (; y < end; ++y, one.next(), other.next()) {
            auto const [left, right] = std::minmax({one.column(), other.column()});
            paint_clipped_run(image, y, left, right, paint);
        }
        if (y >= bottom)
            return;
        if (one.end() == y)
            one.go_on(y);
        if (other.end() == y)
            other.go_on(y);
    }
}

/// The box that four corners span, in either turn and from any corner on.
bool is_box(std::array<DevicePoint, 4> const& p)
{
    bool const starts_level = p[0].y == p[1].y && p[1].x == p[2].x && p[2].y == p[3].y && p[3].x == p[0].x;
    bool const starts_upright = p[0].x == p[1].x && p[1].y == p[2].y && p[2].x == p[3].x && p[3].y == p[0].y;
    return starts_level || starts_upright;
}

// Lines.

/// Walks along the line's longer direction, which are columns here; see turned().
template <class Put>
void walk_line(DevicePoint from, DevicePoint to, std::int64_t length_limit, std::int64_t width_limit, Put put)
{
    bool const is_forward = from.x < to.x;
    DevicePoint const start = is_forward ? from : to;
    DevicePoint const end = is_forward ? to : from;

    // The end that is left out is `to`.
    std::int64_t const first = std::max<std::int64_t>(is_forward ? start.x : std::int64_t{start.x} + 1, 0);
    std::int64_t const last = std::min<std::int64_t>(is_forward ? std::int64_t{end.x} - 1 : end.x, length_limit - 1);
    if (first > last)
        return;
    Slope slope(start.y, std::int64_t{end.y} - start.y, static_cast<std::uint64_t>(std::int64_t{end.x} - start.x),
                static_cast<std::uint64_t>(first - start.x));
    auto const is_inside = [&](std::int64_t y) { return y >= 0 && y < width_limit; };
    if (is_inside(start.y) && is_inside(end.y)) {
        for (std::int64_t x = first; x <= last; ++x, slope.next())
            put(static_cast<int>(x), static_cast<int>(slope.nearest()));
        return;
    }
    for (std::int64_t x = first; x <= last; ++x, slope.next()) {
        std::int64_t const y = slope.nearest();
        if (is_inside(y))
            put(static_cast<int>(x), static_cast<int>(y));
    }
}

DevicePoint turned(DevicePoint point)
{
    return {point.y, point.x};
}

/// A piece of a row in real coordinates; empty when `left` lies behind `right`.
struct Piece {
    double left = std::numeric_limits<double>::infinity();
    double right = -std::numeric_limits<double>::infinity();

    /// Both pieces belong to one convex shape: nothing of it lies between them that is not in it.
    void join(Piece const& other)
    {
        left = std::min(left, other.left);
        right = std::max(right, other.right);
    }
};

/// A line with a width, without its ends, or with them.
class Band
{
public:
    Band(DevicePoint from, DevicePoint to, std::int32_t width)
        : radius_(width / 2.0), shift_(width % 2 == 0 ? -0.5 : 0), x_(from.x + shift_), y_(from.y + shift_),
          dx_(static_cast<double>(to.x) - from.x), dy_(static_cast<double>(to.y) - from.y),
          length_(std::sqrt(dx_ * dx_ + dy_ * dy_))
    {
    }

    double top() const { return y_ + std::min(dy_, 0.0) - radius_; }
    double bottom() const { return y_ + std::max(dy_, 0.0) + radius_; }

    Piece row(double y) const
    {
        Piece piece = round_end(x_, y - y_);
        piece.join(round_end(x_ + dx_, y - (y_ + dy_)));
        if (length_ > 0)
            piece.join(straight_part(y - y_));
        return piece;
    }

private:
    Piece round_end(double x, double distance) const
    {
        double const square = radius_ * radius_ - distance * distance;
        if (square < 0)
            return {};
        return {x - std::sqrt(square), x + std::sqrt(square)};
    }

    /// Where a * x lies between the limits; everywhere or nowhere if a is 0.
    static Piece between(double a, double low, double high)
    {
        if (a > 0)
            return {low / a, high / a};
        if (a < 0)
            return {high / a, low / a};
        if (low <= 0 && high >= 0)
            return {-std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};
        return {};
    }

    Piece straight_part(double y) const
    {
        // Along the line from end to end, and across it no further than the radius.
        Piece const along = between(dx_, -y * dy_, length_ * length_ - y * dy_);
        Piece const across = between(dy_, y * dx_ - radius_ * length_, y * dx_ + radius_ * length_);
        Piece const both = {std::max(along.left, across.left), std::min(along.right, across.right)};
        if (both.left > both.right)
            return {};
        return {x_ + both.left, x_ + both.right};
    }

    double radius_;
    double shift_;
    double x_, y_; // of the first point
    double dx_, dy_;
    double length_;
};

/// The real number as a column or row, at most one outside the image.
std::int64_t cut(double value, int size)
{
    return static_cast<std::int64_t>(std::clamp(value, -1.0, static_cast<double>(size)));
}

// Discs.

/// The largest whole number whose square is not above `square`.
std::int64_t whole_root(std::int64_t square)
{
    auto root = static_cast<std::int64_t>(std::sqrt(static_cast<double>(square)));
    while (root * root > square)
        --root;
    while ((root + 1) * (root + 1) <= square)
        ++root;
    return root;
}

/// Columns of a disc on both sides of its centre in the row so far from it; -1 above and below the disc.
std::int64_t half_width(std::int64_t radius, std::int64_t row)
{
    if (radius < 0 || row > radius)
        return -1;
    // distance < radius + 1/2, as squares of whole numbers
    return whole_root(radius * radius + radius - row * row);
}

/// As half_width, of the disc without its rim.
std::int64_t inner_half_width(std::int64_t radius, std::int64_t row)
{
    return std::min(half_width(radius, row) - 1, half_width(radius, row + 1));
}

/// The rows of the image that a disc reaches.
struct RowRange {
    std::int64_t first;
    std::int64_t last;
};

RowRange rows_of_disc(Image const& image, std::int64_t center, std::int64_t radius)
{
    return {std::max<std::int64_t>(center - radius, 0), std::min<std::int64_t>(center + radius, image.height() - 1)};
}

} // namespace

void fill_box(Image& image, PixelBox const& box, Paint const& paint)
{
    paint_box(image, box, paint);
}

void fill_polygon(Image& image, std::array<DevicePoint, 4> const& corners, Paint const& paint)
{
    if (!is_box(corners)) {
        if (has_two_peaks(corners))
            fill_polygon_by_edges(image, corners, paint);
        else
            fill_between_sides(image, corners, paint);
        return;
    }
    auto const [left, right] = std::minmax(corners[0].x, corners[2].x);
    auto const [top, bottom] = std::minmax(corners[0].y, corners[2].y);
    paint_box(image, {left, top, right, bottom}, paint);
}

void fill_polygon_by_edges(Image& image, std::array<DevicePoint, 4> const& corners, Paint const& paint)
{
    Edges edges;
    for (std::size_t i = 0; i < corners.size(); ++i)
        edges.add(corners[i], corners[(i + 1) % corners.size()], image.height());

    for (std::int64_t y = edges.top; y < edges.bottom; ++y) {
        Crossings crossings;
        for (std::size_t i = 0; i < edges.count; ++i) {
            Edge& edge = edges.items[i];
            if (y >= edge.top && y < edge.bottom) {
                crossings.add(edge.slope.rounded_up());
                edge.slope.next();
            }
        }
        for (std::size_t i = 0; i + 1 < crossings.count; i += 2)
            paint_clipped_run(image, y, crossings.columns[i], crossings.columns[i + 1], paint);
    }
}

void draw_line(Image& image, DevicePoint from, DevicePoint to, std::uint32_t pixel)
{
    if (from == to)
        return;
    bool const is_steep = std::abs(std::int64_t{to.y} - from.y) > std::abs(std::int64_t{to.x} - from.x);
    if (is_steep)
        walk_line(turned(from), turned(to), image.height(), image.width(),
                  [&](int y, int x) { image.row(y)[x] = pixel; });
    else
        walk_line(from, to, image.width(), image.height(), [&](int x, int y) { image.row(y)[x] = pixel; });
}

void draw_band(Image& image, DevicePoint from, DevicePoint to, std::int32_t width, std::uint32_t pixel)
{
    // Pixels just on the border belong to the band on all sides, whatever the rounding.
    constexpr double border = 1e-6;
    Band const band(from, to, width);
    std::int64_t const top = std::max<std::int64_t>(cut(std::ceil(band.top()), image.height()), 0);
    std::int64_t const bottom =
        std::min<std::int64_t>(cut(std::floor(band.bottom()), image.height()) + 1, image.height());
    for (std::int64_t y = top; y < bottom; ++y) {
        Piece const piece = band.row(static_cast<double>(y));
        paint_clipped_run(image, y, cut(std::ceil(piece.left - border), image.width()),
                          cut(std::floor(piece.right + border), image.width()) + 1, {pixel});
    }
}

void fill_disc(Image& image, DevicePoint center, std::int32_t radius, Paint const& paint)
{
    RowRange const rows = rows_of_disc(image, center.y, radius);
    for (std::int64_t y = rows.first; y <= rows.last; ++y) {
        std::int64_t const half = half_width(radius, std::abs(y - center.y));
        paint_clipped_run(image, y, center.x - half, center.x + half + 1, paint);
    }
}

void draw_ring(Image& image, DevicePoint center, std::int32_t radius, std::int32_t width, std::uint32_t pixel)
{
    std::int64_t const outer = std::int64_t{radius} + width / 2;
    std::int64_t const inner = std::int64_t{radius} - (width - 1) / 2;
    RowRange const rows = rows_of_disc(image, center.y, outer);
    for (std::int64_t y = rows.first; y <= rows.last; ++y) {
        std::int64_t const row = std::abs(y - center.y);
        std::int64_t const half = half_width(outer, row);
        std::int64_t const hole = inner_half_width(inner, row);
        if (hole < 0) {
            paint_clipped_run(image, y, center.x - half, center.x + half + 1, {pixel});
        } else {
            paint_clipped_run(image, y, center.x - half, center.x - hole, {pixel});
            paint_clipped_run(image, y, center.x + hole + 1, center.x + half + 1, {pixel});
        }
    }
}

} // namespace zendara
