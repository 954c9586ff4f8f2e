#pragma once

#include "zendara/form/children.hpp"

#include <cstdint>

namespace zendara
{

/// A pair of arrow buttons that counts a number up and down. Setting the number, by code or by hand, raises "Change".
class UpDown : public Child
{
public:
    using Child::Child;

    /// The bounds of what a user's clicks reach; numbers set by code may lie outside.
    std::int32_t Min = 0;
    std::int32_t Max = 100;
    /// What a click adds or takes away.
    std::int32_t Increment = 1;
    /// Whether clicks go on at the other bound.
    BooleanWord Wrap;

    std::int32_t Value() const { return value_; }
    void Value(std::int32_t value);

    /// What the container calls when the user clicks on an arrow. At a bound nothing changes, or the other bound
    /// comes next.
    void click_up() { step(Increment); }
    void click_down() { step(-Increment); }

    Interface const& host_interface() const override;
    void accept(ChildVisitor& visitor) override { visitor.visit(*this); }

private:
    void step(std::int32_t by);

    std::int32_t value_ = 0;
};

} // namespace zendara
