#include "zendara/render/surface/font.hpp"

#include <cstddef>

namespace zendara
{

namespace
{

struct Lead {
    std::size_t length; // bytes of the letter, 0 for a byte that begins none
    char32_t bits;      // of the first byte
    char32_t least;     // letter that needs this length
};

Lead lead_of(unsigned char byte)
{
    if (byte < 0x80)
        return {1, byte, 0};
    if (byte >= 0xC0 && byte < 0xE0)
        return {2, byte & 0x1Fu, 0x80};
    if (byte >= 0xE0 && byte < 0xF0)
        return {3, byte & 0x0Fu, 0x800};
    if (byte >= 0xF0 && byte < 0xF8)
        return {4, byte & 0x07u, 0x10000};
    return {0, 0, 0};
}

bool is_letter(char32_t letter, char32_t least)
{
    bool const is_surrogate = letter >= 0xD800 && letter < 0xE000;
    return letter >= least && letter < 0x110000 && !is_surrogate;
}

} // namespace

char32_t next_letter(std::string_view& text)
{
    if (text.empty())
        return 0;
    auto const first = static_cast<unsigned char>(text.front());
    Lead const lead = lead_of(first);

    char32_t letter = lead.bits;
    std::size_t taken = 1;
    while (taken < lead.length && taken < text.size() && (static_cast<unsigned char>(text[taken]) & 0xC0u) == 0x80)
        letter = letter << 6 | (static_cast<unsigned char>(text[taken++]) & 0x3Fu);

    bool const is_whole = taken == lead.length && is_letter(letter, lead.least);
    text.remove_prefix(is_whole ? taken : 1);
    return is_whole ? letter : first;
}

} // namespace zendara
