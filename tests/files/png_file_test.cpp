#include "zendara/files/png_file.hpp"
#include "zendara/support/failure.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <string>

namespace zendara::test
{

namespace
{

namespace fs = std::filesystem;

/// A folder of its own for each test, gone behind it.
class PngFile : public testing::Test
{
protected:
    PngFile()
    {
        std::string name = (fs::temp_directory_path() / "pngXXXXXX").string();
        EXPECT_NE(mkdtemp(name.data()), nullptr);
        folder = name;
    }
    ~PngFile() override { fs::remove_all(folder); }

    std::size_t count_of_files() const
    {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
    }

    fs::path folder;
};

/// A picture in which that many colours appear.
Image colorful(int colors, int width = 61, int height = 37)
{
    Image image(width, height);
    std::mt19937 random(static_cast<unsigned>(colors));
    for (int i = 0; i < width * height; ++i) {
        auto const number = static_cast<std::uint32_t>(i < colors ? i : static_cast<int>(random() % unsigned(colors)));
        image.row(i / width)[i % width] = (number * 0x010203u + 5) & 0xFFFFFFu;
    }
    return image;
}

std::string bytes_of(fs::path const& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Bits per component and kind of colour, as the file's header tells.
std::pair<int, int> format_of(std::string const& png)
{
    return {png.at(24), png.at(25)};
}

constexpr int rgb_colors = 2;
constexpr int palette_colors = 3;

std::string encoded(Image const& image)
{
    std::ostringstream stream;
    write_png(image, stream);
    return stream.str();
}

std::string reason_of(Image const& image, fs::path const& path)
{
    try {
        write_png(image, path);
    } catch (Failure const& failure) {
        EXPECT_EQ(failure.kind(), FailureKind::FileError);
        return failure.what();
    }
    return "nothing was thrown";
}

} // namespace

TEST_F(PngFile, GivesBackTheImageWithAnyNumberOfColours)
{
    for (int const colors : {1, 2, 3, 4, 5, 16, 17, 255, 256, 257, 1000}) {
        Image const image = colorful(colors);
        write_png(image, folder / "a.png");
        EXPECT_EQ(read_png(folder / "a.png"), image) << colors;
    }
}

TEST_F(PngFile, GivesBackTheImageOfAnySize)
{
    for (int width = 1; width <= 20; ++width)
        for (int const colors : {2, 4, 16, 60}) {
            Image const image = colorful(colors, width, 3);
            write_png(image, folder / "a.png");
            ASSERT_EQ(read_png(folder / "a.png"), image) << width << " columns, " << colors << " colours";
        }
    Image const large = colorful(200, 1500, 1100);
    write_png(large, folder / "a.png");
    EXPECT_EQ(read_png(folder / "a.png"), large);
}

TEST_F(PngFile, FewColoursTakeFewBits)
{
    using Format = std::pair<int, int>;
    EXPECT_EQ(format_of(encoded(colorful(1))), (Format{1, palette_colors}));
    EXPECT_EQ(format_of(encoded(colorful(2))), (Format{1, palette_colors}));
    EXPECT_EQ(format_of(encoded(colorful(4))), (Format{2, palette_colors}));
    EXPECT_EQ(format_of(encoded(colorful(5))), (Format{4, palette_colors}));
    EXPECT_EQ(format_of(encoded(colorful(16))), (Format{4, palette_colors}));
    EXPECT_EQ(format_of(encoded(colorful(17))), (Format{8, palette_colors}));
    EXPECT_EQ(format_of(encoded(colorful(256))), (Format{8, palette_colors}));
    EXPECT_EQ(format_of(encoded(colorful(257))), (Format{8, rgb_colors}));
}

TEST_F(PngFile, TheTopByteOfAPixelIsNoColour)
{
    Image image(2, 1, 0x00112233);
    image.row(0)[1] = 0xFF112233;
    EXPECT_EQ(format_of(encoded(image)).first, 1);
    write_png(image, folder / "a.png");
    EXPECT_EQ(read_png(folder / "a.png"), Image(2, 1, 0x112233));
}

TEST_F(PngFile, TheSameImageGivesTheSameBytes)
{
    Image const image = colorful(40);
    write_png(image, folder / "a.png");
    write_png(colorful(40), folder / "b.png");
    EXPECT_EQ(bytes_of(folder / "a.png"), bytes_of(folder / "b.png"));
    EXPECT_EQ(bytes_of(folder / "a.png"), encoded(image));
}

TEST_F(PngFile, ReplacesTheFileThatStandsThereAndLeavesNoOther)
{
    write_png(colorful(300), folder / "a.png");
    write_png(colorful(2), folder / "a.png");
    EXPECT_EQ(read_png(folder / "a.png"), colorful(2));
    EXPECT_EQ(count_of_files(), 1u);
}

TEST_F(PngFile, AnUnfinishedFileOfAnotherWriterStays)
{
    std::ofstream(folder / "a.png.part0") << "another's";
    write_png(colorful(2), folder / "a.png");
    EXPECT_EQ(bytes_of(folder / "a.png.part0"), "another's");
    EXPECT_EQ(read_png(folder / "a.png"), colorful(2));
}

TEST_F(PngFile, WritesThroughALink)
{
    write_png(colorful(3), folder / "target.png");
    fs::create_symlink("target.png", folder / "link.png");
    write_png(colorful(5), folder / "link.png");
    EXPECT_TRUE(fs::is_symlink(folder / "link.png"));
    EXPECT_EQ(read_png(folder / "target.png"), colorful(5));
}

TEST_F(PngFile, ADeviceStaysADevice)
{
    fs::create_symlink("/dev/null", folder / "null.png");
    write_png(colorful(3), folder / "null.png");
    EXPECT_TRUE(fs::is_character_file(folder / "null.png"));
    EXPECT_EQ(count_of_files(), 1u);
}

TEST_F(PngFile, AFolderThatDoesNotExistIsNamedWithTheReason)
{
    EXPECT_EQ(reason_of(colorful(2), folder / "none" / "a.png"),
              (folder / "none" / "a.png").string() + ": No such file or directory");
}

TEST_F(PngFile, ANameThatIsAFolderFailsAndLeavesNothing)
{
    fs::create_directory(folder / "a.png");
    EXPECT_EQ(reason_of(colorful(2), folder / "a.png"), (folder / "a.png").string() + ": Is a directory");
    EXPECT_EQ(count_of_files(), 1u);
}

TEST_F(PngFile, AFullDeviceFails)
{
    if (!fs::exists("/dev/full"))
        GTEST_SKIP() << "this system has no device that is always full";
    EXPECT_EQ(reason_of(colorful(2), "/dev/full"), "/dev/full: No space left on device");
}

TEST_F(PngFile, AStreamThatTakesNoMoreFails)
{
    std::ostringstream stream;
    stream.setstate(std::ios::badbit);
    EXPECT_THROW(write_png(colorful(2), stream), Failure);
}

TEST_F(PngFile, AnImageWithoutPixelsIsNoFile)
{
    EXPECT_EQ(reason_of(Image(0, 5), folder / "a.png"),
              (folder / "a.png").string() + ": a picture of this size cannot be a PNG file");
    EXPECT_EQ(count_of_files(), 0u);
    std::ostringstream stream;
    EXPECT_THROW(write_png(Image(5, 0), stream), Failure);
}

TEST_F(PngFile, ReadingAMissingOrBrokenFileFails)
{
    EXPECT_THROW(read_png(folder / "none.png"), Failure);
    std::ofstream(folder / "text.png") << "no picture";
    EXPECT_THROW(read_png(folder / "text.png"), Failure);
    std::string const whole = encoded(colorful(300));
    std::ofstream(folder / "cut.png", std::ios::binary) << whole.substr(0, whole.size() / 2);
    EXPECT_THROW(read_png(folder / "cut.png"), Failure);
}

} // namespace zendara::test
