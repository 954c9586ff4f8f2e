#pragma once

#include "zendara/support/failure.hpp"

#include <cmath>
#include <cstdint>
#include <limits>

namespace zendara
{

/// Nearest whole number, halves to the even neighbour.
inline double round_half_even(double value)
{
    // Adding and taking away 1.5 * 2^52 leaves no room for a fraction; the processor rounds half to even.
    constexpr double shift = 6755399441055744.0;
    constexpr double whole_from = 2251799813685248.0; // 2^51: from here on the trick would carry
    if (value < whole_from && value > -whole_from)
        return (value + shift) - shift;
    return std::nearbyint(value);
}

namespace detail
{

template <class Integer> Integer to_integer(double value, char const* which)
{
    double const whole = round_half_even(value);
    // Written so that NaN fails too.
    if (!(whole >= std::numeric_limits<Integer>::min() && whole <= std::numeric_limits<Integer>::max()))
        fail(FailureKind::Overflow, which, value);
    return static_cast<Integer>(whole);
}

template <class Integer> Integer nearest(double value)
{
    constexpr double least = std::numeric_limits<Integer>::min();
    constexpr double most = std::numeric_limits<Integer>::max();
    double const whole = round_half_even(value);
    if (whole <= least)
        return std::numeric_limits<Integer>::min();
    if (whole >= most)
        return std::numeric_limits<Integer>::max();
    return std::isnan(whole) ? Integer{0} : static_cast<Integer>(whole);
}

} // namespace detail

/// Rounds half to even into a 16-bit integer.
/// @throws Failure  Overflow when the result does not fit, NaN included
inline std::int16_t to_i16(double value)
{
    return detail::to_integer<std::int16_t>(value, "a number does not fit into 16 bits");
}

/// Rounds half to even into a 32-bit integer.
/// @throws Failure  Overflow when the result does not fit, NaN included
inline std::int32_t to_i32(double value)
{
    return detail::to_integer<std::int32_t>(value, "a number does not fit into 32 bits");
}

/// Rounds half to even into the nearest 16-bit integer, NaN into 0: for read-outs, which never fail.
inline std::int16_t nearest_i16(double value)
{
    return detail::nearest<std::int16_t>(value);
}

/// As nearest_i16, with 32 bits.
inline std::int32_t nearest_i32(double value)
{
    return detail::nearest<std::int32_t>(value);
}

/// Passes a result of floating-point arithmetic on.
/// @throws Failure  Overflow when it is infinite or no number
inline double finite(double value)
{
    if (!std::isfinite(value))
        fail(FailureKind::Overflow, "the result of a calculation is not finite", value);
    return value;
}

/// Rounds to a 32-bit float.
/// @throws Failure  Overflow when the result does not fit, NaN included
inline float to_f32(double value)
{
    if (!(std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max())))
        fail(FailureKind::Overflow, "a number does not fit into a 32-bit float", value);
    return static_cast<float>(value);
}

/// dividend / divisor.
/// @throws Failure  DivisionByZero when the divisor is 0, Overflow when the quotient is not finite
inline double divide(double dividend, double divisor)
{
    if (divisor == 0)
        fail(FailureKind::DivisionByZero, "a number is divided by 0", dividend);
    return finite(dividend / divisor);
}

/// Counts a 16-bit counter on by one.
/// @throws Failure  Overflow behind 32767
inline void count_on(std::int16_t& counter)
{
    if (counter == std::numeric_limits<std::int16_t>::max())
        fail(FailureKind::Overflow, "a 16-bit counter passes 32767");
    ++counter;
}

} // namespace zendara
