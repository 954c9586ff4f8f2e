#include "progress.hpp"

#include <algorithm>
#include <cstdio>
#include <unistd.h>
#include <utility>

namespace zendara::program
{

namespace
{

constexpr auto first_after = std::chrono::milliseconds(300); // short work shows nothing
constexpr auto then_every = std::chrono::milliseconds(100);
constexpr std::size_t bar_width = 30; // letters

} // namespace

Progress::Progress(std::string label)
    : label_(std::move(label)), is_terminal_(isatty(STDERR_FILENO) != 0), next_(Clock::now() + first_after)
{
}

Progress::~Progress()
{
    if (is_shown_)
        std::fputs("\r\033[K", stderr);
}

void Progress::show(std::uint64_t done, std::uint64_t total)
{
    if (!is_terminal_)
        return;
    auto const now = Clock::now();
    if (now < next_)
        return;
    next_ = now + then_every;
    is_shown_ = true;
    if (total == 0) {
        std::fprintf(stderr, "\r%s ...\033[K", label_.c_str());
        return;
    }
    double const part = std::min(1.0, static_cast<double>(done) / static_cast<double>(total));
    std::string bar(bar_width, ' ');
    std::fill_n(bar.begin(), static_cast<std::size_t>(part * bar_width), '#');
    std::fprintf(stderr, "\r%s [%s] %3.0f %%\033[K", label_.c_str(), bar.c_str(), 100 * part);
}

} // namespace zendara::program
