#include "script/support_routines.hpp"

#include "zendara/controls/control.hpp"
#include "zendara/panel/load.hpp"
#include "zendara/render/plots/panel_figure.hpp"
#include "zendara/support/field_check.hpp"
#include "zendara/support/interface.hpp"
#include "zendara/support/number_text.hpp"

namespace zendara::program
{

Interface const& SupportRoutines::host_interface() const
{
    static Interface const table{
        "Support",
        "The free routines of the library.",
        {
            method<&zendara::CheckField>("CheckField", "Whether a field holds a number strictly between two bounds.",
                                         by_value("field"), by_reference("lo"), by_value("hi"), by_reference("message"),
                                         by_reference("label")),
            method<&zendara::IsInRange>("IsInRange", "False only for a number outside two bounds.", by_value("field"),
                                        by_value("lo"), by_value("hi")),
            method<&zendara::IsWholeText>("IsWholeText", "True for a whole number or nothing.", by_value("field")),
            method<&zendara::IsNumberText>("IsNumberText", "True for a plain real number.", by_value("field"),
                                           by_reference("flag")),
            method<&zendara::IntegerDigits>("IntegerDigits", "Letters of the integer part of a number.",
                                            by_value("value"), by_value("extra"), by_reference("sci")),
            method<&zendara::DecimalDigits>("DecimalDigits", "Decimals that fit into a field.", by_value("value"),
                                            by_value("field"), by_reference("sci")),
            method<&zendara::FormatFixed>("FormatFixed", "A number with a fixed count of decimals, cut.",
                                          by_value("value"), by_value("field"), by_value("dec"), by_value("sci")),
            method<&format_label>("FormatLbl", "Number text of value read-outs.", by_value("dummy")),
            method<&zendara::DrawFlatPicture>("DrawFlatPicture", "Draws the small figure of a turned panel.",
                                              by_value("picture"), by_value("alpha"), by_value("theta")),
            method<&zendara::ApplyPlotLimit>("ApplyPlotLimit", "Moves the scale limits of a panel.", by_value("panobj"),
                                             by_value("LPL"), by_value("UPL")),
            method<&zendara::help_file_name>("help_file_name", "The help file that belongs to an application path.",
                                             by_value("application_path")),
        }};
    return table;
}

} // namespace zendara::program
