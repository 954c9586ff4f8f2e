#pragma once

#include "zendara/form/children.hpp"

namespace zendara
{

/// A straight line on its container, between two points in the container's unit, in ForeColor.
///
/// It has no place or size beyond its points. Plot routines take it as a LineWidget.
class LineShape : public Child
{
public:
    using Child::Child;

    double X1() const { return line_.X1; }
    double Y1() const { return line_.Y1; }
    double X2() const { return line_.X2; }
    double Y2() const { return line_.Y2; }
    void X1(double x) { place(x, Y1(), X2(), Y2()); }
    void Y1(double y) { place(X1(), y, X2(), Y2()); }
    void X2(double x) { place(X1(), Y1(), x, Y2()); }
    void Y2(double y) { place(X1(), Y1(), X2(), y); }
    void place(double x1, double y1, double x2, double y2);

    /// The points as plot routines write them; the container shows them with its next Refresh.
    LineWidget& line() { return line_; }
    operator LineWidget&() { return line_; }

    Object* inner() override { return &line_; }
    Interface const& host_interface() const override;
    void accept(ChildVisitor& visitor) override { visitor.visit(*this); }

private:
    /// The points alone, in the form that plot routines know.
    class Points final : public LineWidget
    {
    public:
        Interface const& host_interface() const override;
    };

    Points line_;
};

} // namespace zendara
