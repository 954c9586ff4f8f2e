#include "zendara/render/plots/line_scan_indicator.hpp"

#include "zendara/render/plots/scan_line.hpp"
#include "zendara/render/surface/surface.hpp"
#include "zendara/render/surface/widget.hpp"
#include "zendara/support/checked.hpp"

namespace zendara
{

namespace
{

constexpr double mark_room = 2.5; // around the panel's picture, in widths of the mark

void place_line(LineWidget& shape, ScanLine const& line, double scale, Surface const& picture)
{
    auto const x_of = [&](double x) { return to_i16(scale * x + picture.ScaleLeft() + picture.ScaleWidth() / 2); };
    auto const y_of = [&](double y) { return to_i16(picture.ScaleTop() + picture.ScaleHeight() / 2 - scale * y); };
    shape.X1 = x_of(line.start_x);
    shape.Y1 = y_of(line.start_y);
    shape.X2 = x_of(line.end_x);
    shape.Y2 = y_of(line.end_y);
}

void place_mark(Widget& mark, ScanLine const& line, double scale, Surface const& picture)
{
    std::int16_t const x = to_i16(scale * line.start_x + picture.left + picture.width / 2);
    std::int16_t const y = to_i16(picture.top + picture.height / 2 - scale * line.start_y);
    mark.Move(x - mark.Width() / 2, y - mark.Height() / 2, mark.Width(), mark.Height());
    mark.Visible(true);
}

} // namespace

void panel::draw_indicator(LineWidget& Iline, Widget& plus, std::int16_t& Plotopt, std::int16_t& phi, double& x1,
                           double& y1, double& x2, double& y2, double x3, double y3, Surface& Plot)
{
    EitherFormArguments const form{Plotopt, phi, x1, y1, x2, y2, x3, y3};
    ScanLine line = form.scan(*this);
    place_line(Iline, line, scale_to_fit(*this, Plot.ScaleWidth(), Plot.ScaleHeight()), Plot);
    {
        // The wider area has the same edges. Only the message of a line that misses it shows again.
        TestSizeScope const wider(*this, 1.1);
        line = form.scan(*this);
    }
    double const scale = scale_to_fit(*this, Plot.ScaleWidth() + mark_room * plus.Width(),
                                      Plot.ScaleHeight() + mark_room * plus.Height());
    place_mark(plus, line, scale, Plot);
}

} // namespace zendara
