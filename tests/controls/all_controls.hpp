#pragma once

#include "zendara/controls/zv_histogram.hpp"
#include "zendara/controls/zv_line_scan.hpp"
#include "zendara/controls/zv_plot_2d.hpp"
#include "zendara/controls/zv_plot_2dc.hpp"
#include "zendara/controls/zv_plot_2ds.hpp"
#include "zendara/controls/zv_plot_2dv.hpp"
#include "zendara/controls/zv_plot_3d.hpp"
#include "zendara/controls/zv_plot_3db.hpp"
#include "zendara/controls/zv_plot_3ds.hpp"

#include <gtest/gtest.h>

#include <concepts>

namespace zendara::test
{

/// For typed tests of what holds for all nine, for those with a plot beside a legend, and for those that keep no
/// picture.
using AllControls =
    testing::Types<ZvPlot2D, ZvPlot2DS, ZvPlot2DC, ZvPlot2DV, ZvPlot3D, ZvPlot3DS, ZvPlot3DB, ZvHistogram, ZvLineScan>;
using PlotControls = testing::Types<ZvPlot2D, ZvPlot2DS, ZvPlot2DC, ZvPlot2DV, ZvPlot3D, ZvPlot3DS, ZvPlot3DB>;
using PicturelessControls = testing::Types<ZvHistogram, ZvLineScan>;

template <class C>
concept HasLegend = std::derived_from<C, PlotControl>;

} // namespace zendara::test
