#pragma once

#include <cstdint>

namespace zendara
{

/// A truth value as the interface carries it: a 16-bit word, -1 for True and 0 for False; any word but 0 is True.
struct BooleanWord {
    std::int16_t word = 0;

    constexpr BooleanWord() = default;
    constexpr BooleanWord(bool value) : word(value ? -1 : 0) {}
    /// Keeps the word as it is, 5 for example, which tests as True.
    static constexpr BooleanWord from_word(std::int16_t word)
    {
        BooleanWord result;
        result.word = word;
        return result;
    }

    constexpr operator bool() const { return word != 0; }
};

} // namespace zendara
