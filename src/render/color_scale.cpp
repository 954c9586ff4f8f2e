#include "panel/panel.hpp"
#include "render/widget.hpp"
#include "support/checked.hpp"
#include "support/number_text.hpp"

#include <array>

namespace zendara
{

namespace
{

constexpr int intervals = 10;

/// Width and decimals of one kind of legend text.
struct TextForm {
    std::int16_t field;
    std::int16_t decimals;
    BooleanWord is_scientific;

    std::string operator()(double value) const { return FormatFixed(value, field, decimals, is_scientific); }
};

struct LegendForms {
    TextForm caption;
    TextForm tool_tip;
};

// The sign of a negative number takes one place.
LegendForms legend_forms(double lo, double hi)
{
    std::int16_t const caption_field = lo >= 0 ? 6 : 5;
    std::int16_t const tool_tip_field = lo >= 0 ? 10 : 9;
    BooleanWord is_scientific;
    std::int16_t const caption_decimals = DecimalDigits(hi, caption_field, is_scientific);
    std::int16_t const tool_tip_decimals = DecimalDigits(hi, tool_tip_field, is_scientific);
    if (is_scientific)
        return {{9, 1, true}, {tool_tip_field, tool_tip_decimals, true}};
    return {{6, caption_decimals, false}, {10, tool_tip_decimals, false}};
}

enum class Bounds { Both, LowerOnly, UpperOnly };

std::string interval_text(Bounds bounds, TextForm const& form, double lower, double upper)
{
    switch (bounds) {
    case Bounds::LowerOnly:
        return form(lower) + " > ";
    case Bounds::UpperOnly:
        return " < " + form(upper);
    case Bounds::Both:
        break;
    }
    return form(lower) + " - " + form(upper);
}

} // namespace

void panel::scale_colored(WidgetArray& scalCol, WidgetArray& scallab, std::int16_t) const
{
    bool const has_limits = maximal != maxi || minimal != mini;
    double const margin = has_limits ? (maximal - minimal) / 8 : 0;
    double const lo = finite(minimal - margin);
    double const hi = finite(maximal + margin);
    double const interval = (hi - lo) / intervals;
    LegendForms const forms = legend_forms(lo, hi);
    std::array const colors = {col1, col2, col3, col4, col5, col6, col7, col8, col9, col10};
    for (int i = 1; i <= intervals; ++i) {
        double const upper = hi - (i - 1) * interval;
        double const lower = hi - i * interval;
        Bounds bounds = Bounds::Both;
        if (has_limits && i == 1)
            bounds = Bounds::LowerOnly;
        if (has_limits && i == intervals)
            bounds = Bounds::UpperOnly;
        scallab(i).caption(interval_text(bounds, forms.caption, lower, upper));
        scallab(i).ToolTipText(interval_text(bounds, forms.tool_tip, lower, upper));
        scalCol(i).BackColor(to_i32(colors[static_cast<std::size_t>(i - 1)]));
    }
}

void panel::scale_sigma(WidgetArray& scalCol, WidgetArray& scallab, double SigmaRange) const
{
    constexpr std::int16_t field = 4;
    BooleanWord is_scientific;
    std::int16_t const decimals = DecimalDigits(SigmaRange, field, is_scientific);
    std::string const text = FormatFixed(SigmaRange, field, decimals, is_scientific);
    for (int i = 1; i <= intervals; ++i) {
        scallab(i).Visible(false);
        scalCol(i).Visible(false);
    }
    auto const show_row = [&](int row, std::string const& caption, double color) {
        scallab(row).caption(caption);
        scalCol(row).BackColor(to_i32(color));
        scallab(row).Visible(true);
        scalCol(row).Visible(true);
    };
    show_row(1, ">   " + text, ColS1);
    show_row(3, "+-  " + text, ColS2);
    show_row(5, "< - " + text, ColS3);
}

std::string panel::FormatLbl(double dummy) const
{
    return format_label(dummy);
}

} // namespace zendara
