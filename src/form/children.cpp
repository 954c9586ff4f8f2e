#include "zendara/form/children.hpp"

#include "zendara/form/text_lines.hpp"
#include "zendara/support/interface.hpp"

#include <algorithm>

namespace zendara
{

void Window::resize(double width, double height)
{
    Move(Left(), Top(), width, height);
    if (on_resize)
        on_resize();
}

void Window::take_size(double width, double height)
{
    if (host_allows_size)
        Move(Left(), Top(), width, height);
}

void Window::MousePointer(std::int16_t pointer)
{
    mouse_pointer_ = pointer;
    changed(Aspect::Content);
}

Interface const& Window::host_interface() const
{
    using W = Window;
    static Interface const table{"Window", "The window of a control or a dialog.",
                                 join({place_and_looks(),
                                       {property<W, std::int16_t, &W::MousePointer, &W::MousePointer>(
                                            "MousePointer", "Form of the pointer: 0 the usual one, 11 the hourglass."),
                                        method<&W::Refresh>("Refresh", "Shows the window at once.")}})};
    return table;
}

void Label::AutoSize(bool is_auto_size)
{
    is_auto_size_ = is_auto_size;
    fit_caption();
}

void Label::changed(Aspect aspect)
{
    if (aspect == Aspect::Caption || aspect == Aspect::Content)
        fit_caption();
    Child::changed(aspect);
}

void Label::fit_caption()
{
    if (!is_auto_size_)
        return;
    Platform::Extent all;
    for_each_line(caption(), [&](std::string_view line) {
        auto const extent = platform().text_extent(Font(), line);
        all.width = std::max(all.width, extent.width);
        all.height += extent.height;
    });
    double const width = all.width / twips_per_unit_x();
    double const growth = width - Width();
    double const left = alignment == Alignment::Left    ? Left()
                        : alignment == Alignment::Right ? Left() - growth
                                                        : Left() - growth / 2;
    Move(left, Top(), width, all.height / twips_per_unit_y());
}

PictureBox::PictureBox(Child& container, std::string name, std::optional<int> index)
    : Child(container, std::move(name), index), surface_(platform().make_surface(*this))
{
}

void PictureBox::Cls()
{
    surface_->Cls();
}

void PictureBox::changed(Aspect aspect)
{
    if (aspect == Aspect::Color)
        surface_->set_back_color(BackColor());
    if (aspect == Aspect::Place || aspect == Aspect::Size) {
        surface_->left = Left();
        surface_->top = Top();
        surface_->width = Width();
        surface_->height = Height();
    }
    if (aspect == Aspect::Size && on_size)
        on_size();
    Child::changed(aspect);
}

Interface const& PictureBox::host_interface() const
{
    static Interface const table{"PictureBox", "A child to draw on.", place_and_looks()};
    return table;
}

void ImageBox::Picture(std::shared_ptr<Image const> picture)
{
    picture_ = std::move(picture);
    changed(Aspect::Content);
}

void TextBox::Text(std::string_view text)
{
    text_ = text;
    changed(Aspect::Content);
    raise("Change");
}

Interface const& TextBox::host_interface() const
{
    static Interface const table{
        "TextBox", "A line of text that the user may change.",
        join({place_and_looks(), {text_property<TextBox, &TextBox::Text, &TextBox::Text>("Text", "The text.")}})};
    return table;
}

Interface const& child_array_interface()
{
    static Interface const table{"ChildArray",
                                 "Children under one name, told apart by an index.",
                                 {getter<&WidgetArray::Count>("Count", "Number of elements.")}};
    return table;
}

} // namespace zendara
