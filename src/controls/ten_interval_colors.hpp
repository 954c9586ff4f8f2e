#pragma once

#include "zendara/controls/control.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace zendara
{

struct Member;

/// The ten interval colours as public members of a control, from the highest interval to the lowest. They take effect
/// with the next Plot. What the panel holds beyond the colours reads as the nearest of them.
class TenIntervalColors
{
public:
    explicit TenIntervalColors(Control& control) : control_(control) {}

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

private:
    Color get(double panel::*interval) const { return control_.panel_color(interval); }
    void set(double panel::*interval, Color color, std::string_view property)
    {
        control_.set_panel_color(interval, color, property);
    }

    Control& control_;
};

/// IntervalColor1 to IntervalColor9, then IntervalColor0, as the interface orders them.
/// @param prefix          of the keys in the store
/// @param prefix_on_read  of those that are read
std::vector<Member> interval_color_rows(std::string const& prefix, std::string const& prefix_on_read);

} // namespace zendara
