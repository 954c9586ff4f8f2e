#pragma once

#include "zendara/panel/panel.hpp"

#include <cstdint>
#include <span>

namespace zendara
{

/// A panel's table of sites as plain pointers, for the fast forms of Interpolation.
struct BucketTable {
    std::uint32_t const* start = nullptr; // of the cells in the box, x cell by x cell, and one more
    double const* x = nullptr;            // position and value of each item
    double const* y = nullptr;
    double const* z = nullptr;
    std::int32_t first_i = 0, end_i = 0; // the cells that hold sites lie in this box
    std::int32_t first_j = 0, end_j = 0;
    double pitch = 0;
    double half = 0;
    double scale = 0;          // SizeX + SizeY
    double value_of_site1 = 0; // what the slots hold before a site is offered
};

/// What the forms of Interpolation see of a panel.
class BucketSearch
{
public:
    explicit BucketSearch(panel const& record) : record_(record) {}

    /// Whether the table's copies are those of the sites, and all lengths are of a size where squares neither
    /// overflow nor vanish: the fast forms rely on both.
    bool can_be_fast() const;
    BucketTable table() const;

    double half() const { return record_.bucket_half_; }
    double pitch() const { return record_.bucket_pitch_; }
    std::int32_t last_cell() const { return 2 * std::int32_t{record_.bucket_half_}; }
    std::int16_t site_count() const { return record_.site_count(); }
    /// 0-based site numbers of a cell; none outside the table.
    std::span<std::int16_t const> items(std::int32_t i, std::int32_t j) const;
    /// Distance of a site, 1-based.
    /// @throws Failure  SubscriptOutOfRange when there is no such site, Overflow
    double distance(std::int32_t site, double x, double y) const;
    double value(std::int32_t site) const { return record_.grid_z_(site); }

private:
    panel const& record_;
};

/// Interpolation at one point by way of a fresh table.
double interpolate_point(panel const& record, BucketTable const& table, double x, double y);

} // namespace zendara
