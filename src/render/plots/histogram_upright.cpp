#include "zendara/render/plots/histogram_plot.hpp"
#include "zendara/support/number_text.hpp"

#include <cmath>

namespace zendara
{

namespace
{

constexpr std::int16_t bars_stand = 1;
constexpr std::int16_t bars_hang = 2;

/// The value axis lies, bars stand on the lower edge or hang from the upper one.
class UprightHistogram : HistogramPlot
{
public:
    UprightHistogram(panel& record, std::int16_t plot_type, Surface& plot, Surface& axes, HistogramPlace const& place,
                     double stat_resol, std::int16_t show_disp)
        : HistogramPlot(record, plot, axes, place, stat_resol, show_disp), plot_type_(plot_type)
    {
    }

    void run();

private:
    void convert_for_paper();
    void find_edges();
    void count_bins();
    void draw_count_axis();
    void draw_bars();
    void draw_bin_ticks(double first_x, double second_x);
    void draw_sigma_marks();
    void draw_bell_curve();
    void write_value_axis();
    void write_inner_values(double axis_length);
    void write_value(double value, double offset);
    void draw_control_limits();
    void draw_limit(double limit, std::string const& name);
    void write_under_axis(std::string const& text);
    void reduce_axes() override { place_.hoehe /= repair_units; }

    void fix_bin_width();
    std::string value_text(double value) const { return FormatFixed(value, 0, decimals_, is_scientific_); }

    double x(double along) const { return place_.left + along; }
    double y(double length) const { return base_ + place_.top - (place_.hoehe - length) * direction_; }
    double tick_y(double i) const { return bottom_ - i * place_.hoehe / record_.maxHauf; }

