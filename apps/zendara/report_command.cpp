#include "commands.hpp"
#include "drawing.hpp"
#include "near_names.hpp"
#include "output_file.hpp"
#include "printing.hpp"
#include "progress.hpp"
#include "report_sheet.hpp"
#include "setting.hpp"
#include "zendara/support/failure.hpp"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace zendara::program
{

namespace
{

namespace fs = std::filesystem;

/// A view, and what the report calls it unless the user tells another caption.
struct View {
    std::string_view control, caption;
};

// In the order of the pages: the map and the distribution of its values, then the other views.
constexpr View usual_views[] = {
    {"ZvPlot2D", "Map"},
    {"ZvHistogram", "Histogram"},
    {"ZvPlot2DV", "Values"},
    {"ZvPlot2DS", "Sigma map"},
    {"ZvPlot2DC", "Contours"},
    {"ZvPlot3D", "Surface"},
    {"ZvPlot3DS", "Sigma surface"},
    {"ZvPlot3DB", "Bars"},
    {"ZvLineScan", "Line scan"},
};

using Controls = std::vector<ControlClass const*>;

ControlClass const& wanted_control(std::string_view name)
{
    if (auto const* const found = find_control_class(name))
        return *found;
    std::vector<std::string_view> names;
    for (auto const& known : control_classes())
        names.push_back(known.name);
    auto const hint = did_you_mean(std::string(name), names);
    throw UserError("--controls: there is no control \"" + std::string(name) + "\"" +
                    (hint.empty() ? "" : "; " + hint));
}

Controls controls_of(ReportOptions const& options)
{
    Controls controls;
    for (auto const& name : options.controls)
        controls.push_back(&wanted_control(name));
    if (options.controls.empty())
        for (auto const& view : usual_views)
            controls.push_back(&wanted_control(view.control));
    return controls;
}

PaperSize paper_of(ReportOptions const& options)
{
    auto const paper = paper_size_of(options.page);
    if (!paper)
        throw UserError("--page: expected A4 or Letter, not \"" + options.page + "\"");
    return options.is_landscape ? paper->turned() : *paper;
}

/// A setting goes to every control that has the property; one that none has is a mistake.
void check_settings(std::vector<std::string> const& settings, Controls const& controls)
{
    for (auto const& setting : settings)
        if (std::none_of(controls.begin(), controls.end(),
                         [&](auto const* each) { return has_setting(each->interface_table(), setting); }))
            throw UserError("--set " + setting + ": no printed control has this property");
}

void set_caption(Control& control)
{
    for (auto const& view : usual_views)
        if (view.control == control.host_interface().class_name &&
            control.host_interface().find("PlotCaption") != nullptr)
            put_member(control, "PlotCaption", std::string(view.caption));
}

void apply_settings(Control& control, std::vector<std::string> const& settings)
{
    for (auto const& setting : settings)
        if (has_setting(control.host_interface(), setting))
            apply_setting(control, setting);
}

/// The report on its way to paper.
class Report
{
public:
    explicit Report(ReportOptions const& options)
        : options_(options), controls_(controls_of(options)), paper_(options.output, paper_of(options)),
          sheet_(paper_.paper(), paper_.TextHeight("0"))
    {
        check_settings(options.settings, controls_);
    }

    void print()
    {
        Progress progress("printing");
        for (std::size_t i = 0; i < controls_.size(); ++i) {
            progress.show(i, controls_.size());
            if (i % ReportSheet::plots_per_page == 0)
                begin_page(i / ReportSheet::plots_per_page);
            print_control(i);
        }
        paper_.EndDoc();
    }

private:
    void begin_page(std::size_t page)
    {
        if (page > 0)
            paper_.NewPage();
        std::size_t const pages = (controls_.size() + ReportSheet::plots_per_page - 1) / ReportSheet::plots_per_page;
        auto const title = fs::path(options_.data.file).filename().string();
        sheet_.write_margins(paper_, title, options_.date, page + 1, pages);
    }

    void print_control(std::size_t index)
    {
        constexpr Size usual_pixels = {1000, 700};
        LoadedControl loaded(std::string(controls_[index]->name), usual_pixels, options_.data);
        set_caption(loaded.control());
        apply_settings(loaded.control(), options_.settings);
        set_limits(loaded.control(), options_.limits);
        if (index == 0)
            tell_panel_note(loaded);

        PrintedControl printed(loaded, paper_, options_.data.file);
        PlotPlace const place = sheet_.place(index, printed.has_legend());
        print_plot(printed, place.plot, index);
        if (printed.has_legend())
            printed.print_legend(place.legend_left, place.legend_top);
        if (index == 0) {
            printed.print_size(place.legend_left, place.size_top);
            printed.print_statistic(place.legend_left, place.statistic_top, options_.units);
        }
    }

    // A plot may fail where the others do not: contours have a limit on their nodes. The report goes on without it.
    void print_plot(PrintedControl& printed, PageBox const& box, std::size_t index)
    {
        try {
            printed.print_plot(box);
        } catch (Failure const& failure) {
            std::fprintf(stderr, "zendara: warning: %s cannot draw these data: %s\n",
                         std::string(controls_[index]->name).c_str(), failure.what());
        }
    }

    ReportOptions const& options_;
    Controls controls_;
    PaperSurface paper_; // outlives the controls that print on it
    ReportSheet sheet_;
};

} // namespace

Exit report(ReportOptions const& options)
{
    check_output(options.output, {".pdf"}, options.data.file);
    Report(options).print();
    return Exit::Done;
}

} // namespace zendara::program
