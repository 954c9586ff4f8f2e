#include "zendara/panel/bucket_search.hpp"
#include "zendara/panel/panel.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/trap.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace zendara
{

namespace
{

// The four sites found so far, the nearest first.
struct FourSlots {
    std::array<double, 4> distance{};
    std::array<std::int32_t, 4> site{};

    // Takes a site in if it is near enough. The distance is replaced as soon as the site has found its slot, which
    // ends the chain only where the next slot holds no more than the replacement: the first site offered fills all.
    void offer(double& d, std::int32_t s, double replacement)
    {
        for (std::size_t slot = 0; slot < 4; ++slot)
            if (d < distance[slot]) {
                move_down_from(slot);
                distance[slot] = d;
                site[slot] = s;
                d = replacement;
            }
    }

private:
    void move_down_from(std::size_t slot)
    {
        for (std::size_t k = 3; k > slot; --k) {
            distance[k] = distance[k - 1];
            site[k] = site[k - 1];
        }
    }
};

double inverse_square_mean(std::array<double, 4> const& distance, std::array<double, 4> const& value)
{
    std::array<double, 4> share{}, weight{};
    for (std::size_t k = 0; k < 4; ++k) {
        double const square = finite(distance[k] * distance[k]);
        share[k] = divide(value[k], square);
        weight[k] = divide(1, square);
    }
    return divide(finite(share[0] + share[1] + share[2] + share[3]),
                  finite(weight[0] + weight[1] + weight[2] + weight[3]));
}

double value_of(FourSlots const& slots, BucketSearch const& sites)
{
    if (slots.distance[0] == 0)
        return sites.value(slots.site[0]);
    std::array<double, 4> value{};
    for (std::size_t k = 0; k < 4; ++k)
        value[k] = sites.value(slots.site[k]);
    return inverse_square_mean(slots.distance, value);
}

double distance_to_whole(double value)
{
    double const fraction = value - std::floor(value);
    return fraction < 0.5 ? fraction : 1 - fraction;
}

TrapPlace place_of(panel const& record, char const* step)
{
    return {record.container, record, "Interpolation", step};
}

// The bucket search, every step under its own trap: a step that fails leaves its target as it was.
class StepByStep
{
public:
    StepByStep(panel const& record, double x, double y) : record_(record), sites_(record), x_(x), y_(y)
    {
        step("size of the panel", [&] { scale_ = finite(record.SizeX + record.SizeY); });
        step("first distances", [&] { slots_.distance.fill(finite(4 * scale_)); });
        slots_.site.fill(1);
    }

    double result()
    {
        find_centre();
        offer_cell(centre_i_, centre_j_);
        while (slots_.distance[3] > radius_ * radius_ && !is_beyond_table())
            offer_next_ring();

        double result = 0;
        step("mean of four sites", [&] { result = value_of(slots_, sites_); });
        return result;
    }

private:
    template <class Step> void step(char const* name, Step&& step)
    {
        trap(place_of(record_, name), std::forward<Step>(step));
    }

    void find_centre()
    {
        double cells_x = 0, cells_y = 0;
        step("x in cells", [&] { cells_x = divide(x_, sites_.pitch()); });
        step("y in cells", [&] { cells_y = divide(y_, sites_.pitch()); });
        step("centre cell", [&] { centre_i_ = to_i16(cells_x + sites_.half()); });
        step("centre cell", [&] { centre_j_ = to_i16(cells_y + sites_.half()); });
        radius_ = std::min(distance_to_whole(cells_x), distance_to_whole(cells_y));
    }

    void offer_cell(std::int32_t i, std::int32_t j)
    {
        for (std::int32_t const item : sites_.items(i, j)) {
            step("distance of a site", [&] { distance_ = sites_.distance(item + 1, x_, y_); });
            slots_.offer(distance_, item + 1, 2 * scale_);
        }
    }

    void offer_next_ring()
    {
        radius_ += sites_.pitch();
        ++ring_;
        std::int32_t i = centre_i_ - ring_, j = centre_j_ + ring_;
        std::int32_t step_i = 1, step_j = 0;
        for (int side = 0; side < 4; ++side) {
            for (std::int32_t move = 0; move < 2 * ring_; ++move) {
                if (is_in_table(i) && is_in_table(j))
                    offer_cell(i, j);
                i += step_i;
                j += step_j;
            }
            std::int32_t const before = step_i;
            step_i = step_j;
            step_j = -before;
        }
    }

    bool is_in_table(std::int32_t index) const { return index >= 0 && index <= sites_.last_cell(); }

    // No further ring can reach a cell; without a table or a pitch nothing else would end the search.
    bool is_beyond_table() const
    {
        auto const has_passed = [&](std::int32_t centre) {
            return centre - ring_ < 0 && centre + ring_ > sites_.last_cell();
        };
        return has_passed(centre_i_) && has_passed(centre_j_);
    }

    panel const& record_;
    BucketSearch sites_;
    double x_, y_;
    double scale_ = 0;
    FourSlots slots_;
    double distance_ = 0;
    std::int32_t centre_i_ = 0, centre_j_ = 0, ring_ = 0;
    double radius_ = 0;
};

double scan_or_0(panel const& record, double x, double y)
{
    double result = 0;
    trap(place_of(record, "scan of all sites"), [&] { result = record.Interpolation_Einfach(x, y); });
    return result;
}

} // namespace

std::span<std::int16_t const> BucketSearch::items(std::int32_t i, std::int32_t j) const
{
    panel::CellBox const& box = record_.bucket_box_;
    std::int32_t const column = i - box.first_i, row = j - box.first_j;
    if (column < 0 || column >= box.columns || row < 0 || row >= box.rows)
        return {};
    auto const cell =
        static_cast<std::size_t>(column) * static_cast<std::size_t>(box.rows) + static_cast<std::size_t>(row);
    std::uint32_t const first = record_.bucket_start_[cell], end = record_.bucket_start_[cell + 1];
    return std::span(record_.bucket_items_).subspan(first, end - first);
}

double BucketSearch::distance(std::int32_t site, double x, double y) const
{
    double const dx = finite(x - record_.grid_x_(site));
    double const dy = finite(y - record_.grid_y_(site));
    return std::sqrt(finite(dx * dx + dy * dy));
}

bool BucketSearch::can_be_fast() const
{
    constexpr double least = 1e-100, most = 1e100;
    double const scale = record_.SizeX + record_.SizeY;
    return record_.bucket_copies_hold_ && record_.nop_ >= 10 && scale > least && scale < most &&
           record_.bucket_pitch_ > least && record_.bucket_pitch_ < most;
}

BucketTable BucketSearch::table() const
{
    panel::CellBox const& box = record_.bucket_box_;
    return {record_.bucket_start_.data(),
            record_.bucket_x_.data(),
            record_.bucket_y_.data(),
            record_.bucket_z_.data(),
            box.first_i,
            box.first_i + box.columns,
            box.first_j,
            box.first_j + box.rows,
            record_.bucket_pitch_,
            static_cast<double>(record_.bucket_half_),
            record_.SizeX + record_.SizeY,
            record_.grid_z_.values()[0]};
}

double interpolation_step_by_step(panel const& record, double Xa, double Ya)
{
    if (record.GetNop() < 4)
        return 0;
    if (record.GetNop() < 10)
        return scan_or_0(record, Xa, Ya);
    return StepByStep(record, Xa, Ya).result();
}

double panel::Interpolation(double Xa, double Ya) const
{
    BucketSearch const search(*this);
    if (search.can_be_fast())
        return interpolate_point(*this, search.table(), Xa, Ya);
    return interpolation_step_by_step(*this, Xa, Ya);
}

double panel::Interpolation_Einfach(double Xa, double Ya) const
{
    BucketSearch const sites(*this);
    double const scale = finite(SizeX + SizeY);
    FourSlots slots;
    if (nop_ >= 4)
        slots.distance.fill(finite(3 * scale));

    std::int32_t const count = site_count();
    for (std::int32_t site = 1; site <= count; ++site) {
        double distance = sites.distance(site, Xa, Ya);
        slots.offer(distance, site, 2 * scale);
    }
    return value_of(slots, sites);
}

} // namespace zendara
