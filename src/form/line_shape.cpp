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
    constexpr auto both = MemberKind::GetPut;
    static Interface const table{
        "Line",
        "A straight line on its container.",
        {
            getter<L, &C::Name>("Name", "Name of the line."),
            accessors<L, W, bool, bool, &W::Visible, &W::Visible>("Visible", both, "Whether the line shows."),
            accessors<L, C, Color, Color, &C::ForeColor, &C::ForeColor>("ForeColor", both, "Colour of the line."),
            accessors<L, L, double, double, &L::X1, &L::X1>("X1", both, "First point, in the container's unit."),
            accessors<L, L, double, double, &L::Y1, &L::Y1>("Y1", both, "First point, in the container's unit."),
            accessors<L, L, double, double, &L::X2, &L::X2>("X2", both, "Second point, in the container's unit."),
            accessors<L, L, double, double, &L::Y2, &L::Y2>("Y2", both, "Second point, in the container's unit."),
            method<L, &C::Refresh>("Refresh", {}, "Shows the line at once."),
        }};
    return table;
}

Interface const& LineShape::Points::host_interface() const
{
    using L = LineWidget;
    static Interface const table{"Points",
                                 "The two points of a line.",
                                 {
                                     field<L, &L::X1>("X1", "First point."),
                                     field<L, &L::Y1>("Y1", "First point."),
                                     field<L, &L::X2>("X2", "Second point."),
                                     field<L, &L::Y2>("Y2", "Second point."),
                                 }};
    return table;
}

} // namespace zendara
