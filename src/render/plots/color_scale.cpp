#include "zendara/render/plots/color_scale.hpp"

#include "zendara/render/surface/widget.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/number_text.hpp"

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

std::array<IntervalRow, 10> interval_rows(panel const& record)
{
    bool const has_limits = record.maximal != record.maxi || record.minimal != record.mini;
    double const margin = has_limits ? (record.maximal - record.minimal) / 8 : 0;
    double const lo = finite(record.minimal - margin);
    double const hi = finite(record.maximal + margin);
    double const interval = (hi - lo) / intervals;
    LegendForms const forms = legend_forms(lo, hi);
    std::array const colors = {record.col1, record.col2, record.col3, record.col4, record.col5,
                               record.col6, record.col7, record.col8, record.col9, record.col10};
    std::array<IntervalRow, intervals> rows;
    for (int i = 1; i <= intervals; ++i) {
        double const upper = hi - (i - 1) * interval;
        double const lower = hi - i * interval;
        Bounds bounds = Bounds::Both;
        if (has_limits && i == 1)
            bounds = Bounds::LowerOnly;
        if (has_limits && i == intervals)
            bounds = Bounds::UpperOnly;
        auto const index = static_cast<std::size_t>(i - 1);
        rows[index] = {interval_text(bounds, forms.caption, lower, upper),
                       interval_text(bounds, forms.tool_tip, lower, upper), colors[index]};
    }
    return rows;
}

std::array<SigmaRow, 3> sigma_rows(panel const& record, std::string const& range)
{
    return {{{">   " + range, record.ColS1}, {"+-  " + range, record.ColS2}, {"< - " + range, record.ColS3}}};
}

void panel::scale_colored(WidgetArray& scalCol, WidgetArray& scallab, std::int16_t) const
{
    int i = 0;
    for (auto const& row : interval_rows(*this)) {
        ++i;
        scallab(i).caption(row.text);
        scallab(i).ToolTipText(row.exact_text);
        scalCol(i).BackColor(to_i32(row.color));
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
    int i = 1;
    for (auto const& row : sigma_rows(*this, text)) {
        scallab(i).caption(row.text);
        scalCol(i).BackColor(to_i32(row.color));
        scallab(i).Visible(true);
        scalCol(i).Visible(true);
        i += 2; // with an empty row between
    }
}

std::string panel::FormatLbl(double dummy) const
{
    return format_label(dummy);
}

} // namespace zendara
