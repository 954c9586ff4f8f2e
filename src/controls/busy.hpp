#pragma once

#include "zendara/form/children.hpp"

namespace zendara
{

// The looks of a control at work, until the end of a scope. They come back also behind a failure.

/// The hourglass in place of the usual pointer.
class HourglassScope
{
public:
    explicit HourglassScope(Window& window) : window_(window) { window_.MousePointer(11); }
    HourglassScope(HourglassScope const&) = delete;
    HourglassScope& operator=(HourglassScope const&) = delete;
    ~HourglassScope() { window_.MousePointer(0); }

private:
    Window& window_;
};

/// A button that does not answer the user.
class DisabledScope
{
public:
    explicit DisabledScope(Button& button) : button_(button) { button_.Enabled(false); }
    DisabledScope(DisabledScope const&) = delete;
    DisabledScope& operator=(DisabledScope const&) = delete;
    ~DisabledScope() { button_.Enabled(true); }

private:
    Button& button_;
};

/// A button out of the user's sight.
class HiddenScope
{
public:
    explicit HiddenScope(Button& button) : button_(button) { button_.Visible(false); }
    HiddenScope(HiddenScope const&) = delete;
    HiddenScope& operator=(HiddenScope const&) = delete;
    ~HiddenScope() { button_.Visible(true); }

private:
    Button& button_;
};

} // namespace zendara
