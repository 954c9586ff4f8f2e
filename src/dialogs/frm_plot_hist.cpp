#include "zendara/dialogs/frm_plot_hist.hpp"

#include "zendara/support/checked.hpp"
#include "zendara/support/number_text.hpp"

namespace zendara
{

namespace
{

constexpr FieldRow bins{"tresx", "Resolution : ", 'R', "Ranges", Entry::WholeNumber};
constexpr FieldCheck check_bins{"Resolution ", 1, {1000}};

} // namespace

frmPlotHist::frmPlotHist(Platform& platform)
    : OptionDialog(platform, "frmPlotHist", "Histogram Options"), tresx(frame, bins), ground(frame)
{
    check_on_ok(tresx, check_bins);

    RowLayout rows(frame);
    rows.add({&tresx.caption}, {&tresx.box, &tresx.unit});
    rows.add({&ground.whiteback});
    place(rows);
}

void frmPlotHist::SetValues(panel& wafo, double res, Color BackC)
{
    keep_panel(wafo);
    resolution_ = res;
    tresx.open(res);
    ground.open(BackC);
}

void frmPlotHist::confirm()
{
    redraw(false);
    std::string message;
    if (!is_valid(message)) {
        show_input_error(message, message_system_modal);
        return;
    }
    double const entered = static_cast<double>(to_f32(parse_number(tresx.box.Text()).value_or(0)));
    if (entered != tresx.opening_value()) {
        redraw(true);
        resolution_ = entered;
    }
    Hide();
}

Interface const& frmPlotHist::host_interface() const
{
    using D = frmPlotHist;
    static Interface const table{"frmPlotHist", "Options of the histogram.",
                                 join({place_and_looks(),
                                       {method<&D::SetValues>("SetValues", "Fills the dialog.", by_reference("wafo"),
                                                              by_value("res"), by_value("BackC")),
                                        redraw_row(), method<&D::GetResolution>("GetResolution", "Number of bins."),
                                        method<&D::GetBackColor>("GetBackColor", "Colour around the plot.")}})};
    return table;
}

} // namespace zendara
