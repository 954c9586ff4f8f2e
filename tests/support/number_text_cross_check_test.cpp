// Number texts against slow long decimal arithmetic, over many random numbers.

#include "zendara/support/checked.hpp"
#include "zendara/support/number_text.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>

using namespace zendara;

namespace
{

/// A decimal number written out in full: digits in front of the point and behind it.
struct LongDecimal {
    std::string front;
    std::string behind;
};

LongDecimal twice(LongDecimal number)
{
    int carry = 0;
    for (auto* part : {&number.behind, &number.front})
        for (auto i = part->size(); i-- > 0;) {
            char& digit = (*part)[i];
            int const sum = (digit - '0') * 2 + carry;
            digit = static_cast<char>('0' + sum % 10);
            carry = sum / 10;
        }
    if (carry > 0)
        number.front.insert(number.front.begin(), '1');
    return number;
}

LongDecimal half(LongDecimal number)
{
    int rest = 0;
    for (auto* part : {&number.front, &number.behind})
        for (char& digit : *part) {
            int const current = rest * 10 + (digit - '0');
            digit = static_cast<char>('0' + current / 2);
            rest = current % 2;
        }
    if (rest > 0)
        number.behind += '5';
    return number;
}

/// The exact value of a Double's magnitude.
LongDecimal exactly(double value)
{
    int exponent = 0;
    double const fraction = std::frexp(std::abs(value), &exponent);
    LongDecimal number{std::to_string(static_cast<std::uint64_t>(std::ldexp(fraction, 53))), ""};
    for (exponent -= 53; exponent > 0; --exponent)
        number = twice(number);
    for (; exponent < 0; ++exponent)
        number = half(number);
    return number;
}

/// Adds one to the last of the digits.
void add_one(std::string& digits)
{
    auto at = digits.rbegin();
    for (; at != digits.rend() && *at == '9'; ++at)
        *at = '0';
    if (at == digits.rend())
        digits.insert(digits.begin(), '1');
    else
        ++*at;
}

enum class Halves { ToEven, Up };

/// Rounds to `places` digits behind the point; a negative count rounds the integer part.
LongDecimal rounded(LongDecimal const& number, int places, Halves halves)
{
    std::string all = number.front + number.behind;
    int const kept = static_cast<int>(number.front.size()) + places;
    if (kept < 0)
        return {"0", std::string(static_cast<std::size_t>(std::max(places, 0)), '0')};
    all.resize(std::max(all.size(), static_cast<std::size_t>(kept)), '0');
    std::string digits = "0" + all.substr(0, static_cast<std::size_t>(kept));
    std::string const rest = all.substr(static_cast<std::size_t>(kept));
    std::string const middle = rest.empty() ? "" : "5" + std::string(rest.size() - 1, '0');
    bool const is_odd = (digits.back() - '0') % 2 != 0;
    if (!rest.empty() && (rest > middle || (rest == middle && (halves == Halves::Up || is_odd))))
        add_one(digits);
    if (places < 0)
        return {digits + std::string(static_cast<std::size_t>(-places), '0'), ""};
    auto const point = digits.size() - static_cast<std::size_t>(places);
    return {digits.substr(0, point), digits.substr(point)};
}

/// The decimal exponent of the leading digit: 0 for 1 to 9. Zero has none, and answers 0.
int magnitude_of(LongDecimal const& number)
{
    auto const in_front = number.front.find_first_not_of('0');
    if (in_front != std::string::npos)
        return static_cast<int>(number.front.size() - in_front) - 1;
    auto const behind = number.behind.find_first_not_of('0');
    return behind == std::string::npos ? 0 : -static_cast<int>(behind) - 1;
}

LongDecimal fifteen_digits(double value)
{
    LongDecimal const exact = exactly(value);
    return rounded(exact, 14 - magnitude_of(exact), Halves::ToEven);
}

/// number / 10^power.
LongDecimal shifted(LongDecimal number, int power)
{
    for (; power > 0; --power) {
        number.behind.insert(number.behind.begin(), number.front.empty() ? '0' : number.front.back());
        if (!number.front.empty())
            number.front.pop_back();
    }
    for (; power < 0; ++power) {
        number.front += number.behind.empty() ? '0' : number.behind.front();
        if (!number.behind.empty())
            number.behind.erase(number.behind.begin());
    }
    return number;
}

std::string written(double value, LongDecimal const& number, int decimals_least)
{
    auto const first = number.front.find_first_not_of('0');
    std::string const front = first == std::string::npos ? "0" : number.front.substr(first);
    std::string behind = number.behind;
    while (static_cast<int>(behind.size()) > decimals_least && !behind.empty() && behind.back() == '0')
        behind.pop_back();
    while (static_cast<int>(behind.size()) < decimals_least)
        behind += '0';
    return (value < 0 ? "-" : "") + front + '.' + behind;
}

std::string slow_fixed(double value, int least, int most)
{
    return written(value, rounded(fifteen_digits(value), most, Halves::Up), least);
}

std::string slow_exponent(double value, int least, int most, int exponent_digits)
{
    LongDecimal const number = fifteen_digits(value);
    int const before = magnitude_of(number);
    LongDecimal const whole = rounded(shifted(number, before), most, Halves::Up);
    int const carry = magnitude_of(whole);
    std::string exponent = std::to_string(std::abs(before + carry));
    exponent.insert(0,
                    exponent.size() < static_cast<std::size_t>(exponent_digits)
                        ? static_cast<std::size_t>(exponent_digits) - exponent.size()
                        : 0,
                    '0');
    return written(value, shifted(whole, carry), least) + (before + carry < 0 ? "E-" : "E+") + exponent;
}

std::string without_bare_point(std::string text)
{
    auto const point = text.find('.');
    bool const is_bare = point + 1 == text.size() || text[point + 1] == 'E';
    return is_bare ? text.erase(point, 1) : text;
}

std::string slow_plain(double value)
{
    int const magnitude = magnitude_of(fifteen_digits(value));
    bool const needs_exponent = magnitude < -4 || magnitude >= 15;
    return without_bare_point(needs_exponent ? slow_exponent(value, 0, 14, 2) : slow_fixed(value, 0, 20));
}

std::string slow_label(double value)
{
    double const magnitude = std::abs(value);
    if (value == 0)
        return "0.0";
    if (magnitude < 1e-07 || magnitude > 100000)
        return slow_exponent(value, 0, 3, 1);
    return slow_fixed(value, 1, magnitude < 1 ? 7 : magnitude <= 10000 ? 4 : 2);
}

std::string slow_format_fixed(double value, int field, int dec)
{
    std::string text = slow_fixed(value, 1, 10) + std::string(40, '0');
    text = text.substr(0, text.find('.') + (dec > 0 ? 1 + static_cast<std::size_t>(dec) : 0));
    if (field <= 0)
        return text;
    text = std::string(static_cast<std::size_t>(field), ' ') + text;
    return text.substr(text.size() - static_cast<std::size_t>(field));
}

/// Numbers of all the kinds that number texts treat differently.
class Numbers
{
public:
    double next()
    {
        switch (++count_ % 5) {
        case 0: // few decimals, where halves occur
            return std::round(uniform(-1e6, 1e6)) / std::pow(10.0, static_cast<double>(count_ / 5 % 7));
        case 1: // short binary fractions, exact halves
            return std::round(uniform(-1e5, 1e5)) / 64;
        case 2:
            return uniform(-150000, 150000);
        case 3: // nines, whose rounding carries
            return (std::pow(10.0, std::round(uniform(-6, 9))) - 1) / std::pow(10.0, std::round(uniform(0, 9)));
        default:
            return uniform(-1, 1) * std::pow(10.0, uniform(-30, 30));
        }
    }

