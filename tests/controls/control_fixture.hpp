#pragma once

#include "panels.hpp"
#include "trace_text.hpp"
#include "zendara/controls/control.hpp"
#include "zendara/platform/headless/headless_platform.hpp"
#include "zendara/render/surface/recorder.hpp"
#include "zendara/support/interface.hpp"

#include <gtest/gtest.h>

namespace zendara::test
{

/// Three host arrays of equal bounds.
struct HostArrays {
    HostArray<double> x, y, z;

    explicit HostArrays(std::vector<Site> const& sites, std::int32_t lower = 0)
    {
        auto const upper = lower + static_cast<std::int32_t>(sites.size()) - 1;
        for (auto* const array : {&x, &y, &z})
            array->redim(lower, upper);
        for (std::size_t i = 0; i < sites.size(); ++i) {
            auto const index = lower + static_cast<std::int32_t>(i);
            x(index) = sites[i].x;
            y(index) = sites[i].y;
            z(index) = sites[i].z;
        }
    }
};

template <class C> std::int16_t load(C& control, std::vector<Site> const& sites)
{
    HostArrays arrays(sites);
    return control.SetPanelData(arrays.x, arrays.y, arrays.z);
}

/// A control as a host has it: made, initialised, sized, with its events and changes kept.
template <class C> struct Hosted {
    HeadlessPlatform platform{Pictures::Recorded};
    C control{platform};
    std::vector<std::string> events;
    std::vector<std::string> changes;

    explicit Hosted(double width = 6000, double height = 4500)
    {
        control.InitProperties();
        control.window().resize(width, height);
        control.on_event = [this](std::string_view name, std::span<Value>) { events.emplace_back(name); };
        control.on_change = [this](std::string_view name) { changes.emplace_back(name); };
    }

    template <class T = Child> T& child(std::string_view name, std::optional<int> index = {})
    {
        auto* const found = dynamic_cast<T*>(control.find_child(name, index));
        if (found == nullptr)
            throw std::runtime_error("no child " + std::string(name));
        return *found;
    }

    std::vector<TraceRecord> take_record(std::string_view picture)
    {
        return object_cast<Recorder>(control.find_child(picture, {}))->take_record();
    }

    /// Whether the plot has been drawn since the last question.
    bool has_drawn() { return !only(take_record("PLOTA"), "Polygon").empty(); }
};

} // namespace zendara::test
