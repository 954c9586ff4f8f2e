#include "zendara/form/line_shape.hpp"

#include "zendara/support/interface.hpp"

namespace zendara
{

void LineShape::place(double x1, double y1, double x2, double y2)
{
    line_.X1 = x1;
    line_.Y1 = y1;
    line_.X2 = x2;
    line_.Y2 = y2;
    changed(Aspect::Place);
}

Interface const& LineShape::host_interface() const
{
    using L = LineShape;
    using C = Child;
    using W = Widget;
    static Interface const table{
        "Line",
        "A straight line on its container.",
        {
            getter<&C::Name>("Name", "Name of the line."),
            property<W, bool, &W::Visible, &W::Visible>("Visible", "Whether the line shows."),
            property<C, Color, &C::ForeColor, &C::ForeColor>("ForeColor", "Colour of the line."),
            property<L, double, &L::X1, &L::X1>("X1", "First point, in the container's unit."),
            property<L, double, &L::Y1, &L::Y1>("Y1", "First point, in the container's unit."),
            property<L, double, &L::X2, &L::X2>("X2", "Second point, in the container's unit."),
            property<L, double, &L::Y2, &L::Y2>("Y2", "Second point, in the container's unit."),
            method<&C::Refresh>("Refresh", "Shows the line at once."),
        }};
    return table;
}

Interface const& LineShape::Points::host_interface() const
{
    using L = LineWidget;
    static Interface const table{"Points",
                                 "The two points of a line.",
                                 {
                                     field<&L::X1>("X1", "First point."),
                                     field<&L::Y1>("Y1", "First point."),
                                     field<&L::X2>("X2", "Second point."),
                                     field<&L::Y2>("Y2", "Second point."),
                                 }};
    return table;
}

} // namespace zendara