    int whole(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(engine_); }
    double uniform(double lo, double hi) { return std::uniform_real_distribution<double>(lo, hi)(engine_); }

    double any_bits()
    {
        double value = 0;
        do {
            std::uint64_t const bits = engine_();
            std::memcpy(&value, &bits, sizeof value);
        } while (!std::isfinite(value));
        return value;
    }

private:
    std::mt19937_64 engine_{20240501};
    int count_ = 0;
};

constexpr int rounds = 5000;

} // namespace

TEST(NumberTextCrossCheck, PlainTextsAgreeWithLongArithmetic)
{
    Numbers numbers;
    for (int i = 0; i < rounds; ++i) {
        double const value = numbers.next();
        ASSERT_EQ(plain_text(value), slow_plain(value));
    }
}

TEST(NumberTextCrossCheck, PlainTextsOfAnyBitPatternAgreeWithLongArithmetic)
{
    Numbers numbers;
    for (int i = 0; i < 60; ++i) {
        double const value = numbers.any_bits();
        ASSERT_EQ(plain_text(value), slow_plain(value));
    }
}

TEST(NumberTextCrossCheck, MasksAgreeWithLongArithmetic)
{
    Numbers numbers;
    for (int i = 0; i < rounds; ++i) {
        double const value = numbers.next();
        ASSERT_EQ(format_mask(value, "0.00"), slow_fixed(value, 2, 2)) << plain_text(value);
        ASSERT_EQ(format_mask(value, "0.0###"), slow_fixed(value, 1, 4)) << plain_text(value);
        ASSERT_EQ(format_mask(value, "0.###E+#0"), slow_exponent(value, 0, 3, 1)) << plain_text(value);
        ASSERT_EQ(format_scientific(value), slow_exponent(value, 2, 2, 2)) << plain_text(value);
    }
}

