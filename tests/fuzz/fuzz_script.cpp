// Any text as a host script: it either is rejected in one line or runs to its end.

#include "script/script.hpp"
#include "script/session.hpp"
#include "user_error.hpp"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace
{

using namespace zendara::program;

/// Steps that write files, and numbers so large that a step takes minutes or all memory, are left out.
bool may_run(std::string text)
{
    constexpr std::size_t longest_number = 5;
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    for (auto const* word : {"\"picture\"", "setdatafile", "\\u"})
        if (text.find(word) != std::string::npos)
            return false;
    std::size_t digits = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        bool const is_digit = std::isdigit(static_cast<unsigned char>(text[i])) != 0;
        digits = is_digit ? digits + 1 : 0;
        bool const is_exponent = text[i] == 'e' && i > 0 && std::isdigit(static_cast<unsigned char>(text[i - 1])) != 0;
        if (digits > longest_number || is_exponent)
            return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    // What scripts print is of no interest here.
    return std::freopen("/dev/null", "w", stdout) == nullptr ? 1 : 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string const text(reinterpret_cast<char const*>(data), size);
    try {
        Script const script(text, "fuzz.json");
        if (may_run(text))
            Session(zendara::Pictures::Recorded).run(script);
    } catch (UserError const& error) {
        std::string const line = error.what();
        if (line.empty() || line.find('\n') != std::string::npos)
            std::abort();
    }
    return 0;
}
