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

void line_by_flags(Surface& surface, int flags, double x1, double y1, double x2, double y2, Color color)
{
    if ((flags & has_first_point) == 0) {
        x1 = surface.CurrentX;
        y1 = surface.CurrentY;
    }
    if ((flags & is_relative) != 0) {
        x2 += x1;
        y2 += y1;
    }
    if ((flags & is_filled_box) != 0)
        surface.FillBox(x1, y1, x2, y2, color);
    else if ((flags & is_box) != 0)
        surface.Box(x1, y1, x2, y2, color);
    else
        surface.Line(x1, y1, x2, y2, color);
}

Member line_member()
{
    Member line;
    line.name = "Line";
    line.help =
        "Draws a line or a box: 2 colour given, 4 first point given, 8 second point relative, 16 box, 32 filled.";
    for (auto const* name : {"flags", "x1", "y1", "x2", "y2", "color"})
        line.arguments.push_back(by_value(name));
    for (auto& argument : line.arguments)
        argument.type = Type::R8;
    line.arguments.front().type = Type::I2;
    line.arguments.back().type = Type::Color;
    line.invoke = [](Object& object, std::span<Value> values) -> Value {
        auto const number = [&](std::size_t i) { return to_double(values[i]); };
        line_by_flags(detail::as_class<Surface>(object), from_value<std::int16_t>(values[0]), number(1), number(2),
                      number(3), number(4), from_value<Color>(values[5]));
        return Empty{};
    };
    return line;
}

Member circle_member()
{
    Member circle;
    circle.name = "Circle";
    circle.help = "Draws a circle; in ForeColor where no colour is given.";
    for (auto const* name : {"x", "y", "radius"}) {
        circle.arguments.push_back(by_value(name));
        circle.arguments.back().type = Type::R8;
    }
    circle.arguments.push_back(optional(by_value("color"), Empty{}));
    circle.arguments.back().type = Type::Color;
    circle.invoke = [](Object& object, std::span<Value> values) -> Value {
        std::optional<Color> color;
        if (!std::holds_alternative<Empty>(values[3]))
            color = from_value<Color>(values[3]);
        detail::as_class<Surface>(object).Circle(to_double(values[0]), to_double(values[1]), to_double(values[2]),
                                                 color);
        return Empty{};
    };
    return circle;
}

template <auto Field> Member font_part(std::string_view name, std::string_view help)
{
    using Plain = std::remove_cvref_t<decltype(std::declval<FontFace&>().*Field)>;
    Member member;
    member.name = name;
    member.kind = MemberKind::GetPut;
    member.type = detail::type_of<Plain>();
    member.help = help;
    member.get = [](Object& object) { return to_value(detail::as_class<Surface>(object).Font.*Field); };
    member.put = [](Object& object, Value const& value) {
        detail::as_class<Surface>(object).Font.*Field = from_value<Plain>(value);
    };
    return member;
}

Member text_member(std::string_view name, std::string_view help, Member::Invoke invoke)
{
    Member member;
    member.name = name;
    member.help = help;
    member.arguments.push_back(by_value("text"));
    member.arguments.back().type = Type::Bstr;
    member.invoke = invoke;
    return member;
}

} // namespace

Interface const& Surface::host_interface() const
{
    using S = Surface;
    static Interface const table{
        "Surface",
        "What all plots draw on: a picture or a printer.",
        {
            method<S, &S::Cls>("Cls", {}, "Clears to the background."),
            method<S, &S::Refresh>("Refresh", {}, "Shows what has been drawn so far."),
            line_member(),
            circle_member(),
            text_member("Print", "Writes a text at the current position.",
                        [](Object& object, std::span<Value> values) -> Value {
                            detail::as_class<Surface>(object).Print(to_text(values[0]));
                            return Empty{};
                        }),
            text_member("TextWidth", "Width of a text in surface units.",
                        [](Object& object, std::span<Value> values) -> Value {
                            return detail::as_class<Surface>(object).TextWidth(to_text(values[0]));
                        }),
            text_member("TextHeight", "Height of a text in surface units.",
                        [](Object& object, std::span<Value> values) -> Value {
                            return detail::as_class<Surface>(object).TextHeight(to_text(values[0]));
                        }),
            getter<S, &S::ScaleLeft>("ScaleLeft", "Left edge of the inner area in surface units."),
            getter<S, &S::ScaleTop>("ScaleTop", "Upper edge of the inner area in surface units."),
            getter<S, &S::ScaleWidth>("ScaleWidth", "Width of the inner area in surface units."),
            getter<S, &S::ScaleHeight>("ScaleHeight", "Height of the inner area in surface units."),
            accessors<S, S, std::int16_t, std::int16_t, &S::ScaleMode, &S::ScaleMode>(
                "ScaleMode", MemberKind::GetPut, "Unit of the coordinates: 1 twips, 3 pixels."),
            getter<S, &S::TwipsPerPixelX>("TwipsPerPixelX", "Twips in a pixel's width."),
            getter<S, &S::TwipsPerPixelY>("TwipsPerPixelY", "Twips in a pixel's height."),
            field<S, &S::CurrentX>("CurrentX", "Where the next text or line begins."),
            field<S, &S::CurrentY>("CurrentY", "Where the next text or line begins."),
            field<S, &S::ForeColor>("ForeColor", "Colour of pen and text."),
            field<S, &S::FillColor>("FillColor", "Colour of fills."),
            field<S, &S::BackColor>("BackColor", "Background colour."),
            field<S, &S::DrawStyle>("DrawStyle", "Pen: 0 solid, 5 none."),
            field<S, &S::DrawWidth>("DrawWidth", "Width of the pen in pixels."),
            field<S, &S::FillStyle>("FillStyle", "Fill: 0 solid, 1 none, 7 diagonal cross."),
            field<S, &S::FontTransparent>("FontTransparent", "The ground shows through text."),
            font_part<&FontFace::Name>("FontName", "Text face."),
            font_part<&FontFace::size>("FontSize", "Text size in points."),
            font_part<&FontFace::Bold>("FontBold", "Text in bold."),
            font_part<&FontFace::Underline>("FontUnderline", "Text with a line below."),
            getter<S, &S::hdc>("hdc", "Device handle."),
            field<S, &S::left>("left", "Place in the container."),
            field<S, &S::top>("top", "Place in the container."),
            field<S, &S::width>("width", "Size in the container; page width of a printer, in twips."),
            field<S, &S::height>("height", "Size in the container; page height of a printer, in twips."),
        }};
    return table;
}

} // namespace zendara
