#pragma once

#include "render/plots/histogram_drawing.hpp"
#include "zendara/support/process_state.hpp"

namespace zendara::test
{

/// The whole picture of a histogram worked out anew, call by call, for runs in which nothing fails. It knows the fixed
/// text extents of the recorder and nothing of the routine.
class ExpectedHistogram
{
public:
    ExpectedHistogram(panel const& record, std::vector<double> values, HistogramCall const& call, Recorder const& plot,
                      Recorder const& axes)
        : p_(record), values_(std::move(values)), call_(call), is_paper_(call.show_disp == 1),
          is_printer_(plot.is_printer()), tpp_x_(plot.TwipsPerPixelX()), tpp_y_(plot.TwipsPerPixelY()),
          plot_left_(plot.left), plot_width_(plot.width), plot_height_(plot.height), font_(axes.Font),
          fore_color_(axes.ForeColor), fill_color_(plot.FillColor)
    {
        low_ = p_.minimal;
        if (p_.minimal == p_.maximal)
            low_ = p_.minimal < 0 ? 1.1 * p_.minimal - 0.001 : 0.9 * p_.minimal - 0.001;
        if (call.plot_type <= 2)
            upright();
        else
            crosswise();
    }

    /// On paper everything stands in `axes`.
    std::vector<TraceRecord> plot, axes;
    int full_scale = 0;
    double curve_factor = 1;

private:
    double text_width(std::string const& text) const { return 100.0 * static_cast<double>(text.size()) / tpp_x_; }
    double text_height() const { return 200 / tpp_y_; }
    static std::string whole(double value) { return std::to_string(static_cast<long>(value)); }
    static double density(double z) { return std::exp(-z * z / 2) / std::sqrt(2 * std::acos(-1.0)); }
    double curve(double value) const { return curve_factor / full_scale * density((value - p_.mean) / p_.StdDev); }

    std::vector<TraceRecord>& on_plot() { return is_paper_ ? axes : plot; }
    void line(std::vector<TraceRecord>& on, double x1, double y1, double x2, double y2, std::int32_t color, int pen)
    {
        on.push_back({"Line", {x1, y1, x2, y2, color, pen, std::int32_t{0}}});
    }
    void bar(double x1, double y1, double x2, double y2)
    {
        on_plot().push_back({"FillBox", {x1, y1, x2, y2, static_cast<std::int32_t>(p_.ColS2)}});
        on_plot().push_back(
            {"Box", {x1, y1, x2, y2, QBColor(0), std::int32_t{1}, std::int32_t{0}, std::int32_t{1}, fill_color_}});
    }
    void text(std::string const& text, double x, double y)
    {
        axes.push_back({"Text", {text, x, y, fore_color_, font_.Name, font_.size}});
    }
    void refresh(std::vector<TraceRecord>& on)
    {
        if (!is_paper_)
            on.push_back({"Refresh", {}});
    }

    std::vector<int> count(double width, bool takes_outer_values) const
    {
        auto const bins = static_cast<int>(std::nearbyint(call_.stat_resol));
        std::vector<int> counts(static_cast<std::size_t>(bins) + 1);
        for (double const v : values_) {
            int bin = 0;
            if (v == low_ || (takes_outer_values && v < low_))
                bin = 1;
            else if (v == p_.maximal || (takes_outer_values && v > p_.maximal))
                bin = bins;
            else if (v > low_ && v < p_.maximal)
                bin = static_cast<int>(std::nearbyint((v - low_) / width + 0.5));
            else
                continue;
            ++counts.at(static_cast<std::size_t>(bin));
        }
        return counts;
    }

    void find_scale(std::vector<int> const& counts, double width)
    {
        full_scale = *std::max_element(counts.begin(), counts.end());
        curve_factor = 1;
        if (p_.StdDev == 0)
            return;
        double const dz = width / p_.StdDev / 20;
        double sum = 0;
        for (int k = 0; k <= 10; ++k)
            sum += density(k * dz);
        double const centre = 2 * sum * dz * static_cast<double>(values_.size());
        if (full_scale < centre)
            full_scale = static_cast<int>(std::nearbyint(centre));
        curve_factor = centre / 0.4;
    }

    static std::string sigma_text(int i) { return i == 0 ? "Mean" : std::to_string(i) + "s"; }

