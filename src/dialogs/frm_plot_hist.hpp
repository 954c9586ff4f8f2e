#pragma once

#include "zendara/dialogs/option_dialog.hpp"

namespace zendara
{

/// The option dialog of the histogram. Redraw is True only after an OK that changes the resolution: a change of the
/// colour alone is lost.
class frmPlotHist final : public OptionDialog
{
public:
    explicit frmPlotHist(Platform& platform);

    NumberField tresx;
    WhiteBack ground;

    /// Fills the dialog before it is shown.
    /// @param res    number of bins
    /// @param BackC  colour around the plot; white checks the box
    void SetValues(panel& wafo, double res, Color BackC);

    /// The number of bins: that at opening until an OK stores another.
    double GetResolution() const { return resolution_; }
    Color GetBackColor() const { return ground.color(); }

    Interface const& host_interface() const override;

private:
    void confirm() override;

    double resolution_ = 0;
};

} // namespace zendara
