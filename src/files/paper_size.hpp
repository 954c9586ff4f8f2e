#pragma once

#include <optional>
#include <string_view>

namespace zendara
{

/// A sheet of paper, in twips.
struct PaperSize {
    double width = 0;
    double height = 0;

    PaperSize turned() const { return {height, width}; }

    bool operator==(PaperSize const&) const = default;
};

inline constexpr PaperSize a4_paper = {11906, 16838};
inline constexpr PaperSize letter_paper = {12240, 15840};

/// The sheet of that name, "A4" or "Letter", upper and lower case alike.
std::optional<PaperSize> paper_size_of(std::string_view name);

} // namespace zendara
