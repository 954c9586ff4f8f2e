#include "panel/panel_samples.hpp"

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>

namespace zendara::samples
{

namespace
{

std::string text_of(std::filesystem::path const& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// What stands behind "key": in the list of sets, from `from` on.
std::string field(std::string const& text, std::string const& key, std::size_t from)
{
    std::size_t const at = text.find("\"" + key + "\":", from);
    std::size_t const begin = text.find_first_not_of(" \"", at + key.size() + 3);
    return text.substr(begin, text.find_first_of(",\"\n}", begin) - begin);
}

std::vector<Site> read_sites_of(std::filesystem::path const& path, std::size_t count)
{
    std::string const bytes = text_of(path);
    std::vector<double> values(3 * count);
    std::memcpy(values.data(), bytes.data(), std::min(bytes.size(), values.size() * sizeof(double)));
    std::vector<Site> sites(count);
    for (std::size_t i = 0; i < count; ++i)
        sites[i] = {values[i], values[count + i], values[2 * count + i]};
    return sites;
}

class Random
{
public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}

    double between(double low, double high) { return std::uniform_real_distribution<double>(low, high)(engine_); }
    std::size_t index(std::size_t count) { return std::uniform_int_distribution<std::size_t>(0, count - 1)(engine_); }

private:
    std::mt19937_64 engine_;
};

Sample uniform(Random& random, std::string name, double size_x, double size_y, std::size_t count, double reach = 0.5)
{
    Sample sample{std::move(name), size_x, size_y, {}};
    for (std::size_t i = 0; i < count; ++i)
        sample.sites.push_back({random.between(-reach * size_x, reach * size_x),
                                random.between(-reach * size_y, reach * size_y), random.between(-5, 20)});
    return sample;
}

Sample grid(std::string name, double size_x, double size_y, int columns, int rows)
{
    Sample sample{std::move(name), size_x, size_y, {}};
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            sample.sites.push_back({((column + 0.5) / columns - 0.5) * size_x, ((row + 0.5) / rows - 0.5) * size_y,
                                    std::sin(column * 1.7 + row * 0.3)});
    return sample;
}

} // namespace

std::vector<DataSet> data_sets()
{
    std::filesystem::path const folder = ZENDARA_DATA;
    std::string const list = text_of(folder / "datasets.json");
    std::vector<DataSet> sets;
    for (std::size_t at = list.find("\"name\""); at != std::string::npos; at = list.find("\"name\"", at + 1)) {
        DataSet set;
        set.sample.name = field(list, "name", at);
        set.sample.size_x = std::stod(field(list, "SizeX", at));
        set.sample.size_y = std::stod(field(list, "SizeY", at));
        set.sample.sites = read_sites_of(folder / (set.sample.name + ".dat"), std::stoul(field(list, "sites", at)));
        set.least = std::stod(field(list, "min", at));
        set.most = std::stod(field(list, "max", at));
        set.mean = std::stod(field(list, "mean", at));
        set.deviation = std::stod(field(list, "stddev", at));
        sets.push_back(std::move(set));
    }
    return sets;
}

std::vector<Sample> random_panels(std::uint64_t seed)
{
    Random random(seed);
    std::vector<Sample> panels;
    for (std::size_t const count : {4u, 9u, 10u, 11u, 13u, 40u, 200u, 1500u})
        panels.push_back(uniform(random, "even " + std::to_string(count), 300, 200, count));
    panels.push_back(uniform(random, "in metres", 0.3, 0.2, 300));
    panels.push_back(uniform(random, "in micrometres", 3e5, 2e5, 300));
    panels.push_back(uniform(random, "sites outside the panel", 120, 100, 60, 0.9));
    panels.push_back(uniform(random, "narrow", 400, 3, 80));
    panels.push_back(uniform(random, "narrow with sites far outside", 3, 40, 30, 0.9));
    panels.push_back(uniform(random, "tiny pitch", 1e-3, 1.2e-3, 500));
    panels.push_back(uniform(random, "beyond the fast lengths, small", 1e-110, 1e-110, 40));
    panels.push_back(uniform(random, "beyond the fast lengths, large", 1e110, 1e110, 40));
    panels.push_back(grid("grid of whole millimetres", 100, 80, 10, 8));
    panels.push_back(grid("grid of thirds", 100, 70, 9, 7));
    panels.push_back(grid("one column", 50, 50, 1, 12));

    Sample coincident = uniform(random, "coincident", 100, 100, 20);
    for (int i = 0; i < 100; ++i) {
        Site site = coincident.sites[random.index(20)];
        site.Z = random.between(0, 1);
        coincident.sites.push_back(site);
    }
    panels.push_back(coincident);

    Sample clustered = uniform(random, "clustered", 100, 100, 10);
    for (int i = 0; i < 200; ++i)
        clustered.sites.push_back({30 + random.between(-1e-3, 1e-3), 30 + random.between(-1e-3, 1e-3), i * 1.0});
    panels.push_back(clustered);

    Sample one_place = uniform(random, "one place", 100, 100, 0);
    one_place.sites.assign(12, {90, 90, 3});
    one_place.sites[4].Z = 7;
    panels.push_back(one_place);

    // In the order that comes first here, sites lie further away than the distance that fills the slots.
    Sample far = uniform(random, "corners of a narrow table", 2, 200, 0);
    for (int i = 0; i < 12; ++i)
        far.sites.push_back({i % 2 ? 195.0 : -195.0, i % 3 ? 195.0 : -195.0, 1.0 * i});
    panels.push_back(far);

    Sample close = uniform(random, "squares that vanish", 100, 100, 10);
    close.sites.push_back({0, 0, 1});
    close.sites.push_back({1e-170, 0, 2});
    close.sites.push_back({1e-155, 0, -1e300});
    panels.push_back(close);

    Sample large_values = uniform(random, "large values", 100, 100, 30);
    for (std::size_t i = 0; i < large_values.sites.size(); ++i)
        large_values.sites[i].Z = i % 2 ? 5e306 : -3e306;
    panels.push_back(large_values);
    return panels;
}

} // namespace zendara::samples
