// Writes example data: the film thickness of a panel of 300 x 200 mm, measured at 49 and at 1225 sites. The same bytes
// come out on every machine.

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

namespace fs = std::filesystem;

constexpr double half_width_mm = 150;
constexpr double half_height_mm = 100;
constexpr double edge_mm = 10; // nothing is measured nearer to the edge

struct Site {
    double x_mm, y_mm, thickness_nm;
};

/// Numbers from -1 to 1 that look random, the same ones on every machine.
class Noise
{
public:
    double next()
    {
        // A linear congruential generator of 64 bits; its upper bits are the good ones.
        state_ = state_ * 6364136223846793005u + 1442695040888963407u;
        constexpr double half_range = 1u << 23;
        return static_cast<double>(state_ >> 40) / half_range - 1;
    }

private:
    std::uint64_t state_ = 20240229;
};

/// A film that is thin in the middle and tilted, with a slow wave from the coater.
///
/// The wave is a parabola arc and not a sine: elementary functions may differ in the last bit from machine to machine.
double film_nm(double x_mm, double y_mm)
{
    double const u = x_mm / half_width_mm;
    double const v = y_mm / half_height_mm;
    double const bowl = 14 * (u * u + v * v);
    double const tilt = 5 * u - 3 * v;
    double const period = 0.5;
    double const phase = (u + 0.5 * v) / period - std::floor((u + 0.5 * v) / period); // 0 to 1
    double const half_phase = phase < 0.5 ? phase : phase - 0.5;
    double const arc = 16 * half_phase * (0.5 - half_phase); // 0 to 1 and back
    double const ripple = 3 * (phase < 0.5 ? arc : -arc);
    return 490 + bowl + tilt + ripple;
}

/// Rounds as the gauge does.
double rounded(double value, double digit)
{
    return std::round(value * digit) / digit;
}

/// A raster of n x n sites, row by row from the lower left.
std::vector<Site> measure(int n)
{
    Noise noise;
    std::vector<Site> sites;
    for (int row = 0; row < n; ++row) {
        for (int column = 0; column < n; ++column) {
            double const x = rounded((half_width_mm - edge_mm) * (2.0 * column / (n - 1) - 1), 1000);
            double const y = rounded((half_height_mm - edge_mm) * (2.0 * row / (n - 1) - 1), 1000);
            sites.push_back({x, y, rounded(film_nm(x, y) + 0.8 * noise.next(), 100)});
        }
    }
    return sites;
}

void write_file(fs::path const& path, std::string const& bytes)
{
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    file.close();
    if (!file)
        throw std::runtime_error(path.string() + ": cannot be written");
}

void write_csv(fs::path const& path, std::vector<Site> const& sites)
{
    std::string text = "x,y,z\n";
    for (auto const& site : sites) {
        std::array<char, 64> row;
        std::snprintf(row.data(), row.size(), "%.3f,%.3f,%.2f\n", site.x_mm, site.y_mm, site.thickness_nm);
        text += row.data();
    }
    write_file(path, text);
}

void append_little_endian(std::string& bytes, double value)
{
    auto const bits = std::bit_cast<std::uint64_t>(value);
    for (int shift = 0; shift < 64; shift += 8)
        bytes += static_cast<char>(bits >> shift & 0xFF);
}

/// All x, then all y, then all values.
void write_raw(fs::path const& path, std::vector<Site> const& sites)
{
    std::string bytes;
    for (auto const part : {&Site::x_mm, &Site::y_mm, &Site::thickness_nm})
        for (auto const& site : sites)
            append_little_endian(bytes, site.*part);
    write_file(path, bytes);
}

} // namespace

int main(int count, char** words)
{
    if (count != 2) {
        std::cerr << "usage: zendara-example-data DIR\n";
        return 2;
    }
    try {
        fs::path const folder = words[1];
        fs::create_directories(folder);
        write_csv(folder / "film49.csv", measure(7));
        write_csv(folder / "film1225.csv", measure(35));
        write_raw(folder / "film1225.dat", measure(35));
    } catch (std::exception const& error) {
        std::cerr << "zendara-example-data: " << error.what() << '\n';
        return 2;
    }
    return 0;
}
