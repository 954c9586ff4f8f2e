#pragma once

#include <cstdint>

namespace zendara
{

// Lengths have their unit in the type of the place that they make up. Places on a panel count upwards from its centre;
// all others count downwards from an upper left corner.

/// Millimetres on a panel.
struct Millimetres {
    using Number = double;
};

/// Twips of a form or a page, 1440 to the inch.
struct Twips {
    using Number = double;
};

/// The unit that a surface's ScaleMode asks for, which is twips or pixels.
struct SurfaceUnits {
    using Number = double;
};

/// Whole pixels of a picture or a device.
struct Pixels {
    using Number = std::int32_t;
};

template <class Unit> struct Point {
    typename Unit::Number x{};
    typename Unit::Number y{};

    bool operator==(Point const&) const = default;
};

template <class Unit> struct Size {
    typename Unit::Number width{};
    typename Unit::Number height{};

    bool operator==(Size const&) const = default;
};

/// A rectangle with its upper left corner and its size.
template <class Unit> struct Box {
    typename Unit::Number left{};
    typename Unit::Number top{};
    typename Unit::Number width{};
    typename Unit::Number height{};

    Size<Unit> size() const { return {width, height}; }
    typename Unit::Number right() const { return left + width; }
    typename Unit::Number bottom() const { return top + height; }

    bool operator==(Box const&) const = default;
};

} // namespace zendara
