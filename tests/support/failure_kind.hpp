#pragma once

#include "zendara/support/failure.hpp"

#include <optional>
#include <string>

/// The kind of failure that a step ends with; nothing when it runs to its end.
template <class Step> std::optional<zendara::FailureKind> failure_of(Step&& step)
{
    try {
        step();
    } catch (zendara::Failure const& failure) {
        return failure.kind();
    }
    return std::nullopt;
}

/// The message of the failure that a step ends with; empty when it runs to its end.
template <class Step> std::string message_of(Step&& step)
{
    try {
        step();
    } catch (zendara::Failure const& failure) {
        return failure.what();
    }
    return {};
}
