#pragma once

#include <stdexcept>
#include <string>

namespace zendara::program
{

/// How the program ends.
enum class Exit { Done = 0, NothingToPlot = 1, BadInput = 2 };

/// Something that the user has to put right, in one line that names the file, the line or the option.
class UserError : public std::runtime_error
{
public:
    explicit UserError(std::string const& line, Exit exit = Exit::BadInput) : std::runtime_error(line), exit_(exit) {}

    Exit exit() const { return exit_; }

private:
    Exit exit_;
};

} // namespace zendara::program
