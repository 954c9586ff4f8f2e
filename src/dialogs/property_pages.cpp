#include "zendara/dialogs/dialog_classes.hpp"
#include "zendara/dialogs/frm_plot_opt_3d.hpp"
#include "zendara/dialogs/property_page.hpp"
#include "zendara/form/line_overview.hpp"
#include "zendara/panel/panel.hpp"
#include "zendara/support/interface.hpp"
#include "zendara/support/trap.hpp"

#include <array>

namespace zendara
{

namespace
{

constexpr auto stands = EmptyText::Stands;
constexpr auto replaced = EmptyText::IsReplaced;
constexpr auto last_angle = RefusedAngle::BecomesLastAngle;

// --- Fields that several pages have ---------------------------------------------------------------------------------

constexpr PageNumberRow resolution_x{"txtResolution", "Resolution X: ", 'X', "mm", "ResolutionX", 5, replaced};
constexpr PageNumberRow resolution_y{"tytResolution", "Resolution Y: ", 'Y', "mm", "ResolutionY", 5, replaced};
constexpr PageCheckRow show_sites{"chkShowSites", "ShowSites:", 'S', "ShowSites"};
constexpr PageNumberRow sigma_range{"txtSigmaRange", "Sigma Range: ", 'g', "", "SigmaRange", 0.5, replaced};

constexpr PageNumberRow cell_x{"txtXResolution", "Resolution X: ", 'X', "mm", "XResolution", 5, stands};
constexpr PageNumberRow cell_y{"txtYResolution", "Resolution Y: ", 'Y', "mm", "YResolution", 5, stands};
constexpr PageNumberRow plot_scale{"txtPlotScale", "Scale: ", 'S', "mm", "PlotScale", 40, stands};
constexpr AngleRow grid_rotation{"txtGridRotation", "Rotation:", 'R', 361, 90, 90, last_angle};
constexpr AngleRow grid_inclination{"txtGridInclination", "Inclination:", 'I', 361, 90, 90, last_angle};

// --- Pages ----------------------------------------------------------------------------------------------------------

class PanelInfoProp final : public PropertyPage
{
public:
    explicit PanelInfoProp(Platform& platform) : PropertyPage(platform, "PanelInfoProp", "Wafer Size")
    {
        static constexpr PageNumberRow width{"txtPanelSizeX", "Panel Width : ", 'W', "mm", "PanelSizeX", 300, stands};
        static constexpr PageNumberRow height{"txtPanelSizeY", "Panel Height : ", 'H', "mm", "PanelSizeY", 200, stands};
        static constexpr PageCheckRow hide_legend{"showLeg", "Hide Plot Legend:", 'L', "HideLegend"};
        RowLayout rows(frame_);
        add<PageNumber>(frame_, width).add_to(rows);
        add<PageNumber>(frame_, height).add_to(rows);
        add<PageCheck>(frame_, hide_legend).add_to(rows);
        place(rows);
    }
};

class Plot2DProp final : public PropertyPage
{
public:
    explicit Plot2DProp(Platform& platform) : PropertyPage(platform, "Plot2DProp", "2D Plot Options")
    {
        RowLayout rows(frame_);
        add<PageNumber>(frame_, resolution_x).add_to(rows);
        add<PageNumber>(frame_, resolution_y).add_to(rows);
        add<PageCheck>(frame_, show_sites).add_to(rows);
        place(rows);
    }
};

class Plot2DSProp final : public PropertyPage
{
public:
    explicit Plot2DSProp(Platform& platform) : PropertyPage(platform, "Plot2DSProp", "")
    {
        RowLayout rows(frame_);
        add<PageNumber>(frame_, resolution_x).add_to(rows);
        add<PageNumber>(frame_, resolution_y).add_to(rows);
        add<PageNumber>(frame_, sigma_range).add_to(rows);
        add<PageCheck>(frame_, show_sites).add_to(rows);
        place(rows);
    }
};

class Plot2DCProp final : public PropertyPage
{
public:
    explicit Plot2DCProp(Platform& platform) : PropertyPage(platform, "Plot2DCProp", "")
    {
        static constexpr PageNumberRow interval{"txtInterval", "Interval:", 'I', "", "Interval", 1, stands};
        static constexpr PageCheckRow unit{"com2DC", "Measurement Units!", 'U', "IntervalInPercent", true};
        static constexpr PageOptionRow colors[] = {
            {0, "black/white", 0}, {1, "3 - colored", 1}, {2, "10 - colored", 2}};
        // Crossed against the option dialog: there the first button stands for the exact sites.
        static constexpr PageOptionRow marks[] = {{3, "none", 3}, {2, "exact", 1}, {1, "converted", 2}};
        static constexpr PageOptionRow resolutions[] = {{0, "Low", 0}, {2, "Auto", 2}, {1, "High", 1}};

        RowLayout rows(frame_);
        auto& distance = add<PageNumber>(frame_, interval);
        auto& is_in_units = add<PageCheck>(frame_, unit);
        rows.add({&distance.caption}, {&distance.box, &is_in_units.box});
        add<PageOptions>(frame_, "Optcol", "Draw Plot:", 'D', "PlotColored", colors).add_to(rows);
        add<PageOptions>(frame_, "OptExcon", "Mark Sites:", 'M', "marksites", marks).add_to(rows);
        add<PageOptions>(frame_, "OptQuali", "Plot Resolution:", 'R', "Resolution", resolutions).add_to(rows);
        place(rows);
    }
};

class Plot3DProp final : public PropertyPage
{
public:
    explicit Plot3DProp(Platform& platform)
        : PropertyPage(platform, "Plot3DProp", ""), view_(frame_, grid_rotation, grid_inclination, "")
    {
        // The buttons of the option dialog, with the same meaning of their indices.
        static std::array<PageOptionRow, 3> const plot_types = [] {
            std::array<PageOptionRow, 3> rows;
            for (std::size_t i = 0; i < rows.size(); ++i) {
                OptionRow const& button = surface_plot_types[i];
                rows[i] = {button.index, button.caption, plot_type_of_index(button.index)};
            }
            return rows;
        }();
        RowLayout rows(frame_);
        add<PageNumber>(frame_, cell_x).add_to(rows);
        add<PageNumber>(frame_, cell_y).add_to(rows);
        add<PageNumber>(frame_, plot_scale).add_to(rows);
        add<PageAngle>(view_.rotation, "GridRotation");
        add<PageAngle>(view_.inclination, "GridInclination");
        add<PageOptions>(frame_, "optPlot", "Plot Type", 'T', "PlotType", plot_types).add_to(rows);
        rows.add({&view_.grid});
        place(rows);
    }

private:
    ViewFields view_;
};

class Plot3DSProp final : public PropertyPage
{
public:
    explicit Plot3DSProp(Platform& platform)
        : PropertyPage(platform, "Plot3DSProp", ""), view_(frame_, grid_rotation, grid_inclination, ""),
          panel_group_(frame_, "Wafer"), panel_rotation_(panel_group_, panel_rotation_row)
    {
        panel_group_.caption("Wafer");
        panel_rotation_.on_turn = [this] { view_.draw(); };
        RowLayout group(panel_group_);
        group.add({&panel_rotation_.caption}, {&panel_rotation_.box, &panel_rotation_.unit});
        group.place();

        RowLayout rows(frame_);
        add<PageNumber>(frame_, cell_x).add_to(rows);
        add<PageNumber>(frame_, cell_y).add_to(rows);
        add<PageNumber>(frame_, plot_scale).add_to(rows);
        add<PageAngle>(view_.rotation, "GridRotation");
        add<PageAngle>(view_.inclination, "GridInclination");
        add<PageNumber>(frame_, sigma_range).add_to(rows);
        add<PageAngle>(panel_rotation_, "PanelRotation");
        rows.add({&view_.grid});
        rows.add({&panel_group_});
        place(rows);
    }

private:
    static constexpr AngleRow panel_rotation_row{"txtPanelRotation", "Rotation:", 'o', 361, 359, 0, last_angle};

