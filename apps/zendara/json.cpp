#include "json.hpp"

#include <nlohmann/json.hpp>

#include <type_traits>

namespace zendara::program
{

namespace
{

Json to_json(HostArray<double> const& array)
{
    Json values = Json::array();
    for (double const value : array.values())
        values.push_back(value);
    return {{"lower", array.is_dimensioned() ? array.lower_bound() : 0}, {"values", std::move(values)}};
}

} // namespace

Json to_json(Value const& value)
{
    return std::visit(
        [](auto const& held) -> Json {
            using Held = std::remove_cvref_t<decltype(held)>;
            if constexpr (std::is_arithmetic_v<Held> || std::is_same_v<Held, std::string>)
                return held;
            else if constexpr (std::is_same_v<Held, HostArray<double>>)
                return to_json(held);
            else
                return nullptr;
        },
        value);
}

std::string text_of(Json const& json)
{
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string json_text(std::string_view text)
{
    return text_of(Json(std::string(text)));
}

} // namespace zendara::program
