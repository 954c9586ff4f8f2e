#pragma once

#include "zendara/support/failure.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace zendara
{

/// An array as hosts hand it in: a lower and an upper bound, every access checked. A new one has no bounds at all.
template <class T> class HostArray
{
public:
    HostArray() = default;

    HostArray(std::int32_t lower, std::vector<T> values)
        : lower_(lower), is_dimensioned_(true), values_(std::move(values))
    {
    }

    /// Gives the array new bounds and default values; one less in `upper` than in `lower` makes it empty.
    /// @throws Failure  SubscriptOutOfRange when `upper` lies further below
    void redim(std::int32_t lower, std::int32_t upper)
    {
        std::int64_t const count = std::int64_t{upper} - lower + 1;
        if (count < 0)
            fail(FailureKind::SubscriptOutOfRange, "an array's upper bound lies below its lower bound", upper);
        values_.assign(static_cast<std::size_t>(count), T{});
        lower_ = lower;
        is_dimensioned_ = true;
    }

    /// Takes values and bounds away.
    void erase()
    {
        values_.clear();
        is_dimensioned_ = false;
    }

    bool is_dimensioned() const { return is_dimensioned_; }

    /// @throws Failure  SubscriptOutOfRange while the array has no bounds
    std::int32_t lower_bound() const
    {
        check_dimensioned();
        return lower_;
    }

    /// @throws Failure  SubscriptOutOfRange while the array has no bounds
    std::int32_t upper_bound() const
    {
        check_dimensioned();
        return static_cast<std::int32_t>(lower_ + static_cast<std::int64_t>(values_.size()) - 1);
    }

    /// @throws Failure  SubscriptOutOfRange outside the bounds
    T& operator()(std::int32_t index) { return values_[position(index)]; }
    T const& operator()(std::int32_t index) const { return values_[position(index)]; }

    std::span<T> values() { return values_; }
    std::span<T const> values() const { return values_; }

private:
    void check_dimensioned() const
    {
        if (!is_dimensioned_)
            fail(FailureKind::SubscriptOutOfRange, "an array has no bounds yet");
    }

    std::size_t position(std::int32_t index) const
    {
        // One unsigned compare catches both ends.
        auto const offset = static_cast<std::size_t>(std::int64_t{index} - lower_);
        if (offset >= values_.size())
            fail(FailureKind::SubscriptOutOfRange, "an index lies outside its array", index);
        return offset;
    }

    std::int32_t lower_ = 0;
    bool is_dimensioned_ = false;
    std::vector<T> values_;
};

} // namespace zendara
