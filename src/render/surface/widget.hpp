#pragma once

#include "zendara/support/color.hpp"
#include "zendara/support/object.hpp"

#include <string>
#include <string_view>

namespace zendara
{

/// What a plot routine reads and writes of a child window. The form's children are widgets.
class Widget : public Object
{
public:
    std::string const& caption() const { return caption_; }
    std::string const& ToolTipText() const { return tool_tip_; }
    bool Visible() const { return is_visible_; }
    Color BackColor() const { return back_color_; }
    /// Place in the container, in twips unless the container is scaled otherwise.
    double Left() const { return left_; }
    double Top() const { return top_; }
    double Width() const { return width_; }
    double Height() const { return height_; }

    void caption(std::string_view caption);
    void ToolTipText(std::string_view text);
    void Visible(bool is_visible);
    void BackColor(Color color);
    void Left(double left) { Move(left, top_, width_, height_); }
    void Top(double top) { Move(left_, top, width_, height_); }
    void Width(double width) { Move(left_, top_, width, height_); }
    void Height(double height) { Move(left_, top_, width_, height); }
    void Move(double left, double top, double width, double height);

protected:
    /// Called after a change, with what has changed.
    enum class Aspect { Caption, ToolTip, Visibility, Color, Place, Size, Content };
    virtual void changed(Aspect) {}

private:
    std::string caption_;
    std::string tool_tip_;
    bool is_visible_ = true;
    Color back_color_ = button_face;
    double left_ = 0;
    double top_ = 0;
    double width_ = 0;
    double height_ = 0;
};

/// A straight line on a form, between two points in the unit of its container.
class LineWidget : public Object
{
public:
    double X1 = 0;
    double Y1 = 0;
    double X2 = 0;
    double Y2 = 0;
};

/// Widgets under one name, told apart by an index.
class WidgetArray : public Object
{
public:
    /// @throws Failure  SubscriptOutOfRange when there is no such element
    virtual Widget& operator()(int index) = 0;
    virtual int Count() const = 0;
    /// Makes the element behind the last one, hidden.
    virtual void load_next() = 0;
};

} // namespace zendara
