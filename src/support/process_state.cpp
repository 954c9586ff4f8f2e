#include "zendara/support/process_state.hpp"

#include <atomic>
#include <clocale>
#include <mutex>
#include <set>

namespace zendara
{

namespace
{

/// The decimal mark. Number texts ask for it all the time, so it is read without a lock; marks that were in use once
/// stay where they are for those who still hold them.
class DecimalMark
{
public:
    std::string const& get() const { return *mark_.load(std::memory_order_acquire); }

    void set(std::string_view mark)
    {
        std::lock_guard const lock(mutex_);
        mark_.store(&*marks_.emplace(mark.empty() ? "." : mark).first, std::memory_order_release);
    }

private:
    std::mutex mutex_;
    std::set<std::string> marks_ = {"."};
    std::atomic<std::string const*> mark_ = &*marks_.begin();
};

DecimalMark& decimal_mark()
{
    static DecimalMark mark;
    return mark;
}

struct GuardedLimits {
    std::mutex mutex;
    HistogramLimits limits;
};

GuardedLimits& guarded_limits()
{
    static GuardedLimits limits;
    return limits;
}

} // namespace

std::string const& decimal_separator()
{
    return decimal_mark().get();
}

void set_decimal_separator(std::string_view mark)
{
    decimal_mark().set(mark);
}

std::string decimal_separator_of_c_locale()
{
    return std::localeconv()->decimal_point;
}

HistogramLimits histogram_limits()
{
    GuardedLimits& shared = guarded_limits();
    std::lock_guard const lock(shared.mutex);
    return shared.limits;
}

void set_histogram_limits(HistogramLimits const& limits)
{
    GuardedLimits& shared = guarded_limits();
    std::lock_guard const lock(shared.mutex);
    shared.limits = limits;
}

} // namespace zendara
