#include "zendara/support/trap.hpp"

#include "zendara/support/container.hpp"

#include <new>
#include <optional>
#include <stdexcept>

namespace zendara
{

namespace
{

std::optional<FailureKind> kind_of(std::exception const& error)
{
    if (auto const* const failure = dynamic_cast<Failure const*>(&error))
        return failure->kind();
    bool const is_too_much = dynamic_cast<std::bad_alloc const*>(&error) != nullptr ||
                             dynamic_cast<std::length_error const*>(&error) != nullptr;
    return is_too_much ? std::optional(FailureKind::Overflow) : std::nullopt;
}

} // namespace

bool report_trapped(TrapPlace const& place, std::exception const& error)
{
    auto const kind = kind_of(error);
    if (!kind)
        return false;
    if (FailureSink* const sink = place.container == nullptr ? nullptr : place.container->failure_sink())
        sink->trapped(place.source, {*kind, std::string(place.routine) + ": " + place.step, error.what()});
    return true;
}

} // namespace zendara