    void upright()
    {
        double const scale_x = is_paper_ ? tpp_x_ : 1;
        double const scale_y = is_paper_ ? tpp_y_ : 1;
        double const x0 = call_.x0 / scale_x, w = call_.breite / scale_x, left = call_.left / scale_x;
        double const y0 = call_.y0 / scale_y, h = call_.hoehe / scale_y, top = call_.top / scale_y;
        double const tick = std::nearbyint(call_.laenge / scale_y);
        if (is_paper_)
            fill_color_ = QBColor(2);
        bool const stands = call_.plot_type == 1;
        double const bottom = std::nearbyint(h + y0);
        // Where a share of the full scale lies.
        auto const level = [&](double share) { return stands ? top + h - share * h : top + share * h; };
        float const bin_width = static_cast<float>((p_.maximal - low_) / call_.stat_resol);
        auto const counts = count(bin_width, true);
        find_scale(counts, bin_width);

        for (int i = 1; i <= full_scale; ++i) {
            double const y = bottom - i * h / full_scale;
            line(axes, std::nearbyint(x0 - tick), y, x0, y, QBColor(1), 1);
            text(whole(stands ? i : full_scale - i), x0 - 2 * text_width(whole(full_scale)), y - text_height() / 2);
        }
        double const bw = w / call_.stat_resol;
        auto const bins = static_cast<int>(counts.size()) - 1;
        auto const bin_ticks = [&](double x1, double x2) {
            if (is_paper_) {
                line(axes, left + x1, top + h + tick, left + x1, top + h, QBColor(1), 1);
                line(axes, left + x2, top + h + tick, left + x2, top + h, QBColor(1), 1);
            } else {
                line(axes, x0 + x1, tick + x0, x0 + x1, bottom, QBColor(1), 1);
                line(axes, x0 + x2, bottom + tick + 2, x0 + x2, bottom, QBColor(1), 1);
            }
        };
        for (int i = 1; i <= bins; ++i) {
            if (int const n = counts[static_cast<std::size_t>(i)]; n > 0)
                bar(left + (i - 1) * bw, level(double{1} * n / full_scale), left + i * bw, level(0));
            bin_ticks((i - 1) * bw, i * bw);
        }
        bin_ticks(std::floor(call_.stat_resol) * bw, w);
        refresh(axes);
        refresh(on_plot());
        auto const place = [&](double v) { return (v - low_) / (p_.maximal - low_) * w; };
        double const second_line = is_paper_ ? top + h + 2 * text_height() : plot_height_ + 30;
        double const text_origin = is_paper_ ? left : plot_left_;
        if (p_.StdDev != 0) {
            fore_color_ = static_cast<std::int32_t>(p_.ColS1);
            for (int i = -3; i <= 3; ++i) {
                double const v = p_.mean + i * p_.StdDev;
                double const x = place(v);
                if (x <= 0 || x >= w)
                    continue;
                double const foot = stands ? top + h + 10 : top;
                line(on_plot(), left + x, level(curve(v)), left + x, foot, fore_color_, 2);
                font_ = {i == 0 ? "Arial" : "Symbol", 8};
                text(sigma_text(i), text_origin + x - text_width(sigma_text(i)) / 2, second_line);
            }
            end_of_marks();
            double before = curve(low_);
            for (int i = 1; i <= std::nearbyint(w); ++i) {
                double const now = curve(low_ + (p_.maximal - low_) * i / w);
                if (now > 1 || before > 1)
                    continue;
                line(on_plot(), left + i - 1, level(before), left + i, level(now), static_cast<std::int32_t>(p_.ColS1),
                     is_printer_ ? 4 : 2);
                before = now;
            }
            refresh(on_plot());
        }
        value_labels(left, top + h, w, bin_width, bins, p_.StdDev != 0 ? std::nearbyint(w) + 1 : bins + 1);
        if (p_.vLcl == p_.vUcl)
            return;
        fore_color_ = 0xC00000;
        for (auto const& [limit, name] : {std::pair{p_.vLcl, "LCL"}, std::pair{p_.vUcl, "UCL"}}) {
            double const x = place(limit);
            line(on_plot(), left + x, top, left + x, h, QBColor(1), is_printer_ ? 4 : 2);
            text(name, text_origin + x - text_width(name) / 2, second_line);
        }
        refresh(on_plot());
    }

    void end_of_marks()
    {
        font_ = {is_printer_ ? "Arial" : "Symbol", 8};
        fore_color_ = 0xFF0000;
    }

    void value_labels(double left, double bottom, double w, double bin_width, int bins, double counter)
    {
        BooleanWord is_scientific;
        std::int16_t const field = is_paper_ && w < 2500 ? 4 : 6;
        std::int16_t decimals = DecimalDigits(low_, field, is_scientific);
        if (is_scientific)
            decimals = field == 4 ? 2 : 3;
        double const origin = is_paper_ ? left : plot_left_;
        double const y = is_paper_ ? bottom + 20 : plot_height_ + 20;
        double const length = is_paper_ ? w : plot_width_;
        auto const label = [&](std::string const& shown, double x) {
            text(shown, origin + x - text_width(shown) / 2, y);
        };
        auto const shown = [&](double v) { return FormatFixed(v, 0, decimals, is_scientific); };
        label(is_paper_ ? FormatFixed(low_, 0, 0, false) : shown(low_), 0);
        double const pitch = std::nearbyint(length / call_.stat_resol);
        if (pitch > text_width(shown(bin_width * counter + low_)))
            for (int i = 1; i < bins; ++i)
                label(shown(bin_width * i + low_), i * pitch);
        label(shown(p_.maximal), length);
    }

