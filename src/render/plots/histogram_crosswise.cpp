#include "zendara/render/plots/histogram_plot.hpp"
#include "zendara/support/process_state.hpp"

#include <algorithm>
#include <utility>

namespace zendara
{

namespace
{

/// The value axis stands, bars grow from the left or the right edge. `breite` is the length of the value axis and
/// `hoehe` that of the count axis, once the run has exchanged them.
class CrosswiseHistogram : HistogramPlot
{
public:
    CrosswiseHistogram(panel& record, bool is_from_right, Surface& plot, Surface& axes, HistogramPlace const& place,
                       double stat_resol, std::int16_t show_disp)
        : HistogramPlot(record, plot, axes, place, stat_resol, show_disp), is_from_right_(is_from_right)
    {
    }

    void run();

private:
    void exchange_axes();
    void convert_for_paper();
    void find_edges();
    void count_bins();
    void draw_count_ticks();
    void draw_bars();
    void draw_control_limits();
    void draw_limit(double limit, std::string const& name);
    void draw_sigma_marks();
    double mark_x();
    void draw_bell_curve();
    void write_beside_axis(std::string const& text, std::string const& widest);
    void write_count_axis();
    void reduce_axes() override;

    double x(double length) const { return base_ + place_.left - (place_.hoehe - length) * direction_; }
    double y(double along) const { return place_.top + place_.breite - along; }

