#pragma once

#include "zendara/panel/panel.hpp"
#include "zendara/render/surface/surface.hpp"
#include "zendara/support/boolean_word.hpp"
#include "zendara/support/object.hpp"

#include <cstdint>
#include <string>

namespace zendara::program
{

/// The free routines of the library as members of one object. A text field is given as its text.
class SupportRoutines : public Object
{
public:
    BooleanWord CheckField(std::string const& field, double& lo, double hi, std::string& message, std::string& label);
    BooleanWord IsInRange(std::string const& field, double lo, double hi);
    BooleanWord IsWholeText(std::string const& field);
    BooleanWord IsNumberText(std::string const& field, BooleanWord& flag);
    std::int16_t IntegerDigits(double value, BooleanWord extra, BooleanWord& sci);
    std::int16_t DecimalDigits(double value, std::int16_t field, BooleanWord& sci);
    std::string FormatFixed(double value, std::int16_t field, std::int16_t dec, BooleanWord sci);
    std::string FormatLbl(double dummy);
    void DrawFlatPicture(Surface& picture, double alpha, double theta);
    BooleanWord ApplyPlotLimit(panel& panobj, double LPL, double UPL);
    std::string help_file_name(std::string const& application_path);

    Interface const& host_interface() const override;
};

} // namespace zendara::program
