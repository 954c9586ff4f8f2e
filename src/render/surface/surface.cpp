#include "zendara/render/surface/surface.hpp"

#include "zendara/support/interface.hpp"

namespace zendara
{

void Surface::Cls()
{
    draw_cls();
    CurrentX = 0;
    CurrentY = 0;
}

void Surface::Line(double x1, double y1, double x2, double y2, Color color)
{
    draw_line({x1, y1, x2, y2}, color);
    CurrentX = x2;
    CurrentY = y2;
}

void Surface::LineTo(double x, double y, Color color)
{
    Line(CurrentX, CurrentY, x, y, color);
}

void Surface::Box(double x1, double y1, double x2, double y2, Color color)
{
    draw_box({x1, y1, x2, y2}, color);
    CurrentX = x2;
    CurrentY = y2;
}

void Surface::BoxStep(double x, double y, double dx, double dy, Color color)
{
    Box(x, y, x + dx, y + dy, color);
}

void Surface::FillBox(double x1, double y1, double x2, double y2, Color color)
{
    draw_fill_box({x1, y1, x2, y2}, color);
    CurrentX = x2;
    CurrentY = y2;
}

void Surface::Circle(double x, double y, double radius, std::optional<Color> color)
{
    draw_circle(x, y, radius, color.value_or(ForeColor));
    CurrentX = x;
    CurrentY = y;
}

void Surface::Print(std::string_view text)
{
    draw_text(text);
    CurrentX += TextWidth(text);
}

void Surface::ScaleMode(std::int16_t mode)
{
    if (mode != scale_twips && mode != scale_pixels)
        fail(FailureKind::InvalidProcedureCall, "ScaleMode takes 1 for twips or 3 for pixels");
    scale_mode_ = mode;
    scale_mode_written();
}

namespace
{

// Flags of Line.
constexpr int has_first_point = 4;
constexpr int is_relative = 8;
constexpr int is_box = 16;
constexpr int is_filled_box = 32;

} // namespace

void Surface::line_by_flags(std::int16_t flags, double x1, double y1, double x2, double y2, Color color)
{
    if ((flags & has_first_point) == 0) {
        x1 = CurrentX;
        y1 = CurrentY;
    }
    if ((flags & is_relative) != 0) {
        x2 += x1;
        y2 += y1;
    }
    if ((flags & is_filled_box) != 0)
        FillBox(x1, y1, x2, y2, color);
    else if ((flags & is_box) != 0)
        Box(x1, y1, x2, y2, color);
    else
        Line(x1, y1, x2, y2, color);
}

Interface const& Surface::host_interface() const
{
    using S = Surface;
    static Interface const table{
        "Surface",
        "What all plots draw on: a picture or a printer.",
        {
            method<&S::Cls>("Cls", "Clears to the background."),
            method<&S::Refresh>("Refresh", "Shows what has been drawn so far."),
            method<&S::line_by_flags>("Line",
                                      "Draws a line or a box: 2 colour given, 4 first point given, 8 second point "
                                      "relative, 16 box, 32 filled.",
                                      by_value("flags"), by_value("x1"), by_value("y1"), by_value("x2"), by_value("y2"),
                                      by_value("color").as(Type::Color)),
            method<&S::Circle>("Circle", "Draws a circle; in ForeColor where no colour is given.", by_value("x"),
                               by_value("y"), by_value("radius"), optional(by_value("color").as(Type::Color), Empty{})),
            method<&S::Print>("Print", "Writes a text at the current position.", by_value("text")),
            method<&S::TextWidth>("TextWidth", "Width of a text in surface units.", by_value("text")),
            method<&S::TextHeight>("TextHeight", "Height of a text in surface units.", by_value("text")),
            getter<&S::ScaleLeft>("ScaleLeft", "Left edge of the inner area in surface units."),
            getter<&S::ScaleTop>("ScaleTop", "Upper edge of the inner area in surface units."),
            getter<&S::ScaleWidth>("ScaleWidth", "Width of the inner area in surface units."),
            getter<&S::ScaleHeight>("ScaleHeight", "Height of the inner area in surface units."),
            property<S, std::int16_t, &S::ScaleMode, &S::ScaleMode>("ScaleMode",
                                                                    "Unit of the coordinates: 1 twips, 3 pixels."),
            getter<&S::TwipsPerPixelX>("TwipsPerPixelX", "Twips in a pixel's width."),
            getter<&S::TwipsPerPixelY>("TwipsPerPixelY", "Twips in a pixel's height."),
            field<&S::CurrentX>("CurrentX", "Where the next text or line begins."),
            field<&S::CurrentY>("CurrentY", "Where the next text or line begins."),
            field<&S::ForeColor>("ForeColor", "Colour of pen and text."),
            field<&S::FillColor>("FillColor", "Colour of fills."),
            field<&S::BackColor>("BackColor", "Background colour."),
            field<&S::DrawStyle>("DrawStyle", "Pen: 0 solid, 5 none."),
            field<&S::DrawWidth>("DrawWidth", "Width of the pen in pixels."),
            field<&S::FillStyle>("FillStyle", "Fill: 0 solid, 1 none, 7 diagonal cross."),
            field<&S::FontTransparent>("FontTransparent", "The ground shows through text."),
            field<&S::Font, &FontFace::Name>("FontName", "Text face."),
            field<&S::Font, &FontFace::size>("FontSize", "Text size in points."),
            field<&S::Font, &FontFace::Bold>("FontBold", "Text in bold."),
            field<&S::Font, &FontFace::Underline>("FontUnderline", "Text with a line below."),
            getter<&S::hdc>("hdc", "Device handle."),
            field<&S::left>("left", "Place in the container."),
            field<&S::top>("top", "Place in the container."),
            field<&S::width>("width", "Size in the container; page width of a printer, in twips."),
            field<&S::height>("height", "Size in the container; page height of a printer, in twips."),
        }};
    return table;
}

} // namespace zendara
