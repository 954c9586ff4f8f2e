#include "zendara/print/viewbitmap.hpp"

#include "zendara/print/data_block.hpp"
#include "zendara/print/paper_text.hpp"
#include "zendara/render/surface/drawing_state.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/number_text.hpp"

#include <cmath>

namespace zendara
{

namespace
{

constexpr std::int16_t side_by_side_from = 4900;
constexpr std::int16_t first_column = 100;

/// "0.1" of "0.1.0".
std::string major_and_minor(std::string const& version)
{
    auto const first_point = version.find('.');
    auto const second_point = first_point == std::string::npos ? first_point : version.find('.', first_point + 1);
    return version.substr(0, second_point);
}

std::string number_text(double value)
{
    return format_not_zero(value, "0.00");
}

std::string percent_text(double value)
{
    return number_text(value) + " %";
}

// Without a guard against a length too small for the mask.
std::string in_millimetres(double length)
{
    return format_mask(length, "00.00") + " mm";
}

double variation_in_percent(panel const& record)
{
    double const sum = record.maxi + record.mini;
    return sum == 0 ? 0 : finite(std::abs((record.maxi - record.mini) / sum) * 100);
}

} // namespace

Surface& viewbitmap::bitmap() const
{
    if (bitmap_ == nullptr)
        fail(FailureKind::ObjectNotSet, "BitmapObj is nothing");
    return *bitmap_;
}

panel& viewbitmap::wafer() const
{
    if (wafer_ == nullptr)
        fail(FailureKind::ObjectNotSet, "WaferObj is nothing");
    return *wafer_;
}

void viewbitmap::Resetbitobj()
{
    bitmap().ScaleMode(scale_twips);
    reset_pen_and_fill(bitmap());
}

void viewbitmap::DrawPanelData()
{
    Resetbitobj();
    std::int16_t const top = to_i16(bitmap().height);
    std::int16_t const width = to_i16(bitmap().width);
    std::int16_t height = 0;
    if (width < side_by_side_from) {
        height = grow(top, 4400);
        DrawStatisticsBlock(first_column, top);
        DrawSizeBlock(first_column, to_i16(top + 2400.0));
    } else {
        height = grow(top, 3000);
        DrawStatisticsBlock(first_column, top);
        DrawSizeBlock(to_i16((width - 200.0) * 0.5), top);
    }
    draw_title(to_i16(height - 400.0), to_i16(width - 200.0));
}

std::int16_t viewbitmap::grow(std::int16_t height, double by)
{
    std::int16_t const grown = to_i16(height + by);
    bitmap().set_height(grown);
    return grown;
}

void viewbitmap::draw_title(std::int16_t y, std::int16_t width)
{
    FontFace& font = bitmap().Font;
    font.Bold = !font.Bold;
    font.size = 12;
    std::string title = "Zendara View.OCX " + major_and_minor(container_.version());
    DrawBitmapText(title, first_column, y, width, 0);
    font.Bold = !font.Bold;
    font.size = 10;
}

void viewbitmap::DrawBitmapText(std::string& text, std::int16_t x, std::int16_t y, std::int16_t width,
                                std::int16_t colInd)
{
    print_left_text(bitmap(), text, x, y, width, colInd);
}

void viewbitmap::draw_block(std::string title, std::vector<BlockRow> const& rows, std::int16_t x, std::int16_t y)
{
    constexpr std::int16_t title_width = 2775;
    constexpr std::int16_t text_width = 1200;
    FontFace& font = bitmap().Font;
    font.Underline = !font.Underline;
    DrawBitmapText(title, x, y, title_width, 0);
    font.Underline = !font.Underline;
    for (auto const& row : rows) {
        std::string label = row.label;
        std::string value = row.value;
        std::int16_t const row_top = to_i16(static_cast<double>(y) + row.offset);
        if (!label.empty())
            DrawBitmapText(label, to_i16(x + 120.0), row_top, text_width, 0);
        DrawBitmapText(value, to_i16(x + 1300.0), row_top, text_width, 0);
    }
}

void viewbitmap::DrawStatisticsBlock(std::int16_t x, std::int16_t y)
{
    panel const& record = wafer();
    StatisticsTexts texts;
    texts.mean = number_text(record.mean);
    texts.maximum = number_text(record.maxi);
    texts.minimum = number_text(record.mini);
    texts.deviation = number_text(record.StdDev);
    if (auto const percent = deviation_in_percent(record))
        texts.deviation_percent = percent_text(*percent);
    texts.range = number_text(record.maxi - record.mini);
    texts.variation = percent_text(variation_in_percent(record));
    texts.unit = first_15_letters(record.Meas_unit);
    draw_block("panel Statistics", statistics_rows(texts), x, y);
}

void viewbitmap::DrawSizeBlock(std::int16_t x, std::int16_t y)
{
    panel const& record = wafer();
    draw_block("Panel Size",
               {{360, "Panel Width:", in_millimetres(record.SizeX)},
                {600, "Panel Height:", in_millimetres(record.SizeY)},
                {840, "No. Sites:", plain_text(record.GetNop())}},
               x, y);
}

void viewbitmap::DrawRemarksBlock(std::int16_t x, std::int16_t y)
{
    auto rows = remark_rows(wafer());
    rows.push_back({2040, "Filename:", first_15_letters(wafer().filename)});
    draw_block("panel Remarks ", rows, x, y);
}

} // namespace zendara
