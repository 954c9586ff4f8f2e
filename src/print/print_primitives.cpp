#include "zendara/print/paper_text.hpp"
#include "zendara/print/print_panel.hpp"
#include "zendara/render/surface/drawing_state.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/number_text.hpp"

namespace zendara
{

Surface& PrintPanel::surface() const
{
    if (PrinterObj == nullptr)
        fail(FailureKind::ObjectNotSet, "PrinterObj is nothing");
    return *PrinterObj;
}

std::int16_t PrintPanel::pen_for(std::int16_t on_printer, std::int16_t on_picture) const
{
    return surface().is_printer() ? on_printer : on_picture;
}

void PrintPanel::ResetPrinterObj()
{
    reset_font(surface());
    surface().ScaleMode(scale_twips);
    reset_pen_and_fill(surface());
}

void PrintPanel::DrawLeftText(std::string& text, double left, double top, double width, std::int16_t colInd)
{
    print_left_text(surface(), text, left, top, width, colInd);
}

void PrintPanel::DrawCenterText(std::string& text, double left, double top, double width, std::int16_t colInd)
{
    double const measured = cut_to_fit(surface(), text, width, Cut::BothEnds);
    print_text(surface(), text, to_i16(left - measured / 2), top, colInd);
}

void PrintPanel::DrawRightText(std::string& text, double left, double top, double width, std::int16_t colInd)
{
    double const measured = cut_to_fit(surface(), text, width, Cut::Start);
    print_text(surface(), text, left - measured, top, colInd);
}

void PrintPanel::DrawFrame(std::string const& text, double left, double top, double width, double height)
{
    constexpr Color dark_grey = 0x404040;
    ResetPrinterObj();
    Surface& page = surface();
    page.ScaleMode(scale_twips);
    page.DrawWidth = 2;

    bool const is_closed = text.empty();
    double const line_height = page.TextHeight(is_closed ? "P" : text);
    double const caption_width = page.TextWidth(text);
    double const upper = top + line_height;
    double const lower = top + height + line_height;
    double const right = left + width;
    double const first = is_closed ? left : left + 100; // the caption's gap reaches from here
    double const last = is_closed ? left : left + caption_width + 200;

    if (is_closed) {
        page.Line(left, upper, left, lower, dark_grey);
    } else {
        page.Line(first, upper, left, upper, dark_grey);
        page.LineTo(left, lower, dark_grey);
    }
    page.LineTo(right, lower, dark_grey);
    page.LineTo(right, upper, dark_grey);
    page.LineTo(last, upper, dark_grey);

    if (!is_closed) {
        page.CurrentX = left + 150;
        page.CurrentY = top + line_height / 2;
        page.Print(text);
    }
    ResetPrinterObj();
}

void PrintPanel::DrawSigmaChar(double left, double top, std::int16_t colInd)
{
    Surface& page = surface();
    FontFace const before = page.Font;
    page.Font = {"Symbol", 14};
    page.DrawStyle = pen_solid;
    page.ForeColor = QBColor(colInd);
    page.CurrentX = left;
    page.CurrentY = top - page.TextHeight("s") / 4;
    page.Print("s"); // where the face has its sigma
    page.Font = before;
}

std::string PrintPanel::FormatLbl(double dummy) const
{
    return format_label(dummy);
}

// What a routine with its frame first begins with.
void PrintPanel::begin(PaperBox const& box, std::string const& caption, BooleanWord with_frame)
{
    ResetPrinterObj();
    if (with_frame)
        DrawFrame(caption, box.left, box.top, box.width, box.height);
}

} // namespace zendara
