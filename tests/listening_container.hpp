#pragma once

#include "zendara/support/container.hpp"
#include "zendara/support/trap.hpp"

#include <functional>
#include <string>
#include <vector>

namespace zendara::test
{

/// A container that keeps what panel and plots tell it.
class ListeningContainer : public Container, public FailureSink
{
public:
    struct Message {
        std::string text;
        int style;
        std::string title;

        bool operator==(Message const&) const = default;
    };
    std::vector<Message> messages;
    std::vector<TrappedFailure> failures;
    Surface* printer = nullptr;
    std::function<void()> on_message;

    void message_box(std::string_view text, int style, std::string_view title) override
    {
        messages.push_back({std::string(text), style, std::string(title)});
        if (on_message)
            on_message();
    }
    FailureSink* failure_sink() override { return this; }
    Surface* default_printer() override { return printer; }
    std::string version() const override { return "1.2.3"; }

    void trapped(Object const&, TrappedFailure const& failure) override { failures.push_back(failure); }
};

} // namespace zendara::test
