#include "zendara/controls/raster_members.hpp"

namespace zendara
{

Enumeration const& sites_enumeration()
{
    static Enumeration const values{"Sites",
                                    {{"HideSites", static_cast<std::int32_t>(Sites::HideSites)},
                                     {"MarkSites", static_cast<std::int32_t>(Sites::MarkSites)}}};
    return values;
}

} // namespace zendara
