#include "zendara/dialogs/view_fields.hpp"

#include "zendara/dialogs/number_field.hpp"
#include "zendara/dialogs/row_layout.hpp"
#include "zendara/render/plots/panel_figure.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/field_check.hpp"
#include "zendara/support/number_text.hpp"

namespace zendara
{

namespace
{

// Of the small panel, in twips.
constexpr double picture_width = 1800;
constexpr double picture_height = 1350;

} // namespace

AngleField::AngleField(Child& container, AngleRow const& row)
    : caption(container, std::string("lbl") + row.name), box(container, row.name),
      unit(container, std::string("unit") + row.name), row_(row)
{
    label_field(caption, row.caption, row.access_key, box);
    unit.caption("degrees");
    box.Move(0, 0, number_box_width, text_box_height);
    box.on("Change", [this](std::span<Value>) { text_changed(); });
}

void AngleField::keep(std::int16_t degrees)
{
    degrees_ = degrees;
    opening_degrees_ = degrees;
}

void AngleField::show()
{
    write(degrees_);
}

void AngleField::text_changed()
{
    std::string const text = box.Text();
    if (IsInRange(text, -1, row_.text_below) && IsWholeText(text))
        take(to_i16(parse_number(text).value_or(0)));
    else
        put_back();
    if (on_change)
        on_change();
}

// A replaced angle comes back here as a text of its own.
void AngleField::take(std::int16_t degrees)
{
    if (degrees > row_.largest) {
        write(row_.instead_of_larger);
    } else if (degrees < 0) {
        write(0);
    } else {
        degrees_ = degrees;
        if (on_turn)
            on_turn();
    }
}

// The angle at opening may itself be none that is accepted, 400: it stays then.
void AngleField::put_back()
{
    if (row_.refused == RefusedAngle::BecomesOpeningAngle)
        degrees_ = opening_degrees_;
    else if (row_.refused == RefusedAngle::BecomesZero)
        degrees_ = 0;
    if (box.Text() != plain_text(degrees_))
        write(degrees_);
}

void AngleField::write(std::int16_t degrees)
{
    box.Text(plain_text(degrees));
}

ViewFields::ViewFields(Child& container, AngleRow const& rotation_row, AngleRow const& inclination_row,
                       char const* over_picture)
    : grid(container, "Grid"), rotation(grid, rotation_row), inclination(grid, inclination_row),
      picture_part(grid, "picture_part"), picture_caption(picture_part, "lblPlot"), Plot(picture_part, "Plot")
{
    grid.caption("Grid");
    picture_part.has_border = false;
    picture_caption.caption(over_picture);
    for (AngleField* const angle : {&rotation, &inclination})
        angle->on_turn = [this] { draw(); };
    lay_out();
}

void ViewFields::open(std::int16_t rotation_deg, std::int16_t inclination_deg)
{
    rotation.keep(rotation_deg);
    inclination.keep(inclination_deg);
    rotation.show();
    inclination.show();
}

void ViewFields::draw()
{
    DrawFlatPicture(Plot.surface(), rotation.degrees(), inclination.degrees());
}

void ViewFields::lay_out()
{
    Plot.Move(0, 0, picture_width, picture_height);
    RowLayout picture(picture_part);
    if (!picture_caption.caption().empty())
        picture.add({&picture_caption});
    picture.add({&Plot});
    picture.place();

    RowLayout rows(grid);
    for (AngleField* const angle : {&rotation, &inclination})
        rows.add({&angle->caption}, {&angle->box, &angle->unit});
    rows.add({&picture_part});
    rows.place();
}

} // namespace zendara
