#include "zendara/controls/zv_plot_2dc.hpp"

#include "zendara/controls/plot_control_rows.hpp"
#include "zendara/dialogs/frm_about.hpp"
#include "zendara/dialogs/frm_plot_opt_2dc.hpp"
#include "zendara/print/print_panel.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/number_text.hpp"

#include <utility>

namespace zendara
{

namespace
{

template <class Enum> std::int32_t number(Enum value)
{
    return static_cast<std::int32_t>(value);
}

Enumeration const& marks_enumeration()
{
    static Enumeration const values{"ExconEnum",
                                    {{"Exact", number(ContourMarks::Exact)},
                                     {"Converted", number(ContourMarks::Converted)},
                                     {"None", number(ContourMarks::None)}}};
    return values;
}

Enumeration const& resolution_enumeration()
{
    static Enumeration const values{"ResoEnum",
                                    {{"LowQuality", number(ContourResolution::LowQuality)},
                                     {"HighQuality", number(ContourResolution::HighQuality)},
                                     {"Automatic", number(ContourResolution::Automatic)}}};
    return values;
}

Enumeration const& colors_enumeration()
{
    static Enumeration const values{"DrawColEnum",
                                    {{"BWhitePlot", number(ContourColors::BWhitePlot)},
                                     {"Three_ColorPlot", number(ContourColors::Three_ColorPlot)},
                                     {"Ten_ColorPlot", number(ContourColors::Ten_ColorPlot)}}};
    return values;
}

} // namespace

ZvPlot2DC::ZvPlot2DC(Platform& platform)
    : PlotControl(platform, "ZvPlot2DC", AboutKind::Contours), TenIntervalColors(self()), legend_(column_)
{
    answer_user();
}

void ZvPlot2DC::InitProperties()
{
    PlotControl::InitProperties();
    settings_ = {};
    fill_legend();
}

void ZvPlot2DC::Interval(double interval)
{
    settings_.interval = interval < 0 ? 1 : interval;
    settings_changed("Interval");
}

void ZvPlot2DC::IntervalInPercent(BooleanWord is_in_percent)
{
    settings_.is_in_percent = is_in_percent;
    settings_changed("IntervalInPercent");
}

void ZvPlot2DC::MeasurementUnit(std::string_view unit)
{
    settings_.unit = unit;
    settings_changed("MeasurementUnit");
}

void ZvPlot2DC::marksites(ContourMarks marks)
{
    settings_.marks = marks;
    settings_changed("MarkSites");
}

void ZvPlot2DC::Resolution(ContourResolution resolution)
{
    settings_.resolution = resolution;
    settings_changed("Resolution");
}

void ZvPlot2DC::PlotColored(ContourColors colors)
{
    settings_.colors = colors;
    fill_legend();
    settings_changed("PlotColored");
}

void ZvPlot2DC::fill_legend()
{
    legend_.fill(record_, settings_.colors, distance_text());
}

void ZvPlot2DC::draw_plot()
{
    record_.D2Contour(plot_surface(), distance_in_percent(), to_i16(number(settings_.marks)),
                      to_i16(number(settings_.resolution)), to_i16(number(settings_.colors)), 0, 0, 0, 0, 0);
    fill_legend();
}

double ZvPlot2DC::distance_in_percent() const
{
    return settings_.is_in_percent ? settings_.interval : contour_percent(record_, settings_.interval);
}

std::string ZvPlot2DC::distance_text() const
{
    std::string const unit = settings_.is_in_percent ? "%" : settings_.unit;
    return plain_text(settings_.interval) + (unit.empty() ? "" : " " + unit);
}

// The dialog speaks of measurement units where the control speaks of percent.
void ZvPlot2DC::ShowPlotOption()
{
    frmPlotOpt2DC dialog(platform());
    dialog.SetValues(record_, to_i16(number(settings_.marks)), to_i16(number(settings_.resolution)),
                     to_i16(number(settings_.colors)), settings_.interval, plot_color(), !settings_.is_in_percent);
    answer_options(dialog, [&] {
        BooleanWord is_in_units;
        Interval(dialog.GetDist(is_in_units));
        IntervalInPercent(!is_in_units);
        Resolution(static_cast<ContourResolution>(dialog.GetReso()));
        marksites(static_cast<ContourMarks>(dialog.GetMarkeSites()));
        PlotColored(static_cast<ContourColors>(dialog.GetShowColor()));
        take_color(dialog.GetBackColor());
    });
}

// The page wants to know whether the interval is in the measuring unit, the reverse of the property.
void ZvPlot2DC::print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame)
{
    paper.Print_Contour(record_, box.left, box.top, box.width, box.height, settings_.interval, !settings_.is_in_percent,
                        settings_.unit, to_i16(number(settings_.marks)), to_i16(number(settings_.resolution)),
                        to_i16(number(settings_.colors)), PlotCaption(), with_frame);
}

