#include "zendara/files/png_file.hpp"

#include "zendara/files/whole_file.hpp"
#include "zendara/support/failure.hpp"

#include <libdeflate.h>
#include <png.h>

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstring>
#include <memory>
#include <new>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace zendara
{

namespace
{

namespace fs = std::filesystem;

// Measured on 1000x700 pixels: level 5 makes a map a seventh smaller for an eighth more time, and a picture of many
// colours hardly smaller for two thirds more.
constexpr int compression_level = 1;

constexpr std::uint32_t color_bits = 0xFFFFFF;

// The rows of a PNG file: a byte that names no filter, then the pixels.

/// The colours of an image with the number of each, in the order of their appearance.
class Palette
{
public:
    static constexpr std::size_t capacity = 256;

    /// The number of a colour, which is taken in if it is new; empty if there is no room for it.
    std::optional<std::uint8_t> number_of(std::uint32_t color)
    {
        // Open addressing in a table at most a quarter full; a slot keeps number + 1, 0 while it is free.
        std::size_t slot = (color * 0x9E3779B1u) >> (32 - slot_bits);
        while (slots_[slot] != 0 && colors_[slots_[slot] - 1u] != color)
            slot = (slot + 1) % slots_.size();
        if (slots_[slot] == 0) {
            if (count_ == capacity)
                return std::nullopt;
            colors_[count_++] = color;
            slots_[slot] = static_cast<std::uint16_t>(count_);
        }
        return static_cast<std::uint8_t>(slots_[slot] - 1);
    }

    std::size_t count() const { return count_; }
    std::uint32_t operator[](std::size_t number) const { return colors_[number]; }

    int bits_per_pixel() const { return count_ <= 2 ? 1 : count_ <= 4 ? 2 : count_ <= 16 ? 4 : 8; }

private:
    static constexpr int slot_bits = 10;

    std::array<std::uint16_t, std::size_t{1} << slot_bits> slots_ = {};
    std::array<std::uint32_t, capacity> colors_;
    std::size_t count_ = 0;
};

/// An image with a byte for each pixel, its colour's number.
struct NumberedImage {
    Palette palette;
    std::vector<std::uint8_t> numbers;
};

/// @return  nothing when the image has too many colours
std::optional<NumberedImage> numbered(Image const& image)
{
    auto const count = static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.height());
    NumberedImage result;
    result.numbers.resize(count);
    std::uint32_t const* const pixels = image.row(0);
    std::uint8_t* const numbers = result.numbers.data();
    for (std::size_t i = 0; i < count;) {
        std::uint32_t const color = pixels[i];
        auto const number = result.palette.number_of(color & color_bits);
        if (!number)
            return std::nullopt;
        // Neighbours mostly have the same colour.
        do
            numbers[i++] = *number;
        while (i < count && pixels[i] == color);
    }
    return result;
}

/// Packs a row's numbers into bytes, the leftmost one in the highest bits.
template <int Bits> void pack_row(std::uint8_t const* numbers, std::size_t width, std::uint8_t* row)
{
    constexpr std::size_t per_byte = 8 / Bits;
    std::size_t x = 0;
    for (; x + per_byte <= width; x += per_byte) {
        unsigned byte = 0;
        for (std::size_t i = 0; i < per_byte; ++i)
            byte = byte << Bits | numbers[x + i];
        *row++ = static_cast<std::uint8_t>(byte);
    }
    unsigned rest = 0;
    for (int shift = 8 - Bits; x < width; ++x, shift -= Bits)
        rest |= static_cast<unsigned>(numbers[x]) << shift;
    if (width % per_byte != 0)
        *row = static_cast<std::uint8_t>(rest);
}

std::vector<std::uint8_t> palette_rows(Image const& image, NumberedImage const& source)
{
    int const bits = source.palette.bits_per_pixel();
    auto const pack = bits == 1 ? pack_row<1> : bits == 2 ? pack_row<2> : bits == 4 ? pack_row<4> : pack_row<8>;
    auto const width = static_cast<std::size_t>(image.width());
    std::size_t const row_size = 1 + (width * static_cast<std::size_t>(bits) + 7) / 8;
    std::vector<std::uint8_t> rows(row_size * static_cast<std::size_t>(image.height()));
    for (std::size_t y = 0; y < static_cast<std::size_t>(image.height()); ++y)
        pack(source.numbers.data() + y * width, width, rows.data() + y * row_size + 1);
    return rows;
}

std::vector<std::uint8_t> rgb_rows(Image const& image)
{
    auto const width = static_cast<std::size_t>(image.width());
    std::vector<std::uint8_t> rows((1 + 3 * width) * static_cast<std::size_t>(image.height()));
    std::uint8_t* byte = rows.data();
    for (int y = 0; y < image.height(); ++y) {
        ++byte;
        std::uint32_t const* const row = image.row(y);
        for (std::size_t x = 0; x < width; ++x)
            for (int shift = 0; shift < 24; shift += 8)
                *byte++ = static_cast<std::uint8_t>(row[x] >> shift);
    }
    return rows;
}

std::vector<std::uint8_t> compressed(std::vector<std::uint8_t> const& rows)
{
    std::unique_ptr<libdeflate_compressor, void (*)(libdeflate_compressor*)> const compressor(
        libdeflate_alloc_compressor(compression_level), libdeflate_free_compressor);
    if (!compressor)
        throw std::bad_alloc();
    std::vector<std::uint8_t> result(libdeflate_zlib_compress_bound(compressor.get(), rows.size()));
    result.resize(libdeflate_zlib_compress(compressor.get(), rows.data(), rows.size(), result.data(), result.size()));
    return result;
}

/// All that a PNG file is made of.
struct Content {
    png_uint_32 width = 0;
    png_uint_32 height = 0;
    int bits = 8; // of a pixel with a palette, of a colour component without
    std::vector<png_color> palette;
    std::vector<std::uint8_t> data; // rows, compressed
};

Content content_of(Image const& image)
{
    Content content;
    content.width = static_cast<png_uint_32>(image.width());
    content.height = static_cast<png_uint_32>(image.height());
    auto const source = numbered(image);
    if (!source) {
        content.data = compressed(rgb_rows(image));
        return content;
    }
    content.bits = source->palette.bits_per_pixel();
    for (std::size_t i = 0; i < source->palette.count(); ++i) {
        std::uint32_t const color = source->palette[i];
        content.palette.push_back(
            {static_cast<png_byte>(color), static_cast<png_byte>(color >> 8), static_cast<png_byte>(color >> 16)});
    }
    content.data = compressed(palette_rows(image, *source));
    return content;
}

// libpng leaves by longjmp: no object that needs a destructor may live in a function that it jumps out of.

void append(png_structp png, png_bytep bytes, std::size_t size) noexcept
{
    auto& target = *static_cast<std::vector<char>*>(png_get_io_ptr(png));
    target.insert(target.end(), bytes, bytes + size);
}

// By default libpng also prints both.
void leave(png_structp png, png_const_charp)
{
    png_longjmp(png, 1);
}

void ignore_warning(png_structp, png_const_charp) {}

bool write_chunks(png_structp png, png_infop info, Content const& content)
{
    if (setjmp(png_jmpbuf(png)))
        return false;
    png_set_IHDR(png, info, content.width, content.height, content.bits,
                 content.palette.empty() ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_PALETTE, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (!content.palette.empty())
        png_set_PLTE(png, info, content.palette.data(), static_cast<int>(content.palette.size()));
    png_write_info(png, info);

    constexpr std::size_t largest_chunk = std::size_t{1} << 30;
    png_byte const data_name[] = {'I', 'D', 'A', 'T', '\0'};
    png_byte const end_name[] = {'I', 'E', 'N', 'D', '\0'};
    for (std::size_t at = 0; at < content.data.size(); at += largest_chunk)
        png_write_chunk(png, data_name, content.data.data() + at, std::min(largest_chunk, content.data.size() - at));
    png_write_chunk(png, end_name, nullptr, 0);
    return true;
}

/// @return  the file's bytes, none when libpng refuses
std::vector<char> encoded(Image const& image)
{
    Content const content = content_of(image);
    std::vector<char> file;
    // Room for everything, so that append() does not run out of memory within libpng.
    file.reserve(content.data.size() + 3 * content.palette.size() + 4096);

    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, leave, ignore_warning);
    png_infop info = png == nullptr ? nullptr : png_create_info_struct(png);
    if (info == nullptr) {
        png_destroy_write_struct(&png, nullptr);
        throw std::bad_alloc();
    }
    png_set_write_fn(png, &file, append, nullptr);
    bool const is_written = write_chunks(png, info, content);
    png_destroy_write_struct(&png, &info);
    if (!is_written)
        file.clear();
    return file;
}

} // namespace

void write_png(Image const& image, fs::path const& path)
{
    std::vector<char> const bytes = encoded(image);
    if (bytes.empty())
        fail_with_file(path, "a picture of this size cannot be a PNG file");

    write_whole_file(path, bytes);
}

void write_png(Image const& image, std::ostream& stream)
{
    std::vector<char> const bytes = encoded(image);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (bytes.empty() || !stream)
        throw Failure(FailureKind::FileError, "a picture does not go into a stream as PNG");
}

Image read_png(fs::path const& path)
{
    png_image file = {};
    file.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&file, path.string().c_str()) == 0)
        fail_with_file(path, file.message);
    file.format = PNG_FORMAT_RGB;
    std::vector<png_byte> bytes(PNG_IMAGE_SIZE(file));
    png_color const white = {255, 255, 255};
    if (png_image_finish_read(&file, &white, bytes.data(), 0, nullptr) == 0)
        fail_with_file(path, file.message);

    Image image(static_cast<int>(file.width), static_cast<int>(file.height));
    png_byte const* byte = bytes.data();
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x, byte += 3)
            image.row(y)[x] = byte[0] | std::uint32_t{byte[1]} << 8 | std::uint32_t{byte[2]} << 16;
    return image;
}

} // namespace zendara
