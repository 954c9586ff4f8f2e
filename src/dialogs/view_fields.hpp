#pragma once

#include "zendara/form/children.hpp"

#include <cstdint>
#include <functional>

namespace zendara
{

/// What happens to a text that is no angle.
enum class RefusedAngle { BecomesOpeningAngle, BecomesLastAngle, BecomesZero };

/// A field for an angle in whole degrees.
struct AngleRow {
    char const* name;
    char const* caption;
    char access_key;
    double text_below;    // a number from here on is refused as letters are
    std::int16_t largest; // a larger one that is not refused is replaced
    std::int16_t instead_of_larger;
    RefusedAngle refused = RefusedAngle::BecomesOpeningAngle;
};

/// A text box for an angle, with its caption.
class AngleField
{
public:
    AngleField(Child& container, AngleRow const& row);
    AngleField(AngleField const&) = delete;
    AngleField& operator=(AngleField const&) = delete;

    Label caption;
    TextBox box;
    Label unit;

    /// Called when an angle has been accepted.
    std::function<void()> on_turn;
    /// Called at the end of every change, accepted or not.
    std::function<void()> on_change;

    /// Takes an angle as that in force and at opening, without showing it.
    void keep(std::int16_t degrees);
    /// Shows the angle in force.
    void show();
    std::int16_t degrees() const { return degrees_; }

private:
    void text_changed();
    void take(std::int16_t degrees);
    void put_back();
    void write(std::int16_t degrees);

    AngleRow const& row_;
    std::int16_t degrees_ = 0;
    std::int16_t opening_degrees_ = 0;
};

/// The group "Grid" with rotation and inclination of a view, and the small flat panel that shows them.
class ViewFields
{
public:
    /// @param picture_caption  over the small panel; may be empty
    ViewFields(Child& container, AngleRow const& rotation, AngleRow const& inclination, char const* picture_caption);

    Frame grid;
    AngleField rotation;
    AngleField inclination;
    Frame picture_part;
    Label picture_caption;
    PictureBox Plot;

    void open(std::int16_t rotation_deg, std::int16_t inclination_deg);
    /// Draws the small panel with the angles in force.
    void draw();

private:
    void lay_out();
};

} // namespace zendara
