#include "zendara/support/number_text.hpp"

#include "zendara/support/checked.hpp"
#include "zendara/support/process_state.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

namespace zendara
{

namespace
{

constexpr int significant_digits = 15;
constexpr std::string_view decimal_digits = "0123456789";

bool is_digit(char letter)
{
    return letter >= '0' && letter <= '9';
}

std::string zeros(int count)
{
    return std::string(static_cast<std::size_t>(std::max(count, 0)), '0');
}

/// A number's magnitude as decimal digits: 0.DIGITS times ten to the power of `point`. 0 has no digits at all.
struct Decimal {
    std::string digits;
    int point = 0;
};

void drop_trailing_zeros(Decimal& number)
{
    number.digits.resize(number.digits.find_last_not_of('0') + 1);
    if (number.digits.empty())
        number.point = 0;
}

/// The 15 significant digits of a finite number.
Decimal decimal_of(double value)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.*e", significant_digits - 1, std::abs(value));

    Decimal number;
    // Whatever stands between the digits is the decimal mark of the host's C locale.
    char const* at = text;
    for (; *at != 'e'; ++at)
        if (is_digit(*at))
            number.digits += *at;
    number.point = std::atoi(at + 1) + 1;
    drop_trailing_zeros(number);
    return number;
}

/// Keeps so many of the leading digits, none or less included, and rounds half away from zero.
void round_to_digits(Decimal& number, int count)
{
    if (count >= static_cast<int>(number.digits.size()))
        return;
    if (count < 0) {
        number = {};
        return;
    }
    auto const kept = static_cast<std::size_t>(count);
    bool const goes_up = number.digits[kept] >= '5';
    number.digits.resize(kept);
    if (goes_up) {
        auto const last_below_nine = number.digits.find_last_not_of('9');
        if (last_below_nine == std::string::npos) { // all nines: the next power of ten
            number.digits = "1";
            ++number.point;
        } else {
            number.digits.resize(last_below_nine + 1);
            ++number.digits[last_below_nine];
        }
    }
    drop_trailing_zeros(number);
}

/// How many digits show in front of the point and behind it.
struct Places {
    int integer_least = 1;
    int decimals_least = 0;
    int decimals_most = 0;
};

std::string integer_text(Decimal const& number, int least)
{
    auto const in_front = static_cast<std::size_t>(std::max(number.point, 0));
    std::string text = number.digits.substr(0, in_front);
    text += zeros(number.point - static_cast<int>(text.size()));
    return zeros(least - static_cast<int>(text.size())) + text;
}

std::string fraction_text(Decimal const& number, int least)
{
    auto const in_front = static_cast<std::size_t>(std::max(number.point, 0));
    std::string text;
    if (in_front < number.digits.size())
        text = zeros(-number.point) + number.digits.substr(in_front);
    return text + zeros(least - static_cast<int>(text.size()));
}

/// What a number mask asks for.
struct Mask {
    Places places{0, 0, 0};
    int integer_most = 0; // digit places in front of the point; more digits than those show all the same
    bool has_point = false;
    bool has_exponent = false;
    int exponent_least = 0;
};

Mask parse_mask(std::string_view text)
{
    Mask mask;
    Places& places = mask.places;
    for (char const letter : text) {
        bool const is_place = letter == '0' || letter == '#';
        if (letter == 'E') {
            mask.has_exponent = true;
        } else if (letter == '.') {
            mask.has_point = true;
        } else if (is_place && mask.has_exponent) {
            mask.exponent_least += letter == '0' || mask.exponent_least > 0;
        } else if (is_place && mask.has_point) {
            ++places.decimals_most;
            if (letter == '0')
                places.decimals_least = places.decimals_most;
        } else if (is_place) {
            ++mask.integer_most;
            places.integer_least += letter == '0' || places.integer_least > 0;
        }
    }
    return mask;
}

std::string exponent_text(int exponent, int least)
{
    std::string const digits = std::to_string(std::abs(exponent));
    return (exponent < 0 ? "E-" : "E+") + zeros(least - static_cast<int>(digits.size())) + digits;
}

std::string mantissa_text(Decimal const& number, Mask const& mask)
{
    return integer_text(number, mask.places.integer_least) + (mask.has_point ? "." : "") +
           fraction_text(number, mask.places.decimals_least);
}

std::string with_exponent(Decimal number, Mask const& mask)
{
    round_to_digits(number, mask.integer_most + mask.places.decimals_most);
    int const exponent = number.digits.empty() ? 0 : number.point - mask.integer_most;
    number.point -= exponent;
    return mantissa_text(number, mask) + exponent_text(exponent, mask.exponent_least);
}

std::string without_exponent(Decimal number, Mask const& mask)
{
    round_to_digits(number, number.point + mask.places.decimals_most);
    return mantissa_text(number, mask);
}

std::string sign_of(double value)
{
    return value < 0 ? "-" : "";
}

std::string text_of_non_finite(double value)
{
    return std::isnan(value) ? "nan" : sign_of(value) + "inf";
}

// All texts are built with a point. It is the last step that puts the locale's mark there, so that counting and
// cutting see one character, however long the mark is.
std::string with_decimal_separator(std::string text)
{
    auto const point = text.find('.');
    if (point != std::string::npos)
        text.replace(point, 1, decimal_separator());
    return text;
}

std::string masked_with_point(double value, std::string_view mask_text)
{
    if (!std::isfinite(value))
        return text_of_non_finite(value);
    Mask const mask = parse_mask(mask_text);
    Decimal const number = decimal_of(value);
    return sign_of(value) + (mask.has_exponent ? with_exponent(number, mask) : without_exponent(number, mask));
}

std::string plain_with_point(double value)
{
    if (!std::isfinite(value))
        return text_of_non_finite(value);
    Decimal number = decimal_of(value);
    bool const needs_exponent = number.point < -3 || number.point > significant_digits;
    int const exponent = needs_exponent ? number.point - 1 : 0;
    number.point -= exponent;
    std::string const fraction = fraction_text(number, 0);
    return sign_of(value) + integer_text(number, 1) + (fraction.empty() ? "" : ".") + fraction +
           (needs_exponent ? exponent_text(exponent, 2) : "");
}

constexpr std::string_view scientific_mask = "0.00E+00";

// --- Reading -------------------------------------------------------------------------------------------------------

std::string_view without_blanks_around(std::string_view text)
{
    constexpr std::string_view blanks = " \t";
    auto const first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Takes the first letter off when it is one of those wanted.
/// @return  that letter, or 0
char take_any_of(std::string_view& text, std::string_view wanted)
{
    if (text.empty() || wanted.find(text.front()) == std::string_view::npos)
        return 0;
    char const taken = text.front();
    text.remove_prefix(1);
    return taken;
}

std::string_view take_digits(std::string_view& text)
{
    auto const end = std::min(text.find_first_not_of(decimal_digits), text.size());
    auto const digits = text.substr(0, end);
    text.remove_prefix(end);
    return digits;
}

/// The exponent at the end of a number; nothing where the text is none, 0 for an empty text.
std::optional<long long> parse_exponent(std::string_view text)
{
    if (text.empty())
        return 0;
    if (take_any_of(text, "eEdD") == 0)
        return std::nullopt;
    bool const is_negative = take_any_of(text, "+-") == '-';
    if (text.empty() || text.find_first_not_of(decimal_digits) != std::string_view::npos)
        return std::nullopt;
    long long exponent = 0;
    constexpr long long far_beyond_all = 1'000'000'000'000;
    for (char const letter : text)
        exponent = std::min(exponent * 10 + (letter - '0'), far_beyond_all);
    return is_negative ? -exponent : exponent;
}

// --- Digit counts --------------------------------------------------------------------------------------------------

// Numbers that number texts show without an exponent.
constexpr double ordinary_least = 0.0001;
constexpr double ordinary_most = 100000;

std::int16_t as_count(std::size_t characters)
{
    return static_cast<std::int16_t>(characters);
}

std::int16_t natural_decimals(double fraction)
{
    constexpr int leading = 2; // the zero and the mark
    return static_cast<std::int16_t>(as_count(plain_with_point(std::abs(fraction)).size()) - leading);
}

std::string cut_to_decimals(std::string text, std::int16_t dec)
{
    auto const point = text.find('.');
    if (point == std::string::npos)
        return dec >= 1 ? text + '.' + zeros(dec) : text;
    if (dec < 1)
        return text.substr(0, point);
    auto const length = static_cast<std::size_t>(to_i16(static_cast<double>(point) + 1 + dec));
    text.resize(length, '0');
    return text;
}

std::string aligned_right(std::string const& text, std::int16_t field)
{
    auto const width = static_cast<std::size_t>(field);
    if (text.size() >= width)
        return text.substr(text.size() - width);
    return std::string(width - text.size(), ' ') + text;
}

} // namespace

std::string plain_text(double value)
{
    return with_decimal_separator(plain_with_point(value));
}

std::string signed_text(double value)
{
    return (value < 0 ? "" : " ") + plain_text(value);
}

std::optional<double> parse_number(std::string_view text)
{
    text = without_blanks_around(text);
    bool const is_negative = take_any_of(text, "+-") == '-';
    auto const integer = take_digits(text);
    auto const decimals = take_any_of(text, ".,") != 0 ? take_digits(text) : std::string_view{};
    auto const exponent = parse_exponent(text);
    if ((integer.empty() && decimals.empty()) || !exponent)
        return std::nullopt;

    // Digits and an exponent without any decimal mark: these read alike in every C locale.
    std::string number = is_negative ? "-" : "";
    number.append(integer).append(decimals).append("E");
    number += std::to_string(*exponent - static_cast<long long>(decimals.size()));
    double const value = std::strtod(number.c_str(), nullptr);
    if (!std::isfinite(value))
        return std::nullopt;
    return value;
}

std::string format_mask(double value, std::string_view mask)
{
    return with_decimal_separator(masked_with_point(value, mask));
}

std::string format_scientific(double value)
{
    return format_mask(value, scientific_mask);
}

std::string format_label(double value)
{
    double const magnitude = std::abs(value);
    if (value == 0)
        return "0.0"; // a fixed text, its point included
    if (!(magnitude >= 1e-07 && magnitude <= 100000))
        return format_mask(value, "0.###E+#0");
    if (magnitude < 1)
        return format_mask(value, "0.0######");
    return format_mask(value, magnitude <= 10000 ? "0.0###" : "0.0#");
}

std::int16_t IntegerDigits(double value, BooleanWord extra, BooleanWord& sci)
{
    double const magnitude = std::abs(value);
    sci = !(magnitude <= ordinary_most && magnitude >= ordinary_least);
    std::int16_t const digits = sci ? std::int16_t{1} : as_count(signed_text(round_half_even(value)).size());
    return extra ? static_cast<std::int16_t>(digits + 1) : digits;
}

std::int16_t DecimalDigits(double value, std::int16_t field, BooleanWord& sci)
{
    std::int16_t const n = value < 0 ? to_i16(field - 1) : field;
    double const magnitude = std::abs(value);
    // A tiny negative value counts as ordinary too, unlike a tiny positive one.
    sci = !(magnitude <= ordinary_most && (magnitude >= ordinary_least || value <= 0));
    if (sci)
        return n >= 9 ? static_cast<std::int16_t>(n - 7) : std::int16_t{2};

    double const whole = round_half_even(value);
    int const decimals = n < 1 ? natural_decimals(value - whole) : n - as_count(signed_text(whole).size());
    return static_cast<std::int16_t>(std::max(decimals, 0));
}

std::string FormatFixed(double value, std::int16_t field, std::int16_t dec, BooleanWord sci)
{
    std::string text = sci ? masked_with_point(value, scientific_mask)
                           : cut_to_decimals(masked_with_point(value, "#########0.0#########"), dec);
    if (field > 0)
        text = aligned_right(text, field);
    return with_decimal_separator(std::move(text));
}

} // namespace zendara
