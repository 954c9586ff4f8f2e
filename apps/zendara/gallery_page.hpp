#pragma once

#include "statistics.hpp"
#include "zendara/support/interface.hpp"

#include <string>
#include <vector>

namespace zendara::program
{

/// One setting of a control, as a page shows it.
struct GallerySetting {
    std::string name;
    Value value;
    Type type;
    Enumeration const* enumeration;
    std::string help;
};

/// One control with its picture.
struct GalleryPlot {
    std::string name;
    std::string help;
    std::string picture; // beside the page
    int width_px;
    int height_px;
    std::vector<GallerySetting> settings;
};

/// What one page tells of one panel.
struct Gallery {
    std::string title;
    Size panel_mm;
    Statistics statistics;
    std::vector<GalleryPlot> plots;
};

/// The page as HTML that needs nothing from a network and reads well on a phone.
std::string gallery_page(Gallery const& gallery);

} // namespace zendara::program
