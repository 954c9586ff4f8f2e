#include "zendara/form/line_overview.hpp"

#include <memory>

namespace zendara
{

namespace
{

constexpr double mark_size = 8; // pixels; even, so that its corner falls on a pixel
constexpr Color line_color = QBColor(2);
constexpr Color cross_color = QBColor(7);

std::shared_ptr<Image const> plus_mark()
{
    constexpr int size = 8, middle = 4;
    auto image = std::make_shared<Image>(size, size, see_through);
    for (int i = 0; i < size; ++i)
        for (int const arm : {middle - 1, middle})
            image->row(arm)[i] = image->row(i)[arm] = static_cast<std::uint32_t>(line_color);
    return image;
}

} // namespace

LineOverview::LineOverview(Frame& container, Names const& names, Place const& place)
    : picture(container, names.picture), cross(picture, names.cross), cross_2(picture, names.cross_2),
      line(picture, names.line), mark(container, names.mark)
{
    container.inner_unit(ScaleUnit::Pixels);
    picture.inner_unit(ScaleUnit::Pixels);
    picture.BackColor(container.BackColor());
    picture.Move(place.left, place.top, place.width, place.height);
    double const middle_x = place.width / 2;
    double const middle_y = place.height / 2;
    cross.place(2, middle_y, place.width - 2, middle_y);
    cross_2.place(middle_x, 2, middle_x, place.height - 2);
    cross.ForeColor(cross_color);
    cross_2.ForeColor(cross_color);
    line.place(middle_x, place.height - 2, middle_x, 2);
    line.ForeColor(line_color);
    mark.Picture(plus_mark());
    mark.Move(0, 0, mark_size, mark_size);
    mark.Visible(false);
}

} // namespace zendara
