#include "script/support_routines.hpp"

#include "zendara/controls/control_frame.hpp"
#include "zendara/panel/load.hpp"
#include "zendara/render/plots/panel_figure.hpp"
#include "zendara/support/field_check.hpp"
#include "zendara/support/interface.hpp"
#include "zendara/support/number_text.hpp"

namespace zendara::program
{

BooleanWord SupportRoutines::CheckField(std::string const& field, double& lo, double hi, std::string& message,
                                        std::string& label)
{
    return zendara::CheckField(field, lo, hi, message, label);
}

BooleanWord SupportRoutines::IsInRange(std::string const& field, double lo, double hi)
{
    return zendara::IsInRange(field, lo, hi);
}

BooleanWord SupportRoutines::IsWholeText(std::string const& field)
{
    return zendara::IsWholeText(field);
}

BooleanWord SupportRoutines::IsNumberText(std::string const& field, BooleanWord& flag)
{
    return zendara::IsNumberText(field, flag);
}

std::int16_t SupportRoutines::IntegerDigits(double value, BooleanWord extra, BooleanWord& sci)
{
    return zendara::IntegerDigits(value, extra, sci);
}

std::int16_t SupportRoutines::DecimalDigits(double value, std::int16_t field, BooleanWord& sci)
{
    return zendara::DecimalDigits(value, field, sci);
}

std::string SupportRoutines::FormatFixed(double value, std::int16_t field, std::int16_t dec, BooleanWord sci)
{
    return zendara::FormatFixed(value, field, dec, sci);
}

std::string SupportRoutines::FormatLbl(double dummy)
{
    return format_label(dummy);
}

void SupportRoutines::DrawFlatPicture(Surface& picture, double alpha, double theta)
{
    zendara::DrawFlatPicture(picture, alpha, theta);
}

BooleanWord SupportRoutines::ApplyPlotLimit(panel& panobj, double LPL, double UPL)
{
    return zendara::ApplyPlotLimit(panobj, LPL, UPL);
}

std::string SupportRoutines::help_file_name(std::string const& application_path)
{
    return zendara::help_file_name(application_path);
}

Interface const& SupportRoutines::host_interface() const
{
    using S = SupportRoutines;
    static Interface const table{
        "Support",
        "The free routines of the library.",
        {
            method<S, &S::CheckField>(
                "CheckField",
                {by_value("field"), by_reference("lo"), by_value("hi"), by_reference("message"), by_reference("label")},
                "Whether a field holds a number strictly between two bounds."),
            method<S, &S::IsInRange>("IsInRange", {by_value("field"), by_value("lo"), by_value("hi")},
                                     "False only for a number outside two bounds."),
            method<S, &S::IsWholeText>("IsWholeText", {by_value("field")}, "True for a whole number or nothing."),
            method<S, &S::IsNumberText>("IsNumberText", {by_value("field"), by_reference("flag")},
                                        "True for a plain real number."),
            method<S, &S::IntegerDigits>("IntegerDigits", {by_value("value"), by_value("extra"), by_reference("sci")},
                                         "Letters of the integer part of a number."),
            method<S, &S::DecimalDigits>("DecimalDigits", {by_value("value"), by_value("field"), by_reference("sci")},
                                         "Decimals that fit into a field."),
            method<S, &S::FormatFixed>("FormatFixed",
                                       {by_value("value"), by_value("field"), by_value("dec"), by_value("sci")},
                                       "A number with a fixed count of decimals, cut."),
            method<S, &S::FormatLbl>("FormatLbl", {by_value("dummy")}, "Number text of value read-outs."),
            method<S, &S::DrawFlatPicture>("DrawFlatPicture",
                                           {by_value("picture"), by_value("alpha"), by_value("theta")},
                                           "Draws the small figure of a turned panel."),
            method<S, &S::ApplyPlotLimit>("ApplyPlotLimit", {by_value("panobj"), by_value("LPL"), by_value("UPL")},
                                          "Moves the scale limits of a panel."),
            method<S, &S::help_file_name>("help_file_name", {by_value("application_path")},
                                          "The help file that belongs to an application path."),
        }};
    return table;
}

} // namespace zendara::program
