#pragma once

#include "zendara/form/children.hpp"

namespace zendara
{

/// A round button, one of several in a container, of which one at most is on.
class OptionButton : public Child
{
public:
    using Child::Child;

    bool Value() const { return is_on_; }
    /// Switched on, by code or by hand, the others of its container go off and it raises "Click".
    void Value(bool is_on);

    Interface const& host_interface() const override;
    void accept(ChildVisitor& visitor) override { visitor.visit(*this); }

private:
    void switch_off_others();

    bool is_on_ = false;
};

/// The index of the button that is on in a group.
/// @return  one below the first index when none is
int chosen_index(ChildArray<OptionButton>& group);

} // namespace zendara
