#include "zendara/panel/panel.hpp"
#include "zendara/support/checked.hpp"

#include <cmath>

namespace zendara
{

namespace
{

// Half the spread of two limits in percent of their middle; the Integer 0 where the middle is 0.
Value spread_percent(double upper, double lower)
{
    double const sum = finite(upper + lower);
    if (sum == 0)
        return std::int16_t{0};
    return finite(std::abs(divide(finite(upper - lower), sum)) * 100);
}

// The value that stands for "nothing here": a little under a lone value, so that the scale never is empty.
double value_below(double upper, double lower)
{
    if (upper != lower)
        return lower;
    return finite((lower < 0 ? 1.1 : 0.9) * lower - 0.001);
}

double square(double value)
{
    return finite(value * value);
}

} // namespace

void panel::MaxMin()
{
    mini = grid_z_(1);
    maxi = grid_z_(1);
    HiLo = std::int16_t{0};
    Low = -0.001;
    range = 0;
    mean = 0;
    StdDev = 0;

    if (nop_ >= 10)
        BuildSiteBuckets();

    double sum = 0;
    for (std::int32_t site = 1; site <= nop_; ++site) {
        double const Z = grid_z_(site);
        sum = finite(sum + Z);
        if (Z > maxi)
            maxi = Z;
        if (Z < mini)
            mini = Z;
    }
    maximal = maxi;
    minimal = mini;
    Summe_Value = sum;

    if (nop_ > 0) {
        mean = divide(sum, nop_);
        range = finite(maxi - mini);
        HiLo = spread_percent(maxi, mini);
        Low = value_below(maxi, mini);
    }
    if (nop_ < 2)
        return;

    double sum_of_squares = 0;
    for (std::int32_t site = 1; site <= nop_; ++site)
        sum_of_squares = finite(sum_of_squares + square(finite(grid_z_(site) - mean)));
    StdDev = std::sqrt(divide(sum_of_squares, nop_ - 1));
}

void panel::setMaximalMinial(double maxim, double minim)
{
    range = finite(maxim - minim);
    maximal = maxim;
    minimal = minim;
    HiLo = spread_percent(maxim, minim);
    Low = value_below(maxim, minim);
}

double panel::GaussNorm(double z)
{
    double const two_pi = 2 * (4 * std::atan(1.0));
    return std::exp(-0.5 * finite(z * z)) / std::sqrt(two_pi);
}

double panel::Gauss(double hist_x) const
{
    return GaussNorm(divide(finite(hist_x - mean), StdDev));
}

double panel::Globlal_Value_Sub_Mean(double& glmean) const
{
    double sum = 0;
    std::int32_t const count = site_count();
    for (std::int32_t site = 1; site <= count; ++site)
        sum = finite(sum + square(finite(grid_z_(site) - glmean)));
    return sum;
}

void panel::Points_OutCL(double& LCL, double& UCL)
{
    NptLCL = 0;
    NptUCL = 0;
    std::int32_t const count = site_count();
    for (std::int32_t site = 1; site <= count; ++site) {
        double const Z = grid_z_(site);
        if (Z > UCL)
            NptUCL += 1;
        if (Z < LCL)
            NptLCL += 1;
    }
}

} // namespace zendara
