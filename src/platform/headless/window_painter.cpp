#include "platform/headless/window_painter.hpp"

#include "render/raster_picture.hpp"
#include "support/checked.hpp"

#include <cmath>

namespace zendara
{

namespace
{

constexpr double twips_per_pixel = 15;
constexpr Color edge_shadow = system_color(16);
constexpr Color edge_light = system_color(20);
constexpr Color edge_dark = system_color(21);

/// A child's place on the canvas, in pixels.
struct Area {
    int left, top, right, bottom; // right and bottom are the first pixels outside

    int width() const { return right - left; }
    int height() const { return bottom - top; }
};

/// Paints children from the back to the front on one canvas.
class WindowPainter : ChildVisitor
{
public:
    WindowPainter(RasterPicture& canvas, double origin_left, double origin_top)
        : canvas_(canvas), left_(-origin_left), top_(-origin_top)
    {
    }

    void paint(Child& child)
    {
        if (child.Visible())
            child.accept(*this);
    }

private:
    void visit(Window& window) override
    {
        fill(area_of(window), window.BackColor());
        paint_children(window);
    }

    void visit(Frame& frame) override
    {
        Area const area = area_of(frame);
        fill(area, frame.BackColor());
        if (frame.has_border)
            draw_group_border(frame, area);
        paint_children(frame);
    }

    void visit(Label& label) override
    {
        Area const area = area_of(label);
        if (label.has_border) {
            fill(area, edge_shadow);
            fill({area.left + 1, area.top + 1, area.right - 1, area.bottom - 1}, label.BackColor());
        }
        print(label, area.left, area.top);
    }

    void visit(Button& button) override
    {
        Area const area = area_of(button);
        draw_raised_edge(area, button.BackColor());
        take_font(button);
        int const width = static_cast<int>(canvas_.TextWidth(button.caption()));
        int const height = static_cast<int>(canvas_.TextHeight(button.caption()));
        print(button, area.left + (area.width() - width) / 2, area.top + (area.height() - height) / 2);
    }

    void visit(PictureBox& box) override
    {
        Area const area = area_of(box);
        if (auto const image = box.surface().image())
            canvas_.draw_image(*image, area.left, area.top);
        else
            fill(area, box.BackColor());
        paint_children(box);
    }

    void visit(ImageBox& box) override
    {
        Area const area = area_of(box);
        if (box.Picture() != nullptr)
            canvas_.draw_image_stretched(*box.Picture(), area.left, area.top, area.width(), area.height());
    }

    void visit(TextBox& box) override
    {
        Area const area = area_of(box);
        fill(area, edge_shadow);
        fill({area.left + 1, area.top + 1, area.right - 1, area.bottom - 1}, window_background);
        take_font(box);
        print_text(box.Text(), area.left + 3, area.top + 3);
    }

    void paint_children(Child& container)
    {
        left_ += container.Left();
        top_ += container.Top();
        for (Child* const child : container.children())
            paint(*child);
        left_ -= container.Left();
        top_ -= container.Top();
    }

    Area area_of(Child const& child) const
    {
        auto const pixel = [](double twips) { return to_i32(twips / twips_per_pixel); };
        double const left = left_ + child.Left();
        double const top = top_ + child.Top();
        return {pixel(left), pixel(top), pixel(left + child.Width()), pixel(top + child.Height())};
    }

    void fill(Area const& area, Color color)
    {
        if (area.width() > 0 && area.height() > 0)
            canvas_.FillBox(area.left, area.top, area.right - 1, area.bottom - 1, color);
    }

    // An etched line, its upper side at half the height of the caption that it makes room for.
    void draw_group_border(Frame const& frame, Area const& area)
    {
        take_font(frame);
        int const text_height = static_cast<int>(canvas_.TextHeight("0"));
        int const line_top = frame.caption().empty() ? area.top : area.top + text_height / 2;
        if (area.width() < 2 || area.bottom - line_top < 2)
            return;
        canvas_.FillStyle = fill_none;
        canvas_.Box(area.left + 1, line_top + 1, area.right - 1, area.bottom - 1, edge_light);
        canvas_.Box(area.left, line_top, area.right - 2, area.bottom - 2, edge_shadow);
        if (frame.caption().empty())
            return;
        constexpr int text_indent = 8;
        int const text_width = static_cast<int>(canvas_.TextWidth(frame.caption()));
        int const text_left = area.left + text_indent;
        fill({text_left - 2, line_top, std::min(text_left + text_width + 2, area.right - 2), line_top + 2},
             frame.BackColor());
        print(frame, text_left, area.top);
    }

    void draw_raised_edge(Area const& area, Color face)
    {
        fill(area, edge_dark);
        fill({area.left, area.top, area.right - 1, area.bottom - 1}, edge_light);
        fill({area.left + 1, area.top + 1, area.right - 1, area.bottom - 1}, edge_shadow);
        fill({area.left + 1, area.top + 1, area.right - 2, area.bottom - 2}, face);
    }

    void take_font(Child const& child)
    {
        canvas_.Font = child.Font();
        canvas_.ForeColor = child.Enabled() ? child.ForeColor() : edge_shadow;
    }

    void print(Child const& child, int left, int top)
    {
        take_font(child);
        print_text(child.caption(), left, top);
    }

    void print_text(std::string const& text, int left, int top)
    {
        canvas_.CurrentX = left;
        canvas_.CurrentY = top;
        canvas_.Print(text);
    }

    RasterPicture& canvas_;
    double left_; // of the present container's inside, in twips from the canvas
    double top_;
};

} // namespace

Image paint_child(Child& child, GlyphSource& glyphs)
{
    auto const pixels = [](double twips) { return twips > 0 ? to_i32(twips / twips_per_pixel) : 0; };
    RasterPicture canvas(pixels(child.Width()), pixels(child.Height()), glyphs);
    WindowPainter(canvas, child.Left(), child.Top()).paint(child);
    return *canvas.image();
}

} // namespace zendara
