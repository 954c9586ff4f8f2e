#pragma once

#include "zendara/support/failure.hpp"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace zendara
{

template <class T> class HostArray;

/// An array that somebody else holds, for reading: a lower and an upper bound, every access checked.
template <class T> class HostArrayView
{
public:
    HostArrayView(std::int32_t lower, std::span<T const> values) : HostArrayView(lower, true, values) {}

    /// Values without bounds of their own count from 0.
    template <class Values>
    requires std::convertible_to<Values const&, std::span<T const>> HostArrayView(Values const& values)
        : HostArrayView(0, values)
    {
    }

    /// @throws Failure  SubscriptOutOfRange while the array has no bounds
    std::int32_t lower_bound() const
    {
        check_dimensioned();
        return lower_;
    }

    /// @throws Failure  SubscriptOutOfRange while the array has no bounds, Overflow when it ends beyond 32 bits
    std::int32_t upper_bound() const
    {
        check_dimensioned();
        std::int64_t const upper = lower_ + static_cast<std::int64_t>(values_.size()) - 1;
        if (upper != static_cast<std::int32_t>(upper))
            fail(FailureKind::Overflow, "an array's upper bound does not fit into 32 bits", static_cast<double>(upper));
        return static_cast<std::int32_t>(upper);
    }

    /// @throws Failure  SubscriptOutOfRange outside the bounds
    T const& operator()(std::int32_t index) const { return values_[position(index)]; }

    std::span<T const> values() const { return values_; }

private:
    friend class HostArray<T>;

    HostArrayView(std::int32_t lower, bool is_dimensioned, std::span<T const> values)
        : lower_(lower), is_dimensioned_(is_dimensioned), values_(values)
    {
    }

    void check_dimensioned() const
    {
        if (!is_dimensioned_)
            fail(FailureKind::SubscriptOutOfRange, "an array has no bounds yet");
    }

    std::size_t position(std::int32_t index) const
    {
        // One unsigned compare catches both ends, in 64 bits whatever the size of a pointer.
        auto const offset = static_cast<std::uint64_t>(std::int64_t{index} - lower_);
        if (offset >= values_.size())
            fail(FailureKind::SubscriptOutOfRange, "an index lies outside its array", index);
        return static_cast<std::size_t>(offset);
    }

    std::int32_t lower_;
    bool is_dimensioned_;
    std::span<T const> values_;
};

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

    /// As those of HostArrayView.
    std::int32_t lower_bound() const { return view().lower_bound(); }
    std::int32_t upper_bound() const { return view().upper_bound(); }

    /// @throws Failure  SubscriptOutOfRange outside the bounds
    T& operator()(std::int32_t index) { return values_[view().position(index)]; }
    T const& operator()(std::int32_t index) const { return values_[view().position(index)]; }

    std::span<T> values() { return values_; }
    std::span<T const> values() const { return values_; }

    operator HostArrayView<T>() const { return view(); }

private:
    HostArrayView<T> view() const { return {lower_, is_dimensioned_, values_}; }

    std::int32_t lower_ = 0;
    bool is_dimensioned_ = false;
    std::vector<T> values_;
};

} // namespace zendara
