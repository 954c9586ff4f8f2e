#include "zendara/panel/row_kernels.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#if defined(__x86_64__) && defined(__GNUC__)
#define ZENDARA_HAS_VECTOR_LANES 1
#include <immintrin.h>
#endif

namespace zendara
{

namespace
{

namespace one_lane
{

using Narrow = double;

inline void set_all(Narrow& vector, double value)
{
    vector = value;
}

inline Narrow square_root(Narrow value)
{
    return std::sqrt(value);
}

inline bool any(bool mask)
{
    return mask;
}

inline void load(Narrow& vector, double const* from)
{
    vector = *from;
}

inline void store(double* to, Narrow value)
{
    *to = value;
}

#include "zendara/panel/interpolation_lanes.ipp"

} // namespace one_lane

#ifdef ZENDARA_HAS_VECTOR_LANES

namespace two_lanes
{

using Narrow __attribute__((vector_size(16))) = double;

inline void set_all(Narrow& vector, double value)
{
    vector = _mm_set1_pd(value);
}

inline Narrow square_root(Narrow const& value)
{
    return _mm_sqrt_pd(value);
}

template <class Mask> inline bool any(Mask const& mask)
{
    return _mm_movemask_pd(reinterpret_cast<Narrow>(mask)) != 0;
}

inline void load(Narrow& vector, double const* from)
{
    vector = _mm_loadu_pd(from);
}

inline void store(double* to, Narrow const& value)
{
    _mm_storeu_pd(to, value);
}

#include "zendara/panel/interpolation_lanes.ipp"

} // namespace two_lanes

#ifdef __clang__
#pragma clang attribute push(__attribute__((target("avx2"))), apply_to = function)
#else
#pragma GCC push_options
#pragma GCC target("avx2")
#endif

namespace four_lanes
{

using Narrow __attribute__((vector_size(32))) = double;

inline void set_all(Narrow& vector, double value)
{
    vector = _mm256_set1_pd(value);
}

inline Narrow square_root(Narrow const& value)
{
    return _mm256_sqrt_pd(value);
}

template <class Mask> inline bool any(Mask const& mask)
{
    return _mm256_movemask_pd(reinterpret_cast<Narrow>(mask)) != 0;
}

inline void load(Narrow& vector, double const* from)
{
    vector = _mm256_loadu_pd(from);
}

inline void store(double* to, Narrow const& value)
{
    _mm256_storeu_pd(to, value);
}

#include "zendara/panel/interpolation_lanes.ipp"

} // namespace four_lanes

#ifdef __clang__
#pragma clang attribute pop
#else
#pragma GCC pop_options
#endif

#endif

} // namespace

std::string_view name_of(RowForm form)
{
    switch (form) {
    case RowForm::Plain:
        return "plain";
    case RowForm::TwoLanes:
        return "two lanes";
    case RowForm::FourLanes:
        return "four lanes";
    }
    return "unknown";
}

bool can_run(RowForm form)
{
#ifdef ZENDARA_HAS_VECTOR_LANES
    return form != RowForm::FourLanes || __builtin_cpu_supports("avx2");
#else
    return form == RowForm::Plain;
#endif
}

RowForm best_row_form()
{
    if (can_run(RowForm::FourLanes))
        return RowForm::FourLanes;
    return can_run(RowForm::TwoLanes) ? RowForm::TwoLanes : RowForm::Plain;
}

void search_point(BucketTable const& table, LanePoints const& points, LaneResults const& results)
{
    one_lane::search_lanes<one_lane::Narrow>(table, points, results);
}

LaneKernels kernels_of(RowForm form)
{
#ifdef ZENDARA_HAS_VECTOR_LANES
    if (form == RowForm::FourLanes)
        return {8, 4, four_lanes::search_lanes<four_lanes::Twin<four_lanes::Narrow>>,
                four_lanes::search_lanes<four_lanes::Narrow>};
    if (form == RowForm::TwoLanes)
        return {4, 2, two_lanes::search_lanes<two_lanes::Twin<two_lanes::Narrow>>,
                two_lanes::search_lanes<two_lanes::Narrow>};
#endif
    return {1, 1, search_point, search_point};
}

} // namespace zendara
