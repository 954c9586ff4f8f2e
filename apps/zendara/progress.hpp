#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace zendara::program
{

/// A line on standard error that tells how far long work has come. Only a terminal shows it, and it goes away at the
/// end.
class Progress
{
public:
    explicit Progress(std::string label);
    ~Progress();
    Progress(Progress const&) = delete;
    Progress& operator=(Progress const&) = delete;

    /// Shows a bar. Cheap enough to be called for every row.
    /// @param total  0 where nobody knows: the label alone shows
    void show(std::uint64_t done, std::uint64_t total);

private:
    using Clock = std::chrono::steady_clock;

    std::string label_;
    bool is_terminal_;
    bool is_shown_ = false;
    Clock::time_point next_;
};

} // namespace zendara::program
