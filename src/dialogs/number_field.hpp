#pragma once

#include "zendara/form/children.hpp"
#include "zendara/panel/panel.hpp"

#include <string>

namespace zendara
{

/// A bound of a number: fixed, or by the size of the panel.
struct FieldLimit {
    double fixed = 0;
    double panel::*size = nullptr;
    double parts = 1;

    /// The whole number nearest to that share of the panel plus one, halves to the even neighbour.
    static constexpr FieldLimit share_of(double panel::*size, double parts) { return {0, size, parts}; }

    double of(panel const& record) const;
};

/// What OK asks of a field; both bounds lie outside.
struct FieldCheck {
    char const* label; // in the message, with a blank at its end
    double above;
    FieldLimit below;
};

/// Which texts may stand in a field while the user types.
enum class Entry { Number, WholeNumber };

/// A number field of a dialog. All that the dialogs' fields differ in stands in their rows.
struct FieldRow {
    char const* name;
    char const* caption;
    char access_key;
    char const* unit;
    Entry entry = Entry::Number;
    double when_empty = 0;
};

/// A text box for a number, with its caption and its unit.
///
/// It keeps the value in force and the value at opening. A text that is no number is replaced at once by the value at
/// opening, which then is in force again.
class NumberField
{
public:
    NumberField(Child& container, FieldRow const& row);
    NumberField(NumberField const&) = delete;
    NumberField& operator=(NumberField const&) = delete;

    Label caption;
    TextBox box;
    Label unit;

    /// Takes a value as that in force and at opening, and shows it.
    void open(double value);
    double value() const { return value_; }
    double opening_value() const { return opening_value_; }

    /// Whether the text satisfies the check; the message grows when not.
    BooleanWord check(FieldCheck const& check, panel const& record, std::string& message) const;

private:
    void text_changed();
    bool may_stand(std::string const& text) const;
    void put_opening_value_back();

    FieldRow const& row_;
    double value_ = 0;
    double opening_value_ = 0;
};

/// The width of a text box for a number, and the height of any, in twips.
constexpr double number_box_width = 900;
constexpr double text_box_height = 300;

/// Gives a label its caption and the key that leads to its field.
void label_field(Label& label, char const* caption, char access_key, Child& field);

} // namespace zendara
