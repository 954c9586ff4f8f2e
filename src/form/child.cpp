#include "zendara/form/child.hpp"

#include "zendara/support/interface.hpp"

#include <algorithm>
#include <cctype>

namespace zendara
{

Child::Child(Child& container, std::string name, std::optional<int> index)
    : platform_(container.platform_), container_(&container), name_(std::move(name)), index_(index)
{
    container.children_.push_back(this);
}

Child::Child(Platform& platform, std::string name) : platform_(&platform), name_(std::move(name)) {}

bool Child::IgnoringCase::operator()(std::string_view left, std::string_view right) const
{
    auto const lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
    return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                        [&](char a, char b) { return lower(a) < lower(b); });
}

void Child::ForeColor(Color color)
{
    fore_color_ = color;
    changed(Aspect::Color);
}

void Child::Font(FontFace font)
{
    font_ = std::move(font);
    changed(Aspect::Content);
}

void Child::Enabled(bool is_enabled)
{
    is_enabled_ = is_enabled;
    changed(Aspect::Content);
}

void Child::Refresh()
{
    if (peer_ != nullptr)
        peer_->refresh(*this);
}

void Child::changed(Aspect)
{
    if (peer_ != nullptr)
        peer_->child_changed(*this);
}

void Child::on(std::string_view event, EventHandler handler)
{
    handlers_.insert_or_assign(std::string(event), std::move(handler));
}

void Child::raise(std::string_view event, std::span<Value> arguments)
{
    auto const found = handlers_.find(event);
    if (found == handlers_.end())
        return;
    EventHandler const handler = found->second; // a handler may set another one
    handler(arguments);
}

Object* Child::find_child(std::string_view name, std::optional<int> index)
{
    if (!index)
        for (auto const& [array_name, array] : arrays_)
            if (equals_ignoring_case(array_name, name))
                return array;
    for (Child* const child : children_) {
        bool const is_meant = equals_ignoring_case(child->name_, name) && (!index || child->index_ == index);
        if (is_meant)
            return child;
        if (Object* const deeper = child->find_child(name, index))
            return deeper;
    }
    return nullptr;
}

std::vector<Member> Child::place_and_looks()
{
    using C = Child;
    using W = Widget;
    return {
        getter<&C::Name>("Name", "Name of the child."),
        text_property<W, &W::caption, &W::caption>("caption", "Text that the child shows."),
        text_property<W, &W::ToolTipText, &W::ToolTipText>("ToolTipText", "Text beside the pointer."),
        property<W, bool, &W::Visible, &W::Visible>("Visible", "Whether the child shows."),
        property<C, bool, &C::Enabled, &C::Enabled>("Enabled", "Whether the child answers the user."),
        property<W, Color, &W::BackColor, &W::BackColor>("BackColor", "Colour of the ground."),
        property<W, double, &W::Left, &W::Left>("Left", "Left edge in the container."),
        property<W, double, &W::Top, &W::Top>("Top", "Upper edge in the container."),
        property<W, double, &W::Width, &W::Width>("Width", "Width in the container's unit."),
        property<W, double, &W::Height, &W::Height>("Height", "Height in the container's unit."),
        method<&W::Move>("Move", "Gives the child another place and size.", by_value("left"), by_value("top"),
                         by_value("width"), by_value("height")),
    };
}

Interface const& Child::host_interface() const
{
    static Interface const table{
        "Child", "A child window.",
        join({place_and_looks(),
              {property<Child, Color, &Child::ForeColor, &Child::ForeColor>("ForeColor", "Colour of the text."),
               method<&Child::Refresh>("Refresh", "Shows the child at once.")}})};
    return table;
}

} // namespace zendara
