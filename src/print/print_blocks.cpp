#include "zendara/print/data_block.hpp"
#include "zendara/print/paper_text.hpp"
#include "zendara/print/print_panel.hpp"
#include "zendara/support/number_text.hpp"

namespace zendara
{

namespace
{

/// A number in a field, with as many decimals as fit.
std::string in_field(double value, std::int16_t field)
{
    BooleanWord is_scientific;
    std::int16_t const decimals = DecimalDigits(value, field, is_scientific);
    return FormatFixed(value, field, decimals, is_scientific);
}

std::string in_millimetres(double length)
{
    return format_not_zero(length, "00.00") + " mm";
}

constexpr std::int16_t number_field = 9;
constexpr std::int16_t percent_field = 7;

// The values of the scale's lower end decide on the form of all three.
std::string in_form_of_minimum(panel const& record, double value)
{
    BooleanWord is_scientific;
    std::int16_t const decimals = DecimalDigits(record.mini, number_field, is_scientific);
    return FormatFixed(value, number_field, decimals, is_scientific);
}

std::optional<std::string> deviation_percent_text(panel const& record)
{
    auto const percent = deviation_in_percent(record);
    if (!percent)
        return std::nullopt;
    BooleanWord is_scientific;
    int const decimals = DecimalDigits(record.StdDev, number_field, is_scientific) - 2;
    return FormatFixed(*percent, percent_field, static_cast<std::int16_t>(decimals), is_scientific) + " %";
}

// The spread of the data, in the form of that of the scale.
std::string range_text(panel const& record)
{
    BooleanWord is_scientific;
    std::int16_t const decimals = DecimalDigits(record.range, number_field, is_scientific);
    return FormatFixed(record.maxi - record.mini, number_field, decimals, is_scientific);
}

} // namespace

void PrintPanel::print_block(std::string const& title, double height, std::vector<BlockRow> const& rows, double left,
                             double top)
{
    constexpr double text_width = 975;
    DrawFrame(title, left, top, 2775, height);
    for (auto const& row : rows) {
        std::string label = row.label;
        std::string value = row.value;
        if (!label.empty())
            DrawLeftText(label, left + 120, top + row.offset, text_width, 0);
        DrawLeftText(value, left + 1080, top + row.offset, text_width, 0);
    }
}

void PrintPanel::DrawWaferRemarks(panel& panobj, double leftT, double top)
{
    print_block("panel Remarks ", 1875, remark_rows(panobj), leftT, top);
}

void PrintPanel::DrawPanelSize(panel& panobj, double leftT, double top)
{
    print_block("Size ", 1630,
                {{360, "Panel Width:", in_millimetres(panobj.SizeX)},
                 {600, "Panel Height:", in_millimetres(panobj.SizeY)},
                 {840, "Test Width:", in_millimetres(panobj.TestSizeX)},
                 {1080, "Test Height:", in_millimetres(panobj.TestSizeY)},
                 {1400, "No. Sites:", plain_text(panobj.GetNop())}},
                leftT, top);
}

void PrintPanel::DrawPanelStatistics(panel& panobj, double leftT, double top)
{
    StatisticsTexts const texts{in_form_of_minimum(panobj, panobj.mean),
                                in_form_of_minimum(panobj, panobj.maxi),
                                in_form_of_minimum(panobj, panobj.mini),
                                in_field(panobj.StdDev, number_field),
                                deviation_percent_text(panobj),
                                range_text(panobj),
                                in_field(to_double(panobj.HiLo), percent_field) + " %",
                                first_15_letters(panobj.Meas_unit)};
    print_block("Statistics ", 2115, statistics_rows(texts), leftT, top);
}

} // namespace zendara
