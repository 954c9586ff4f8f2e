#include "zendara/files/freetype_glyphs.hpp"
#include "zendara/files/png_file.hpp"
#include "zendara/render/surface/raster_picture.hpp"

#include <benchmark/benchmark.h>
#include <libdeflate.h>

#include <algorithm>
#include <cmath>
#include <ostream>
#include <streambuf>
#include <vector>

namespace zendara
{

namespace
{

constexpr int width = 1000;
constexpr int height = 700;

/// Another colour at every cell.
Color cell_color(int column, int row)
{
    return (column * 7 + row * 13) & 0xFFFFFF;
}

// Cells of a map.

void cells_by_polygon(benchmark::State& state)
{
    FreeTypeGlyphs glyphs;
    RasterPicture picture(width, height, glyphs);
    picture.DrawStyle = pen_none;
    picture.FillStyle = fill_solid;
    Surface& surface = picture;
    auto const size = static_cast<int>(state.range(0));
    std::int64_t cells = 0;
    for (auto _ : state)
        for (int y = 0; y < height; y += size)
            for (int x = 0; x < width; x += size, ++cells) {
                surface.FillColor = cell_color(x, y);
                surface.Polygon({{{x, y}, {x + size, y}, {x + size, y + size}, {x, y + size}}});
            }
    state.SetItemsProcessed(cells);
}
BENCHMARK(cells_by_polygon)->Arg(1)->Arg(3)->Arg(8)->Arg(100);

/// The lower bound: the same pixels, cell by cell.
void cells_by_writing_pixels(benchmark::State& state)
{
    Image image(width, height);
    auto const size = static_cast<int>(state.range(0));
    std::int64_t cells = 0;
    for (auto _ : state) {
        for (int y = 0; y < height; y += size)
            for (int x = 0; x < width; x += size, ++cells) {
                auto const pixel = static_cast<std::uint32_t>(cell_color(x, y));
                for (int row = y; row < std::min(y + size, height); ++row)
                    for (int column = x; column < std::min(x + size, width); ++column)
                        image.row(row)[column] = pixel;
            }
        benchmark::DoNotOptimize(image.row(0));
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(cells);
}
BENCHMARK(cells_by_writing_pixels)->Arg(1)->Arg(3)->Arg(8)->Arg(100);

/// Cells that are no boxes, as in a picture from the side.
void slanted_cells_by_polygon(benchmark::State& state)
{
    FreeTypeGlyphs glyphs;
    RasterPicture picture(width, height, glyphs);
    picture.DrawStyle = pen_none;
    picture.FillStyle = fill_solid;
    Surface& surface = picture;
    std::int64_t cells = 0;
    for (auto _ : state)
        for (int y = 0; y < height; y += 3)
            for (int x = 0; x < width; x += 3, ++cells) {
                surface.FillColor = cell_color(x, y);
                surface.Polygon({{{x, y}, {x + 3, y + 1}, {x + 3, y + 4}, {x, y + 3}}});
            }
    state.SetItemsProcessed(cells);
}
BENCHMARK(slanted_cells_by_polygon);

void short_lines(benchmark::State& state)
{
    FreeTypeGlyphs glyphs;
    RasterPicture picture(width, height, glyphs);
    picture.DrawWidth = static_cast<std::int16_t>(state.range(0));
    Surface& surface = picture;
    std::int64_t lines = 0;
    for (auto _ : state)
        for (int y = 0; y < height; y += 7)
            for (int x = 0; x < width; x += 7, ++lines)
                surface.Line(x, y, x + 7, y + 3, 0);
    state.SetItemsProcessed(lines);
}
BENCHMARK(short_lines)->Arg(1)->Arg(2);

// Texts.

void numbers(benchmark::State& state)
{
    FreeTypeGlyphs glyphs;
    RasterPicture picture(width, height, glyphs);
    Surface& surface = picture;
    std::int64_t texts = 0;
    for (auto _ : state)
        for (int y = 0; y < height; y += 14)
            for (int x = 0; x < width; x += 40, ++texts) {
                surface.CurrentX = x;
                surface.CurrentY = y;
                surface.Print("123.45");
            }
    state.SetItemsProcessed(texts);
}
BENCHMARK(numbers);

void first_letter_of_a_process(benchmark::State& state)
{
    for (auto _ : state) {
        FreeTypeGlyphs glyphs;
        benchmark::DoNotOptimize(glyphs.glyph({}, U'1').advance);
    }
}
BENCHMARK(first_letter_of_a_process)->Unit(benchmark::kMicrosecond);

// Files.

/// Ten colours in bands, in cells of 3x3 pixels, with marks and a few numbers.
std::shared_ptr<Image const> map_picture()
{
    FreeTypeGlyphs glyphs;
    RasterPicture picture(width, height, glyphs);
    picture.DrawStyle = pen_none;
    picture.FillStyle = fill_solid;
    for (int y = 0; y < height; y += 3)
        for (int x = 0; x < width; x += 3) {
            double const value = std::sin(x * 0.011) * std::cos(y * 0.017) + 0.5 * std::sin((x + 2 * y) * 0.007);
            picture.FillColor = QBColor(static_cast<int>((value + 1.5) * 10 / 3) + 1);
            picture.Polygon({{{x, y}, {x + 3, y}, {x + 3, y + 3}, {x, y + 3}}});
        }
    picture.DrawStyle = pen_solid;
    for (int i = 0; i < 300; ++i) {
        int const x = i * 7919 % width, y = i * 104729 % height;
        picture.Line(x - 3, y, x + 4, y, 0);
        picture.Line(x, y - 3, x, y + 4, 0);
        picture.CurrentX = x;
        picture.CurrentY = y;
        picture.Print("12.3");
    }
    return picture.image();
}

/// Swallows what is written and counts it.
class CountingBuffer : public std::streambuf
{
public:
    std::int64_t count = 0;

protected:
    std::streamsize xsputn(char const*, std::streamsize size) override
    {
        count += size;
        return size;
    }
    int_type overflow(int_type byte) override
    {
        ++count;
        return traits_type::not_eof(byte);
    }
};

void png_of_a_map(benchmark::State& state)
{
    auto const image = map_picture();
    CountingBuffer buffer;
    std::ostream stream(&buffer);
    for (auto _ : state)
        write_png(*image, stream);
    state.SetItemsProcessed(state.iterations() * width * height);
    state.counters["file_bytes"] = static_cast<double>(buffer.count) / static_cast<double>(state.iterations());
}
BENCHMARK(png_of_a_map)->Unit(benchmark::kMicrosecond);

/// The lower bound: nothing but the compression of the bytes that the file of the map holds.
void deflate_of_a_map(benchmark::State& state)
{
    auto const image = map_picture();
    std::vector<std::uint8_t> rows;
    for (int y = 0; y < height; ++y) {
        rows.push_back(0);
        for (int x = 0; x < width; x += 2) {
            // Any number of up to 16 colours in 4 bits: here a mixture of their bits, the same for the same colour.
            auto const number = [&](int column) { return image->row(y)[column] * 0x9E3779B1u >> 28; };
            rows.push_back(static_cast<std::uint8_t>(number(x) << 4 | number(x + 1)));
        }
    }
    auto* const compressor = libdeflate_alloc_compressor(static_cast<int>(state.range(0)));
    std::vector<std::uint8_t> result(libdeflate_zlib_compress_bound(compressor, rows.size()));
    std::size_t size = 0;
    for (auto _ : state)
        size = libdeflate_zlib_compress(compressor, rows.data(), rows.size(), result.data(), result.size());
    libdeflate_free_compressor(compressor);
    state.counters["file_bytes"] = static_cast<double>(size);
}
BENCHMARK(deflate_of_a_map)->DenseRange(1, 7)->Unit(benchmark::kMicrosecond);

void png_of_many_colours(benchmark::State& state)
{
    Image image(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.row(y)[x] = static_cast<std::uint32_t>(cell_color(x / 3, y / 3));
    CountingBuffer buffer;
    std::ostream stream(&buffer);
    for (auto _ : state)
        write_png(image, stream);
    state.counters["file_bytes"] = static_cast<double>(buffer.count) / static_cast<double>(state.iterations());
}
BENCHMARK(png_of_many_colours)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace zendara
