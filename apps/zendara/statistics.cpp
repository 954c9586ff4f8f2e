#include "statistics.hpp"

namespace zendara::program
{

Statistics statistics_of(LoadedControl& loaded, std::string const& file)
{
    Statistics statistics;
    statistics.file = file;
    statistics.sites = loaded.site_count();
    for (std::size_t i = 0; i < statistic_figures.size(); ++i)
        statistics.values[i] = (loaded.control().*statistic_figures[i].value)();
    statistics.has_zero = loaded.control().record().FW_NUll;
    statistics.has_negative = loaded.control().record().FW_Negativ;
    return statistics;
}

} // namespace zendara::program
