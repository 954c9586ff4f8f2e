#include "zendara/form/window_painter.hpp"

#include "zendara/form/check_box.hpp"
#include "zendara/form/line_shape.hpp"
#include "zendara/form/option_button.hpp"
#include "zendara/form/text_lines.hpp"
#include "zendara/form/up_down.hpp"
#include "zendara/render/surface/raster_picture.hpp"
#include "zendara/support/checked.hpp"

#include <array>
#include <cmath>

namespace zendara
{

namespace
{

constexpr double twips_per_pixel = 15;
constexpr Color edge_shadow = system_color(16);
constexpr Color edge_light = system_color(20);
constexpr Color edge_dark = system_color(21);
constexpr Color pressed_face = rgb(234, 232, 228); // between the face of a button and its lighter edge

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
        take_font(label);
        int top = area.top;
        for_each_line(label.caption(), [&](std::string_view line) {
            int const room = area.width() - static_cast<int>(canvas_.TextWidth(line));
            int const indent = label.alignment == Alignment::Left    ? 0
                               : label.alignment == Alignment::Right ? room
                                                                     : room / 2;
            print_text(line, area.left + indent, top);
            if (top == area.top)
                underline_access_key(label, line, area.left + indent, top);
            top += static_cast<int>(canvas_.TextHeight(line));
        });
    }

