#include "script/script.hpp"

#include "near_names.hpp"
#include "script/steps.hpp"
#include "user_error.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string_view>

namespace zendara::program
{

namespace
{

constexpr int deepest_modal = 16;

/// Where in a script a message points: "step 4", or "step 4, step 2 of its modal".
using Place = std::string;

/// Checks one step after the other; `fail` knows the file.
class Checker
{
public:
    explicit Checker(std::string const& name) : name_(name) {}

    std::vector<Step> steps(Json const& array, Place const& place, int depth = 0) const
    {
        if (!array.is_array())
            fail(place, "expected an array of steps");
        std::vector<Step> result;
        result.reserve(array.size());
        for (Json const& each : array) {
            auto const number = std::to_string(result.size());
            result.push_back(
                step(each, place.empty() ? "step " + number : place + ", step " + number + " of its modal", depth));
        }
        return result;
    }

private:
    [[noreturn]] void fail(Place const& place, std::string const& what) const
    {
        throw UserError(name_ + ": " + (place.empty() ? "" : place + ": ") + what);
    }

    Step step(Json const& json, Place const& place, int depth) const
    {
        if (!json.is_array() || json.empty() || !json[0].is_string())
            fail(place, "expected an array that begins with the name of a step");
        Step result;
        result.json = &json;
        result.kind = &kind_of(json[0].get_ref<std::string const&>(), place);
        if (!has_shape(json, result.kind->shape))
            fail(place, "expected " + std::string(result.kind->form));
        if (json[0] == "modal") {
            if (depth == deepest_modal)
                fail(place, "modal steps lie too deep in one another");
            result.inner = steps(json[1], place, depth + 1);
        }
        return result;
    }

    StepKind const& kind_of(std::string const& name, Place const& place) const
    {
        std::vector<std::string_view> names;
        for (StepKind const& kind : step_kinds()) {
            if (kind.name == name)
                return kind;
            names.push_back(kind.name);
        }
        auto const hint = did_you_mean(name, names);
        fail(place, "there is no step " + json_text(name) + (hint.empty() ? "" : "; " + hint));
    }

    static bool has_shape(Json const& step, std::string_view shape)
    {
        std::size_t i = 1;
        for (char const letter : shape) {
            if (letter == '*') {
                for (; i < step.size(); ++i)
                    if (!is_value(step[i]))
                        return false;
            } else if (letter == '?') {
                if (i < step.size() && !step[i++].is_object())
                    return false;
            } else if (i == step.size() || !is_part(step[i++], letter)) {
                return false;
            }
        }
        return i == step.size();
    }

    static bool is_part(Json const& json, char letter)
    {
        switch (letter) {
        case shape_name:
            return json.is_string() && !json.get_ref<std::string const&>().empty();
        case shape_value:
            return is_value(json);
        default:
            return json.is_array(); // steps, which are checked on their own
        }
    }

    static bool is_value(Json const& json)
    {
        if (json.is_array())
            return is_list(json);
        return json.is_object() ? is_bounded_array(json) : true;
    }

    static bool is_list(Json const& json)
    {
        return std::none_of(json.begin(), json.end(), [](Json const& item) { return item.is_structured(); });
    }

    static bool is_bounded_array(Json const& json)
    {
        auto const lower = json.find("lower");
        auto const values = json.find("values");
        if (json.size() != 2 || lower == json.end() || values == json.end())
            return false;
        if (!lower->is_number_integer() || !values->is_array() || !is_list(*values))
            return false;
        using Bound = std::numeric_limits<std::int32_t>;
        auto const first = lower->get<std::int64_t>();
        return first > Bound::min() && first <= Bound::max() &&
               first + static_cast<std::int64_t>(values->size()) - 1 <= Bound::max();
    }

    std::string const& name_;
};

/// The number of the step in which a broken text stops.
std::size_t broken_step(std::string const& text)
{
    std::size_t whole = 0;
    auto const count = [&](int depth, Json::parse_event_t event, Json&) {
        bool const is_step_end = depth == 1 && event == Json::parse_event_t::array_end;
        whole += is_step_end ? 1 : 0;
        return !is_step_end; // a counted step need not be kept
    };
    [[maybe_unused]] Json const broken = Json::parse(text, count, false);
    return whole;
}

std::string reason_in(std::string_view message)
{
    // "[json.exception.parse_error.101] parse error at line 1, column 3: ..."
    if (auto const end = message.find("] "); end != std::string_view::npos)
        message.remove_prefix(end + 2);
    std::string reason(message);
    std::replace(reason.begin(), reason.end(), '\n', ' ');
    return reason;
}

} // namespace

Script::Script(std::string const& text, std::string const& name)
{
    try {
        json_ = std::make_unique<Json>(Json::parse(text));
    } catch (Json::exception const& error) {
        throw UserError(name + ": step " + std::to_string(broken_step(text)) + ": " + reason_in(error.what()));
    }
    steps_ = Checker(name).steps(*json_, "");
}

Script::~Script() = default;

} // namespace zendara::program
