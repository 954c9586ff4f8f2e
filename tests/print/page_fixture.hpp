#pragma once

#include "panels.hpp"
#include "support/failure_kind.hpp"
#include "trace_text.hpp"
#include "zendara/print/print_panel.hpp"
#include "zendara/render/surface/recorder.hpp"

#include <gtest/gtest.h>

#include <initializer_list>

namespace zendara::test
{

using Lines = std::vector<std::string>;

constexpr Color black = 0;
constexpr Color white = 0xFFFFFF;

/// A printer whose pixels are 10 twips wide and 5 high, so that exchanged factors show.
struct PrintedPage : testing::Test {
    std::unique_ptr<Recorder> page = Recorder::printer(10, 5);
    PrintPanel paper;

    PrintedPage() { paper.PrinterObj = page.get(); }

    Lines record() { return text_of(page->take_record()); }
};

inline Lines join(std::initializer_list<Lines> parts)
{
    Lines all;
    for (auto const& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

/// What a routine of panel draws on a page in the state that ResetPrinterObj leaves.
template <class Plot> Lines drawn(std::int16_t scale_mode, Plot&& plot)
{
    auto const page = Recorder::printer(10, 5);
    page->start_scale_mode(scale_mode);
    page->FillStyle = fill_solid;
    page->FillColor = white;
    plot(*page);
    return text_of(page->take_record());
}

/// As drawn() in pixels, with the writes of the unit around it.
template <class Plot> Lines plotted(Plot&& plot)
{
    return join({{"ScaleMode 3"}, drawn(scale_pixels, plot), {"ScaleMode 1"}});
}

/// A panel of 200 by 100 mm, with six sites.
inline std::unique_ptr<panel> small_panel()
{
    return make_panel(200, 100, {{-90, -40, 1}, {90, -40, 2}, {90, 40, 3}, {-90, 40, 4}, {0, 0, 2.5}, {50, 0, 2.25}});
}

// Records of the box (1000, 2000) of 5000 by 4000 twips, worked out by hand for that panel on that printer.

constexpr double left = 1000, top = 2000, width = 5000, height = 4000;

/// With the caption "Cap", 300 wide and 200 high, one line lower than the box.
inline Lines const captioned_frame = {
    "ScaleMode 1",
    "ScaleMode 1",
    "Line 1100 2200 1000 2200 4210752 2 0",
    "Line 1000 2200 1000 6200 4210752 2 0",
    "Line 1000 6200 6000 6200 4210752 2 0",
    "Line 6000 6200 6000 2200 4210752 2 0",
    "Line 6000 2200 1500 2200 4210752 2 0",
    R"(Text "Cap" 1150 2100 0 "Arial" 8)",
    "ScaleMode 1",
};

/// The figure of the panel, not turned: its square of 900 twips begins at (1000 + 5000 - 1215 + 35,
/// 2000 + 4000 - 1355 + 200) = (4820, 4845), that is pixel (482, 969); its middle is (527, 1014). 74 pixels for 200 mm
/// make 37 by 18.5 pixels to each side.
inline Lines const flat_outline = {
    "ScaleMode 1",
    "ScaleMode 3",
    "Polygon [564,996,490,996,490,1032,564,1032] 16777215 0 0 2 0",
    "Polygon [535,1032,527,1024,519,1032,527,1040] 128 0 0 2 128",
    "ScaleMode 1",
};

} // namespace zendara::test
