#include "zendara/panel/bucket_search.hpp"
#include "zendara/panel/panel.hpp"
#include "zendara/panel/row_kernels.hpp"

#include <algorithm>
#include <array>

namespace zendara
{

namespace
{

struct CellPlace {
    double cell = 0;              // number of the cell
    double distance_to_whole = 0; // of the coordinate in units of cells
};

// Rounds half to even. A number too large for this comes out wrong, but not as small as the number of a cell.
double nearest_whole(double value)
{
    constexpr double shift = 6755399441055744.0; // 1.5 * 2^52 leaves no room for a fraction
    return (value + shift) - shift;
}

// Without a branch, so that many points of a row can be placed at once.
CellPlace place_of(double coordinate, BucketTable const& table)
{
    double const cells = coordinate / table.pitch;
    double const nearest = nearest_whole(cells);
    double const floor = nearest > cells ? nearest - 1 : nearest;
    double const fraction = cells - floor;
    double const distance_up = 1 - fraction;
    return {nearest_whole(cells + table.half), fraction < 0.5 ? fraction : distance_up};
}

double least(double a, double b)
{
    return b < a ? b : a;
}

// Whether the cell number fits into 16 bits; that of a point that is no number does not.
bool is_cell(double cell)
{
    return cell >= -32768 && cell <= 32767;
}

// Interpolates along one row, the neighbours that share a cell together.
class RowSearch
{
public:
    RowSearch(panel const& record, RowForm form, double y)
        : record_(record), table_(BucketSearch(record).table()), kernels_(kernels_of(form)), y_(y),
          place_y_(place_of(y, table_))
    {
    }

    void run(std::span<double const> x, std::span<double> z)
    {
        for (std::size_t at = 0; at < x.size(); at += piece_size)
            run_piece(x.subspan(at, std::min(piece_size, x.size() - at)), z.subspan(at));
    }

private:
    static constexpr std::size_t piece_size = 256;
    static constexpr std::size_t most_lanes = 8;

    void run_piece(std::span<double const> x, std::span<double> z)
    {
        for (std::size_t k = 0; k < x.size(); ++k) {
            CellPlace const place = place_of(x[k], table_);
            cell_[k] = place.cell;
            radius_[k] = least(place.distance_to_whole, place_y_.distance_to_whole);
        }
        for (std::size_t k = 0; k < x.size();) {
            std::size_t const count = count_in_one_cell(k, x.size());
            if (is_cell(cell_[k]) && is_cell(place_y_.cell))
                search_group(k, x.subspan(k, count), z.subspan(k, count));
            else
                search_step_by_step(x.subspan(k, count), z.subspan(k, count));
            k += count;
        }
    }

    // As many neighbours as share the cell of the first and fit into the lanes.
    std::size_t count_in_one_cell(std::size_t first, std::size_t end) const
    {
        end = std::min(end, first + kernels_.wide_lanes);
        std::size_t k = first + 1;
        while (k < end && cell_[k] == cell_[first])
            ++k;
        return k - first;
    }

    void search_step_by_step(std::span<double const> x, std::span<double> z) const
    {
        for (std::size_t k = 0; k < x.size(); ++k)
            z[k] = interpolation_step_by_step(record_, x[k], y_);
    }

    void search_group(std::size_t first, std::span<double const> x, std::span<double> z)
    {
        bool const is_narrow = x.size() <= kernels_.narrow_lanes;
        std::size_t const lanes = is_narrow ? kernels_.narrow_lanes : kernels_.wide_lanes;
        std::array<double, most_lanes> lane_x, radius, result, needs_plain;
        for (std::size_t lane = 0; lane < lanes; ++lane) {
            std::size_t const k = std::min(lane, x.size() - 1); // spare lanes repeat the last point
            lane_x[lane] = x[k];
            radius[lane] = radius_[first + k];
        }
        LaneKernel const search = is_narrow ? kernels_.narrow : kernels_.wide;
        search(table_,
               {static_cast<std::int32_t>(cell_[first]), static_cast<std::int32_t>(place_y_.cell), lane_x.data(), y_,
                radius.data()},
               {result.data(), needs_plain.data()});
        for (std::size_t k = 0; k < x.size(); ++k)
            z[k] = needs_plain[k] != 0 ? interpolation_step_by_step(record_, x[k], y_) : result[k];
    }

    panel const& record_;
    BucketTable const table_;
    LaneKernels const kernels_;
    double const y_;
    CellPlace const place_y_;
    std::array<double, piece_size> cell_, radius_;
};

} // namespace

double interpolate_point(panel const& record, BucketTable const& table, double x, double y)
{
    CellPlace const place_x = place_of(x, table), place_y = place_of(y, table);
    if (is_cell(place_x.cell) && is_cell(place_y.cell)) {
        double const radius = least(place_x.distance_to_whole, place_y.distance_to_whole);
        double z = 0, needs_plain = 0;
        search_point(table,
                     {static_cast<std::int32_t>(place_x.cell), static_cast<std::int32_t>(place_y.cell), &x, y, &radius},
                     {&z, &needs_plain});
        if (needs_plain == 0)
            return z;
    }
    return interpolation_step_by_step(record, x, y);
}

void interpolate_row(panel const& record, RowForm form, std::span<double const> x, double y, std::span<double> z)
{
    if (BucketSearch(record).can_be_fast()) {
        RowSearch(record, form, y).run(x, z.first(x.size()));
        return;
    }
    for (std::size_t i = 0; i < x.size(); ++i)
        z[i] = interpolation_step_by_step(record, x[i], y);
}

void panel::interpolate_row(std::span<double const> x, double y, std::span<double> z) const
{
    zendara::interpolate_row(*this, best_row_form(), x, y, z);
}

} // namespace zendara
