#include "zendara/controls/sigma_settings.hpp"

#include "zendara/controls/control_rows.hpp"

namespace zendara
{

namespace
{

constexpr int bands = 3;
constexpr double gap_twips = 45;

// The bands stand in every other row of the legend.
int row_of(int band)
{
    return 2 * band - 1;
}

} // namespace

SigmaSettings::SigmaSettings(PlotControl& control)
    : lblSigma(control.legend_column().legende, "lblSigma", 1, bands), control_(control)
{
    for (int band = 1; band <= bands; ++band) {
        lblSigma(band).Font({"Symbol", 8});
        lblSigma(band).caption("s");
        lblSigma(band).AutoSize(true);
    }
}

void SigmaSettings::SigmaRange(double range)
{
    sigma_range_ = range < 0 ? default_range : range;
    control_.settings_changed("SigmaRange");
}

void SigmaSettings::fill_sigma_legend()
{
    LegendColumn& column = control_.legend_column();
    control_.record().scale_sigma(column.scalCol, column.ScaleValue, sigma_range_);
    for (int band = 1; band <= bands; ++band) {
        Label const& text = column.ScaleValue(row_of(band));
        Label& sign = lblSigma(band);
        sign.Move(text.Left() + text.Width() + gap_twips, text.Top(), sign.Width(), sign.Height());
    }
}

Member sigma_range_row(int place, std::string const& suffix)
{
    using S = SigmaSettings;
    return property<S, double, &S::SigmaRange, &S::SigmaRange>(
               "SigmaRange", "Definition of the sigma range (multiples of the standard deviation).")
        .saved(place, "StdSigRange" + suffix, 0.5);
}

std::vector<Member> sigma_color_rows(std::string const& prefix)
{
    using S = SigmaSettings;
    return {
        color_property<S, &S::IntervalColor0, &S::IntervalColor0>("IntervalColor0", "Colour above the sigma band.")
            .saved(store_place::colors, prefix + "InterCol0", long_integer(QBColor(4))),
        color_property<S, &S::IntervalColor1, &S::IntervalColor1>("IntervalColor1", "Colour inside the sigma band.")
            .saved(store_place::colors + 1, prefix + "InterCol1", long_integer(QBColor(2))),
        color_property<S, &S::IntervalColor2, &S::IntervalColor2>("IntervalColor2", "Colour below the sigma band.")
            .saved(store_place::colors + 2, prefix + "InterCol2", long_integer(QBColor(1))),
    };
}

} // namespace zendara
