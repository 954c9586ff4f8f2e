#include "zendara/controls/control_classes.hpp"

#include "zendara/controls/zv_histogram.hpp"
#include "zendara/controls/zv_line_scan.hpp"
#include "zendara/controls/zv_plot_2d.hpp"
#include "zendara/controls/zv_plot_2dc.hpp"
#include "zendara/controls/zv_plot_2ds.hpp"
#include "zendara/controls/zv_plot_2dv.hpp"
#include "zendara/controls/zv_plot_3d.hpp"
#include "zendara/controls/zv_plot_3db.hpp"
#include "zendara/controls/zv_plot_3ds.hpp"
#include "zendara/support/interface.hpp"

#include <algorithm>
#include <array>

namespace zendara
{

namespace
{

template <class C> std::unique_ptr<Control> make(Platform& platform)
{
    return std::make_unique<C>(platform);
}

constexpr std::array classes = {
    ControlClass{"ZvPlot2D", &make<ZvPlot2D>, &ZvPlot2D::interface_table},
    ControlClass{"ZvPlot2DV", &make<ZvPlot2DV>, &ZvPlot2DV::interface_table},
    ControlClass{"ZvPlot2DS", &make<ZvPlot2DS>, &ZvPlot2DS::interface_table},
    ControlClass{"ZvPlot2DC", &make<ZvPlot2DC>, &ZvPlot2DC::interface_table},
    ControlClass{"ZvPlot3D", &make<ZvPlot3D>, &ZvPlot3D::interface_table},
    ControlClass{"ZvPlot3DS", &make<ZvPlot3DS>, &ZvPlot3DS::interface_table},
    ControlClass{"ZvPlot3DB", &make<ZvPlot3DB>, &ZvPlot3DB::interface_table},
    ControlClass{"ZvHistogram", &make<ZvHistogram>, &ZvHistogram::interface_table},
    ControlClass{"ZvLineScan", &make<ZvLineScan>, &ZvLineScan::interface_table},
};

} // namespace

std::span<ControlClass const> control_classes()
{
    return classes;
}

ControlClass const* find_control_class(std::string_view name)
{
    auto const found = std::find_if(classes.begin(), classes.end(), [&](ControlClass const& candidate) {
        return equals_ignoring_case(candidate.name, name);
    });
    return found == classes.end() ? nullptr : &*found;
}

} // namespace zendara