std::int16_t ZvPlot2DC::PrintPlot_THN(double left, double top, double width, double height, std::string& winfo)
{
    return print_checked([&](PrintPanel& paper) {
        paper.Print_Contour_THN(record_, left, top, width, height, settings_.interval, !settings_.is_in_percent,
                                to_i16(number(settings_.marks)), to_i16(number(settings_.resolution)),
                                to_i16(number(settings_.colors)), PlotCaption(), winfo, true);
    });
}

namespace
{

std::vector<Member> contour_rows()
{
    using Z = ZvPlot2DC;
    constexpr int place = store_place::settings;
    return {
        property<Z, double, &Z::Interval, &Z::Interval>("Interval",
                                                        "The distance of the lines given in percent of the mean value.")
            .saved(place + 5, "StdDist", integer(1)),
        property<Z, BooleanWord, &Z::IntervalInPercent, &Z::IntervalInPercent>("IntervalInPercent",
                                                                               "Interval is a percentage.")
            .saved(place + 6, "StdDistPerecent", integer(0)),
        text_property<Z, &Z::MeasurementUnit, &Z::MeasurementUnit>("MeasurementUnit", "Unit shown with Interval.")
            .saved(place + 8, "2DCMeasurementUnit", std::string()),
        property<Z, ContourMarks, &Z::marksites, &Z::marksites>("marksites",
                                                                "Mark the exact or the converted sites on plot.")
            .of(marks_enumeration())
            .saved(place + 4, "StdExCon", integer(1))
            .saved_as("MarkSites"),
        property<Z, ContourResolution, &Z::Resolution, &Z::Resolution>("Resolution", "Fineness of the raster.")
            .of(resolution_enumeration())
            .saved(place + 3, "StdReso", integer(0)),
        property<Z, ContourColors, &Z::PlotColored, &Z::PlotColored>("PlotColored", "Draw colored or black/white plot.")
            .of(colors_enumeration())
            .saved(place + 7, "StdColor", integer(1)),
        color_property<Z, &Z::MeanCurveColor, &Z::MeanCurveColor>("MeanCurveColor", "Colour of the mean line.")
            .saved(place, "2DCMeanCurveCol", long_integer(QBColor(2))),
        color_property<Z, &Z::UpperCurveColor, &Z::UpperCurveColor>("UpperCurveColor",
                                                                    "Colour of lines above the mean.")
            .saved(place + 1, "2DCUpperCurveCol", long_integer(QBColor(4))),
        color_property<Z, &Z::LowerCurveColor, &Z::LowerCurveColor>("LowerCurveColor",
                                                                    "Colour of lines below the mean.")
            .saved(place + 2, "2DCLowerCurveCol", long_integer(QBColor(1))),
    };
}

} // namespace

Interface const& ZvPlot2DC::interface_table()
{
    static Interface const table =
        plot_interface("ZvPlot2DC", "Contour plot of one panel.", SharedKeys::with_prefix("2DC"),
                       {contour_rows(),
                        interval_color_rows("2DC", "2DC"),
                        {method<&ZvPlot2DC::PrintPlot_THN>("PrintPlot_THN", "Prints the plot in its compact form.",
                                                           print_box() + by_reference("winfo"))}});
    return table;
}

} // namespace zendara
