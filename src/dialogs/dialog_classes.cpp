#include "zendara/dialogs/dialog_classes.hpp"

#include "zendara/dialogs/frm_about.hpp"
#include "zendara/dialogs/frm_plot_hist.hpp"
#include "zendara/dialogs/frm_plot_opt_1d.hpp"
#include "zendara/dialogs/frm_plot_opt_2d.hpp"
#include "zendara/dialogs/frm_plot_opt_2dc.hpp"
#include "zendara/dialogs/frm_plot_opt_3d.hpp"

#include <array>

namespace zendara
{

namespace
{

template <class Dialog> std::unique_ptr<Form> make(Platform& platform)
{
    return std::make_unique<Dialog>(platform);
}

constexpr std::array<DialogClass, 9> dialogs = {{
    {"frmPlotOpt2d", &make<frmPlotOpt2d>},
    {"frmPlotOpt2ds", &make<frmPlotOpt2ds>},
    {"frmPlotOpt2DC", &make<frmPlotOpt2DC>},
    {"frmPlotOpt2DB", &make<frmPlotOpt2DB>},
    {"frmPlotOpt3d", &make<frmPlotOpt3d>},
    {"frmPlotOpt3ds", &make<frmPlotOpt3ds>},
    {"frmPlotHist", &make<frmPlotHist>},
    {"frmPlotOpt1D", &make<frmPlotOpt1D>},
    {"frmAbout", &make<frmAbout>},
}};

} // namespace

std::span<DialogClass const> dialog_classes()
{
    return dialogs;
}

} // namespace zendara
