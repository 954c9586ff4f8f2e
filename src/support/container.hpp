#pragma once

#include <string>
#include <string_view>

namespace zendara
{

class FailureSink;
class Surface;

/// Parts of a message box's style; a style is their sum.
constexpr int message_critical = 16;
constexpr int message_information = 64;
constexpr int message_system_modal = 4096;

/// What panel, plots and printing ask of the container that they work in.
class Container
{
public:
    virtual ~Container() = default;

    /// Shows a message box and waits until the user has closed it.
    virtual void message_box(std::string_view text, int style, std::string_view title) = 0;

    /// Gets the failures that routines trap; nullptr where nobody wants them.
    virtual FailureSink* failure_sink() { return nullptr; }

    /// The printer that is printed to by default; nullptr where there is none.
    virtual Surface* default_printer() { return nullptr; }

    /// The version of the library as users read it, "0.1.0" for example.
    virtual std::string version() const = 0;
};

} // namespace zendara