    ViewFields view_;
    Frame panel_group_;
    AngleField panel_rotation_;
};

class HistogrammProp final : public PropertyPage
{
public:
    explicit HistogrammProp(Platform& platform) : PropertyPage(platform, "HistogrammProp", "")
    {
        static constexpr PageNumberRow bins{"txtResolution", "Resolution : ", 'R', "Ranges", "Resolution", 0.01,
                                            replaced};
        static constexpr PageOptionRow edges[] = {{0, "Bottom", 1}, {1, "Top", 2}, {2, "Left", 3}, {3, "Right", 4}};
        RowLayout rows(frame_);
        add<PageNumber>(frame_, bins).add_to(rows);
        add<PageOptions>(frame_, "optPlot", "Plot Type", 'T', "PlotType", edges).add_to(rows);
        place(rows);
    }
};

class LineScanAngleProp final : public PropertyPage
{
public:
    explicit LineScanAngleProp(Platform& platform)
        : PropertyPage(platform, "LineScanAngleProp", "Line Scan Options"), group_(frame_, "Frame2"),
          angle_(group_, angle_row), picture_part_(group_, "picture_part"),
          overview_(picture_part_, {"FNPic", "Line1", "Line2", "Line3", "picplus"}, {12, 12, 130, 88})
    {
        group_.caption("1D Plot Option");
        picture_part_.has_border = false;
        picture_part_.Move(0, 0, 154 * platform.twips_per_pixel_x(), 112 * platform.twips_per_pixel_y());
        angle_.on_turn = [this] { draw_line(); };
        add<PageAngle>(angle_, "angle");
        on_selection = [this](Object& control) { take_panel(control); };

        RowLayout group(group_);
        group.add({&angle_.caption}, {&angle_.box, &angle_.unit});
        group.add({&picture_part_});
        group.place();
        RowLayout rows(frame_);
        rows.add({&group_});
        place(rows);
    }

private:
    static constexpr AngleRow angle_row{"txtAngle", "Angle:", 'A', 360, 359, 0, RefusedAngle::BecomesZero};

