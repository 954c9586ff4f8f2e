#pragma once

#include "zendara/dialogs/option_dialog.hpp"

namespace zendara
{

/// The option dialog of the contour plot.
class frmPlotOpt2DC final : public OptionDialog
{
public:
    explicit frmPlotOpt2DC(Platform& platform);

    NumberField tdist;
    CheckBox com2DC; // down: the interval is in measurement units
    OptionGroup OptQuali, OptExcon, Optcol;
    WhiteBack ground;

    /// Fills the dialog before it is shown.
    /// @param exCo     1 exact marks, 2 converted ones, 3 none
    /// @param res      0 low, 1 high, 2 automatic
    /// @param col      0 black and white, 1 three colours, 2 many
    /// @param dis      interval of the lines
    /// @param distper  True: the interval is in measurement units, else in percent
    void SetValues(panel& wafo, std::int16_t exCo, std::int16_t res, std::int16_t col, double dis, Color BackC,
                   BooleanWord distper);

    /// The interval; `distPerc` comes back True when it is in measurement units.
    double GetDist(BooleanWord& distPerc) const;
    std::int16_t GetReso() { return OptQuali.chosen(); }
    std::int16_t GetMarkeSites() { return OptExcon.chosen(); }
    std::int16_t GetShowColor() { return Optcol.chosen(); }
    Color GetBackColor() const { return ground.color(); }

    Interface const& host_interface() const override;
};

} // namespace zendara
