#include "output_file.hpp"

#include "user_error.hpp"

#include <algorithm>

namespace zendara::program
{

namespace
{

/// ".a", ".b" or ".c"
std::string listed(std::initializer_list<std::string_view> endings)
{
    std::string text;
    for (auto const* each = endings.begin(); each != endings.end(); ++each) {
        if (each != endings.begin())
            text += each + 1 == endings.end() ? " or " : ", ";
        text += *each;
    }
    return text;
}

} // namespace

void check_output(std::filesystem::path const& output, std::initializer_list<std::string_view> endings,
                  std::string const& data_file)
{
    auto const ending = output.extension().string();
    if (std::find(endings.begin(), endings.end(), ending) == endings.end())
        throw UserError("-o " + output.string() + ": expected a name that ends in " + listed(endings));
    std::error_code ignored;
    if (std::filesystem::equivalent(output, data_file, ignored))
        throw UserError("-o " + output.string() + ": is the data file itself");
}

} // namespace zendara::program
