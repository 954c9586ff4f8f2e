#pragma once

#include "json.hpp"
#include "script/objects.hpp"
#include "script/output.hpp"
#include "script/script.hpp"
#include "zendara/platform/headless/headless_platform.hpp"

#include <cstddef>
#include <deque>
#include <optional>
#include <string_view>

namespace zendara::program
{

/// One run of a script: its objects, the container that they live in, and the place where it stands.
class Session
{
public:
    /// @param pictures  Recorded: every surface keeps its drawing calls
    explicit Session(Pictures pictures);

    /// Runs the steps one after the other. A failed step prints its failure, and the next one runs.
    void run(Script const& script);

    // For the steps.

    HeadlessPlatform& platform() { return platform_; }
    Objects& objects() { return objects_; }

    /// Prints a line of the step that runs: its number, then `name` with `value`.
    void print(char const* name, Json value);
    /// As print, with a second entry.
    void print(char const* name, Json value, char const* second_name, Json second_value);

    /// Keeps the steps of a modal for the next form that is shown.
    void queue_modal(Step const& step);

private:
    /// Where a script stands: the number of a step, and within a modal the number there.
    struct Place {
        std::size_t step = 0;
        std::optional<std::size_t> modal;
    };
    struct Modal {
        std::size_t step = 0;
        std::vector<Step> const* steps = nullptr;
    };

    void run_step(Step const& step);
    void answer(Form& form);
    void print_failure(std::string_view kind);
    Json line_start() const;

    Output output_;
    HeadlessPlatform platform_; // outlives the objects
    Objects objects_;
    std::deque<Modal> modals_;
    Place place_;
};

} // namespace zendara::program
