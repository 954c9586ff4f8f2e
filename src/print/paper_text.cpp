#include "zendara/print/paper_text.hpp"

#include "zendara/support/checked.hpp"
#include "zendara/support/number_text.hpp"

namespace zendara
{

namespace
{

void drop_first_letter(std::string& text)
{
    std::string_view rest = text;
    next_letter(rest);
    text.erase(0, text.size() - rest.size());
}

void drop_last_letter(std::string& text)
{
    std::size_t last = 0;
    for (std::string_view rest = text; !rest.empty(); next_letter(rest))
        last = text.size() - rest.size();
    text.resize(last);
}

void shorten(std::string& text, Cut cut)
{
    if (cut != Cut::End)
        drop_first_letter(text);
    if (cut != Cut::Start)
        drop_last_letter(text);
}

bool reads_as_zero(std::string const& number)
{
    auto const value = parse_number(number);
    return value && *value == 0;
}

} // namespace

std::string first_15_letters(std::string const& text)
{
    std::string_view rest = text;
    for (int i = 0; i < 15; ++i)
        next_letter(rest);
    return text.substr(0, text.size() - rest.size());
}

std::int16_t cut_to_fit(Surface const& surface, std::string& text, double width, Cut cut)
{
    for (;;) {
        std::int16_t const measured = to_i16(surface.TextWidth(text));
        if (!(measured > width))
            return measured;
        if (text.empty())
            fail(FailureKind::InvalidProcedureCall, "no text fits into a width below 0");
        shorten(text, cut);
    }
}

void print_text(Surface& surface, std::string const& text, double x, double y, std::int16_t color_index)
{
    surface.ForeColor = QBColor(color_index);
    surface.FontTransparent = true;
    surface.CurrentX = x;
    surface.CurrentY = y;
    surface.Print(text);
}

void print_left_text(Surface& surface, std::string& text, double x, double y, double width, std::int16_t color_index)
{
    cut_to_fit(surface, text, width, Cut::End);
    surface.DrawStyle = pen_solid;
    print_text(surface, text, x, y, color_index);
}

std::string format_not_zero(double value, std::string mask)
{
    if (value == 0)
        return mask;
    std::string text = format_mask(value, mask);
    while (reads_as_zero(text)) {
        mask += '0';
        text = format_mask(value, mask);
    }
    return text;
}

} // namespace zendara
