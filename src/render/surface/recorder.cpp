#include "zendara/render/surface/recorder.hpp"

#include "zendara/support/checked.hpp"

#include <utility>

namespace zendara
{

namespace
{

constexpr double a4_width_twips = 11906;
constexpr double a4_height_twips = 16838;

// Fixed extents, so that a record is the same on every machine.
constexpr double letter_width_twips = 100; // at size 8
constexpr double line_height_twips = 200;  // at size 8

double letters_in(std::string_view text)
{
    double count = 0;
    for (; !text.empty(); ++count)
        next_letter(text);
    return count;
}

} // namespace

std::unique_ptr<Recorder> Recorder::picture(PictureArea const& area)
{
    auto recorder = std::make_unique<Recorder>();
    recorder->area_ = area;
    recorder->width = area.width_px * recorder->twips_per_pixel_x_;
    recorder->height = area.height_px * recorder->twips_per_pixel_y_;
    return recorder;
}

std::unique_ptr<Recorder> Recorder::printer(double twips_per_pixel_x, double twips_per_pixel_y)
{
    auto recorder = std::make_unique<Recorder>();
    recorder->is_printer_ = true;
    recorder->start_scale_mode(scale_twips);
    recorder->twips_per_pixel_x_ = twips_per_pixel_x;
    recorder->twips_per_pixel_y_ = twips_per_pixel_y;
    recorder->width = a4_width_twips;
    recorder->height = a4_height_twips;
    return recorder;
}

std::vector<TraceRecord> Recorder::take_record()
{
    return std::exchange(record_, {});
}

double Recorder::TextWidth(std::string_view text) const
{
    double const twips = letter_width_twips * letters_in(text) * Font.size / 8;
    return ScaleMode() == scale_pixels ? divide(twips, twips_per_pixel_x_) : twips;
}

double Recorder::TextHeight(std::string_view) const
{
    double const twips = line_height_twips * Font.size / 8;
    return ScaleMode() == scale_pixels ? divide(twips, twips_per_pixel_y_) : twips;
}

// What a printer lets a plot see of its page, in the unit in force.
double Recorder::ScaleWidth() const
{
    if (is_printer_)
        return ScaleMode() == scale_pixels ? divide(width, twips_per_pixel_x_) : width;
    return area_.width_px * unit_x();
}

double Recorder::ScaleHeight() const
{
    if (is_printer_)
        return ScaleMode() == scale_pixels ? divide(height, twips_per_pixel_y_) : height;
    return area_.height_px * unit_y();
}

void Recorder::draw_cls()
{
    record_.push_back({"Cls", {}});
}

void Recorder::Refresh()
{
    record_.push_back({"Refresh", {}});
}

void Recorder::scale_mode_written()
{
    record_.push_back({"ScaleMode", {std::int32_t{ScaleMode()}}});
}

void Recorder::draw_line(Span const& line, Color color)
{
    record_.push_back({"Line", {line.x1, line.y1, line.x2, line.y2, color, DrawWidth, DrawStyle}});
}

void Recorder::draw_box(Span const& box, Color color)
{
    record_.push_back({"Box", {box.x1, box.y1, box.x2, box.y2, color, DrawWidth, DrawStyle, FillStyle, FillColor}});
}

void Recorder::draw_fill_box(Span const& box, Color color)
{
    record_.push_back({"FillBox", {box.x1, box.y1, box.x2, box.y2, color}});
}

void Recorder::draw_circle(double x, double y, double radius, Color color)
{
    record_.push_back({"Circle", {x, y, radius, color, DrawWidth, FillStyle, FillColor}});
}

void Recorder::draw_text(std::string_view text)
{
    record_.push_back({"Text", {std::string(text), CurrentX, CurrentY, ForeColor, Font.Name, Font.size}});
}

void Recorder::Polygon(std::array<DevicePoint, 4> const& corners)
{
    std::vector<std::int32_t> flat;
    for (auto const& corner : corners) {
        flat.push_back(corner.x);
        flat.push_back(corner.y);
    }
    record_.push_back({"Polygon", {std::move(flat), FillColor, FillStyle, DrawStyle, DrawWidth, ForeColor}});
}

void Recorder::set_picture(std::shared_ptr<Image const>)
{
    record_.push_back({"SetPicture", {}});
}

} // namespace zendara
