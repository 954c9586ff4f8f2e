#pragma once

#include "zendara/panel/bucket_search.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace zendara
{

/// How the row kernel works: point by point, or on so many points at once. All forms give the same bits.
enum class RowForm { Plain, TwoLanes, FourLanes };

constexpr std::array<RowForm, 3> row_forms = {RowForm::Plain, RowForm::TwoLanes, RowForm::FourLanes};

/// "plain", "two lanes", "four lanes".
std::string_view name_of(RowForm form);

/// Whether this build has the form and this processor runs it. The plain form runs everywhere.
bool can_run(RowForm form);

/// The fastest form that can run here.
RowForm best_row_form();

/// Some points of one cell and one y, as many as a kernel has lanes.
struct LanePoints {
    std::int32_t i, j; // the cell
    double const* x;
    double y;
    double const* radius; // where the search of each point begins
};

/// What a kernel finds, lane by lane.
struct LaneResults {
    double* z;
    double* needs_plain; // 1 where z does not count and the step-by-step search has to be asked, else 0
};

using LaneKernel = void (*)(BucketTable const&, LanePoints const&, LaneResults const&);

/// The kernel of the plain form, for one point.
void search_point(BucketTable const& table, LanePoints const& points, LaneResults const& results);

/// The kernels of a form: the narrow one for the few points that share a small cell.
struct LaneKernels {
    std::size_t wide_lanes, narrow_lanes;
    LaneKernel wide, narrow;
};

/// @param form  one that can run here
LaneKernels kernels_of(RowForm form);

/// panel::interpolate_row by way of one form.
/// @param form  one that can run here
void interpolate_row(panel const& record, RowForm form, std::span<double const> x, double y, std::span<double> z);

} // namespace zendara
