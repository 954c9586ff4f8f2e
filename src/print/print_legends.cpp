#include "zendara/print/print_panel.hpp"
#include "zendara/render/plots/color_scale.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/number_text.hpp"

namespace zendara
{

namespace
{

constexpr double frame_width = 2775;
constexpr double frame_height = 2895;

/// Where the rows of a legend stand, in pixels. The pitch goes by the pixels' width and the width of the boxes by
/// their height, which shows on devices where the two differ; printed pages are known so.
class LegendRows
{
public:
    LegendRows(Surface const& surface, double left, double top)
        : x(divide(left, surface.TwipsPerPixelX())), y(divide(top, surface.TwipsPerPixelY())),
          pitch(divide(240, surface.TwipsPerPixelX())), box_width(divide(255, surface.TwipsPerPixelY())),
          text_width(divide(2000, surface.TwipsPerPixelX()))
    {
    }

    double x, y;
    double pitch;
    double box_width;
    double text_width;

    double row_top(int row) const { return row * pitch + y; }
    double text_top(int row) const { return row_top(row) + 2 * pitch / 10; }

    void fill_box(Surface& surface, int row, double color) const
    {
        surface.FillColor = to_i32(color);
        std::int32_t const left = to_i32(x);
        std::int32_t const right = to_i32(box_width + x);
        std::int32_t const top = to_i32(row_top(row));
        std::int32_t const bottom = to_i32(row_top(row + 1));
        surface.Polygon({{{left, top}, {right, top}, {right, bottom}, {left, bottom}}});
    }
};

void begin_boxes(Surface& surface)
{
    surface.ScaleMode(scale_pixels);
    surface.FillStyle = fill_solid;
}

} // namespace

void PrintPanel::DrawColoredLegend(panel& panobj, double left, double top, BooleanWord drawfr)
{
    if (!drawfr)
        return DrawColoredScale(panobj, left, top);
    DrawFrame("Legend ", left, top, frame_width, frame_height);
    DrawColoredScale(panobj, left + 120, top + 500);
}

void PrintPanel::DrawSigmaLegend(panel& panobj, double left, double top, double SigmaRange, BooleanWord drawfr)
{
    if (!drawfr)
        return DrawSigmaScale(panobj, left, top, SigmaRange);
    DrawFrame("Legend ", left, top, frame_width, frame_height);
    DrawSigmaScale(panobj, left + 210, top + 500, SigmaRange);
}

void PrintPanel::DrawColoredScale(panel const& panobj, double left, double top)
{
    auto const rows = interval_rows(panobj);
    ResetPrinterObj();
    LegendRows const place(surface(), left, top);
    double const text_x = to_i16(divide(450, surface().TwipsPerPixelX())) + place.x;
    begin_boxes(surface());
    for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
        auto const& row = rows[static_cast<std::size_t>(i)];
        std::string text = row.text;
        DrawLeftText(text, text_x, place.text_top(i), place.text_width, 0);
        place.fill_box(surface(), i, row.color);
    }
    ResetPrinterObj();
}

void PrintPanel::DrawSigmaScale(panel const& panobj, double left, double top, double SigmaRange)
{
    ResetPrinterObj();
    begin_boxes(surface());
    LegendRows const place(surface(), left, top);
    double const text_offset = divide(400, surface().TwipsPerPixelX());
    BooleanWord is_scientific; // is not asked: the field has no room for an exponent
    std::int16_t const decimals = DecimalDigits(SigmaRange, 0, is_scientific);
    int i = 0;
    for (auto const& row : sigma_rows(panobj, FormatFixed(SigmaRange, 4, decimals, false))) {
        std::string text = row.text;
        DrawLeftText(text, text_offset + place.x, place.text_top(i), place.text_width, 0);
        DrawSigmaChar(surface().TextWidth(text) + text_offset + place.x + text_offset / 8, place.row_top(i), 0);
        place.fill_box(surface(), i, row.color);
        i += 2; // with an empty row between
    }
    ResetPrinterObj();
}

} // namespace zendara