    std::int16_t const plot_type_;
    std::int16_t bottom_ = 0; // of the plot, on the axes' surface
    std::int16_t tick_x_ = 0; // where ticks of the count axis begin
    double base_ = 0;         // with direction_: from which edge lengths are measured
    double direction_ = 0;
    double overhang_ = 0; // of sigma marks beyond the axis
    float bin_width_ = 0;
    std::int16_t decimals_ = 0;
    BooleanWord is_scientific_;
};

void UprightHistogram::run()
{
    convert_for_paper();
    find_edges();
    fix_low();
    allocate_bins();
    if (has_values_to_count())
        count_bins();
    fix_curve_scale(bin_width_);
    draw_count_axis();
    if (has_bars()) {
        draw_bars();
        if (has_spread()) {
            draw_sigma_marks();
            draw_bell_curve();
        }
    }
    write_value_axis();
    if (record_.vLcl != record_.vUcl)
        draw_control_limits();
}

void UprightHistogram::convert_for_paper()
{
    if (!is_for_paper_)
        return;
    auto const to_pixels_x = [&](double& length) { step([&] { length = divide(length, plot_.TwipsPerPixelX()); }); };
    auto const to_pixels_y = [&](double& length) { step([&] { length = divide(length, plot_.TwipsPerPixelY()); }); };
    to_pixels_x(place_.x0);
    to_pixels_x(place_.breite);
    to_pixels_x(place_.left);
    to_pixels_y(place_.y0);
    to_pixels_y(place_.hoehe);
    step([&] { place_.laenge = to_i16(divide(place_.laenge, plot_.TwipsPerPixelY())); });
    to_pixels_y(place_.top);
    plot_.FillColor = QBColor(2);
}

void UprightHistogram::find_edges()
{
    plot_.DrawWidth = 1;
    step([&] { bottom_ = to_i16(place_.hoehe + place_.y0); });
    step([&] { tick_x_ = to_i16(place_.x0 - place_.laenge); });
    if (plot_type_ == bars_stand) {
        direction_ = -1;
        overhang_ = 10;
    } else if (plot_type_ == bars_hang) {
        base_ = place_.hoehe;
        direction_ = 1;
    }
}

void UprightHistogram::fix_bin_width()
{
    step([&] { bin_width_ = to_f32(bin_width()); });
}

void UprightHistogram::count_bins()
{
    record_.GaussMax = 1;
    fix_bin_width();
    count_all_values(UprightBins{low_, record_.maximal, bin_width_, last_bin_});
}

void UprightHistogram::draw_count_axis()
{
    if (record_.maxHauf <= 0)
        return;
    std::string const highest = count_text(record_.maxHauf);
    count_up_to(record_.maxHauf, [&](double i) {
        step([&] { draw_line(axes_, tick_x_, tick_y(i), place_.x0, tick_y(i), QBColor(1)); });
        // Looks at where the first tick is and not at how far ticks are apart, so that nearly always all are labelled.
        bool is_labelled = true;
        step([&] {
            is_labelled = bottom_ - place_.hoehe / record_.maxHauf > text_height() / 2 || i == record_.maxHauf;
        });
        if (!is_labelled || (plot_type_ != bars_stand && plot_type_ != bars_hang))
            return;
        write(
            count_text(plot_type_ == bars_stand ? i : record_.maxHauf - i),
            [&] { return place_.x0 - 2 * text_width(highest); }, [&] { return tick_y(i) - text_height() / 2; });
    });
}

void UprightHistogram::draw_bars()
{
    double bar_width = 0;
    step([&] { bar_width = divide(place_.breite, stat_resol_); });
    auto const origin = [&]() -> double { return is_for_paper_ ? place_.left : place_.x0; };
    count_up_to(last_bin_, [&](double i) {
        auto const bin = static_cast<std::int32_t>(i);
        if (counts_(bin) > 0)
            draw_bar([&] { return std::array{x((i - 1) * bar_width), y(bar_length(bin)), x(i * bar_width), y(0)}; });
        draw_bin_ticks((i - 1) * bar_width + origin(), i * bar_width + origin());
    });
    draw_bin_ticks(std::floor(stat_resol_) * bar_width + origin(), origin() + place_.breite);
    refresh_on_screen(axes_);
    refresh_on_screen(plot_);
}

// On the screen the first tick begins at a height taken from the horizontal place of the plot, which then covers
// what lies above its lower edge.
void UprightHistogram::draw_bin_ticks(double first_x, double second_x)
{
    auto const tick = [&](double x, auto&& outer, auto&& inner) {
        step([&] { draw_line(axes_, x, outer(), x, inner(), QBColor(1)); });
    };
    if (is_for_paper_) {
        auto const outer = [&] { return place_.top + place_.hoehe + place_.laenge; };
        auto const inner = [&] { return place_.top + place_.hoehe; };
        tick(first_x, outer, inner);
        tick(second_x, outer, inner);
        return;
    }
    auto const inner = [&]() -> double { return bottom_; };
    tick(
        first_x, [&] { return place_.laenge + place_.x0; }, inner);
    tick(
        second_x, [&]() -> double { return bottom_ + place_.laenge + 2; }, inner);
}

void UprightHistogram::draw_sigma_marks()
{
    use_pen_for_marks();
    axes_.CurrentY = plot_.height + 30;
    axes_.ForeColor = 255;
    for_each_sigma_mark([&](int sigma) {
        step([&] {
            draw_line(plot_, x(along_), y(share_ * place_.hoehe), x(along_),
                      base_ + place_.top - (overhang_ + place_.hoehe) * direction_, curve_color());
        });
        if (sigma == 0)
            use_font("Arial");
        write_under_axis(sigma_label(sigma));
    });
}

// In the second line under the axis, at the place of the latest mark or limit.
void UprightHistogram::write_under_axis(std::string const& text)
{
    write(
        text, [&] { return along_ + (is_for_paper_ ? place_.left : plot_.left) - text_width(text) / 2; },
        [&] { return is_for_paper_ ? place_.top + place_.hoehe + 2 * text_height() : plot_.height + 30; });
}

void UprightHistogram::draw_bell_curve()
{
    draw_curve([&](double i) { return divide(record_.maximal - low_, place_.breite) * i + low_; },
               [&](double i, double from, double to) {
                   draw_line(plot_, i + place_.left - 1, y(from * place_.hoehe), i + place_.left, y(to * place_.hoehe),
                             curve_color());
               });
    refresh_on_screen(plot_);
    plot_.DrawWidth = 1;
}

void UprightHistogram::write_value_axis()
{
    // On paper the first label comes before the decimals are known.
    if (is_for_paper_)
        write_value(low_, 0);
    bool const is_narrow = is_for_paper_ && place_.breite < 2500;
    step([&] { decimals_ = DecimalDigits(low_, is_narrow ? 4 : 6, is_scientific_); });
    if (is_scientific_)
        decimals_ = is_narrow ? 2 : 3;
    if (!is_for_paper_)
        write_value(low_, 0);
    fix_bin_width();
    double const axis_length = is_for_paper_ ? place_.breite : plot_.width;
    write_inner_values(axis_length);
    write_value(record_.maximal, axis_length);
}

// Only where the bins are wider than a sample text, made with whatever the counter holds by now.
void UprightHistogram::write_inner_values(double axis_length)
{
    auto const bin_end = [&](double i) { return bin_width_ * i + low_; };
    std::int16_t pitch = 0;
    bool is_wide_enough = true;
    step([&] { pitch = to_i16(divide(axis_length, stat_resol_)); });
    step([&] { is_wide_enough = pitch > text_width(value_text(bin_end(static_cast<double>(counter_)))); });
    if (!is_wide_enough)
        return;
    count_up_to(stat_resol_ - 1, [&](double i) { write_value(bin_end(i), i * pitch); });
}

void UprightHistogram::write_value(double value, double offset)
{
    std::string const text = value_text(value);
    write(
        text, [&] { return offset + (is_for_paper_ ? place_.left : plot_.left) - text_width(text) / 2; },
        [&] { return is_for_paper_ ? place_.top + place_.hoehe + 20 : plot_.height + 20; });
}

void UprightHistogram::draw_control_limits()
{
    axes_.ForeColor = 0xC00000;
    plot_.DrawWidth = wide_pen();
    draw_limit(record_.vLcl, "LCL");
    draw_limit(record_.vUcl, "UCL");
    refresh_on_screen(plot_);
    plot_.DrawWidth = 1;
}

void UprightHistogram::draw_limit(double limit, std::string const& name)
{
    step([&] { along_ = along(limit); });
    // Down to the height alone and not to `top` below it: on paper the line stops short.
    step([&] { draw_line(plot_, x(along_), place_.top, x(along_), place_.hoehe, QBColor(1)); });
    write_under_axis(name);
}

} // namespace

void panel::Statistic(std::int16_t& PlotType, Surface& Plot, Surface& histPic, double& x0, double& y0, double& breite,
                      double& hoehe, double stat_resol, std::int16_t& laenge, double& left, double& top,
                      std::int16_t& ShowDisp)
{
    if (PlotType == 3 || PlotType == 4) {
        std::int16_t from_right = PlotType == 3 ? 0 : -1;
        Statistic_Quer(from_right, Plot, histPic, x0, y0, breite, hoehe, stat_resol, laenge, left, top, ShowDisp);
        return;
    }
    UprightHistogram(*this, PlotType, Plot, histPic, {x0, y0, breite, hoehe, laenge, left, top}, stat_resol, ShowDisp)
        .run();
}

} // namespace zendara
