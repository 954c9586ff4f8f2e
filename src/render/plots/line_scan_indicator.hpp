#pragma once

#include "zendara/panel/panel.hpp"
#include "zendara/support/checked.hpp"

#include <algorithm>

namespace zendara
{

/// Puts another tested area into the panel's record until the end of the scope. The half sizes stay.
class TestSizeScope
{
public:
    TestSizeScope(panel& record, double factor) : record_(record), width_(record.TestSizeX), height_(record.TestSizeY)
    {
        record_.TestSizeX *= factor;
        record_.TestSizeY *= factor;
    }
    TestSizeScope(TestSizeScope const&) = delete;
    ~TestSizeScope()
    {
        record_.TestSizeX = width_;
        record_.TestSizeY = height_;
    }

private:
    panel& record_;
    double width_, height_;
};

/// Surface units in a millimetre when the tested area fills a small picture of the panel of that size.
/// @throws Failure  DivisionByZero for a tested area without width or height
inline double scale_to_fit(panel const& record, double width, double height)
{
    constexpr double border = 4; // both sides together
    return std::min(divide(width - border, record.TestSizeX), divide(height - border, record.TestSizeY));
}

} // namespace zendara
