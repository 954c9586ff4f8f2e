// Loads twelve sites and asks for their mean and for a value between four of them.

#include <cmath>
#include <cstdio>
#include <zendara/panel/panel.hpp>

namespace
{

bool is_near(char const* what, double value, double wanted)
{
    bool const is_right = std::abs(value - wanted) < 1e-9;
    std::printf("%s: %.12g%s\n", what, value, is_right ? "" : ", which is wrong");
    return is_right;
}

// A slope around the panel's centre, at four by three sites with a pitch of 10 mm.
void load_slope(zendara::panel& record)
{
    record.SizeX = 50;
    record.SizeY = 40;
    record.SetNop(12);
    for (int column = 0; column < 4; ++column)
        for (int row = 0; row < 3; ++row)
            record.SetGridValue(10 * column - 15, 10 * row - 10, 100 + column + 5 * row);
    record.MaxMin();
}

} // namespace

int main()
{
    zendara::panel record;
    load_slope(record);

    bool const has_mean = is_near("mean", record.mean, 106.5);
    bool const has_middle = is_near("value at (0, -5)", record.Interpolation(0, -5), 104);
    return has_mean && has_middle ? 0 : 1;
}