TEST(NumberTextCrossCheck, LabelsAgreeWithLongArithmetic)
{
    Numbers numbers;
    for (int i = 0; i < rounds; ++i) {
        double const value = numbers.next();
        ASSERT_EQ(format_label(value), slow_label(value)) << plain_text(value);
    }
}

TEST(NumberTextCrossCheck, FormatFixedAgreesWithLongArithmetic)
{
    Numbers numbers;
    for (int i = 0; i < rounds; ++i) {
        double const value = numbers.next();
        int const field = numbers.whole(-1, 14);
        int const dec = numbers.whole(-1, 12);
        ASSERT_EQ(FormatFixed(value, static_cast<std::int16_t>(field), static_cast<std::int16_t>(dec), false),
                  slow_format_fixed(value, field, dec))
            << plain_text(value) << " in " << field << " characters, " << dec << " decimals";
    }
}

TEST(NumberTextCrossCheck, DigitCountsAgreeWithTheLengthsOfTexts)
{
    Numbers numbers;
    for (int i = 0; i < rounds; ++i) {
        double const value = numbers.next();
        auto const field = static_cast<std::int16_t>(numbers.whole(-2, 14));
        int const n = value < 0 ? field - 1 : field;
        bool const is_ordinary = value <= 100000 && value >= -100000 && (value <= 0 || std::abs(value) >= 0.0001);
        std::string const whole = std::to_string(std::llround(std::abs(std::nearbyint(is_ordinary ? value : 0))));
        int wanted = n >= 9 ? n - 7 : 2;
        if (is_ordinary && n >= 1)
            wanted = std::max(n - static_cast<int>(whole.size()) - 1, 0);
        else if (is_ordinary)
            wanted = std::max(static_cast<int>(slow_plain(std::abs(value - std::nearbyint(value))).size()) - 2, 0);

        BooleanWord sci;
        ASSERT_EQ(DecimalDigits(value, field, sci), wanted) << plain_text(value) << " in " << field;
        ASSERT_EQ(sci, !is_ordinary) << plain_text(value);
        int const integer_digits = IntegerDigits(value, false, sci);
        ASSERT_EQ(integer_digits, sci ? 1 : static_cast<int>(whole.size()) + 1) << plain_text(value);
    }
}

TEST(NumberTextCrossCheck, ParsedTextsAgreeWithTheStandardLibrary)
{
    Numbers numbers;
    char text[400];
    for (int i = 0; i < rounds; ++i) {
        double const value = i % 2 == 0 ? numbers.next() : numbers.any_bits();
        std::snprintf(text, sizeof text, i % 3 == 0 ? "%.17g" : i % 3 == 1 ? "%.20e" : "%.12g", value);
        double const wanted = std::strtod(text, nullptr);
        if (!std::isfinite(wanted))
            continue;
        ASSERT_EQ(parse_number(text), wanted) << text;
    }
}

TEST(NumberTextCrossCheck, NumbersOfFifteenDigitsSurviveTheirPlainText)
{
    Numbers numbers;
    for (int i = 0; i < rounds; ++i) {
        std::string const text = plain_text(numbers.any_bits());
        auto const number = parse_number(text);
        // The text of the largest Doubles rounds up to a number beyond them.
        if (!number)
            continue;
        ASSERT_EQ(plain_text(*number), text);
    }
}
