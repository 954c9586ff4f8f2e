#include "script/steps.hpp"

#include "script/classes.hpp"
#include "script/session.hpp"
#include "script/values.hpp"
#include "zendara/files/png_file.hpp"
#include "zendara/form/window_painter.hpp"
#include "zendara/render/surface/recorder.hpp"
#include "zendara/support/interface.hpp"

#include <nlohmann/json.hpp>

#include <array>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

namespace zendara::program
{

namespace
{

std::string const& text_at(Step const& step, std::size_t position)
{
    return (*step.json)[position].get_ref<std::string const&>();
}

Object& object_at(Session& session, Step const& step, std::size_t position)
{
    return session.objects().find(text_at(step, position));
}

Value value_at(Session& session, Step const& step, std::size_t position)
{
    return to_value((*step.json)[position], session.objects());
}

/// The object as a T. @throws Failure  NoSuchMember when it is of another kind
template <class T> T& as(Object& object, char const* wanted)
{
    auto* const found = object_cast<T>(&object);
    if (found == nullptr)
        throw Failure(FailureKind::NoSuchMember, std::string(object.host_interface().class_name) + " is no " + wanted);
    return *found;
}

/// The child window behind an object; a control's is its window.
Child& child_of(Object& object)
{
    if (auto* const control = object_cast<Control>(&object))
        return control->window();
    return as<Child>(object, "child window");
}

void make(Session& session, Step const& step)
{
    Json const options = step.json->size() > 3 ? (*step.json)[3] : Json::object();
    try {
        session.objects().add(text_at(step, 1), make_object(text_at(step, 2), options, session.platform()));
    } catch (Failure const& failure) {
        // The line that is printed names only the kind.
        std::fprintf(stderr, "zendara: %s: %s\n", text_at(step, 1).c_str(), failure.what());
        throw;
    }
}

// A change of size by the host runs the layout.
bool resizes(Object& object, std::string_view member, Value const& value)
{
    auto* const window = dynamic_cast<Window*>(&object);
    if (window == nullptr)
        return false;
    if (equals_ignoring_case(member, "Width"))
        window->resize(to_double(value), window->Height());
    else if (equals_ignoring_case(member, "Height"))
        window->resize(window->Width(), to_double(value));
    else
        return false;
    return true;
}

void put(Session& session, Step const& step)
{
    auto const [object, member] = session.objects().target(text_at(step, 1), text_at(step, 2));
    Value const value = value_at(session, step, 3);
    if (auto* const bag = object_cast<PropertyBag>(object))
        bag->WriteProperty(std::string(member), value, Empty{});
    else if (!resizes(*object, member, value))
        put_member(*object, member, value);
}

Json entries_of(PropertyBag const& bag)
{
    Json entries = Json::array();
    for (auto const& entry : bag.entries())
        entries.push_back(Json::array({entry.key, to_json(entry.value), to_json(entry.default_value)}));
    return entries;
}

Json read(Target const& target)
{
    auto const [object, member] = target;
    if (auto const* const bag = object_cast<PropertyBag>(object))
        return member == "*" ? entries_of(*bag) : to_json(bag->ReadProperty(std::string(member), Empty{}));
    return to_json(get_member(*object, member));
}

void get(Session& session, Step const& step)
{
    session.print("value", read(session.objects().target(text_at(step, 1), text_at(step, 2))));
}

void call(Session& session, Step const& step)
{
    auto const [object, member] = session.objects().target(text_at(step, 1), text_at(step, 2));
    auto arguments = values_from(*step.json, 3, session.objects());
    Value const result = call_member(*object, member, arguments);
    session.print("result", to_json(result), "args", to_json(arguments));
}

void trace(Session& session, Step const& step)
{
    Json records = Json::array();
    for (auto const& record : as<Recorder>(object_at(session, step, 1), "recording surface").take_record())
        records.push_back(to_json(record));
    session.print("trace", std::move(records));
}

// Handlers rely on the arguments that the platform always gives; a script may leave them out.
std::size_t fewest_arguments(std::string_view event)
{
    struct Known {
        std::string_view event;
        std::size_t count;
    };
    constexpr std::array<Known, 7> known = {{{"MouseDown", 4},
                                             {"MouseMove", 4},
                                             {"MouseUp", 4},
                                             {"KeyDown", 2},
                                             {"KeyUp", 2},
                                             {"KeyPress", 1},
                                             {"Validate", 1}}};
    for (auto const& each : known)
        if (equals_ignoring_case(each.event, event))
            return each.count;
    return 0;
}

void raise(Session& session, Step const& step)
{
    auto const& event = text_at(step, 2);
    auto& child = child_of(object_at(session, step, 1));
    auto arguments = values_from(*step.json, 3, session.objects());
    if (auto const count = fewest_arguments(event); arguments.size() < count)
        arguments.resize(count, std::int16_t{0});
    child.raise(event, arguments);
}

void type(Session& session, Step const& step)
{
    as<TextBox>(object_at(session, step, 1), "text box").Text(to_text(value_at(session, step, 2)));
}

void events(Session& session, Step const& step)
{
    Json list = Json::array();
    for (auto const& event : std::exchange(session.objects().raised_by(object_at(session, step, 1)).events, {})) {
        Json entry = Json::array({event.name});
        for (auto const& argument : event.arguments)
            entry.push_back(to_json(argument));
        list.push_back(std::move(entry));
    }
    session.print("events", std::move(list));
}

void changes(Session& session, Step const& step)
{
    session.print("changes", std::exchange(session.objects().raised_by(object_at(session, step, 1)).changes, {}));
}

void messages(Session& session, Step const&)
{
    Json list = Json::array();
    for (auto const& message : session.platform().take_messages())
        list.push_back({{"title", message.title}, {"text", message.text}, {"style", message.style}});
    session.print("messages", std::move(list));
}

/// What has trapped failures: a control's are those of its panel.
Object const& trap_source(Object& object)
{
    auto* const control = object_cast<Control>(&object);
    return control != nullptr ? control->record() : object;
}

void failures(Session& session, Step const& step)
{
    Json list = Json::array();
    for (auto const& failure : session.platform().take_failures(trap_source(object_at(session, step, 1))))
        list.push_back({{"kind", name_of(failure.kind)}, {"where", failure.where}, {"what", failure.what}});
    session.print("failures", std::move(list));
}

void modal(Session& session, Step const& step)
{
    session.queue_modal(step);
}

void save(Session& session, Step const& step)
{
    auto& control = as<Control>(object_at(session, step, 1), "control");
    control.WriteProperties(as<PropertyBag>(object_at(session, step, 2), "property bag"));
}

void load(Session& session, Step const& step)
{
    auto& control = as<Control>(object_at(session, step, 1), "control");
    control.ReadProperties(as<PropertyBag>(object_at(session, step, 2), "property bag"));
}

/// What an object shows: the pixels of a picture, or else what a screen would show of a child.
Image image_of(Object& object, HeadlessPlatform& platform)
{
    if (auto* const surface = object_cast<Surface>(&object)) {
        if (auto const image = surface->image())
            return *image;
        fail(FailureKind::InvalidProcedureCall, "a recording surface has no pixels");
    }
    return paint_child(child_of(object), platform.glyphs());
}

void picture(Session& session, Step const& step)
{
    write_png(image_of(object_at(session, step, 1), session.platform()), text_at(step, 2));
}

constexpr std::array<StepKind, 15> kinds = {{
    {"new", "nn?", R"(["new", NAME, CLASS, {options}])", make},
    {"put", "nnv", R"(["put", OBJ, MEMBER, VALUE])", put},
    {"get", "nn", R"(["get", OBJ, MEMBER])", get},
    {"call", "nn*", R"(["call", OBJ, METHOD, ARG...])", call},
    {"trace", "n", R"(["trace", OBJ])", trace},
    {"raise", "nn*", R"(["raise", OBJ, EVENT, ARG...])", raise},
    {"type", "nv", R"(["type", OBJ, TEXT])", type},
    {"events", "n", R"(["events", OBJ])", events},
    {"changes", "n", R"(["changes", OBJ])", changes},
    {"messages", "", R"(["messages"])", messages},
    {"modal", "s", R"(["modal", [STEP...]])", modal},
    {"save", "nn", R"(["save", CONTROL, BAG])", save},
    {"load", "nn", R"(["load", CONTROL, BAG])", load},
    {"picture", "nn", R"(["picture", OBJ, FILE])", picture},
    {"failures", "n", R"(["failures", OBJ])", failures},
}};

} // namespace

std::span<StepKind const> step_kinds()
{
    return kinds;
}

} // namespace zendara::program
