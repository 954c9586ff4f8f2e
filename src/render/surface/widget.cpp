#include "zendara/render/surface/widget.hpp"

#include <utility>

namespace zendara
{

void Widget::caption(std::string caption)
{
    caption_ = std::move(caption);
    changed(Aspect::Caption);
}

void Widget::ToolTipText(std::string text)
{
    tool_tip_ = std::move(text);
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
