#include "zendara/print/data_block.hpp"

#include "zendara/print/paper_text.hpp"
#include "zendara/support/checked.hpp"

#include <cmath>

namespace zendara
{

std::vector<BlockRow> remark_rows(panel const& record)
{
    return {
        {360, "Operator ID:", first_15_letters(record.Operator)},
        {600, "FAB Name:", first_15_letters(record.FAB)},
        {840, "Equip Info:", first_15_letters(record.equip)},
        {1080, "panel ID:", first_15_letters(record.panel)},
        {1320, "Lot:", first_15_letters(record.lot)},
        {1560, "Meas. Equip:", first_15_letters(record.meq)},
        {1800, "Special:", first_15_letters(record.Special)},
    };
}

std::vector<BlockRow> statistics_rows(StatisticsTexts const& texts)
{
    std::vector<BlockRow> rows = {{360, "Mean:", texts.mean},
                                  {600, "Maximum:", texts.maximum},
                                  {840, "Minimum:", texts.minimum},
                                  {1080, "Std. Dev:", texts.deviation}};
    if (texts.deviation_percent)
        rows.push_back({1320, "", *texts.deviation_percent});
    rows.push_back({1560, "Range:", texts.range});
    rows.push_back({1800, "Hi/Lo Var:", texts.variation});
    rows.push_back({2040, "Unit:", texts.unit});
    return rows;
}

std::optional<double> deviation_in_percent(panel const& record)
{
    if (!(record.mean > 0))
        return std::nullopt;
    return finite(std::abs(record.StdDev / record.mean) * 100);
}

} // namespace zendara
