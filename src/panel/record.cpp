#include "zendara/panel/panel.hpp"
#include "zendara/support/checked.hpp"

#include <algorithm>
#include <limits>

namespace zendara
{

namespace
{

bool is_as_good_as_zero(double Z)
{
    return Z == 0 || (-1e-15 < Z && Z < 1e-15);
}

} // namespace

void panel::reset()
{
    grid_next_ = 1;
    nop_ = 0;
    FW_NUll = false;
    FW_Negativ = false;
    bucket_copies_hold_ = false;
    grid_z_.erase();
    grid_x_.erase();
    grid_y_.erase();
}

void panel::SetNop(double Number)
{
    nop_ = Number;
    bucket_copies_hold_ = false;
    // Site numbers are 16 bits wide: nothing could reach the elements of a larger count.
    std::int32_t const upper = std::min<std::int32_t>(to_i32(Number), std::numeric_limits<std::int16_t>::max());
    grid_x_.redim(1, upper);
    grid_y_.redim(1, upper);
    grid_z_.redim(1, upper);
}

std::int16_t panel::site_count() const
{
    return to_i16(nop_);
}

void panel::SetGridValue(double x, double y, double Z)
{
    if (grid_next_ > nop_)
        return;
    store_site(to_i16(grid_next_), x, y, Z);
    grid_next_ += 1;
}

void panel::SetGridValueD(std::int16_t i, double x, double y, double Z)
{
    if (i > nop_)
        return;
    store_site(i, x, y, Z);
}

void panel::OverwriteGridValue(std::int16_t i, double x, double y, double Z)
{
    store_site(i, x, y, Z);
}

void panel::store_site(std::int32_t site, double x, double y, double Z)
{
    bucket_copies_hold_ = false;
    grid_x_(site) = x;
    grid_y_(site) = y;
    grid_z_(site) = Z;
    if (is_as_good_as_zero(Z)) {
        FW_NUll = true;
        grid_z_(site) = 0;
    } else if (Z < 0) {
        FW_Negativ = true;
    }
}

double panel::GetGridValue(std::int16_t ind, HostArray<double>& gr) const
{
    gr(1) = grid_x_(ind);
    gr(2) = grid_y_(ind);
    return grid_z_(ind);
}

} // namespace zendara
