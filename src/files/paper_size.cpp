#include "zendara/files/paper_size.hpp"

#include "zendara/support/interface.hpp"

namespace zendara
{

std::optional<PaperSize> paper_size_of(std::string_view name)
{
    if (equals_ignoring_case(name, "A4"))
        return a4_paper;
    if (equals_ignoring_case(name, "Letter"))
        return letter_paper;
    return std::nullopt;
}

} // namespace zendara
