#pragma once

#include "panels.hpp"
#include "trace_text.hpp"
#include "zendara/render/surface/recorder.hpp"
#include "zendara/support/number_text.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace zendara::test
{

/// What a caller of Statistic passes, in its own variables, so that what comes back can be looked at.
struct HistogramCall {
    std::int16_t plot_type = 1;
    double x0 = 45, y0 = 12, breite = 299, hoehe = 199;
    double stat_resol = 10;
    std::int16_t laenge = 4;
    double left = 0, top = 0;
    std::int16_t show_disp = 0;

    void run(panel& record, Surface& plot, Surface& axes)
    {
        record.Statistic(plot_type, plot, axes, x0, y0, breite, hoehe, stat_resol, laenge, left, top, show_disp);
    }
};

/// On paper: twips, in a box of the page.
inline HistogramCall paper_call(std::int16_t plot_type)
{
    HistogramCall call;
    call.plot_type = plot_type;
    call.x0 = call.left = 1200;
    call.y0 = call.top = 960;
    call.breite = 4800;
    call.hoehe = 3600;
    call.laenge = 60;
    call.show_disp = 1;
    return call;
}

/// The inner picture of a control, where it sits in the outer one.
inline std::unique_ptr<Recorder> inner_picture(HistogramCall const& call)
{
    auto picture = Recorder::picture({0, 0, call.breite + 1, call.hoehe + 1});
    picture->left = call.x0;
    picture->top = call.y0;
    picture->width = call.breite + 1;
    picture->height = call.hoehe + 1;
    return picture;
}

/// What a run draws on both surfaces.
struct HistogramDrawing {
    std::vector<TraceRecord> plot, axes;
};

inline HistogramDrawing draw_on_screen(panel& record, HistogramCall& call)
{
    auto const plot = inner_picture(call);
    auto const axes = Recorder::picture({0, 0, call.breite + 100, call.hoehe + 60});
    call.run(record, *plot, *axes);
    return {plot->take_record(), axes->take_record()};
}

inline HistogramDrawing draw_on_screen(panel& record, HistogramCall&& call)
{
    return draw_on_screen(record, call);
}

/// On paper all comes in one record.
inline std::vector<TraceRecord> draw_on(Recorder& paper, panel& record, HistogramCall call)
{
    paper.ScaleMode(scale_pixels);
    paper.take_record();
    call.run(record, paper, paper);
    return paper.take_record();
}

inline std::vector<std::string> texts_of(std::vector<TraceRecord> const& records)
{
    std::vector<std::string> texts;
    for (auto const& record : only(records, "Text"))
        texts.push_back(item<std::string>(record, 0));
    return texts;
}

/// The lines of a pen, told apart by colour and width.
inline std::vector<TraceRecord> lines_of(std::vector<TraceRecord> const& records, std::int32_t color,
                                         std::int32_t width)
{
    std::vector<TraceRecord> found;
    for (auto const& line : only(records, "Line"))
        if (item<std::int32_t>(line, 4) == color && item<std::int32_t>(line, 5) == width)
            found.push_back(line);
    return found;
}

inline double number(TraceRecord const& record, std::size_t index)
{
    return item<double>(record, index);
}

/// Sites of which only the values count.
inline std::vector<Site> sites_of(std::vector<double> const& values)
{
    std::vector<Site> sites;
    for (double const value : values)
        sites.push_back({0, 0, value});
    return sites;
}

inline std::unique_ptr<panel> panel_of(std::vector<double> const& values)
{
    return make_panel(300, 200, sites_of(values));
}

} // namespace zendara::test
