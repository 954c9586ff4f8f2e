#include "zendara/dialogs/number_field.hpp"

#include "zendara/support/checked.hpp"
#include "zendara/support/field_check.hpp"
#include "zendara/support/number_text.hpp"

namespace zendara
{

double FieldLimit::of(panel const& record) const
{
    return size == nullptr ? fixed : round_half_even(record.*size / parts + 1);
}

NumberField::NumberField(Child& container, FieldRow const& row)
    : caption(container, std::string("lbl") + row.name), box(container, row.name),
      unit(container, std::string("unit") + row.name), row_(row)
{
    label_field(caption, row.caption, row.access_key, box);
    unit.caption(row.unit);
    box.Move(0, 0, number_box_width, text_box_height);
    box.on("Change", [this](std::span<Value>) { text_changed(); });
}

void NumberField::open(double value)
{
    value_ = value;
    opening_value_ = value;
    box.Text(plain_text(value));
}

BooleanWord NumberField::check(FieldCheck const& check, panel const& record, std::string& message) const
{
    return CheckField(box.Text(), check.above, check.below.of(record), message, check.label);
}

void NumberField::text_changed()
{
    std::string const text = box.Text();
    if (!may_stand(text))
        put_opening_value_back();
    else
        value_ = text.empty() ? row_.when_empty : parse_number(text).value_or(0);
}

bool NumberField::may_stand(std::string const& text) const
{
    if (row_.entry == Entry::WholeNumber)
        return IsWholeText(text);
    return text.empty() || IsNumberText(text, false);
}

// The value at opening may itself be no text that may stand, "1E-05": it stays then.
void NumberField::put_opening_value_back()
{
    value_ = opening_value_;
    std::string const text = plain_text(opening_value_);
    if (box.Text() != text)
        box.Text(text);
}

void label_field(Label& label, char const* caption, char access_key, Child& field)
{
    label.caption(caption);
    label.access_key = access_key;
    label.access_key_target = &field;
}

} // namespace zendara
