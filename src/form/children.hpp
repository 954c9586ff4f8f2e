#pragma once

#include "zendara/form/child.hpp"
#include "zendara/render/surface/image.hpp"

#include <memory>
#include <string>
#include <vector>

namespace zendara
{

class Frame;
class Label;
class Button;
class PictureBox;
class ImageBox;
class TextBox;
class LineShape;
class UpDown;
class OptionButton;
class CheckBox;
class Window;

/// Does something by the kind of a child, without asking for its type.
class ChildVisitor
{
public:
    virtual ~ChildVisitor() = default;
    virtual void visit(Frame&) = 0;
    virtual void visit(Label&) = 0;
    virtual void visit(Button&) = 0;
    virtual void visit(PictureBox&) = 0;
    virtual void visit(ImageBox&) = 0;
    virtual void visit(TextBox&) = 0;
    virtual void visit(LineShape&) = 0;
    virtual void visit(UpDown&) = 0;
    virtual void visit(OptionButton&) = 0;
    virtual void visit(CheckBox&) = 0;
    virtual void visit(Window&) = 0;
};

/// The outermost window of a control or a dialog.
class Window : public Child
{
public:
    Window(Platform& platform, std::string name) : Child(platform, std::move(name)) {}

    /// What the layout answers a change of size with.
    std::function<void()> on_resize;
    /// Whether the host lets the window take another size than it gave it.
    bool host_allows_size = true;

    /// Size from the host: the layout runs.
    void resize(double width, double height);
    /// Size from the layout itself: no second layout starts. Without the host's leave nothing changes.
    void take_size(double width, double height);

    std::int16_t MousePointer() const { return mouse_pointer_; }
    void MousePointer(std::int16_t pointer);
    Object* MouseIcon() const { return mouse_icon_; }
    void MouseIcon(Object* icon) { mouse_icon_ = icon; }

    Interface const& host_interface() const override;
    void accept(ChildVisitor& visitor) override { visitor.visit(*this); }

private:
    std::int16_t mouse_pointer_ = 0;
    Object* mouse_icon_ = nullptr; // the host's
};

/// A box with a line around it and its caption in the upper edge.
class Frame : public Child
{
public:
    using Child::Child;

    /// Without a border it only moves its children together.
    bool has_border = true;

    void accept(ChildVisitor& visitor) override { visitor.visit(*this); }
};

/// Where a text stands in its label.
enum class Alignment { Left, Right, Center };

/// One or more lines of text, parted by line feeds. With AutoSize it is as wide and as high as its caption, and the
/// edge or the middle where it is aligned stays in its place.
class Label : public Child
{
public:
    using Child::Child;

    bool AutoSize() const { return is_auto_size_; }
    void AutoSize(bool is_auto_size);
    Alignment alignment = Alignment::Left;
    bool has_border = false; // a thin line around, for colour swatches

    void accept(ChildVisitor& visitor) override { visitor.visit(*this); }

protected:
    void changed(Aspect aspect) override;

private:
    void fit_caption();

    bool is_auto_size_ = false;
};

class Button : public Child
{
public:
    using Child::Child;

    void accept(ChildVisitor& visitor) override { visitor.visit(*this); }
};

/// A child to draw on.
class PictureBox : public Child
{
public:
    PictureBox(Child& container, std::string name, std::optional<int> index = {});

    bool has_border = false;

    Surface& surface() { return *surface_; }
    /// Clears the surface, to the background colour of the box.
    void Cls();

    /// The surface answers what the box does not: pens, fills and scale.
    Object* inner() override { return surface_.get(); }
    Interface const& host_interface() const override;
    void accept(ChildVisitor& visitor) override { visitor.visit(*this); }

    /// Called when the box has another size; set by the container that made the surface.
    std::function<void()> on_size;

protected:
    void changed(Aspect aspect) override;

private:
    std::unique_ptr<Surface> surface_;
};

/// A child that shows a finished picture, stretched to its size.
class ImageBox : public Child
{
public:
    using Child::Child;

    std::shared_ptr<Image const> const& Picture() const { return picture_; }
    void Picture(std::shared_ptr<Image const> picture);

    void accept(ChildVisitor& visitor) override { visitor.visit(*this); }

private:
    std::shared_ptr<Image const> picture_;
};

/// A line of text that the user may change. Setting it, by code or by hand, raises "Change".
class TextBox : public Child
{
public:
    using Child::Child;

    std::string const& Text() const { return text_; }
    void Text(std::string_view text);

    Interface const& host_interface() const override;
    void accept(ChildVisitor& visitor) override { visitor.visit(*this); }

private:
    std::string text_;
};

/// Children of one kind under one name, with the indices `lower` to `lower` + count - 1.
template <class T> class ChildArray : public WidgetArray
{
public:
    ChildArray(Child& container, std::string name, int lower, int count)
        : container_(container), name_(std::move(name)), lower_(lower)
    {
        for (int i = 0; i < count; ++i)
            add_element();
        container.add_array(name_, *this);
    }

    T& operator()(int index) override
    {
        auto const position = static_cast<std::size_t>(index - lower_);
        if (position >= elements_.size())
            fail(FailureKind::SubscriptOutOfRange, "a control array has no such element");
        return *elements_[position];
    }
    int Count() const override { return static_cast<int>(elements_.size()); }
    int lower_bound() const { return lower_; }

    /// Gives an element that is loaded later its size and its looks.
    std::function<void(T&)> on_load;

    void load_next() override
    {
        add_element();
        elements_.back()->Visible(false);
        if (on_load)
            on_load(*elements_.back());
    }

    Interface const& host_interface() const override;

private:
    void add_element() { elements_.push_back(std::make_unique<T>(container_, name_, lower_ + Count())); }

    Child& container_;
    std::string name_;
    int lower_;
    std::vector<std::unique_ptr<T>> elements_;
};

Interface const& child_array_interface();

template <class T> Interface const& ChildArray<T>::host_interface() const
{
    return child_array_interface();
}

} // namespace zendara
