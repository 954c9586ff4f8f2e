#pragma once

#include "zendara/panel/panel.hpp"
#include "zendara/render/surface/surface.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/trap.hpp"

#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zendara
{

/// What bins answer for a value that no bin takes.
constexpr std::int32_t no_bin = std::numeric_limits<std::int32_t>::min();

/// Bins of the upright form: values beyond the scale go to the first and the last one.
struct UprightBins {
    double low = 0; // lower end of the first bin
    double maximal = 0;
    float width = 0;
    std::int32_t last = 0;

    /// The bin of a value, from 1 on. The single precision of `width` may put a value just under `maximal` one behind
    /// the last.
    /// @throws Failure  DivisionByZero or Overflow for bins without width
    std::int32_t operator()(double value) const
    {
        if (value <= low)
            return 1;
        if (value >= maximal)
            return last;
        return to_i32(to_f32(round_half_even(divide(value - low, width) + 0.5)));
    }
};

/// Bins of the crosswise form: values beyond the scale are left out.
struct CrosswiseBins {
    double low = 0;
    double maximal = 0;
    double width = 0;
    std::int32_t last = 0;

    std::int32_t operator()(double value) const
    {
        if (value == low)
            return 1;
        if (value == maximal)
            return last;
        if (value < low || value > maximal)
            return no_bin;
        return to_i16(divide(value - low, width) + 0.5);
    }
};

/// Counts values into bins. A value that fails is left out, after on_failure has run.
template <class Bins, class OnFailure>
void count_values(TrapPlace const& place, std::span<double const> values, Bins const& bins,
                  HostArray<std::int16_t>& counts, OnFailure&& on_failure)
{
    for (double const value : values)
        trap(
            place,
            [&] {
                std::int32_t const bin = bins(value);
                if (bin != no_bin)
                    count_on(counts(bin));
            },
            on_failure);
}

/// The caller's numbers, in surface units. They come back converted and, after failures, reduced.
struct HistogramPlace {
    double& x0; // of the plot on the picture with the axes
    double& y0;
    double& breite;
    double& hoehe;
    std::int16_t& laenge; // of a tick
    double& left;         // of the plot on its own surface
    double& top;
};

/// One run of a histogram: bars, bell curve, sigma marks and control limits on one surface, axes and texts on another
/// or the same one. Here is what the upright and the crosswise form share.
///
/// A run never fails outward: after a failed statement the coordinates are reduced to those of a printer of 300 dots
/// per inch, each time anew, and the run goes on at the next statement.
class HistogramPlot
{
protected:
    HistogramPlot(panel& record, Surface& plot, Surface& axes, HistogramPlace const& place, double stat_resol,
                  std::int16_t show_disp)
        : record_(record), plot_(plot), axes_(axes), place_(place), stat_resol_(stat_resol),
          is_for_paper_(show_disp == 1)
    {
    }
    ~HistogramPlot() = default;

    TrapPlace place_of(char const* step) const { return {record_.container, record_, "Statistic", step}; }

    template <class Statement> void step(Statement&& statement)
    {
        trap(place_of(""), std::forward<Statement>(statement), [this] { reduce_scale(); });
    }
    /// Runs a body with i from 1 up to the rounded `end`, and leaves the counter one behind it.
    template <class Body> void count_up_to(double end, Body&& body)
    {
        std::int32_t last = 0;
        step([&] { last = to_i32(end); });
        for (counter_ = 1; counter_ <= last; ++counter_)
            body(static_cast<double>(counter_));
    }

    void fix_low();
    void allocate_bins();
    double bin_width() const { return divide(record_.maximal - low_, stat_resol_); }
    /// Counts all values and finds the highest bin.
    template <class Bins> void count_all_values(Bins const& bins)
    {
        auto const reduce = [this] { reduce_scale(); };
        TrapPlace const place = place_of("count of a bin");
        count_values(place, record_.grid_z_.values(), bins, counts_, reduce);
        count_values(place, values_beyond_record(), bins, counts_, reduce);
        find_highest_bin();
    }
    /// Finds the factor between density and count, for bins of that width; a curve above the bars raises the scale.
    void fix_curve_scale(double bin_width);

    bool has_values_to_count() const { return record_.nop_ > 3; }
    bool has_bars() const { return has_values_to_count() && record_.maxHauf >= 1; }
    bool has_spread() const { return record_.StdDev != 0; }

    /// Runs a body for each mark from -3 to 3 standard deviations that lies inside the value axis: its label, its
    /// place along the axis, its density as a share of the count axis. Texts are in "Symbol", that of the mean in
    /// "Arial".
    template <class Body> void for_each_sigma_mark(Body&& body)
    {
        use_font("Symbol");
        step([&] { axes_.ForeColor = curve_color(); });
        for (int sigma = -3; sigma <= 3; ++sigma) {
            double const value = sigma * record_.StdDev + record_.mean;
            step([&] { along_ = along(value); });
            if (along_ > 0 && along_ < place_.breite) {
                step([&] { share_ = curve_share(value); });
                body(sigma);
            }
            use_font("Symbol");
        }
    }

    /// Draws the bell curve piece by piece, one for each unit of the value axis. Where it rises above the full scale
    /// it is left out.
    /// @param value_at    the value at the end of piece i
    /// @param draw_piece  draws piece i between two shares of the count axis
    template <class ValueAt, class DrawPiece> void draw_curve(ValueAt&& value_at, DrawPiece&& draw_piece)
    {
        begin_curve();
        double previous = 0;
        step([&] { previous = curve_share(low_); });
        double value = 0;
        double share = 0;
        count_up_to(place_.breite, [&](double i) {
            step([&] { value = finite(value_at(i)); });
            step([&] { share = curve_share(value); });
            if (share > 1 || previous > 1)
                return;
            step([&] { draw_piece(i, previous, share); });
            previous = share;
        });
    }

    /// Place of a value along the value axis.
    double along(double value) const { return divide((value - low_) * place_.breite, record_.maximal - low_); }
    /// Height of the curve at a value, as a share of the count axis.
    double curve_share(double value) const
    {
        return finite(divide(record_.GaussMax, record_.maxHauf) * record_.Gauss(value));
    }
    /// Length of a bar.
    double bar_length(std::int32_t bin) const { return divide(place_.hoehe, record_.maxHauf) * counts_(bin); }

    Color bar_color() const { return to_i32(record_.ColS2); }
    Color curve_color() const { return to_i32(record_.ColS1); }

    /// A filled bar with a black frame.
    template <class Corners> void draw_bar(Corners&& corners)
    {
        step([&] {
            auto const [x1, y1, x2, y2] = corners();
            plot_.FillBox(finite(x1), finite(y1), finite(x2), finite(y2), bar_color());
        });
        step([&] {
            auto const [x1, y1, x2, y2] = corners();
            plot_.Box(finite(x1), finite(y1), finite(x2), finite(y2), QBColor(0));
        });
    }
    static void draw_line(Surface& surface, double x1, double y1, double x2, double y2, Color color)
    {
        surface.Line(finite(x1), finite(y1), finite(x2), finite(y2), color);
    }
    /// Writes a text on the axes' surface.
    template <class X, class Y> void write(std::string const& text, X&& x, Y&& y)
    {
        step([&] { axes_.CurrentX = finite(x()); });
        step([&] { axes_.CurrentY = finite(y()); });
        step([&] { axes_.Print(text); });
    }
    double text_width(std::string_view text) const { return axes_.TextWidth(text); }
    double text_height(std::string_view text = "0") const { return axes_.TextHeight(text); }

    void use_font(char const* name);
    void use_pen_for_marks() { plot_.DrawWidth = 2; }
    /// The wider pen of limits and curve: four pixels on a printer.
    std::int16_t wide_pen() const { return plot_.is_printer() ? 4 : 2; }
    void refresh_on_screen(Surface& surface)
    {
        if (!is_for_paper_)
            step([&] { surface.Refresh(); });
    }
    /// Divides the coordinates that both forms reduce alike, after a failure.
    void reduce_scale();
    virtual void reduce_axes() = 0;

    static constexpr double repair_units = 4.8; // twips in a dot of a printer of 300 dots per inch
    static std::string count_text(double count);
    static std::string const& sigma_label(int sigma);

    panel& record_;
    Surface& plot_;
    Surface& axes_;
    HistogramPlace const place_;
    double const stat_resol_;
    bool const is_for_paper_;

    double low_ = 0; // lower end of the value axis
    std::int16_t last_bin_ = 0;
    HostArray<std::int16_t> counts_;
    std::int64_t counter_ = 0; // of the latest loop, and behind it what the loop left
    double along_ = 0;         // of the latest mark or limit
    double share_ = 0;         // of the latest mark

private:
    std::vector<double> values_beyond_record() const;
    void find_highest_bin();
    void begin_curve();
};

} // namespace zendara
