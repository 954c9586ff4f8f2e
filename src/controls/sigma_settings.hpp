#pragma once

#include "zendara/controls/plot_control.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace zendara
{

struct Member;

/// The band around the mean and its three colours as public members of a control, with the legend that explains them.
class SigmaSettings
{
public:
    explicit SigmaSettings(PlotControl& control);

    /// The sigma signs behind the three rows of the legend, in the face "Symbol".
    ChildArray<Label> lblSigma;

    /// Half width of the middle band in standard deviations; a negative value becomes 0.5. Takes effect with the next
    /// Plot.
    double SigmaRange() const { return sigma_range_; }
    void SigmaRange(double range);

    /// Colours above, inside and below the band. Take effect with the next Plot.
    Color IntervalColor0() const { return control_.panel_color(&panel::ColS1); }
    Color IntervalColor1() const { return control_.panel_color(&panel::ColS2); }
    Color IntervalColor2() const { return control_.panel_color(&panel::ColS3); }
    void IntervalColor0(Color color) { control_.set_panel_color(&panel::ColS1, color, "IntervalColor0"); }
    void IntervalColor1(Color color) { control_.set_panel_color(&panel::ColS2, color, "IntervalColor1"); }
    void IntervalColor2(Color color) { control_.set_panel_color(&panel::ColS3, color, "IntervalColor2"); }

protected:
    void start_sigma() { sigma_range_ = default_range; }
    /// Fills the legend of the band and sets the signs behind its texts.
    void fill_sigma_legend();

    double sigma_range_ = default_range;

private:
    static constexpr double default_range = 0.5;

    PlotControl& control_;
};

/// @param place   in the order of reading
/// @param suffix  of the key in the store
Member sigma_range_row(int place, std::string const& suffix);
/// @param prefix  of the keys in the store
std::vector<Member> sigma_color_rows(std::string const& prefix);

} // namespace zendara
