#pragma once

#include "zendara/dialogs/option_dialog.hpp"

namespace zendara
{

/// The option dialog of the colour map. OK lets one wrong resolution pass: only two are refused.
class frmPlotOpt2d final : public OptionDialog
{
public:
    explicit frmPlotOpt2d(Platform& platform);

    NumberField tresx, tresy;
    SiteMarks marks;
    WhiteBack ground;

    /// Fills the dialog before it is shown.
    /// @param Xres, yres  cell sizes in millimetres
    /// @param markS       whether the sites are marked
    /// @param BackC       colour around the plot; white checks the box
    void SetValues(panel& wafo, double Xres, double yres, BooleanWord markS, Color BackC);

    double GetXRes() const { return tresx.value(); }
    double GetYRes() const { return tresy.value(); }
    BooleanWord GetMarkeSites() { return marks.is_shown(); }
    /// White, or the system's colour of buttons.
    Color GetBackColor() const { return ground.color(); }

    Interface const& host_interface() const override;

private:
    bool is_valid(std::string& message) const override;
};

/// The option dialog of the sigma map.
class frmPlotOpt2ds final : public OptionDialog
{
public:
    explicit frmPlotOpt2ds(Platform& platform);

    NumberField tresx, tresy, SSigma;
    Label sigma_sign;
    SiteMarks marks;
    WhiteBack ground;

    /// As that of frmPlotOpt2d.
    /// @param sig  half width of the sigma band in standard deviations
    void SetValues(panel& wafo, double Xres, double yres, double sig, BooleanWord markS, Color BackC);

    double GetXRes() const { return tresx.value(); }
    double GetYRes() const { return tresy.value(); }
    double GetSigRange() const { return SSigma.value(); }
    BooleanWord GetMarkeSites() { return marks.is_shown(); }
    Color GetBackColor() const { return ground.color(); }

    Interface const& host_interface() const override;
};

} // namespace zendara
