#include "zendara/render/plots/histogram_plot.hpp"

#include "zendara/render/surface/drawing_state.hpp"
#include "zendara/support/container.hpp"
#include "zendara/support/number_text.hpp"

#include <algorithm>

namespace zendara
{

namespace
{

void reset_as_new(Surface& printer)
{
    reset_font(printer);
    reset_pen_and_fill(printer);
}

} // namespace

void HistogramPlot::reduce_scale()
{
    place_.x0 /= repair_units;
    place_.y0 /= repair_units;
    place_.left /= repair_units;
    place_.top /= repair_units;
    place_.laenge = to_i16(place_.laenge / repair_units);
    reduce_axes();
}

// A little under a lone value, so that the axis is never empty.
void HistogramPlot::fix_low()
{
    double const minimal = record_.minimal;
    if (record_.maximal != minimal)
        low_ = minimal;
    else
        step([&] { low_ = finite((minimal < 0 ? 1.1 : 0.9) * minimal - 0.001); });
}

void HistogramPlot::allocate_bins()
{
    step([&] { last_bin_ = to_i16(stat_resol_); });
    step([&] { counts_.redim(1, last_bin_); });
}

// Sites that a 16-bit number cannot reach count as 0. Not all of them need a visit: one bin takes them all, and when
// its count has overflowed a thousand times every coordinate is reduced to nothing.
std::vector<double> HistogramPlot::values_beyond_record() const
{
    constexpr double most = 32767 + 1000;
    double const missing = round_half_even(record_.nop_) - static_cast<double>(record_.grid_z_.values().size());
    return std::vector<double>(static_cast<std::size_t>(std::clamp(missing, 0.0, most)));
}

void HistogramPlot::find_highest_bin()
{
    record_.maxHauf = 0;
    for (std::int16_t const count : counts_.values())
        if (count > record_.maxHauf)
            record_.maxHauf = count;
    counter_ = static_cast<std::int64_t>(counts_.values().size()) + 1;
}

void HistogramPlot::fix_curve_scale(double bin_width)
{
    if (!has_spread())
        return;
    // The expected count of the bin around the mean: a sum of eleven stripes over half a bin, to both sides.
    constexpr int stripes = 10;
    double stripe = 0; // in standard deviations
    record_.GaussMax = 0;
    step([&] { stripe = divide(bin_width, record_.StdDev) / 2 / stripes; });
    for (counter_ = 0; counter_ <= stripes; ++counter_)
        step([&] {
            record_.GaussMax = finite(record_.GaussMax + panel::GaussNorm(static_cast<double>(counter_) * stripe));
        });
    step([&] { record_.GaussMax = finite(2 * record_.GaussMax * stripe * record_.nop_); });
    if (record_.maxHauf < record_.GaussMax)
        step([&] { record_.maxHauf = to_i16(record_.GaussMax); });
    record_.GaussMax /= 0.4; // about the density's peak
}

void HistogramPlot::begin_curve()
{
    axes_.ForeColor = 0xFF0000;
    plot_.DrawWidth = wide_pen();
    if (plot_.is_printer())
        use_font("Arial");
    else if (Surface* const printer = record_.container == nullptr ? nullptr : record_.container->default_printer())
        reset_as_new(*printer);
}

void HistogramPlot::use_font(char const* name)
{
    axes_.Font = {name, 8};
}

std::string HistogramPlot::count_text(double count)
{
    return FormatFixed(count, 0, 0, false);
}

std::string const& HistogramPlot::sigma_label(int sigma)
{
    static std::array<std::string, 7> const labels = {"-3s", "-2s", "-1s", "Mean", "1s", "2s", "3s"};
    return labels[static_cast<std::size_t>(sigma + 3)];
}

} // namespace zendara
