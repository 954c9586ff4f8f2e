#pragma once

#include "zendara/form/children.hpp"

namespace zendara
{

/// The pointer of a control at work, until the end of the scope.
class HourglassScope
{
public:
    explicit HourglassScope(Window& window) : window_(window) { window_.MousePointer(hourglass); }
    HourglassScope(HourglassScope const&) = delete;
    HourglassScope& operator=(HourglassScope const&) = delete;
    ~HourglassScope() { window_.MousePointer(usual_pointer); }

private:
    static constexpr std::int16_t usual_pointer = 0;
    static constexpr std::int16_t hourglass = 11;

    Window& window_;
};

} // namespace zendara
