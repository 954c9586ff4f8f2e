#pragma once

#include "zendara/form/children.hpp"

#include <string>
#include <vector>

namespace zendara
{

/// A window that is shown modally and ends with OK or Cancel. It is hidden until then.
///
/// What the keyboard reaches is plain data, which a container follows: the order of the Tab key, the buttons of Enter
/// and Escape, and the access keys of the children.
class Form : public Window
{
public:
    Form(Platform& platform, std::string name);

    /// The children that take the focus, in the order of the Tab key.
    std::vector<Child*> tab_order;
    /// Enter presses it.
    Button* default_button = nullptr;
    /// Escape and the closing of the window press it.
    Button* cancel_button = nullptr;
    /// The window in front of which the form comes up; nullptr for none.
    Window* owner = nullptr;

    /// Comes up in front of a window and returns when the user has closed the form.
    void show_modal(Window& in_front_of);
    void Hide() { Visible(false); }
    /// The user closes the window.
    void close();

    /// The child that an access key leads to, upper and lower case alike; nullptr when there is none that shows.
    Child* target_of(char letter);
};

/// The children in a container, and in the frames in it, that take the focus: from the top down, and from the left to
/// the right where they stand side by side.
std::vector<Child*> in_reading_order(Child& container);

} // namespace zendara
