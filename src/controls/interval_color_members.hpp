#pragma once

#include "zendara/controls/shared_members.hpp"
#include "zendara/print/print_panel.hpp"
#include "zendara/support/checked.hpp"

namespace zendara
{

/// The ten interval colours as public members, from the highest interval to the lowest. It holds no state.
template <class Self> class IntervalColorMembers
{
public:
    /// Colour of an interval; IntervalColor0 is the top one. Takes effect with the next Plot.
    Color IntervalColor0() const { return get(&panel::col1); }
    Color IntervalColor1() const { return get(&panel::col2); }
    Color IntervalColor2() const { return get(&panel::col3); }
    Color IntervalColor3() const { return get(&panel::col4); }
    Color IntervalColor4() const { return get(&panel::col5); }
    Color IntervalColor5() const { return get(&panel::col6); }
    Color IntervalColor6() const { return get(&panel::col7); }
    Color IntervalColor7() const { return get(&panel::col8); }
    Color IntervalColor8() const { return get(&panel::col9); }
    Color IntervalColor9() const { return get(&panel::col10); }
    void IntervalColor0(Color color) { set(&panel::col1, color, "IntervalColor0"); }
    void IntervalColor1(Color color) { set(&panel::col2, color, "IntervalColor1"); }
    void IntervalColor2(Color color) { set(&panel::col3, color, "IntervalColor2"); }
    void IntervalColor3(Color color) { set(&panel::col4, color, "IntervalColor3"); }
    void IntervalColor4(Color color) { set(&panel::col5, color, "IntervalColor4"); }
    void IntervalColor5(Color color) { set(&panel::col6, color, "IntervalColor5"); }
    void IntervalColor6(Color color) { set(&panel::col7, color, "IntervalColor6"); }
    void IntervalColor7(Color color) { set(&panel::col8, color, "IntervalColor7"); }
    void IntervalColor8(Color color) { set(&panel::col9, color, "IntervalColor8"); }
    void IntervalColor9(Color color) { set(&panel::col10, color, "IntervalColor9"); }

protected:
    void print_legend(PrintPanel& paper, double left, double top, BooleanWord with_frame)
    {
        paper.DrawColoredLegend(frame().record, left, top, with_frame);
    }

private:
    ControlFrame& frame() { return static_cast<Self&>(*this).frame_; }

    Color get(double panel::*interval) const { return to_i32(static_cast<Self const&>(*this).frame_.record.*interval); }

    void set(double panel::*interval, Color color, std::string_view property)
    {
        set_panel_color(frame(), interval, color, property);
    }
};

/// IntervalColor1 to IntervalColor9, then IntervalColor0, as the interface orders them.
template <class C> std::vector<Member> interval_color_rows()
{
    using I = IntervalColorMembers<C>;
    constexpr auto help = "Colour of an interval.";
    return {
        color_row<C, I, &I::IntervalColor1, &I::IntervalColor1>("IntervalColor1", help),
        color_row<C, I, &I::IntervalColor2, &I::IntervalColor2>("IntervalColor2", help),
        color_row<C, I, &I::IntervalColor3, &I::IntervalColor3>("IntervalColor3", help),
        color_row<C, I, &I::IntervalColor4, &I::IntervalColor4>("IntervalColor4", help),
        color_row<C, I, &I::IntervalColor5, &I::IntervalColor5>("IntervalColor5", help),
        color_row<C, I, &I::IntervalColor6, &I::IntervalColor6>("IntervalColor6", help),
        color_row<C, I, &I::IntervalColor7, &I::IntervalColor7>("IntervalColor7", help),
        color_row<C, I, &I::IntervalColor8, &I::IntervalColor8>("IntervalColor8", help),
        color_row<C, I, &I::IntervalColor9, &I::IntervalColor9>("IntervalColor9", help),
        color_row<C, I, &I::IntervalColor0, &I::IntervalColor0>("IntervalColor0", help),
    };
}

} // namespace zendara
