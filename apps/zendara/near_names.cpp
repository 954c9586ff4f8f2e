#include "near_names.hpp"

#include <algorithm>
#include <cctype>
#include <numeric>
#include <utility>

namespace zendara::program
{

namespace
{

char lower(char c)
{
    return static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
}

/// Letters to insert, take away or replace to get from one name to the other.
std::size_t distance(std::string_view left, std::string_view right)
{
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < right.size(); ++j) {
            std::size_t const replaced = diagonal + (lower(left[i]) == lower(right[j]) ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, diagonal + 1, row[j] + 1});
        }
    }
    return row.back();
}

} // namespace

std::string did_you_mean(std::string_view misspelt, std::vector<std::string_view> names)
{
    constexpr std::size_t most_names = 3;
    constexpr std::size_t longest_name = 64; // what is longer is no slip of the finger
    if (misspelt.size() > longest_name)
        return {};
    std::size_t const farthest = 1 + misspelt.size() / 3;
    std::vector<std::pair<std::size_t, std::string_view>> near;
    for (auto const name : names)
        if (auto const letters = distance(misspelt, name); letters <= farthest)
            near.emplace_back(letters, name);
    std::stable_sort(near.begin(), near.end(), [](auto const& a, auto const& b) { return a.first < b.first; });

    std::string text;
    for (std::size_t i = 0; i < std::min(most_names, near.size()); ++i)
        text += (i == 0 ? "did you mean " : ", ") + std::string(near[i].second);
    return text.empty() ? text : text + "?";
}

} // namespace zendara::program
