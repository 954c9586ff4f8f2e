#include "script/values.hpp"

#include "zendara/support/failure.hpp"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <limits>

namespace zendara::program
{

namespace
{

Value number(Json const& json)
{
    using Limits = std::numeric_limits<std::int32_t>;
    if (!json.is_number_integer())
        return json.get<double>();
    auto const value = json.get<double>(); // exact as far as 32 bits go
    if (value < Limits::min() || value > Limits::max())
        return value;
    return json.get<std::int32_t>();
}

double element(Json const& json)
{
    if (json.is_boolean())
        return json.get<bool>() ? -1 : 0;
    if (!json.is_number())
        fail(FailureKind::TypeMismatch, "an array holds something that is no number");
    return json.get<double>();
}

Value array(std::int32_t lower, Json const& values)
{
    std::vector<double> elements;
    elements.reserve(values.size());
    for (Json const& each : values)
        elements.push_back(element(each));
    return HostArray<double>(lower, std::move(elements));
}

bool is_object_name(Json const& json)
{
    return json.is_string() && json.get_ref<std::string const&>().starts_with('$');
}

ObjectList object_list(Json const& names, Objects const& objects)
{
    ObjectList list;
    for (Json const& each : names) {
        if (!is_object_name(each))
            fail(FailureKind::TypeMismatch, "a list of objects holds something else");
        list.push_back(&objects.find(each.get_ref<std::string const&>()));
    }
    return list;
}

Value text(std::string const& text, Objects const& objects)
{
    if (text.starts_with('$'))
        return &objects.find(text);
    return text;
}

} // namespace

Value to_value(Json const& json, Objects const& objects)
{
    if (json.is_boolean())
        return BooleanWord(json.get<bool>()).word;
    if (json.is_number())
        return number(json);
    if (json.is_string())
        return text(json.get_ref<std::string const&>(), objects);
    if (json.is_array() && !json.empty() && is_object_name(json.front()))
        return object_list(json, objects);
    if (json.is_array())
        return array(0, json);
    if (json.is_object())
        return array(json.at("lower").get<std::int32_t>(), json.at("values"));
    return Empty{};
}

std::vector<Value> values_from(Json const& step, std::size_t first, Objects const& objects)
{
    std::vector<Value> values;
    for (std::size_t i = first; i < step.size(); ++i)
        values.push_back(to_value(step[i], objects));
    return values;
}

Json to_json(std::vector<Value> const& values)
{
    Json json = Json::array();
    for (auto const& value : values)
        json.push_back(to_json(value));
    return json;
}

Json to_json(TraceRecord const& record)
{
    Json json = Json::array({record.name});
    for (auto const& item : record.items)
        std::visit([&](auto const& held) { json.push_back(held); }, item);
    return json;
}

} // namespace zendara::program
