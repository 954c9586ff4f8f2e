#pragma once

#include "json.hpp"

#include <memory>
#include <string>
#include <vector>

namespace zendara::program
{

struct StepKind;

/// One step of a script, with the shape that its kind asks for.
struct Step {
    StepKind const* kind = nullptr;
    Json const* json = nullptr; // the whole step, an array that the script owns
    std::vector<Step> inner;    // the steps of a modal
};

/// A host script that has been read and checked.
class Script
{
public:
    /// @param name  of the file, for messages
    /// @throws UserError  for a text that is no script; the line names the step
    Script(std::string const& text, std::string const& name);
    ~Script();

    std::vector<Step> const& steps() const { return steps_; }

private:
    std::unique_ptr<Json> json_;
    std::vector<Step> steps_;
};

} // namespace zendara::program
