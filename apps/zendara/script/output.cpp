#include "output.hpp"

#include <array>
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <signal.h>
#include <unistd.h>

namespace zendara::program
{

namespace
{

// At namespace scope and without pointers: a signal handler reads them.
std::array<char, 65536> buffer;
volatile std::size_t filled = 0;

void write_all(char const* bytes, std::size_t size)
{
    while (size > 0) {
        auto const written = ::write(STDOUT_FILENO, bytes, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return; // nobody reads any more
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
}

void write_buffer()
{
    std::size_t const size = filled;
    filled = 0;
    write_all(buffer.data(), size);
}

constexpr std::array<int, 6> ending_signals = {SIGSEGV, SIGBUS, SIGFPE, SIGABRT, SIGTERM, SIGINT};
std::array<struct sigaction, ending_signals.size()> actions_before;

void give_signals_back()
{
    for (std::size_t i = 0; i < ending_signals.size(); ++i)
        sigaction(ending_signals[i], &actions_before[i], nullptr);
}

// Whoever answered the signal before gets it after us: it is blocked while we run and comes again when we return.
void write_and_end(int number)
{
    write_buffer();
    give_signals_back();
    raise(number);
}

} // namespace

Output::Output()
{
    struct sigaction action = {};
    action.sa_handler = write_and_end;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < ending_signals.size(); ++i)
        sigaction(ending_signals[i], &action, &actions_before[i]);
}

Output::~Output()
{
    flush();
    give_signals_back();
}

void Output::line(std::string_view text)
{
    if (text.size() + 1 > buffer.size() - filled)
        flush();
    if (text.size() + 1 > buffer.size()) {
        write_all(text.data(), text.size());
        write_all("\n", 1);
        return;
    }
    std::memcpy(buffer.data() + filled, text.data(), text.size());
    buffer[filled + text.size()] = '\n';
    std::atomic_signal_fence(std::memory_order_release); // the handler sees whole lines alone
    filled = filled + text.size() + 1;
}

void Output::flush()
{
    write_buffer();
}

} // namespace zendara::program
