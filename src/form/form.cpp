#include "zendara/form/form.hpp"

#include "zendara/form/check_box.hpp"
#include "zendara/form/option_button.hpp"

#include <algorithm>
#include <cctype>
#include <utility>

namespace zendara
{

namespace
{

bool is_same_key(char left, char right)
{
    return std::tolower(static_cast<unsigned char>(left)) == std::tolower(static_cast<unsigned char>(right));
}

Child* target_in(Child& container, char letter)
{
    for (Child* const child : container.children()) {
        if (!child->Visible())
            continue;
        if (child->access_key != 0 && is_same_key(child->access_key, letter))
            return child->access_key_target == nullptr ? child : child->access_key_target;
        if (Child* const deeper = target_in(*child, letter))
            return deeper;
    }
    return nullptr;
}

template <class... Kinds> bool is_one_of(Child* child)
{
    return ((dynamic_cast<Kinds*>(child) != nullptr) || ...);
}

} // namespace

std::vector<Child*> in_reading_order(Child& container)
{
    std::vector<Child*> children = container.children();
    std::stable_sort(children.begin(), children.end(), [](Child const* one, Child const* other) {
        return std::pair(one->Top(), one->Left()) < std::pair(other->Top(), other->Left());
    });
    std::vector<Child*> order;
    for (Child* const child : children) {
        if (is_one_of<TextBox, Button, OptionButton, CheckBox>(child)) {
            order.push_back(child);
        } else if (is_one_of<Frame>(child)) {
            auto const inner = in_reading_order(*child);
            order.insert(order.end(), inner.begin(), inner.end());
        }
    }
    return order;
}

Form::Form(Platform& platform, std::string name) : Window(platform, std::move(name))
{
    Visible(false);
}

void Form::show_modal(Window& in_front_of)
{
    owner = &in_front_of;
    Visible(true);
    platform().show_modal(*this);
}

void Form::close()
{
    if (cancel_button != nullptr)
        cancel_button->raise("Click");
    Hide();
}

Child* Form::target_of(char letter)
{
    return target_in(*this, letter);
}

} // namespace zendara
