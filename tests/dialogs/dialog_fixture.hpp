#pragma once

#include "panels.hpp"
#include "trace_text.hpp"
#include "zendara/dialogs/option_dialog.hpp"
#include "zendara/platform/headless/headless_platform.hpp"
#include "zendara/render/surface/recorder.hpp"

#include <gtest/gtest.h>

namespace zendara::test
{

/// A dialog as a control has it up: a panel of 300 by 200 millimetres, and somebody who types.
template <class Dialog> struct Opened {
    HeadlessPlatform platform{Pictures::Recorded};
    std::unique_ptr<panel> record = make_panel(300, 200, {{-90, -60, 1}, {90, -60, 2}, {90, 60, 3}, {-90, 60, 4}});
    Dialog dialog{platform};

    Opened() { dialog.Visible(true); }

    template <class T = TextBox> T& child(std::string_view name, std::optional<int> index = {})
    {
        auto* const found = dynamic_cast<T*>(dialog.find_child(name, index));
        if (found == nullptr)
            throw std::runtime_error("no child " + std::string(name));
        return *found;
    }

    /// What a field shows when a text has been typed into it.
    std::string type(std::string_view field, std::string const& text)
    {
        child(field).Text(text);
        return child(field).Text();
    }

    std::string text(std::string_view field) { return child(field).Text(); }
    void check(bool is_checked) { child<CheckBox>("whiteback").Value(is_checked ? 1 : 0); }

    /// Presses OK. @return  the message that came up
    std::string ok()
    {
        dialog.cmdOK.raise("Click");
        auto const messages = platform.take_messages();
        for (auto const& message : messages)
            EXPECT_EQ(message.title, "Input Error");
        return messages.empty() ? "" : messages.front().text;
    }
    void cancel() { dialog.cmdCancel.raise("Click"); }

    /// How often the small panel has been drawn since the last question.
    std::size_t drawn_previews()
    {
        auto const records = object_cast<Recorder>(dialog.find_child("Plot", {}))->take_record();
        return only(records, "Cls").size();
    }
};

} // namespace zendara::test
