#include "script/options.hpp"

#include "zendara/support/failure.hpp"

#include <nlohmann/json.hpp>

namespace zendara::program
{

namespace
{

[[noreturn]] void reject(char const* name, char const* expected)
{
    throw Failure(FailureKind::TypeMismatch, std::string("the option ") + name + " is no " + expected);
}

} // namespace

double number_option(Json const& options, char const* name, double default_value)
{
    auto const found = options.find(name);
    if (found == options.end())
        return default_value;
    if (!found->is_number())
        reject(name, "number");
    return found->get<double>();
}

bool truth_option(Json const& options, char const* name, bool default_value)
{
    auto const found = options.find(name);
    if (found == options.end())
        return default_value;
    if (!found->is_boolean())
        reject(name, "true or false");
    return found->get<bool>();
}

std::string text_option(Json const& options, char const* name, std::string const& default_value)
{
    auto const found = options.find(name);
    if (found == options.end())
        return default_value;
    if (!found->is_string())
        reject(name, "text");
    return found->get<std::string>();
}

} // namespace zendara::program
