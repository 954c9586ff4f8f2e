#include "zendara/panel/panel.hpp"
#include "zendara/support/checked.hpp"

#include <algorithm>
#include <cmath>

namespace zendara
{

namespace
{

constexpr std::int64_t most_cells = std::int64_t{1} << 26; // 256 megabytes of starts

double checked_root(double value)
{
    if (value < 0)
        fail(FailureKind::InvalidProcedureCall, "the root of a negative number");
    return std::sqrt(finite(value));
}

// A cell holds four sites on average where sites lie evenly.
double pitch_for(double size_x, double size_y, std::int16_t count)
{
    if (count >= 4)
        return checked_root(finite(finite(4 * size_x) * size_y) / count);
    return finite(2 * checked_root(size_x * size_y));
}

std::int16_t cell_of(double coordinate, double pitch, std::int16_t half)
{
    std::int16_t const cell = to_i16(divide(coordinate, pitch) + half);
    if (cell < 0 || cell > 2 * std::int32_t{half})
        fail(FailureKind::SubscriptOutOfRange, "a site lies outside the table of sites");
    return cell;
}

} // namespace

bool panel::BuildSiteBuckets()
{
    bucket_copies_hold_ = false;
    std::int16_t const count = site_count();
    bucket_pitch_ = pitch_for(SizeX, SizeY, count);
    bucket_half_ = to_i16(divide(std::max(SizeX, SizeY), bucket_pitch_));

    auto const sites = static_cast<std::size_t>(std::max<std::int16_t>(count, 0));
    std::vector<std::int16_t> cell_i(sites), cell_j(sites);
    for (std::size_t s = 0; s < sites; ++s) {
        auto const site = static_cast<std::int32_t>(s + 1);
        cell_i[s] = cell_of(grid_x_(site), bucket_pitch_, bucket_half_);
        cell_j[s] = cell_of(grid_y_(site), bucket_pitch_, bucket_half_);
    }
    lay_buckets_out(cell_i, cell_j);
    copy_sites_beside_items();
    return true;
}

void panel::lay_buckets_out(std::span<std::int16_t const> cell_i, std::span<std::int16_t const> cell_j)
{
    auto const [left, right] = std::minmax_element(cell_i.begin(), cell_i.end());
    auto const [bottom, top] = std::minmax_element(cell_j.begin(), cell_j.end());
    CellBox const box{*left, *bottom, *right - *left + 1, *top - *bottom + 1};
    if (std::int64_t{box.columns} * box.rows > most_cells)
        fail(FailureKind::Overflow, "the table of sites is too large");

    // Counting sort: the count of each cell, then the place behind each list, then the items from the last to the
    // first, which turns every place into the start of its list.
    auto const cell_of_site = [&](std::size_t s) {
        return static_cast<std::size_t>(cell_i[s] - box.first_i) * static_cast<std::size_t>(box.rows) +
               static_cast<std::size_t>(cell_j[s] - box.first_j);
    };
    std::size_t const sites = cell_i.size();
    auto const cells = static_cast<std::size_t>(box.columns) * static_cast<std::size_t>(box.rows);
    bucket_start_.assign(cells + 1, 0);
    bucket_items_.resize(sites);
    for (std::size_t s = 0; s < sites; ++s)
        ++bucket_start_[cell_of_site(s)];
    std::uint32_t end = 0;
    for (std::uint32_t& start : bucket_start_)
        start = end += start;
    for (std::size_t s = sites; s-- > 0;)
        bucket_items_[--bucket_start_[cell_of_site(s)]] = static_cast<std::int16_t>(s);
    bucket_box_ = box;
}

void panel::copy_sites_beside_items()
{
    std::size_t const count = bucket_items_.size();
    bucket_x_.resize(count);
    bucket_y_.resize(count);
    bucket_z_.resize(count);
    std::span<double const> const x = grid_x_.values(), y = grid_y_.values(), z = grid_z_.values();
    for (std::size_t k = 0; k < count; ++k) {
        auto const site = static_cast<std::size_t>(bucket_items_[k]);
        bucket_x_[k] = x[site];
        bucket_y_[k] = y[site];
        bucket_z_[k] = z[site];
    }
    bucket_copies_hold_ = true;
}

} // namespace zendara
