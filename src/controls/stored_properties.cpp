#include "zendara/controls/stored_properties.hpp"

#include <iterator>

namespace zendara
{

namespace
{

using Table = std::vector<StoredProperty>;

// The types of defaults, as the store names them.
Value integer(std::int16_t value)
{
    return value;
}

Value long_integer(std::int32_t value)
{
    return value;
}

StoredProperty entry(std::string property, std::string key, std::optional<Value> default_value)
{
    return {property, key, property, key, std::move(default_value)};
}

/// The keys that all controls have in form.
struct SharedKeys {
    std::string back_color;
    std::string width, height;
    std::string legend;
    std::string caption; // empty where the control has none
    std::string pointer, icon;
    std::string default_caption = "Panel";

    static SharedKeys with_prefix(std::string const& prefix)
    {
        return {prefix + "BackColor", prefix + "PANELWD",      prefix + "PANELHD",  prefix + "Legend",
                prefix + "Caption",   prefix + "MousePointer", prefix + "MouseIcon"};
    }
};

// Back colour and sizes first, then what is the control's own, then legend, caption, pointer and icon.
Table table_of(SharedKeys const& keys, std::vector<Table> own)
{
    Table table = {
        entry("BackColor", keys.back_color, std::nullopt),
        entry("PanelSizeX", keys.width, integer(210)),
        entry("PanelSizeY", keys.height, integer(195)),
    };
    for (auto& list : own)
        std::move(list.begin(), list.end(), std::back_inserter(table));
    table.push_back(entry("HideLegend", keys.legend, BooleanWord(false).word));
    if (!keys.caption.empty())
        table.push_back(entry("PlotCaption", keys.caption, keys.default_caption));
    table.push_back(entry("MousePointer", keys.pointer, integer(0)));
    table.push_back(entry("MouseIcon", keys.icon, Empty{}));
    return table;
}

Table colors(std::string const& prefix, std::string const& prefix_on_read, std::vector<int> const& default_indices)
{
    Table table;
    for (std::size_t i = 0; i < default_indices.size(); ++i) {
        std::string const number = std::to_string(i);
        table.push_back(
            entry("IntervalColor" + number, prefix + "InterCol" + number, long_integer(QBColor(default_indices[i]))));
        table.back().key_on_read = prefix_on_read + "InterCol" + number;
    }
    return table;
}

Table ten_colors(std::string const& prefix, std::string const& prefix_on_read)
{
    return colors(prefix, prefix_on_read, {4, 12, 14, 10, 6, 2, 3, 9, 1, 5});
}

Table sigma_colors(std::string const& prefix)
{
    return colors(prefix, prefix, {4, 2, 1});
}

Table raster(std::string const& suffix)
{
    return {entry("ResolutionX", "StdResx" + suffix, integer(5)), entry("ResolutionY", "StdResY" + suffix, integer(5)),
            entry("ShowSites", "StdMark" + suffix, long_integer(0))};
}

} // namespace

Table const& stored_properties_of_2d()
{
    static Table const table = [] {
        Table made = table_of(SharedKeys::with_prefix("2D"), {ten_colors("2D", "2D"), raster("2D")});
        // Read from keys that nothing writes: a saved control comes back with the default sizes.
        made[1].key_on_read = "PANELWD";
        made[2].key_on_read = "PANELHD";
        return made;
    }();
    return table;
}

Table const& stored_properties_of_2ds()
{
    static Table const table =
        table_of(SharedKeys::with_prefix("2DS"),
                 {sigma_colors("2DS"), raster("2DS"), {entry("SigmaRange", "StdSigRange2DS", 0.5)}});
    return table;
}

Table const& stored_properties_of_2dc()
{
    static Table const table = table_of(SharedKeys::with_prefix("2DC"),
                                        {ten_colors("2DC", "2DC"),
                                         {
                                             entry("MeanCurveColor", "2DCMeanCurveCol", long_integer(QBColor(2))),
                                             entry("UpperCurveColor", "2DCUpperCurveCol", long_integer(QBColor(4))),
                                             entry("LowerCurveColor", "2DCLowerCurveCol", long_integer(QBColor(1))),
                                             entry("Resolution", "StdReso", integer(0)),
                                             entry("MarkSites", "StdExCon", integer(1)),
                                             entry("Interval", "StdDist", integer(1)),
                                             entry("IntervalInPercent", "StdDistPerecent", integer(0)),
                                             entry("PlotColored", "StdColor", integer(1)),
                                             entry("MeasurementUnit", "2DCMeasurementUnit", std::string()),
                                         }});
    return table;
}

Table const& stored_properties_of_3d()
{
    static Table const table =
        table_of(SharedKeys::with_prefix("3D"), {ten_colors("3D", "2D"), // reading takes the keys of the colour map
                                                 {
                                                     entry("XResolution", "StdResx3D", integer(5)),
                                                     entry("YResolution", "StdResy3D", integer(5)),
                                                     entry("GridRotation", "StdAlp3D", integer(40)),
                                                     entry("GridInclination", "StdThet3D", integer(35)),
                                                     entry("PlotType", "StdD3PlotType", long_integer(1)),
                                                     entry("PlotScale", "StdD3Scale3D", integer(40)),
                                                 }});
    return table;
}

Table const& stored_properties_of_3ds()
{
    static Table const table =
        table_of(SharedKeys::with_prefix("3DS"), {sigma_colors("3DS"),
                                                  {
                                                      entry("XResolution", "StdResx3DS", integer(5)),
                                                      entry("YResolution", "StdResy3DS", integer(5)),
                                                      entry("GridRotation", "StdAlp3DS", integer(40)),
                                                      entry("PanelRotation", "StdPhi3DS", integer(40)),
                                                      entry("GridInclination", "StdThet3DS", integer(35)),
                                                      entry("SigmaRange", "StdSigRange3DS", 0.5),
                                                      entry("PlotScale", "StdD3Scale3DS", integer(40)),
                                                  }});
    return table;
}

Table const& stored_properties_of_2dv()
{
    static Table const table = table_of(SharedKeys::with_prefix("2DV"), {ten_colors("2DV", "2DV")});
    return table;
}

Table const& stored_properties_of_3db()
{
    static Table const table =
        table_of(SharedKeys::with_prefix("2DB"), {ten_colors("2DB", "2D"), // reading takes the keys of the colour map
                                                  {
                                                      entry("BeamWidth", "Stdbx2DB", integer(5)),
                                                      entry("BeamHeight", "Stdby2DB", integer(5)),
                                                      entry("GridRotation", "StdAlp2DB", integer(40)),
                                                      entry("GridInclination", "StdThet2DB", integer(35)),
                                                      entry("BeamScale", "StdD3Scale2DB", integer(10)),
                                                  }});
    return table;
}

Table const& stored_properties_of_histogram()
{
    static Table const table =
        table_of({"BackColor", "PanelSizeX", "PanelSizeY", "Legend", "", "MousePointer", "MouseIcon"},
                 {{
                     entry("PlotType", "StdPlotType", integer(1)),
                     entry("Resolution", "StdStatResol", integer(10)),
                     entry("BeamColor", "StdBeamColor", long_integer(QBColor(2))),
                     entry("GaussCurveColor", "StdGaussCurveColor", long_integer(QBColor(4))),
                 }});
    return table;
}

Table const& stored_properties_of_line_scan()
{
    static Table const table = [] {
        SharedKeys keys = SharedKeys::with_prefix("1D");
        keys.back_color = "BackColor";
        keys.default_caption = "";
        Table points = {
            entry("ShowSites", "1DMark", long_integer(0)),        entry("angle", "RotAngle", integer(0)),
            entry("PlotType", "1DPlotType", integer(1)),          entry("RotationPointX", "1DRotationX", integer(0)),
            entry("RotationPointY", "1DRotationY", integer(0)),   entry("LineStartPointX", "1DLineStartX", integer(0)),
            entry("LineStartPointY", "1DLineStartY", integer(0)), entry("LineEndPointX", "1DLineEndX", integer(0)),
            entry("LineEndPointY", "1DLineEndY", integer(0)),
        };
        points.back().property_on_read = "LineEndPointX"; // so the saved y comes back as the x
        return table_of(keys, {points});
    }();
    return table;
}

} // namespace zendara
