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
    using Text = std::string const&;
    constexpr auto both = MemberKind::GetPut;
    return {
        getter<C, &C::Name>("Name", "Name of the child."),
        accessors<C, W, Text, std::string, &W::caption, &W::caption>("caption", both, "Text that the child shows."),
        accessors<C, W, Text, std::string, &W::ToolTipText, &W::ToolTipText>("ToolTipText", both,
                                                                             "Text beside the pointer."),
        accessors<C, W, bool, bool, &W::Visible, &W::Visible>("Visible", both, "Whether the child shows."),
        accessors<C, C, bool, bool, &C::Enabled, &C::Enabled>("Enabled", both, "Whether the child answers the user."),
        accessors<C, W, Color, Color, &W::BackColor, &W::BackColor>("BackColor", both, "Colour of the ground."),
        accessors<C, W, double, double, &W::Left, &W::Left>("Left", both, "Left edge in the container."),
        accessors<C, W, double, double, &W::Top, &W::Top>("Top", both, "Upper edge in the container."),
        accessors<C, W, double, double, &W::Width, &W::Width>("Width", both, "Width in the container's unit."),
        accessors<C, W, double, double, &W::Height, &W::Height>("Height", both, "Height in the container's unit."),
        method<C, &W::Move>("Move", {by_value("left"), by_value("top"), by_value("width"), by_value("height")},
                            "Gives the child another place and size."),
    };
}

Interface const& Child::host_interface() const
{
    static Interface const table{"Child", "A child window.",
                                 join({place_and_looks(),
                                       {accessors<Child, Child, Color, Color, &Child::ForeColor, &Child::ForeColor>(
                                            "ForeColor", MemberKind::GetPut, "Colour of the text."),
                                        method<Child, &Child::Refresh>("Refresh", {}, "Shows the child at once.")}})};
    return table;
}

} // namespace zendara