    void crosswise()
    {
        bool const from_right = call_.plot_type == 4;
        double const scale_x = is_paper_ ? tpp_x_ : 1;
        double const scale_y = is_paper_ ? tpp_y_ : 1;
        double const left = call_.left / scale_x, top = call_.top / scale_y;
        double const B = call_.hoehe / scale_y;                            // length of the value axis
        double const H = call_.breite / (is_printer_ ? scale_x : scale_y); // length of the count axis
        double const tick = is_printer_ ? 40 : 10;
        if (is_paper_)
            fill_color_ = QBColor(2);
        auto const across = [&](double share) { return from_right ? left + H - share * H : left + share * H; };
        double const bin_width = (p_.maximal - low_) / call_.stat_resol;
        auto const counts = count(bin_width, false);
        find_scale(counts, bin_width);

        double const X = is_paper_ ? left : call_.x0;
        double const Y = is_paper_ ? top : call_.y0;
        for (int i = 1; i <= full_scale; ++i)
            line(axes, X + i * H / full_scale, tick + B + Y, X + i * H / full_scale, B + Y, QBColor(1), 1);
        for (int i = 1; i < static_cast<int>(counts.size()); ++i)
            if (int const n = counts[static_cast<std::size_t>(i)]; n > 0)
                bar(across(double{1} * n / full_scale), top + B - (i - 1) * B / call_.stat_resol, across(0),
                    top + B - i * B / call_.stat_resol);
        refresh(axes);
        refresh(on_plot());
        auto const place = [&](double v) { return (v - low_) / (p_.maximal - low_) * B; };
        auto const beside = [&](std::string const& shown, std::string const& widest, double along) {
            if (is_paper_)
                text(shown, left - 1.5 * text_width(widest), top + B - along - text_height() / 2);
            else
                text(shown, 0, B - along - left - text_height() / 2);
        };
        if (p_.StdDev != 0) {
            fore_color_ = 255;
            if (!is_paper_)
                font_ = {"MS Sans Serif", 8};
            if (histogram_limits().HistLimitOn) {
                fore_color_ = 0xFF0000;
                for (auto const& [limit, name] :
                     {std::pair{histogram_limits().HistLCL, "LCL"}, std::pair{histogram_limits().HistUCL, "UCL"}}) {
                    double const y = top + B - place(limit);
                    line(on_plot(), left + H, y, left, y, 0x800000, 1);
                    beside(name, name, place(limit));
                }
            }
            fore_color_ = static_cast<std::int32_t>(p_.ColS1);
            for (int i = -3; i <= 3; ++i) {
                double const v = p_.mean + i * p_.StdDev;
                double const along = place(v);
                if (along <= 0 || along >= B)
                    continue;
                double from = across(curve(v));
                if (is_printer_)
                    from = std::clamp(std::nearbyint(from), std::nearbyint(left), std::nearbyint(left + H));
                double const foot = from_right ? left + H + 5 : left - 5;
                line(on_plot(), from, top + B - along, foot, top + B - along, fore_color_, 2);
                font_ = {i == 0 ? "Arial" : "Symbol", 8};
                beside(sigma_text(i), "Mean", along);
            }
            end_of_marks();
            double before = curve(low_);
            for (int i = 1; i <= std::nearbyint(B); ++i) {
                double const now = curve(low_ + (p_.maximal - low_) * i / B);
                if (now > 1 || before > 1)
                    continue;
                line(on_plot(), across(before), top + B - (i - 1), across(now), top + B - i,
                     static_cast<std::int32_t>(p_.ColS1), is_printer_ ? 4 : 2);
                before = now;
            }
        }
        refresh(on_plot());
        std::string const highest = whole(full_scale);
        if (is_paper_) {
            text("0", left - text_width("0.0") / 2, top + B + 20);
            text(highest, left + H - text_width(highest) / 2, top + B + 20);
        } else {
            text("0", plot_left_, plot_height_ + 20);
            text(highest, plot_left_ + plot_width_ - text_width(highest) / 2, plot_height_ + 20);
        }
    }

    panel const& p_;
    std::vector<double> values_;
    HistogramCall call_;
    bool is_paper_, is_printer_;
    double tpp_x_, tpp_y_;
    double plot_left_, plot_width_, plot_height_;
    double low_ = 0;
    FontFace font_;
    std::int32_t fore_color_;
    std::int32_t fill_color_;
};

/// Equal names, texts and whole numbers; floating-point numbers as near as rounding in another order leaves them.
inline void expect_same_drawing(std::vector<TraceRecord> const& drawn, std::vector<TraceRecord> const& expected)
{
    ASSERT_EQ(drawn.size(), expected.size());
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        ASSERT_EQ(drawn[i].name, expected[i].name) << i;
        ASSERT_EQ(drawn[i].items.size(), expected[i].items.size()) << i;
        for (std::size_t k = 0; k < drawn[i].items.size(); ++k) {
            auto const* const a = std::get_if<double>(&drawn[i].items[k]);
            auto const* const b = std::get_if<double>(&expected[i].items[k]);
            bool const is_same = a != nullptr && b != nullptr ? std::abs(*a - *b) <= 1e-9 * (1 + std::abs(*b))
                                                              : drawn[i].items[k] == expected[i].items[k];
            ASSERT_TRUE(is_same) << "call " << i << ": " << text_of(drawn[i]) << "\nexpected " << text_of(expected[i]);
        }
    }
}

} // namespace zendara::test
