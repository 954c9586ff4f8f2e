#pragma once

#include "zendara/dialogs/option_dialog.hpp"
#include "zendara/dialogs/view_fields.hpp"

namespace zendara
{

/// The buttons of a surface's plot type, and how their indices stand for it: 0 gives 1, 1 gives 3, 2 gives 2.
extern OptionRow const surface_plot_types[3];
std::int16_t plot_type_of_index(int index); // of one of those three
int index_of_plot_type(std::int16_t plot_type);

/// The option dialog of the surface plot.
class frmPlotOpt3d final : public OptionDialog
{
public:
    explicit frmPlotOpt3d(Platform& platform);

    NumberField tresx, tresy, tscale;
    OptionGroup optPlot;
    ViewFields view; // talph, tthet, Plot
    WhiteBack ground;

    /// Fills the dialog before it is shown.
    /// @param Xres, yres  cell sizes in millimetres
    /// @param al, the     rotation and inclination in degrees
    /// @param d3scal      height of the value scale in millimetres
    /// @param plotop      plot type, 1 to 3
    void SetValues(panel& wafo, double Xres, double yres, std::int16_t al, std::int16_t the, double d3scal,
                   std::int16_t plotop, Color BackC);

    std::int16_t GetAlp() const { return view.rotation.degrees(); }
    std::int16_t GetThet() const { return view.inclination.degrees(); }
    double GetResx() const { return tresx.value(); }
    double GetResy() const { return tresy.value(); }
    double GetPlotSccale() const { return tscale.value(); }
    /// The type of the button that is on; where none is, the one at opening.
    std::int16_t GetPlotType();
    Color GetBackColor() const { return ground.color(); }

    Interface const& host_interface() const override;

private:
    std::int16_t opening_plot_type_ = 1;
};

/// The option dialog of the sigma surface. OK does not ask for the sigma range.
class frmPlotOpt3ds final : public OptionDialog
{
public:
    explicit frmPlotOpt3ds(Platform& platform);

    NumberField tresx, tresy, tscale, SSigma;
    ViewFields view; // talph, tthet, Plot
    WhiteBack ground;

    /// As that of frmPlotOpt3d.
    /// @param sig  half width of the sigma band in standard deviations
    void SetValues(panel& wafo, double Xres, double yres, double sig, std::int16_t al, std::int16_t the, double d3scal,
                   Color BackC);

    std::int16_t GetAlp() const { return view.rotation.degrees(); }
    std::int16_t GetThet() const { return view.inclination.degrees(); }
    double GetResx() const { return tresx.value(); }
    double GetResy() const { return tresy.value(); }
    double GetSigRange() const { return SSigma.value(); }
    double GetPlotSccale() const { return tscale.value(); }
    Color GetBackColor() const { return ground.color(); }

    Interface const& host_interface() const override;
};

/// The option dialog of the bar plot. Its colour box is hidden: nothing reads it.
class frmPlotOpt2DB final : public OptionDialog
{
public:
    explicit frmPlotOpt2DB(Platform& platform);

    NumberField tresx, tresy, tscale;
    ViewFields view; // talph, tthet, Plot
    WhiteBack ground;

    /// Fills the dialog before it is shown.
    /// @param Xres, yres  width and depth of a bar in millimetres
    /// @param al, the     rotation and inclination in degrees
    /// @param d3scal      height of a bar for one unit of the value, in millimetres
    void SetValues(panel& wafo, double Xres, double yres, std::int16_t al, std::int16_t the, double d3scal);

    std::int16_t GetAlp() const { return view.rotation.degrees(); }
    std::int16_t GetThet() const { return view.inclination.degrees(); }
    double GetResx() const { return tresx.value(); }
    double GetResy() const { return tresy.value(); }
    double GetPlotSccale() const { return tscale.value(); }

    Interface const& host_interface() const override;
};

} // namespace zendara
