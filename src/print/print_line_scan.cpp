#include "zendara/print/print_panel.hpp"
#include "zendara/render/plots/line_scan_indicator.hpp"
#include "zendara/render/plots/line_scan_labels.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/number_text.hpp"

namespace zendara
{

namespace
{

constexpr double column_width = 1215;
constexpr double column_height = 2100;
constexpr double label_width = 1000;
constexpr std::int16_t blue = 1;
constexpr int axis_quarters = 4;

} // namespace

void PrintPanel::Print_1DPlot(panel& panobj, std::int16_t angle, std::int16_t Plotopt, double x1, double y1, double x2,
                              double y2, double x3, double y3, BooleanWord marksites, std::string const& caption,
                              double left, double top, double width, double height, BooleanWord drawfr)
{
    EitherFormArguments const line{Plotopt, angle, x1, y1, x2, y2, x3, y3};
    begin({left, top, width, height}, caption, drawfr);
    print_scan_column(panobj, line, left + width - column_width, top + height - column_height);
    surface().DrawWidth = pen_for(2, 1);

    ScanValueText const text(panobj.maximal);
    double const room_for_values = 1.5 * surface().TextWidth(text(panobj.maximal));
    PaperBox axes{left + room_for_values, top + 500, width - column_width - 300 - room_for_values, height - 1250};
    print_scan_values(panobj, left + width / 60, axes);
    print_scan_positions(line.scan(panobj), axes);
    panobj.D1Plot_AdjustLines(surface(), axes.left, axes.top, axes.width, axes.height);
    print_scan_origin(axes.left, top);
    surface().DrawWidth = pen_for(4, 2);
    print_scan_curve(panobj, line, axes, marksites);
    ResetPrinterObj();
}

// The figure of the panel, on it the line, above it the angle.
void PrintPanel::print_scan_column(panel& panobj, EitherFormArguments const& line, double x, double y)
{
    constexpr double picture_side = 700;
    PlaceOutline(x, y + 360, panobj.SizeX, panobj.SizeY, 0, 90);
    DrawScanIndicator(panobj, line, {x + 135, y + 660, picture_side, picture_side});
    if (line.plotopt == scan_by_angle) {
        std::string angle = "Angle: " + plain_text(line.phi) + " \u00B0";
        DrawLeftText(angle, x, y, 935, 0);
    }
}

void PrintPanel::DrawScanIndicator(panel& panobj, EitherFormArguments const& line, PaperBox const& picture)
{
    constexpr Color green = QBColor(2);
    constexpr double arm = 23;       // of the plus
    constexpr double mark_room = 50; // around the picture; the plus stands a little outside the panel
    double scale = 0;
    auto const x_of = [&](double x) { return to_i16(picture.left + picture.width / 2 + scale * x); };
    auto const y_of = [&](double y) { return to_i16(picture.top + picture.height / 2 - scale * y); };

    ScanLine scan = line.scan(panobj);
    scale = scale_to_fit(panobj, picture.width, picture.height);
    surface().Line(x_of(scan.start_x), y_of(scan.start_y), x_of(scan.end_x), y_of(scan.end_y), green);
    {
        TestSizeScope const wider(panobj, 1.1);
        scan = line.scan(panobj);
    }
    scale = scale_to_fit(panobj, picture.width + mark_room, picture.height + mark_room);
    double const x = x_of(scan.start_x);
    double const y = y_of(scan.start_y);
    surface().Line(x, y + arm, x + 2 * arm, y + arm, green);
    surface().Line(x + arm, y, x + arm, y + 2 * arm, green);
}

void PrintPanel::print_scan_values(panel const& panobj, double x, PaperBox const& axes)
{
    ScanValueText const text_of(panobj.maximal);
    auto const values = scan_axis_values(panobj);
    for (int k = 0; k <= axis_quarters; ++k) {
        std::string text = text_of(values[static_cast<std::size_t>(axis_quarters - k)]);
        DrawLeftText(text, x, axes.top - 90 + k * axes.height / axis_quarters, label_width, blue);
    }
}

void PrintPanel::print_scan_positions(ScanLine const& scan, PaperBox const& axes)
{
    double const step_x = scan.width() / axis_quarters;
    double const step_y = scan.height() / axis_quarters;
    for (int k = 0; k <= axis_quarters; ++k) {
        double const x = axes.left + k * axes.width / axis_quarters;
        double const y = axes.top + axes.height + 100;
        std::string x_text = "X=" + format_mask(scan.start_x + k * step_x, "0.00");
        std::string y_text = "Y=" + format_mask(scan.start_y + k * step_y, "0.00");
        DrawCenterText(x_text, x, y, label_width, blue);
        DrawCenterText(y_text, x, y + surface().TextHeight("0"), label_width, blue);
    }
}

// A plus above the value axis.
void PrintPanel::print_scan_origin(double x, double top)
{
    surface().Line(x - 45, top + 355, x + 45, top + 355, QBColor(blue));
    surface().Line(x, top + 310, x, top + 400, QBColor(blue));
}

void PrintPanel::print_scan_curve(panel& panobj, EitherFormArguments const& line, PaperBox const& axes,
                                  BooleanWord marksites)
{
    ScanArguments scan = line.chosen();
    PaperBox box = axes;
    Color red = QBColor(4);
    std::int16_t steps = 88;
    std::int16_t for_paper = 1;
    panobj.D1Plot(surface(), steps, scan.phi, scan.is_angle, scan.x1, scan.y1, scan.x2, scan.y2, red, box.left, box.top,
                  box.width, box.height, for_paper);
    if (marksites)
        panobj.D1Plot_MarkSites(surface(), nullptr, scan.phi, scan.is_angle, scan.x1, scan.y1, scan.x2, scan.y2, red,
                                box.left, box.top, box.width, box.height, for_paper);
}

} // namespace zendara