    bool const is_from_right_;
    double tick_ = 10;
    double base_ = 0; // with direction_: from which edge lengths are measured
    double direction_ = 0;
};

void CrosswiseHistogram::run()
{
    if (is_for_paper_)
        convert_for_paper();
    else
        exchange_axes();
    find_edges();
    fix_low();
    allocate_bins();
    double bin_width = 0;
    if (has_values_to_count()) {
        record_.GaussMax = 1;
        step([&] { bin_width = this->bin_width(); });
        count_all_values(CrosswiseBins{low_, record_.maximal, bin_width, last_bin_});
    }
    fix_curve_scale(bin_width);
    draw_count_ticks();
    if (has_bars()) {
        draw_bars();
        if (has_spread()) {
            draw_control_limits();
            draw_sigma_marks();
            draw_bell_curve();
        }
    }
    refresh_on_screen(plot_);
    plot_.DrawWidth = 1;
    write_count_axis();
}

void CrosswiseHistogram::exchange_axes()
{
    std::swap(place_.breite, place_.hoehe);
}

void CrosswiseHistogram::reduce_axes()
{
    exchange_axes();
    place_.breite /= repair_units;
    place_.hoehe /= repair_units;
}

void CrosswiseHistogram::convert_for_paper()
{
    bool const is_printer = plot_.is_printer();
    auto const twips_x = [&] { return plot_.TwipsPerPixelX(); };
    auto const twips_y = [&] { return plot_.TwipsPerPixelY(); };
    step([&] { place_.x0 = divide(place_.x0, twips_x()); });
    step([&] { place_.left = divide(place_.left, twips_x()); });
    step([&] { place_.y0 = divide(place_.y0, twips_y()); });
    step([&] { place_.top = divide(place_.top, twips_y()); });
    step([&] { place_.laenge = to_i16(divide(place_.laenge, is_printer ? twips_y() : twips_x())); });
    double const old_breite = place_.breite;
    step([&] { place_.breite = divide(place_.hoehe, twips_y()); });
    step([&] { place_.hoehe = divide(old_breite, is_printer ? twips_x() : twips_y()); });
    if (is_printer)
        tick_ = 40;
    plot_.FillColor = QBColor(2);
}

void CrosswiseHistogram::find_edges()
{
    base_ = is_from_right_ ? 0 : place_.hoehe;
    direction_ = is_from_right_ ? -1 : 1;
    plot_.DrawWidth = 1;
}

void CrosswiseHistogram::draw_count_ticks()
{
    if (record_.maxHauf <= 0)
        return;
    count_up_to(record_.maxHauf, [&](double i) {
        step([&] {
            double const tick_x = (is_for_paper_ ? place_.left : place_.x0) + i * place_.hoehe / record_.maxHauf;
            double const above = is_for_paper_ ? place_.top : place_.y0;
            draw_line(axes_, tick_x, tick_ + place_.breite + above, tick_x, place_.breite + above, QBColor(1));
        });
    });
}

void CrosswiseHistogram::draw_bars()
{
    count_up_to(last_bin_, [&](double i) {
        auto const bin = static_cast<std::int32_t>(i);
        if (counts_(bin) > 0)
            draw_bar([&] {
                return std::array{x(bar_length(bin)), y(divide((i - 1) * place_.breite, stat_resol_)), x(0),
                                  y(divide(i * place_.breite, stat_resol_))};
            });
    });
    refresh_on_screen(axes_);
    refresh_on_screen(plot_);
}

void CrosswiseHistogram::draw_control_limits()
{
    axes_.CurrentY = plot_.height + 30;
    axes_.ForeColor = 255;
    if (!is_for_paper_)
        use_font("MS Sans Serif");
    auto const limits = histogram_limits();
    if (!limits.HistLimitOn)
        return;
    axes_.ForeColor = 0xFF0000;
    draw_limit(limits.HistLCL, "LCL");
    draw_limit(limits.HistUCL, "UCL");
}

void CrosswiseHistogram::draw_limit(double limit, std::string const& name)
{
    step([&] { along_ = along(limit); });
    step([&] { draw_line(plot_, place_.left + place_.hoehe, y(along_), place_.left, y(along_), 0x800000); });
    write_beside_axis(name, name);
}

// Left of the axis, at the place of the latest mark or limit.
void CrosswiseHistogram::write_beside_axis(std::string const& text, std::string const& widest)
{
    if (is_for_paper_)
        write(
            text, [&] { return place_.left - 1.5 * text_width(widest); },
            [&] { return y(along_) - text_height(text) / 2; });
    else
        write(
            text, [] { return 0.0; }, [&] { return place_.breite - (along_ + place_.left) - text_height(text) / 2; });
}

void CrosswiseHistogram::draw_sigma_marks()
{
    use_pen_for_marks();
    for_each_sigma_mark([&](int sigma) {
        double const from = mark_x();
        step([&] {
            draw_line(plot_, from, y(along_), base_ + place_.left - (place_.hoehe + 5) * direction_, y(along_),
                      curve_color());
        });
        if (sigma == 0)
            use_font("Arial");
        write_beside_axis(sigma_label(sigma), sigma_label(0));
    });
}

// Where the mark meets the curve: whole dots inside the plot on a printer.
double CrosswiseHistogram::mark_x()
{
    double from = 0;
    step([&] { from = finite(x(share_ * place_.hoehe)); });
    if (!plot_.is_printer())
        return from;
    step([&] { from = to_i16(from); });
    step([&] { from = std::min<double>(from, to_i16(place_.left + place_.hoehe)); });
    step([&] { from = std::max<double>(from, to_i16(place_.left)); });
    return from;
}

void CrosswiseHistogram::draw_bell_curve()
{
    draw_curve([&](double i) { return divide(i * (record_.maximal - low_), place_.breite) + low_; },
               [&](double i, double from, double to) {
                   draw_line(plot_, x(from * place_.hoehe), y(i - 1), x(to * place_.hoehe), y(i), curve_color());
               });
}

void CrosswiseHistogram::write_count_axis()
{
    std::string const highest = count_text(record_.maxHauf);
    auto const beneath = [&] { return is_for_paper_ ? place_.top + place_.breite + 20 : plot_.height + 20; };
    // The wider "0.0" is measured on paper; "0" is written.
    write(
        "0", [&] { return is_for_paper_ ? place_.left - text_width("0.0") / 2 : plot_.left; }, beneath);
    write(
        highest,
        [&] {
            double const end = is_for_paper_ ? place_.left + place_.hoehe : plot_.left + plot_.width;
            return end - text_width(highest) / 2;
        },
        beneath);
}

} // namespace

void panel::Statistic_Quer(std::int16_t& RightD, Surface& Plot, Surface& histPic, double& x0, double& y0,
                           double& breite, double& hoehe, double stat_resol, std::int16_t& laenge, double& left,
                           double& top, std::int16_t& ShowDisp)
{
    CrosswiseHistogram(*this, RightD != 0, Plot, histPic, {x0, y0, breite, hoehe, laenge, left, top}, stat_resol,
                       ShowDisp)
        .run();
}

} // namespace zendara