    void visit(Button& button) override
    {
        Area const area = area_of(button);
        draw_raised_edge(area, button.BackColor());
        print_centered(button, area, 0);
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

    void visit(LineShape& line) override
    {
        auto const x = [&](double place) { return pixel(left_ + place * line.twips_per_unit_x()); };
        auto const y = [&](double place) { return pixel(top_ + place * line.twips_per_unit_y()); };
        canvas_.Line(x(line.X1()), y(line.Y1()), x(line.X2()), y(line.Y2()), line.ForeColor());
    }

    void visit(UpDown& arrows) override
    {
        Area const area = area_of(arrows);
        int const middle = area.top + area.height() / 2;
        Color const arrow = arrows.Enabled() ? window_text : edge_shadow;
        draw_raised_edge({area.left, area.top, area.right, middle}, arrows.BackColor());
        draw_raised_edge({area.left, middle, area.right, area.bottom}, arrows.BackColor());
        int const center = area.left + (area.width() - 1) / 2;
        constexpr int arrow_height = 3;
        int const upper_tip = (area.top + middle - arrow_height) / 2;
        int const lower_tip = (middle + area.bottom + arrow_height) / 2 - 1;
        for (int row = 0; row < arrow_height; ++row) {
            fill({center - row, upper_tip + row, center + row + 1, upper_tip + row + 1}, arrow);
            fill({center - row, lower_tip - row, center + row + 1, lower_tip - row + 1}, arrow);
        }
    }

    void visit(OptionButton& button) override
    {
        Area const area = area_of(button);
        // One row of the left half of a round mark: where its ring, its inside and its dot begin, in pixels.
        struct Row {
            int ring, inside, dot;
        };
        constexpr int none = 6;
        constexpr std::array<Row, 6> half = {
            {{4, none, none}, {2, 4, none}, {1, 2, none}, {1, 2, none}, {0, 1, 4}, {0, 1, 3}}};
        constexpr int size = 12;
        int const top = area.top + (area.height() - size) / 2;
        for (int y = 0; y < size; ++y) {
            Row const& row = half[static_cast<std::size_t>(y < size / 2 ? y : size - 1 - y)];
            auto const fill_between = [&](int from, Color color) {
                fill({area.left + from, top + y, area.left + size - from, top + y + 1}, color);
            };
            fill_between(row.ring, edge_shadow);
            fill_between(row.inside, window_background);
            if (button.Value())
                fill_between(row.dot, window_text);
        }
        print_beside_mark(button, area);
    }

    void visit(CheckBox& box) override
    {
        Area const area = area_of(box);
        if (box.is_push_button) {
            paint_push_button(box, area);
            return;
        }
        constexpr int size = 13;
        int const top = area.top + (area.height() - size) / 2;
        Color const inside = box.Value() == 2 ? button_face : window_background;
        fill({area.left, top, area.left + size, top + size}, edge_shadow);
        fill({area.left + 1, top + 1, area.left + size - 1, top + size - 1}, inside);
        if (box.Value() != 0) {
            constexpr std::array<int, 7> tick = {5, 6, 7, 6, 5, 4, 3}; // upper ends of strokes of three pixels
            for (std::size_t x = 0; x < tick.size(); ++x) {
                int const left = area.left + 3 + static_cast<int>(x);
                fill({left, top + tick[x], left + 1, top + tick[x] + 3}, box.Value() == 2 ? edge_shadow : window_text);
            }
        }
        print_beside_mark(box, area);
    }

    void paint_push_button(CheckBox const& box, Area const& area)
    {
        if (!box.is_checked()) {
            draw_raised_edge(area, box.BackColor());
            print_centered(box, area, 0);
            return;
        }
        fill(area, edge_light);
        fill({area.left, area.top, area.right - 1, area.bottom - 1}, edge_dark);
        fill({area.left + 1, area.top + 1, area.right - 1, area.bottom - 1}, pressed_face);
        print_centered(box, area, 1);
    }

    void paint_children(Child& container)
    {
        double const left = container.Left() * container.twips_per_unit_x();
        double const top = container.Top() * container.twips_per_unit_y();
        left_ += left;
        top_ += top;
        for (Child* const child : container.children())
            paint(*child);
        left_ -= left;
        top_ -= top;
    }

    static int pixel(double twips) { return to_i32(twips / twips_per_pixel); }

    Area area_of(Child const& child) const
    {
        double const unit_x = child.twips_per_unit_x();
        double const unit_y = child.twips_per_unit_y();
        double const left = left_ + child.Left() * unit_x;
        double const top = top_ + child.Top() * unit_y;
        return {pixel(left), pixel(top), pixel(left + child.Width() * unit_x), pixel(top + child.Height() * unit_y)};
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
        underline_access_key(child, child.caption(), left, top);
    }

    void print_centered(Child const& child, Area const& area, int shift)
    {
        take_font(child);
        int const width = static_cast<int>(canvas_.TextWidth(child.caption()));
        int const height = static_cast<int>(canvas_.TextHeight(child.caption()));
        print(child, area.left + (area.width() - width) / 2 + shift, area.top + (area.height() - height) / 2 + shift);
    }

    void print_beside_mark(Child const& child, Area const& area)
    {
        constexpr int mark_width = 17;
        take_font(child);
        int const height = static_cast<int>(canvas_.TextHeight(child.caption()));
        print(child, area.left + mark_width, area.top + (area.height() - height) / 2);
    }

    void underline_access_key(Child const& child, std::string_view text, int left, int top)
    {
        auto const letter = child.access_key == 0 ? std::string_view::npos : text.find(child.access_key);
        if (letter == std::string_view::npos)
            return;
        constexpr int above_lower_edge = 2;
        int const begin = left + static_cast<int>(canvas_.TextWidth(text.substr(0, letter)));
        int const end = left + static_cast<int>(canvas_.TextWidth(text.substr(0, letter + 1)));
        int const y = top + static_cast<int>(canvas_.TextHeight(text)) - above_lower_edge;
        fill({begin, y, end, y + 1}, canvas_.ForeColor);
    }

    void print_text(std::string_view text, int left, int top)
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
    double const unit_x = child.twips_per_unit_x();
    double const unit_y = child.twips_per_unit_y();
    RasterPicture canvas(pixels(child.Width() * unit_x), pixels(child.Height() * unit_y), glyphs);
    WindowPainter(canvas, child.Left() * unit_x, child.Top() * unit_y).paint(child);
    return *canvas.image();
}

} // namespace zendara
