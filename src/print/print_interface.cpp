#include "zendara/print/print_panel.hpp"
#include "zendara/print/viewbitmap.hpp"
#include "zendara/support/interface.hpp"

namespace zendara
{

namespace
{

using P = PrintPanel;

std::vector<Argument> by_references(std::initializer_list<std::string_view> names)
{
    std::vector<Argument> arguments;
    for (auto const name : names)
        arguments.push_back(by_reference(name));
    return arguments;
}

/// The panel and the box of a plot, then what is its own.
std::vector<Argument> boxed(std::initializer_list<std::string_view> names)
{
    auto arguments = by_references({"panobj", "left", "top", "width", "height"});
    for (auto const name : names)
        arguments.push_back(by_reference(name));
    return arguments;
}

std::vector<Member> primitives()
{
    auto const text = by_references({"text", "left", "top", "width", "colInd"});
    return {
        field<P, &P::PrinterObj>("PrinterObj", "The page, or a picture that previews it."),
        method<P, &P::DrawLeftText>("DrawLeftText", text, "Writes a text from a place on."),
        method<P, &P::DrawCenterText>("DrawCenterText", text, "Writes a text around a place."),
        method<P, &P::DrawRightText>("DrawRightText", text, "Writes a text up to a place."),
        method<P, &P::DrawFrame>("DrawFrame", by_references({"text", "left", "top", "width", "height"}),
                                 "Draws a frame with a caption in its upper edge."),
        method<P, &P::DrawSigmaChar>("DrawSigmaChar", by_references({"left", "top", "colInd"}), "Writes a sigma."),
        method<P, &P::ResetPrinterObj>("ResetPrinterObj", {}, "Puts the drawing state to its defaults."),
        method<P, &P::FormatLbl>("FormatLbl", {by_value("dummy")}, "Number text of value read-outs."),
    };
}

std::vector<Member> plots()
{
    return {
        method<P, &P::Print_2DPlot>("Print_2DPlot", boxed({"resx", "resy", "caption", "marksites", "drawfr"}),
                                    "Prints the colour map."),
        method<P, &P::Print_2DPlot_THN>("Print_2DPlot_THN", boxed({"resx", "resy", "caption", "winfo"}),
                                        "Prints a small colour map."),
        method<P, &P::Print_2DSigmaPlot>("Print_2DSigmaPlot",
                                         boxed({"resx", "resy", "sigma", "caption", "marksites", "drawfr"}),
                                         "Prints the sigma map."),
        method<P, &P::Print_2DSigmaPlot_THN>("Print_2DSigmaPlot_THN", boxed({"resx", "resy", "sigma", "caption"}),
                                             "Prints a small sigma map."),
        method<P, &P::Print_Contour>(
            "Print_Contour",
            boxed({"distance", "distPerc", "measUnit", "marked_sites", "reso", "colored", "caption", "drawfr"}),
            "Prints the contour plot."),
        method<P, &P::Print_Contour_THN>(
            "Print_Contour_THN",
            boxed({"distance", "distPercent", "marked_sites", "reso", "colored", "caption", "winfo", "DrFrame"}),
            "Prints a small contour plot."),
        method<P, &P::Print_3DPlot>("Print_3DPlot",
                                    boxed({"Plotopt", "resx", "resy", "fwscal", "alp2", "thet2", "caption", "drawfr"}),
                                    "Prints the surface plot."),
        method<P, &P::Print_2DBPlot>("Print_2DBPlot",
                                     boxed({"bx", "by", "fwscal", "alp2", "thet2", "caption", "drawfr"}),
                                     "Prints the bar plot."),
        method<P, &P::Print_3DSigmaPlot>(
            "Print_3DSigmaPlot", boxed({"resx", "resy", "fwscal", "alp2", "thet2", "sigma", "caption", "drawfr"}),
            "Prints the sigma surface."),
        method<P, &P::Print_2DVPlot>("Print_2DVPlot", boxed({"caption", "drawfr"}), "Prints the values."),
        method<P, &P::Print_2DVGridPlot>("Print_2DVGridPlot", boxed({"caption", "drawfr"}),
                                         "Prints the site numbers in blue."),
        method<P, &P::Print_GridPosPlot>("Print_GridPosPlot", boxed({"caption"}), "Prints the site numbers."),
        method<P, &P::Print_Histo>("Print_Histo",
                                   by_references({"plott", "panobj", "left", "top", "width", "height", "stat_resol",
                                                  "orgWidth", "caption", "drawfr"}),
                                   "Prints the histogram."),
        method<P, &P::Print_Histo_THN>(
            "Print_Histo_THN",
            by_references({"plott", "panobj", "left", "top", "width", "height", "stat_resol", "orgWidth", "caption"}),
            "Prints a small histogram."),
        method<P, &P::Print_1DPlot>("Print_1DPlot",
                                    by_references({"panobj", "angle", "Plotopt", "x1", "y1", "x2", "y2", "x3", "y3",
                                                   "marksites", "caption", "left", "top", "width", "height", "drawfr"}),
                                    "Prints the line scan."),
    };
}

std::vector<Member> legends_and_blocks()
{
    auto const block = by_references({"panobj", "leftT", "top"});
    return {
        method<P, &P::DrawColoredLegend>("DrawColoredLegend", by_references({"panobj", "left", "top", "drawfr"}),
                                         "Prints the ten intervals."),
        method<P, &P::DrawSigmaLegend>("DrawSigmaLegend",
                                       by_references({"panobj", "left", "top", "SigmaRange", "drawfr"}),
                                       "Prints the three sigma bands."),
        method<P, &P::DrawWaferRemarks>("DrawWaferRemarks", block, "Prints the remarks."),
        method<P, &P::DrawPanelSize>("DrawPanelSize", block, "Prints the panel's sizes."),
        method<P, &P::DrawPanelStatistics>("DrawPanelStatistics", block, "Prints the statistics."),
        method<P, &P::Print_Contour_Legend>(
            "Print_Contour_Legend", by_references({"panobj", "left", "top", "distance", "distPerc", "measUnit"}),
            "Prints the interval of a contour plot."),
    };
}

/// A property that can only be set.
template <auto Setter> Member setter(std::string_view name, std::string_view help)
{
    Member member;
    member.name = name;
    member.kind = MemberKind::GetSet;
    member.type = Type::Object;
    member.help = help;
    member.get = [](Object&) -> Value { fail(FailureKind::NoSuchMember, "the property can only be set"); };
    member.put = [](Object& object, Value const& value) {
        std::array<Value, 1> argument = {value};
        detail::invoke<Setter, viewbitmap>(object, argument);
    };
    return member;
}

} // namespace

Interface const& PrintPanel::host_interface() const
{
    static Interface const table{"PrintPanel", "Puts plots, legends and blocks of text of one panel on a page.",
                                 join({primitives(), plots(), legends_and_blocks()})};
    return table;
}

Interface const& viewbitmap::host_interface() const
{
    using V = viewbitmap;
    auto const place = by_references({"x", "y"});
    static Interface const table{
        "viewbitmap",
        "Writes the data of one panel below a picture.",
        {
            setter<&V::BitmapObj>("BitmapObj", "The picture."),
            setter<&V::WaferObj>("WaferObj", "The panel."),
            method<V, &V::DrawPanelData>("DrawPanelData", {}, "Grows the picture and writes the data."),
            method<V, &V::Resetbitobj>("Resetbitobj", {}, "Puts the drawing state to its defaults."),
            method<V, &V::DrawStatisticsBlock>("DrawStatisticsBlock", place, "Writes the statistics."),
            method<V, &V::DrawSizeBlock>("DrawSizeBlock", place, "Writes the panel's sizes."),
            method<V, &V::DrawRemarksBlock>("DrawRemarksBlock", place, "Writes the remarks."),
            method<V, &V::DrawBitmapText>("DrawBitmapText", by_references({"text", "x", "y", "width", "colInd"}),
                                          "Writes a text."),
        }};
    return table;
}

} // namespace zendara
