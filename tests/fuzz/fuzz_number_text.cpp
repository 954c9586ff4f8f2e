// Any text through the number test, the field checks and back through all number formats.

#include "zendara/support/failure.hpp"
#include "zendara/support/field_check.hpp"
#include "zendara/support/number_text.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace
{

using namespace zendara;

/// Stops with the text at hand where something that always holds does not.
void expect(bool holds, char const* what, std::string const& text)
{
    if (holds)
        return;
    std::fprintf(stderr, "%s: \"%s\"\n", what, text.c_str());
    std::abort();
}

bool is_within(double value, double wanted, double error)
{
    return std::abs(value - wanted) <= error;
}

void check_field_checks(std::string_view text)
{
    std::string const copy(text);
    bool const is_number = parse_number(text).has_value();
    expect(is_number || !IsNumberText(text, false), "a text that is no number passes as one", copy);
    expect(is_number || text.empty() || !IsWholeText(text), "a text that is no number passes as a whole one", copy);
    expect(is_number || IsInRange(text, 0, 1), "a text that is no number has a range", copy);

    std::string message;
    bool const is_valid = CheckField(text, -10, 10, message, "Field ");
    expect(is_valid == message.empty(), "a field is valid and has a message, or neither", copy);
}

void check_reading_back(double value)
{
    std::string const plain = plain_text(value);
    auto const again = parse_number(plain);
    // The text of the largest Doubles may round up beyond them.
    bool const is_at_the_end = std::abs(value) > 1.797693134862e308;
    expect(again.has_value() || is_at_the_end, "a plain text is no number", plain);
    if (again)
        expect(plain_text(*again) == plain, "a plain text changes when it is read and written", plain);

    std::string const scientific = format_scientific(value);
    if (auto const read = parse_number(scientific))
        expect(is_within(*read, value, std::abs(value) * 0.00501 + 1e-323), "the scientific form is wrong", scientific);

    std::string const label = format_label(value);
    double const magnitude = std::abs(value);
    if (auto const read = parse_number(label))
        expect(is_within(*read, value, std::max(magnitude * 0.000501, 5.01e-8)), "the label is wrong", label);
}

void check_fixed(double value, std::int16_t field)
{
    BooleanWord sci;
    auto const decimals = DecimalDigits(value, field, sci);
    expect(decimals >= 0, "a count of decimals is negative", plain_text(value));
    auto const text = FormatFixed(value, field, decimals, sci);
    expect(field <= 0 || text.size() == static_cast<std::size_t>(field), "a text does not fill its field", text);
    expect(IntegerDigits(value, false, sci) + 1 == IntegerDigits(value, true, sci), "extra is not one more", text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    if (size == 0)
        return 0;
    auto const field = static_cast<std::int16_t>(static_cast<std::int8_t>(data[0]));
    std::string_view const text(reinterpret_cast<char const*>(data + 1), size - 1);

    check_field_checks(text);
    if (auto const value = parse_number(text)) {
        check_reading_back(*value);
        check_fixed(*value, field);
    }
    return 0;
}
