#include "zendara/render/surface/widget.hpp"

namespace zendara
{

void Widget::caption(std::string_view caption)
{
    caption_ = caption;
    changed(Aspect::Caption);
}

void Widget::ToolTipText(std::string_view text)
{
    tool_tip_ = text;
    changed(Aspect::ToolTip);
}

void Widget::Visible(bool is_visible)
{
    is_visible_ = is_visible;
    changed(Aspect::Visibility);
}

void Widget::BackColor(Color color)
{
    back_color_ = color;
    changed(Aspect::Color);
}

void Widget::Move(double left, double top, double width, double height)
{
    bool const has_new_size = width != width_ || height != height_;
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
    changed(has_new_size ? Aspect::Size : Aspect::Place);
}

} // namespace zendara
