#include "zendara/panel/panel.hpp"
#include "zendara/render/surface/surface.hpp"
#include "zendara/render/surface/widget.hpp"
#include "zendara/support/interface.hpp"

namespace zendara
{

namespace
{

using P = panel;

std::vector<Member> data_members()
{
    constexpr auto interval_color = "Interval colour, col1 for the top interval.";
    constexpr auto sigma_color = "Colour above, inside or below the sigma band.";
    constexpr auto carried = "Carried for hosts.";
    constexpr auto remark = "Remark field of the printed page.";
    return {
        field<P, &P::col1>("col1", interval_color),
        field<P, &P::col2>("col2", interval_color),
        field<P, &P::col3>("col3", interval_color),
        field<P, &P::col4>("col4", interval_color),
        field<P, &P::col5>("col5", interval_color),
        field<P, &P::col6>("col6", interval_color),
        field<P, &P::col7>("col7", interval_color),
        field<P, &P::col8>("col8", interval_color),
        field<P, &P::col9>("col9", interval_color),
        field<P, &P::col10>("col10", interval_color),
        field<P, &P::ColS1>("ColS1", sigma_color),
        field<P, &P::ColS2>("ColS2", sigma_color),
        field<P, &P::ColS3>("ColS3", sigma_color),
        field<P, &P::Save>("Save", carried),
        field<P, &P::NewFile>("NewFile", carried),
        field<P, &P::FW_NUll>("FW_NUll", "Some value is zero or as good as zero."),
        field<P, &P::FW_Negativ>("FW_Negativ", "Some value is negative."),
        field<P, &P::changeResx>("changeResx", carried),
        field<P, &P::FileDT>("FileDT", carried),
        field<P, &P::filename>("filename", carried),
        field<P, &P::DirFileName>("DirFileName", carried),
        field<P, &P::mean>("mean", "Arithmetic mean of the values."),
        field<P, &P::StdDev>("StdDev", "Sample standard deviation of the values."),
        field<P, &P::maxi>("maxi", "Largest value."),
        field<P, &P::mini>("mini", "Smallest value."),
        field<P, &P::maximal>("maximal", "Upper limit of the colour scale."),
        field<P, &P::minimal>("minimal", "Lower limit of the colour scale."),
        field<P, &P::HiLo>("HiLo", "Spread of the scale limits in percent of their sum."),
        field<P, &P::Low>("Low", "Value below the scale that stands for nothing."),
        field<P, &P::range>("range", "Difference of the scale limits."),
        field<P, &P::Summe_Value>("Summe_Value", "Sum of the values."),
        field<P, &P::NptLCL>("NptLCL", "Sites below the lower control limit."),
        field<P, &P::NptUCL>("NptUCL", "Sites above the upper control limit."),
        field<P, &P::vLcl>("vLcl", "Lower control limit of the histogram."),
        field<P, &P::vUcl>("vUcl", "Upper control limit of the histogram."),
        field<P, &P::Recognize>("Recognize", carried),
        field<P, &P::SizeX>("SizeX", "Panel width in millimetres."),
        field<P, &P::SizeY>("SizeY", "Panel height in millimetres."),
        field<P, &P::TestSizeX>("TestSizeX", "Width of the tested area in millimetres."),
        field<P, &P::TestSizeY>("TestSizeY", "Height of the tested area in millimetres."),
        field<P, &P::HalfTestSizeX>("HalfTestSizeX", "Half the width of the tested area."),
        field<P, &P::HalfTestSizey>("HalfTestSizey", "Half the height of the tested area."),
        field<P, &P::Meas_unit>("Meas_unit", "Measuring unit as printed."),
        field<P, &P::Special>("Special", remark),
        field<P, &P::equip>("equip", remark),
        field<P, &P::panel>("panel", remark),
        field<P, &P::Operator>("Operator", remark),
        field<P, &P::FAB>("FAB", remark),
        field<P, &P::lot>("lot", remark),
        field<P, &P::meq>("meq", remark),
        field<P, &P::maxHauf>("maxHauf", "Highest class count of the histogram."),
        field<P, &P::GaussMax>("GaussMax", "Peak of the bell curve of the histogram."),
    };
}

std::vector<Member> record_methods()
{
    std::vector<Argument> const site = {by_value("x"), by_value("y"), by_value("Z")};
    std::vector<Argument> const numbered_site = {by_value("i"), by_value("x"), by_value("y"), by_value("Z")};
    return {
        method<P, &P::reset>("reset", {}, "Takes all sites away."),
        method<P, &P::SetNop>("SetNop", {by_value("Number")}, "Sizes the record for a number of sites."),
        method<P, &P::GetNop>("GetNop", {}, "Number of sites."),
        method<P, &P::SetGridValue>("SetGridValue", site, "Fills the next site."),
        method<P, &P::SetGridValueD>("SetGridValueD", numbered_site, "Fills a site."),
        method<P, &P::GetGridValue>("GetGridValue", {by_value("ind"), by_reference("gr")},
                                    "Value of a site; its place goes into gr(1) and gr(2)."),
        method<P, &P::OverwriteGridValue>("OverwriteGridValue", numbered_site, "Fills a site, checked."),
        method<P, &P::MaxMin>("MaxMin", {}, "Computes the statistics."),
        method<P, &P::setMaximalMinial>("setMaximalMinial", {by_value("maxim"), by_value("minim")},
                                        "Moves the limits of the colour scale."),
        method<P, &P::Gauss>("Gauss", {by_value("hist_x")}, "Normal density at a value."),
        method<P, &P::Globlal_Value_Sub_Mean>("Globlal_Value_Sub_Mean", {by_reference("glmean")},
                                              "Sum of squared distances of the values from a mean."),
        method<P, &P::Points_OutCL>("Points_OutCL", {by_reference("LCL"), by_reference("UCL")},
                                    "Counts the sites beyond control limits."),
        method<P, &P::Interpolation>("Interpolation", {by_value("Xa"), by_value("Ya")}, "Value at any point."),
        method<P, &P::Interpolation_Einfach>("Interpolation_Einfach", {by_value("Xa"), by_value("Ya")},
                                             "Value at any point, from a scan of all sites."),
    };
}

std::vector<Argument> histogram_arguments(std::string_view kind)
{
    return {by_reference(kind),     by_reference("Plot"),   by_reference("histPic"), by_reference("x0"),
            by_reference("y0"),     by_reference("breite"), by_reference("hoehe"),   by_value("stat_resol"),
            by_reference("laenge"), by_reference("left"),   by_reference("top"),     by_reference("ShowDisp")};
}

std::vector<Member> plot_methods()
{
    std::vector<Argument> const box = {by_reference("Plot"),  by_reference("left"),   by_reference("top"),
                                       by_reference("width"), by_reference("height"), by_reference("ShowDispl")};
    return {
        method<P, &P::D2Plot>("D2Plot",
                              {by_reference("Plot"), by_value("resx"), by_value("resy"), by_reference("PlotStyle"),
                               by_value("SigmaRange"), by_value("marksites"), by_reference("left"), by_reference("top"),
                               by_reference("width"), by_reference("height"), by_reference("ShowDispl")},
                              "Draws the colour map or the sigma map."),
        method<P, &P::D2Number>("D2Number", box, "Prints the values at their places."),
        method<P, &P::D2GridNumber>("D2GridNumber", box, "Prints the site numbers at their places."),
        method<P, &P::GridPosPlot>("GridPosPlot", box, "Prints the site numbers in the surface's colour."),
        method<P, &P::D2Contour>("D2Contour",
                                 {by_reference("Plot"), by_value("distance"), by_value("marked_sites"),
                                  by_value("reso"), by_value("colored"), by_reference("left"), by_reference("top"),
                                  by_reference("width"), by_reference("height"), by_reference("ShowDispl")},
                                 "Draws lines of equal value."),
        method<P, &P::D3Plot>("D3Plot",
                              {by_reference("Plot"), by_value("resx"), by_value("resy"), by_value("fwscal"),
                               by_value("alp2"), by_value("thet2"), by_value("PlotStyle"), by_value("SigmaRange"),
                               by_reference("fprint"), by_reference("left"), by_reference("top"), by_reference("width"),
                               by_reference("height"), by_reference("ShowDispl")},
                              "Draws the panel as a surface."),
        method<P, &P::D2BeamPlot>("D2BeamPlot",
                                  {by_reference("Plot"), by_value("bx"), by_value("by"), by_value("fwscal"),
                                   by_value("alp2"), by_value("thet2"), by_reference("fprint"), by_reference("left"),
                                   by_reference("top"), by_reference("width"), by_reference("height"),
                                   by_reference("ShowDispl")},
                                  "Stands a bar on each site."),
        method<P, &P::GridPosShow>("GridPosShow",
                                   {by_value("FNLabel"), by_value("FNPic"), by_value("alph"), by_value("thet")},
                                   "Draws the small figure of the turned panel."),
        method<P, &P::scale_colored>(
            "scale_colored",
            {by_reference("scalCol"), by_reference("scallab"), optional(by_value("dummy"), std::int16_t{0})},
            "Fills the ten-interval legend."),
        method<P, &P::scale_sigma>("scale_sigma", {by_value("scalCol"), by_value("scallab"), by_value("SigmaRange")},
                                   "Fills the three-band legend."),
        method<P, &P::Statistic>("Statistic", histogram_arguments("PlotType"), "Draws the histogram."),
        method<P, &P::Statistic_Quer>("Statistic_Quer", histogram_arguments("RightD"),
                                      "Draws the histogram crosswise."),
        method<P, &P::FormatLbl>("FormatLbl", {by_value("dummy")}, "Number text of value read-outs."),
    };
}

std::vector<Argument> by_references(std::initializer_list<std::string_view> names)
{
    std::vector<Argument> arguments;
    for (auto const name : names)
        arguments.push_back(by_reference(name));
    return arguments;
}

std::vector<Member> scan_methods()
{
    auto either_form = [](std::vector<Argument> targets) {
        for (auto const* name : {"Plotopt", "phi", "x1", "y1", "x2", "y2"})
            targets.push_back(by_reference(name));
        targets.push_back(by_value("x3"));
        targets.push_back(by_value("y3"));
        return targets;
    };
    std::vector<Argument> indicator = either_form({by_reference("Iline"), by_reference("plus")});
    indicator.push_back(by_reference("Plot"));
    return {
        method<P, &P::D1Plot_calculate_ends_coord>(
            "D1Plot_calculate_ends_coord", by_references({"x1", "y1", "x2", "y2", "xstart", "ystart", "xend", "yend"}),
            "Ends of the line through two points."),
        method<P, &P::D1Plot_calculate_ends_angle>(
            "D1Plot_calculate_ends_angle", by_references({"x1", "y1", "phi", "xstart", "ystart", "xend", "yend"}),
            "Ends of the line through a point at an angle."),
        method<P, &P::D1Plot>("D1Plot",
                              by_references({"Plot", "resol", "phi", "D1Angle", "x1", "y1", "x2", "y2", "DrawCol",
                                             "left", "top", "width", "height", "ShowDisp"}),
                              "Draws the values along a line."),
        method<P, &P::D1Plot_MarkSites>("D1Plot_MarkSites",
                                        by_references({"Plot", "picgrid", "phi", "D1Angle", "x1", "y1", "x2", "y2",
                                                       "DrawCol", "left", "top", "width", "height", "ShowDisp"}),
                                        "Marks the sites on a line."),
        method<P, &P::D1Plot_AdjustLines>("D1Plot_AdjustLines",
                                          by_references({"Plot", "left", "top", "width", "height"}),
                                          "Draws the grid of a line scan."),
        method<P, &P::D1Plot_Show_lblXY>("D1Plot_Show_lblXY", either_form({by_reference("lblX"), by_reference("lblY")}),
                                         "Writes the axis labels of a line scan."),
        method<P, &P::draw_indicator>("draw_indicator", indicator, "Shows a line on a picture of the panel."),
    };
}

} // namespace

Interface const& panel::host_interface() const
{
    static Interface const table{"panel", "The record of one panel and its plots.",
                                 join({data_members(), record_methods(), plot_methods(), scan_methods()})};
    return table;
}

} // namespace zendara
