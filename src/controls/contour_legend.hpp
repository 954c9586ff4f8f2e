#pragma once

#include "zendara/controls/legend_column.hpp"
#include "zendara/panel/panel.hpp"
#include "zendara/render/plots/contour.hpp"

#include <string>

namespace zendara
{

/// The legend of contour lines: the distance between two lines, and below it what explains their colours: the scale of
/// ten intervals, a key of three lines, or nothing.
class ContourLegend
{
public:
    explicit ContourLegend(LegendColumn& column);

    Label lblInterval;
    ChildArray<Label> lblCurve; // upper lines, mean line, lower lines
    ChildArray<Label> curveCol;

    /// Shows what belongs to a mode of colours, and hides the rest.
    void show(ContourColors colors);

    /// Shows a panel's colours and the distance of the lines, as a text with its unit.
    void fill(panel const& record, ContourColors colors, std::string const& distance);

private:
    LegendColumn& column_;
};

} // namespace zendara
