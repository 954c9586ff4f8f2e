#pragma once

#include "zendara/controls/control.hpp"
#include "zendara/support/object.hpp"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zendara::program
{

/// What a control has told its host.
struct Raised {
    struct Event {
        std::string name;
        std::vector<Value> arguments;
    };
    std::vector<Event> events;
    std::vector<std::string> changes;
};

/// A member that a step means: the object that has it, and its name there.
struct Target {
    Object* object = nullptr;
    std::string_view member;
};

/// The objects that a script has made, by their names and by paths to their children: "c", "c.PLOTA",
/// "c.ScaleValue(1)", "c.PrinterObj".
class Objects
{
public:
    Objects() = default;
    ~Objects();
    Objects(Objects const&) = delete;
    Objects& operator=(Objects const&) = delete;

    /// Keeps an object under a name. One that had the name before lives on: others may hold it.
    void add(std::string name, std::unique_ptr<Object> object);

    /// Names an object that somebody else owns, as long as the result lives.
    class Guest
    {
    public:
        Guest(Objects& objects, std::string name, Object& object);
        ~Guest();
        Guest(Guest const&) = delete;
        Guest& operator=(Guest const&) = delete;

    private:
        Objects& objects_;
        std::string name_;
        Object* before_;
    };

    /// @param path  may begin with "$"
    /// @throws Failure  NoSuchMember when there is no such object, SubscriptOutOfRange for an index outside a control
    ///                  array, ObjectNotSet for a property without an object
    Object& find(std::string_view path) const;

    /// Takes the way of a dotted member: "PLOTA.Width" of "c" is "Width" of "c.PLOTA".
    /// @throws Failure  as find
    Target target(std::string_view path, std::string_view member) const;

    /// What the control has raised. @throws Failure  NoSuchMember when the object is no control
    Raised& raised_by(Object& object);

private:
    std::vector<std::unique_ptr<Object>> owned_; // in the order of making
    std::map<std::string, Object*, std::less<>> by_name_;
    std::map<Object const*, Raised> raised_;
};

} // namespace zendara::program
