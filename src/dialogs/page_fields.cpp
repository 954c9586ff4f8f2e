#include "zendara/dialogs/page_fields.hpp"

#include "zendara/dialogs/number_field.hpp"
#include "zendara/support/field_check.hpp"
#include "zendara/support/interface.hpp"
#include "zendara/support/number_text.hpp"

namespace zendara
{

PageNumber::PageNumber(Child& container, PageNumberRow const& row)
    : caption(container, std::string("lbl") + row.name), box(container, row.name),
      unit(container, std::string("unit") + row.name), row_(row)
{
    label_field(caption, row.caption, row.access_key, box);
    unit.caption(row.unit);
    box.Move(0, 0, number_box_width, text_box_height);
    box.on("Change", [this](std::span<Value>) { text_changed(); });
}

void PageNumber::read(Object& control)
{
    box.Text(to_text(get_member(control, row_.property)));
}

void PageNumber::write(Object& control)
{
    put_member(control, row_.property, box.Text());
}

void PageNumber::text_changed()
{
    std::string const text = box.Text();
    bool const stands =
        text.empty() ? row_.empty_text == EmptyText::Stands : static_cast<bool>(IsNumberText(text, false));
    std::string const instead = plain_text(row_.instead_of_bad_text);
    if (!stands && text != instead)
        box.Text(instead);
    if (on_change)
        on_change();
}

PageCheck::PageCheck(Child& container, PageCheckRow const& row)
    : caption(container, std::string("lbl") + row.name), box(container, row.name), row_(row)
{
    box.is_push_button = row.is_push_button;
    if (row.is_push_button) {
        box.caption(row.caption);
        box.access_key = row.access_key;
    } else {
        label_field(caption, row.caption, row.access_key, box);
    }
    box.on("Click", [this](std::span<Value>) {
        if (on_change)
            on_change();
    });
}

void PageCheck::read(Object& control)
{
    auto const word = from_value<std::int32_t>(get_member(control, row_.property));
    box.Value(static_cast<std::int16_t>(word & 1));
}

void PageCheck::write(Object& control)
{
    put_member(control, row_.property, BooleanWord(box.is_checked()).word);
}

namespace
{

std::vector<OptionRow> buttons_of(std::span<PageOptionRow const> rows)
{
    std::vector<OptionRow> buttons;
    for (PageOptionRow const& row : rows)
        buttons.push_back({row.index, row.caption});
    return buttons;
}

} // namespace

PageOptions::PageOptions(Child& container, char const* name, char const* caption, char access_key, char const* property,
                         std::span<PageOptionRow const> rows)
    : group(container, name, caption, access_key, buttons_of(rows)), property_(property), rows_(rows)
{
    for (PageOptionRow const& row : rows)
        group.buttons(row.index).on("Click", [this](std::span<Value>) {
            if (on_change)
                on_change();
        });
}

// A value without a button leaves all off.
void PageOptions::read(Object& control)
{
    auto const value = from_value<std::int32_t>(get_member(control, property_));
    for (PageOptionRow const& row : rows_)
        group.buttons(row.index).Value(row.value == value);
}

void PageOptions::write(Object& control)
{
    for (PageOptionRow const& row : rows_)
        if (group.buttons(row.index).Value())
            put_member(control, property_, row.value);
}

PageAngle::PageAngle(AngleField& field, char const* property) : field_(field), property_(property)
{
    field_.on_change = [this] {
        if (on_change)
            on_change();
    };
}

void PageAngle::read(Object& control)
{
    field_.box.Text(to_text(get_member(control, property_)));
}

void PageAngle::write(Object& control)
{
    put_member(control, property_, field_.box.Text());
}

} // namespace zendara
