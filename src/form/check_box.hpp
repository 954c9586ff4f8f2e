#pragma once

#include "zendara/form/children.hpp"

#include <cstdint>

namespace zendara
{

/// A box with a tick, or a button that stays down.
class CheckBox : public Child
{
public:
    using Child::Child;

    /// Shows as a button, down for a tick.
    bool is_push_button = false;

    bool is_checked() const { return value_ == checked; }
    /// 0 unchecked, 1 checked, 2 greyed.
    std::int16_t Value() const { return value_; }
    /// Any other number than 0 and 2 checks the box. Setting it, by code or by hand, raises "Click".
    void Value(std::int16_t value);

    Interface const& host_interface() const override;
    void accept(ChildVisitor& visitor) override { visitor.visit(*this); }

private:
    static constexpr std::int16_t unchecked = 0;
    static constexpr std::int16_t checked = 1;
    static constexpr std::int16_t greyed = 2;

    std::int16_t value_ = unchecked;
};

} // namespace zendara
