#pragma once

#include "zendara/controls/legend_column.hpp"
#include "zendara/controls/shared_members.hpp"
#include "zendara/print/print_panel.hpp"
#include "zendara/support/checked.hpp"

namespace zendara
{

/// The setting of a plot in three sigma colours.
struct SigmaBand {
    double range = default_range; // half width of the middle band in standard deviations

    static constexpr double default_range = 0.5;
};

/// The sigma signs behind the three rows of a sigma legend, in the face "Symbol".
class SigmaSigns
{
public:
    explicit SigmaSigns(LegendColumn& column);

    ChildArray<Label> lblSigma;

    /// Fills the legend of a panel's sigma band and sets the signs behind its texts.
    void fill_legend(panel const& record, SigmaBand const& sigma);

private:
    LegendColumn& column_;
};

/// The public members of a control that shows three sigma colours. It holds no state: `Self` owns a SigmaBand as
/// `sigma_`.
template <class Self> class SigmaMembers
{
public:
    /// Half width of the middle band in standard deviations; a negative value becomes 0.5. Takes effect with the next
    /// Plot.
    double SigmaRange() const { return static_cast<Self const&>(*this).sigma_.range; }
    void SigmaRange(double range)
    {
        static_cast<Self&>(*this).sigma_.range = range < 0 ? SigmaBand::default_range : range;
        static_cast<Self&>(*this).frame_.settings_changed("SigmaRange");
    }

    /// Colours above, inside and below the band. Take effect with the next Plot.
    Color IntervalColor0() const { return get(&panel::ColS1); }
    Color IntervalColor1() const { return get(&panel::ColS2); }
    Color IntervalColor2() const { return get(&panel::ColS3); }
    void IntervalColor0(Color color) { set(&panel::ColS1, color, "IntervalColor0"); }
    void IntervalColor1(Color color) { set(&panel::ColS2, color, "IntervalColor1"); }
    void IntervalColor2(Color color) { set(&panel::ColS3, color, "IntervalColor2"); }

protected:
    void print_legend(PrintPanel& paper, double left, double top, BooleanWord with_frame)
    {
        auto& self = static_cast<Self&>(*this);
        paper.DrawSigmaLegend(self.frame_.record, left, top, self.sigma_.range, with_frame);
    }

private:
    Color get(double panel::*band) const { return to_i32(static_cast<Self const&>(*this).frame_.record.*band); }

    void set(double panel::*band, Color color, std::string_view property)
    {
        set_panel_color(static_cast<Self&>(*this).frame_, band, color, property);
    }
};

template <class C> Member sigma_range_row()
{
    using S = SigmaMembers<C>;
    return property<S, double, &S::SigmaRange, &S::SigmaRange>(
        "SigmaRange", "Definition of the sigma range (multiples of the standard deviation).");
}

template <class C> std::vector<Member> sigma_color_rows()
{
    using S = SigmaMembers<C>;
    return {
        color_row<C, S, &S::IntervalColor0, &S::IntervalColor0>("IntervalColor0", "Colour above the sigma band."),
        color_row<C, S, &S::IntervalColor1, &S::IntervalColor1>("IntervalColor1", "Colour inside the sigma band."),
        color_row<C, S, &S::IntervalColor2, &S::IntervalColor2>("IntervalColor2", "Colour below the sigma band."),
    };
}

} // namespace zendara
