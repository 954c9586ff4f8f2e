#include "zendara/controls/resolution_limit.hpp"

#include "zendara/support/number_text.hpp"

namespace zendara
{

bool limit_resolution(panel const& record, double& resolution_x, double& resolution_y, Platform& platform)
{
    double const largest_x = record.TestSizeX / 4;
    double const largest_y = record.TestSizeY / 4;
    // An axis without extent has no cells that could be too large.
    bool const lowers_x = largest_x > 0 && resolution_x > largest_x;
    bool const lowers_y = largest_y > 0 && resolution_y > largest_y;
    if (!lowers_x && !lowers_y)
        return false;

    std::string text;
    if (lowers_x) {
        resolution_x = largest_x;
        text = "Maximal possible Resolutionx is " + plain_text(largest_x) + " mm";
    }
    if (lowers_x && lowers_y)
        text += " and the maximal possible ResolutionY is ";
    else if (lowers_y)
        text = "Maximal possible ResolutionY is ";
    if (lowers_y) {
        resolution_y = largest_y;
        text += plain_text(largest_y) + " mm";
    }
    platform.message_box(text, message_information + message_system_modal, "Standard resolution to high ");
    return true;
}

} // namespace zendara
