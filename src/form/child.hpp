#pragma once

#include "zendara/form/platform.hpp"
#include "zendara/render/surface/widget.hpp"
#include "zendara/support/value.hpp"

#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace zendara
{

class Child;
class ChildVisitor;
struct Member;

/// The unit in which a child places what lies in it.
enum class ScaleUnit { Twips, Pixels };

/// What answers an event of a child; the arguments are by reference.
using EventHandler = std::function<void(std::span<Value>)>;

/// A container's side of a child: a widget, a window, an element of a page.
class Peer
{
public:
    virtual ~Peer() = default;
    /// The child has changed in some way that shows.
    virtual void child_changed(Child& child) = 0;
    /// The child is to be shown at once as it stands.
    virtual void refresh(Child& child) = 0;
};

/// A child window as a plain object: a name, a place in its container, looks, children of its own, and handlers.
///
/// Children register with their container, which does not own them; they live as members of the part that uses them.
class Child : public Widget
{
public:
    /// A child inside a container, behind those made before it.
    Child(Child& container, std::string name, std::optional<int> index = {});

    std::string const& Name() const { return name_; }
    std::optional<int> Index() const { return index_; }
    Child* container() const { return container_; }
    std::vector<Child*> const& children() const { return children_; }
    Platform& platform() const { return *platform_; }

    ScaleUnit inner_unit() const { return inner_unit_; }
    void inner_unit(ScaleUnit unit) { inner_unit_ = unit; }
    /// The unit of the child's own place and size: that in which its container places it.
    ScaleUnit unit() const { return container_ == nullptr ? ScaleUnit::Twips : container_->inner_unit_; }
    /// Twips in that unit, across and down.
    double twips_per_unit_x() const { return unit() == ScaleUnit::Twips ? 1 : platform_->twips_per_pixel_x(); }
    double twips_per_unit_y() const { return unit() == ScaleUnit::Twips ? 1 : platform_->twips_per_pixel_y(); }

    Color ForeColor() const { return fore_color_; }
    void ForeColor(Color color);
    FontFace const& Font() const { return font_; }
    virtual void Font(FontFace font);
    bool Enabled() const { return is_enabled_; }
    void Enabled(bool is_enabled);

    /// The letter of the caption, shown underlined, that together with Alt leads to the child; 0 for none.
    char access_key = 0;
    /// Where the letter leads in place of the child itself: from a label to its field. nullptr for the child.
    Child* access_key_target = nullptr;

    /// Makes an array of children known under its name, so that a host can address it as a whole.
    void add_array(std::string name, Object& array) { arrays_.emplace_back(std::move(name), &array); }

    /// Asks the container to show the child at once.
    void Refresh();
    void set_peer(Peer* peer) { peer_ = peer; }

    /// Sets what answers an event, "MouseDown" for example.
    void on(std::string_view event, EventHandler handler);
    /// Raises an event as the platform does; nothing happens where nothing answers it.
    void raise(std::string_view event, std::span<Value> arguments = {});

    virtual void accept(ChildVisitor& visitor) = 0;

    Object* find_child(std::string_view name, std::optional<int> index) override;
    Interface const& host_interface() const override;

protected:
    /// The outermost window.
    Child(Platform& platform, std::string name);

    void changed(Aspect aspect) override;

    /// The members that hosts may name of every child.
    static std::vector<Member> place_and_looks();

private:
    struct IgnoringCase {
        using is_transparent = void;
        bool operator()(std::string_view left, std::string_view right) const;
    };

    Platform* platform_;
    Child* container_ = nullptr;
    std::string name_;
    std::optional<int> index_;
    ScaleUnit inner_unit_ = ScaleUnit::Twips;
    std::vector<Child*> children_;
    std::vector<std::pair<std::string, Object*>> arrays_;
    std::map<std::string, EventHandler, IgnoringCase> handlers_;
    Peer* peer_ = nullptr;
    Color fore_color_ = button_text;
    FontFace font_;
    bool is_enabled_ = true;
};

} // namespace zendara
