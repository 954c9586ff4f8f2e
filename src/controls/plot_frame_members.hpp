#pragma once

#include "zendara/controls/plot_frame.hpp"
#include "zendara/controls/shared_members.hpp"

namespace zendara
{

/// The public members of the controls with a plot beside a legend, beyond those that all nine share. It holds no
/// state: `Self` owns a PlotFrame as `plot_frame_` and fills in missing settings in `prepare_plot`.
template <class Self> class PlotFrameMembers : public SharedMembers<Self>
{
public:
    /// Lays the control out and draws it where the picture does not hold.
    /// @return  0 done, 1 there are no data
    std::int16_t Plot()
    {
        if (frame().record.GetNop() == 0)
            return 1;
        frame().plot_requested = true;
        self().prepare_plot();
        plot_frame().lay_out();
        return 0;
    }

    /// Colour around the plot; the plot keeps its own.
    Color BackColor() const { return plot_frame().BackColor(); }
    void BackColor(Color color)
    {
        plot_frame().BackColor(color);
        frame().report_change("BackColor");
    }

    /// Hides the column with the legend; the plot then takes the whole control.
    BooleanWord HideLegend() const { return !frame().legend_shown; }
    void HideLegend(BooleanWord is_hidden)
    {
        plot_frame().show_legend(!is_hidden);
        frame().window.Refresh();
        plot_frame().lay_out();
        frame().report_change("HideLegend");
    }

    /// Text in the upper edge of the plot's frame.
    std::string const& PlotCaption() const { return plot_frame().view.Frplot.caption(); }
    void PlotCaption(std::string_view caption)
    {
        plot_frame().view.Frplot.caption(caption);
        frame().window.Refresh();
        frame().report_change("PlotCaption");
    }

    /// Makes the next Plot draw anew.
    void SetPlotNotVaild() { frame().image_valid = false; }

protected:
    /// What the start values of these controls have in common.
    void start_frame()
    {
        this->start_sizes();
        plot_frame().show_legend(true);
        plot_frame().view.Frplot.caption("Panel");
    }

    /// Shows an option dialog; after its OK the settings are stored and the plot is drawn at once.
    template <class Store> void answer_options(OptionDialog& dialog, Store store)
    {
        if (!frame().confirms(dialog))
            return;
        store();
        plot_frame().draw_now();
    }

    /// The colour that an option dialog starts with, and what its choice does: another one goes around the plot.
    Color plot_color() const { return plot_frame().view.PLOTA.BackColor(); }
    void take_color(Color color)
    {
        if (color != plot_color())
            self().BackColor(color);
    }

    void clear_display() { plot_frame().clear_display(); }
    void drop_stored_picture() { plot_frame().drop_stored_picture(); }

private:
    friend class SharedMembers<Self>;

    Self& self() { return static_cast<Self&>(*this); }
    ControlFrame& frame() { return static_cast<Self&>(*this).frame_; }
    ControlFrame const& frame() const { return static_cast<Self const&>(*this).frame_; }
    PlotFrame& plot_frame() { return static_cast<Self&>(*this).plot_frame_; }
    PlotFrame const& plot_frame() const { return static_cast<Self const&>(*this).plot_frame_; }
};

template <class C> Member plot_row()
{
    return method<&PlotFrameMembers<C>::Plot>("Plot", "Shows the plot: 0 done, 1 no data.");
}

template <class C> Member back_color_row()
{
    using P = PlotFrameMembers<C>;
    return color_row<C, P, &P::BackColor, &P::BackColor>("BackColor", "Colour around the plot.");
}

template <class C> std::vector<Member> legend_and_caption_rows()
{
    using P = PlotFrameMembers<C>;
    return {
        property<P, BooleanWord, &P::HideLegend, &P::HideLegend>("HideLegend", "Hides the legend.")
            .of_kind(MemberKind::PutGet),
        text_property<P, &P::PlotCaption, &P::PlotCaption>("PlotCaption", "Caption of the plot.")
            .of_kind(MemberKind::PutGet),
    };
}

template <class C> Member set_plot_not_valid_row()
{
    return method<&PlotFrameMembers<C>::SetPlotNotVaild>("SetPlotNotVaild", "Makes the next Plot draw anew.");
}

} // namespace zendara
