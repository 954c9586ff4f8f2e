#include "zendara/panel/panel.hpp"
#include "zendara/render/plots/line_scan_area.hpp"
#include "zendara/render/surface/widget.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/number_text.hpp"

#include <cmath>
#include <optional>
#include <string>
#include <utility>

namespace zendara
{

namespace
{

constexpr double half_picture_twips = 105; // of a site's mark on the screen
constexpr double circle_radius = 50;       // of a site's mark on paper

double length_of(double width, double height)
{
    return std::sqrt(finite(width * width + height * height));
}

/// Tells which sites a scan line marks.
class SiteFilter
{
public:
    explicit SiteFilter(ScanLine const& line) : is_vertical_(line.is_vertical())
    {
        if (is_vertical_)
            return;
        slope_ = divide(line.height(), line.width());
        // The true intercept only of a line from the left to the right edge. On others sites are missed; hosts know
        // their marks so.
        intercept_ = line.start_x * slope_ + line.end_y;
    }

    bool is_vertical() const { return is_vertical_; }

    /// Whether a site lies on the line to four decimals. On a vertical line those of the column x = 0 do, wherever the
    /// line is.
    bool operator()(double x, double y) const
    {
        if (is_vertical_)
            return x == 0;
        std::string const height = format_mask(finite(slope_ * x + intercept_), "0.0000");
        return to_f32(parse_number(height).value_or(0)) == to_f32(y);
    }

private:
    bool is_vertical_;
    double slope_ = 0;
    double intercept_ = 0;
};

/// Shows marks on the screen. The first one takes the last picture of the array, each further one a new picture.
class PictureMarks
{
public:
    explicit PictureMarks(WidgetArray& pictures) : pictures_(pictures), next_(pictures.Count())
    {
        for (int i = 0; i < pictures.Count(); ++i)
            pictures(i).Visible(false);
    }

    void show(double x, double y, std::string tip)
    {
        if (next_ > pictures_.Count())
            pictures_.load_next();
        Widget& picture = pictures_(next_ - 1);
        picture.Move(x - half_picture_twips, y - half_picture_twips, picture.Width(), picture.Height());
        picture.ToolTipText(std::move(tip));
        picture.Visible(true);
        ++next_;
    }

private:
    WidgetArray& pictures_;
    int next_;
};

void draw_paper_mark(Surface& paper, double x, double y, Color color)
{
    paper.FillStyle = fill_solid;
    paper.Circle(x, y, circle_radius, color);
    paper.FillStyle = fill_none;
}

// The blank is missing on sloped lines.
std::string tool_tip(double x, double y, double value, bool is_vertical)
{
    return "X = " + plain_text(x) + "  Y= " + plain_text(y) + (is_vertical ? " FW = " : "FW = ") + plain_text(value);
}

} // namespace

void panel::D1Plot_MarkSites(Surface& Plot, WidgetArray* picgrid, std::int16_t& phi, std::int16_t& D1Angle, double& x1,
                             double& y1, double& x2, double& y2, Color& DrawCol, double& left, double& top,
                             double& width, double& height, std::int16_t& ShowDisp)
{
    bool const is_paper = is_for_paper(ShowDisp);
    ScanArea const area(Plot, {left, top, width, height}, ShowDisp);
    if (is_paper)
        Plot.FillColor = DrawCol;
    if (GetNop() < fewest_scanned_sites)
        return;
    std::optional<PictureMarks> pictures;
    if (!is_paper) {
        if (picgrid == nullptr)
            fail(FailureKind::ObjectNotSet, "sites cannot be marked on the screen without an array of pictures");
        pictures.emplace(*picgrid);
    }
    ScanLine const line = ScanArguments{phi, D1Angle, x1, y1, x2, y2}.scan(*this);
    if (line.is_point())
        return;

    SiteFilter const is_marked(line);
    double const per_millimetre = divide(area.width, length_of(line.width(), line.height()));
    std::int16_t const count = to_i16(GetNop());
    for (std::int32_t site = 1; site <= count; ++site) {
        double const x = grid_x_(site);
        double const y = grid_y_(site);
        double const value = grid_z_(site);
        if (!is_marked(x, y))
            continue;
        double const from_start = length_of(x - line.start_x, y - line.start_y);
        double const mark_x = per_millimetre * from_start + area.left;
        double const mark_y = area.y_of(value, *this);
        if (pictures)
            pictures->show(mark_x, mark_y, tool_tip(x, y, value, is_marked.is_vertical()));
        else
            draw_paper_mark(Plot, mark_x, mark_y, DrawCol);
    }
}

} // namespace zendara