    void take_panel(Object& control)
    {
        auto const number = [&](char const* property) { return to_double(get_member(control, property)); };
        shown_.TestSizeX = number("TestSizeX");
        shown_.TestSizeY = number("TestSizeY");
        shown_.HalfTestSizeX = shown_.TestSizeX / 2;
        shown_.HalfTestSizey = shown_.TestSizeY / 2;
        rotation_x_ = number("RotationPointX");
        rotation_y_ = number("RotationPointY");
        shown_.GridPosShow(nullptr, overview_.picture.surface(), 0, 90);
        draw_line();
    }

    // A panel without a size has no picture, and the field goes on without it.
    void draw_line()
    {
        trap({&platform(), *this, "LineScanAngleProp", "line"}, [&] {
            std::int16_t mode = 1;
            std::int16_t angle = angle_.degrees();
            double x1 = rotation_x_, y1 = rotation_y_, x2 = 0, y2 = 0;
            shown_.draw_indicator(overview_.line, overview_.mark, mode, angle, x1, y1, x2, y2, 0, 0,
                                  overview_.picture.surface());
            overview_.line.Refresh();
        });
    }

    Frame group_;
    AngleField angle_;
    Frame picture_part_;
    LineOverview overview_;
    // The sizes of the control's panel. A panel of the page's own shows no message where the line misses it.
    panel shown_;
    double rotation_x_ = 0;
    double rotation_y_ = 0;
};

template <class Page> std::unique_ptr<PropertyPage> make(Platform& platform)
{
    return std::make_unique<Page>(platform);
}

constexpr std::array<PageClass, 8> pages = {{
    {"PanelInfoProp", "", &make<PanelInfoProp>},
    {"Plot2DProp", "ZvPlot2D", &make<Plot2DProp>},
    {"Plot2DSProp", "ZvPlot2DS", &make<Plot2DSProp>},
    {"Plot2DCProp", "ZvPlot2DC", &make<Plot2DCProp>},
    {"Plot3DProp", "ZvPlot3D", &make<Plot3DProp>},
    {"Plot3DSProp", "ZvPlot3DS", &make<Plot3DSProp>},
    {"HistogrammProp", "ZvHistogram", &make<HistogrammProp>},
    {"LineScanAngleProp", "ZvLineScan", &make<LineScanAngleProp>},
}};

} // namespace

std::span<PageClass const> page_classes()
{
    return pages;
}

std::vector<PageClass const*> pages_of(std::string_view control)
{
    std::vector<PageClass const*> found;
    for (PageClass const& page : pages)
        if (page.control.empty() || equals_ignoring_case(page.control, control))
            found.push_back(&page);
    return found;
}

} // namespace zendara
