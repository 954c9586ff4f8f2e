#pragma once

#include "zendara/render/surface/widget.hpp"
#include "zendara/support/failure.hpp"

#include <cstddef>
#include <memory>
#include <vector>

namespace zendara::test
{

struct BareWidget : Widget {
    Interface const& host_interface() const override { throw Failure(FailureKind::NoSuchMember, "none"); }
};

/// Widgets from index 0 on; it grows as control arrays do.
struct BareWidgets : WidgetArray {
    std::vector<std::unique_ptr<BareWidget>> widgets;

    explicit BareWidgets(int count)
    {
        for (int i = 0; i < count; ++i)
            widgets.push_back(std::make_unique<BareWidget>());
    }

    Widget& operator()(int index) override
    {
        if (index < 0 || index >= Count())
            fail(FailureKind::SubscriptOutOfRange, "no such widget");
        return *widgets[static_cast<std::size_t>(index)];
    }
    int Count() const override { return static_cast<int>(widgets.size()); }
    void load_next() override
    {
        widgets.push_back(std::make_unique<BareWidget>());
        widgets.back()->Visible(false);
    }
    Interface const& host_interface() const override { throw Failure(FailureKind::NoSuchMember, "none"); }
};

struct BareLine : LineWidget {
    Interface const& host_interface() const override { throw Failure(FailureKind::NoSuchMember, "none"); }
};

} // namespace zendara::test
