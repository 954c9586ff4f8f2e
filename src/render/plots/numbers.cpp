#include "zendara/render/plots/site_plot.hpp"
#include "zendara/support/number_text.hpp"

namespace zendara
{

namespace
{

/// The arguments of FormatFixed, decided once for all sites of a plot.
struct NumberFormat {
    std::int16_t field = 6;
    std::int16_t decimals = 0;
    BooleanWord is_scientific;
};

/// One run of D2Number.
class NumberPlot : SiteNumbersPlot
{
public:
    using SiteNumbersPlot::SiteNumbersPlot;

    void run()
    {
        clear_surface();
        fix_scale_range();
        fix_low();
        find_rectangle();
        find_zoom();
        fix_band();
        draw_frame();
        decide_format();
        IntervalColors const colors(record_, zoom_, band_, scale_top_ == scale_bottom_);
        for_each_site([&](std::int16_t site) { print_value(site, colors); });
        record_.setMaximalMinial(record_.maximal, record_.minimal);
    }

private:
    // From the top of the scale alone, so that all numbers share one form.
    void decide_format()
    {
        step([&] { format_.decimals = DecimalDigits(scale_top_, 0, format_.is_scientific); });
        if (format_.is_scientific)
            format_.field = 9;
        else if (format_.decimals != 0)
            step([&] { format_.decimals = DecimalDigits(scale_top_, 6, format_.is_scientific); });
        else
            format_.field = static_cast<std::int16_t>(signed_text(scale_top_).size() + 1);
    }

    void print_value(std::int16_t site, IntervalColors const& colors)
    {
        step([&] { scaled_value_ = scaled(site_z(site)); });
        color_ = colors(scaled_value_, color_);
        step([&] { surface_.ForeColor = to_i32(color_); });
        step([&] { text_ = FormatFixed(site_z(site), format_.field, format_.decimals, format_.is_scientific); });
        print_centred(text_, site);
        refresh_screen_picture();
    }

    NumberFormat format_;
    double scaled_value_ = 0;
    double color_ = 0;
    std::string text_;
};

} // namespace

void panel::D2Number(Surface& Plot, double left, double top, double width, double height, std::int16_t ShowDispl)
{
    NumberPlot(*this, Plot, {left, top, width, height}, ShowDispl).run();
}

} // namespace zendara
