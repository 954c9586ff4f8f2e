#include "page_fixture.hpp"
#include "zendara/platform/headless/headless_platform.hpp"
#include "zendara/print/viewbitmap.hpp"
#include "zendara/render/surface/image.hpp"
#include "zendara/render/surface/raster_picture.hpp"

namespace zendara::test
{

namespace
{

class PlatformOfVersion : public HeadlessPlatform
{
public:
    PlatformOfVersion() : HeadlessPlatform(Pictures::Recorded) {}
    std::string version() const override { return "12.7.3"; }
};

/// A picture of 400 by 300 pixels, 6000 by 4500 twips.
struct DataPicture : testing::Test {
    PlatformOfVersion platform;
    viewbitmap drawing{platform};
    std::unique_ptr<Recorder> picture = Recorder::picture({});
    panel record;

    DataPicture()
    {
        drawing.BitmapObj(picture.get());
        drawing.WaferObj(&record);
        record.SizeX = 300;
        record.SizeY = 0.001;
        record.mean = 500;
        record.maxi = 600;
        record.mini = 400;
        record.StdDev = 12.5;
        record.Meas_unit = "a unit of many letters";
        record.Operator = "An operator with a long name";
        record.filename = "film.dat";
    }

    Lines lines() { return text_of(picture->take_record()); }

    /// The texts with their places.
    Lines texts()
    {
        Lines found;
        for (auto const& text : only(picture->take_record(), "Text"))
            found.push_back(item<std::string>(text, 0) + " " + std::to_string(static_cast<int>(item<double>(text, 1))) +
                            " " + std::to_string(static_cast<int>(item<double>(text, 2))));
        return found;
    }
};

Lines const statistics_at_100_4500 = {
    "panel Statistics 100 4500", "Mean: 220 4860",   "500.00 1400 4860",    "Maximum: 220 5100", "600.00 1400 5100",
    "Minimum: 220 5340",         "400.00 1400 5340", "Std. Dev: 220 5580",  "12.50 1400 5580",   "2.50 % 1400 5820",
    "Range: 220 6060",           "200.00 1400 6060", "Hi/Lo Var: 220 6300", "20.00 % 1400 6300", "Unit: 220 6540",
    "a unit of ma 1400 6540"}; // 15 letters, of which 12 fit into 1200 twips

Lines sizes_at(std::string const& label_x, std::string const& value_x, int y)
{
    auto const at = [&](std::string const& text, std::string const& x, int row) {
        return text + " " + x + " " + std::to_string(y + row);
    };
    return {at("Panel Width:", label_x, 360), at("300.00 mm", value_x, 360),  at("Panel Height", label_x, 600),
            at("00.00 mm", value_x, 600),     at("No. Sites:", label_x, 840), at("0", value_x, 840)};
}

} // namespace

TEST_F(DataPicture, AWidePictureGrowsBy3000AndHasTheBlocksSideBySide)
{
    drawing.DrawPanelData();
    EXPECT_EQ(picture->height, 7500);
    EXPECT_EQ(picture->width, 6000);
    EXPECT_EQ(texts(), join({statistics_at_100_4500,
                             {"Panel Size 2900 4500"},
                             sizes_at("3020", "4200", 4500),
                             {"Zendara View.OCX 12.7 100 7100"}}));
}

TEST_F(DataPicture, OfExactly4900TwipsIsWide)
{
    picture->width = 4900;
    drawing.DrawPanelData();
    EXPECT_EQ(picture->height, 7500);
    EXPECT_EQ(texts().at(16), "Panel Size 2350 4500");
}

TEST_F(DataPicture, ANarrowPictureGrowsBy4400AndHasTheBlocksOneAboveTheOther)
{
    picture->width = 4899;
    drawing.DrawPanelData();
    EXPECT_EQ(picture->height, 8900);
    EXPECT_EQ(texts(), join({statistics_at_100_4500,
                             {"Panel Size 100 6900"},
                             sizes_at("220", "1400", 6900),
                             {"Zendara View.OCX 12.7 100 8500"}}));
}

TEST_F(DataPicture, ASecondCallGrowsItAgain)
{
    drawing.DrawPanelData();
    drawing.DrawPanelData();
    EXPECT_EQ(picture->height, 10500);
}

TEST_F(DataPicture, TitlesAreUnderlinedAndTheLastOneIsBold)
{
    class Fonts : public Recorder
    {
    public:
        std::vector<FontFace> fonts;

    private:
        void draw_text(std::string_view) override { fonts.push_back(Font); }
    } fonts;
    fonts.width = 6000;
    fonts.height = 100;
    drawing.BitmapObj(&fonts);
    drawing.DrawPanelData();
    EXPECT_EQ(fonts.fonts.front(), (FontFace{"Arial", 8, false, true}));
    EXPECT_EQ(fonts.fonts[1], (FontFace{"Arial", 8, false, false}));
    EXPECT_EQ(fonts.fonts[16], (FontFace{"Arial", 8, false, true}));
    EXPECT_EQ(fonts.fonts.back(), (FontFace{"Arial", 12, true, false}));
    EXPECT_EQ(fonts.Font, (FontFace{"Arial", 10, false, false}));
}

TEST_F(DataPicture, ABoldUnderlinedFontIsTurnedTheOtherWayRoundAndEndsAt10Points)
{
    picture->Font = {"Arial", 5, true, true};
    drawing.DrawPanelData();
    EXPECT_EQ(picture->Font, (FontFace{"Arial", 10, true, true}));
}

TEST_F(DataPicture, WithoutAPositiveMeanThereIsNoPercentage)
{
    record.mean = 0;
    drawing.DrawStatisticsBlock(100, 4500);
    auto const found = texts();
    EXPECT_EQ(found.size(), 15u);
    EXPECT_EQ(found[2], "0.00 1400 4860");
    EXPECT_EQ(found[9], "Range: 220 6060");
}

TEST_F(DataPicture, StatisticsShowTinyValuesAndSizesDoNot)
{
    record.StdDev = 0.0004;
    drawing.DrawStatisticsBlock(0, 0);
    EXPECT_EQ(texts().at(8), "0.0004 1300 1080");
    drawing.DrawSizeBlock(0, 0);
    EXPECT_EQ(texts().at(4), "00.00 mm 1300 600");
}

TEST_F(DataPicture, AVariationAroundZeroIsZero)
{
    record.maxi = 5;
    record.mini = -5;
    drawing.DrawStatisticsBlock(0, 0);
    EXPECT_EQ(texts().at(13), "0.00 % 1300 1800");
}

TEST_F(DataPicture, RemarksEndWithTheFileName)
{
    drawing.Resetbitobj();
    drawing.DrawRemarksBlock(100, 200);
    auto const found = texts();
    ASSERT_EQ(found.size(), 17u);
    EXPECT_EQ(found[0], "panel Remarks  100 200");
    EXPECT_EQ(found[2], "An operator  1400 560"); // 15 letters, of which 12 fit
    EXPECT_EQ(found[15], "Filename: 220 2240");
    EXPECT_EQ(found[16], "film.dat 1400 2240");
}

TEST_F(DataPicture, ATextIsCutAtItsEndInTheCallersString)
{
    std::string text = "abcdef";
    drawing.Resetbitobj();
    drawing.DrawBitmapText(text, 10, 20, 450, 4);
    EXPECT_EQ(text, "abcd");
    EXPECT_EQ(lines(), (Lines{"ScaleMode 1", R"(Text "abcd" 10 20 128 "Arial" 8)"}));
}

TEST_F(DataPicture, AResetLeavesTheFont)
{
    picture->Font = {"Symbol", 14, true, true};
    picture->DrawWidth = 7;
    drawing.Resetbitobj();
    EXPECT_EQ(picture->Font, (FontFace{"Symbol", 14, true, true}));
    EXPECT_EQ(picture->DrawWidth, 1);
    EXPECT_EQ(picture->ScaleMode(), scale_twips);
    EXPECT_EQ(picture->FillStyle, fill_solid);
    EXPECT_EQ(picture->FillColor, white);
}

TEST_F(DataPicture, WithoutPictureOrPanelItFails)
{
    drawing.WaferObj(nullptr);
    EXPECT_EQ(failure_of([&] { drawing.DrawPanelData(); }), FailureKind::ObjectNotSet);
    drawing.WaferObj(&record);
    drawing.BitmapObj(nullptr);
    EXPECT_EQ(failure_of([&] { drawing.DrawPanelData(); }), FailureKind::ObjectNotSet);
}

TEST_F(DataPicture, AHeightBeyond16BitsFailsAndThePictureStays)
{
    picture->height = 29768;
    EXPECT_EQ(failure_of([&] { drawing.DrawPanelData(); }), FailureKind::Overflow);
    EXPECT_EQ(picture->height, 29768);
    EXPECT_EQ(failure_of([&] { drawing.DrawSizeBlock(32700, 0); }), FailureKind::Overflow);
}

TEST(DataPictureOfPixels, KeepsItsImageAndShowsTheDataBelowIt)
{
    HeadlessPlatform platform;
    RasterPicture picture(400, 20, platform.glyphs(), 15, 0xFFFFFF);
    picture.FillBox(0, 0, 399, 19, 0x0000FF);
    panel record;
    viewbitmap drawing(platform);
    drawing.BitmapObj(&picture);
    drawing.WaferObj(&record);
    drawing.DrawPanelData();
    auto const image = picture.image();
    ASSERT_EQ(image->height(), 220); // 3000 twips more
    ASSERT_EQ(image->width(), 400);
    int written = 0;
    for (int y = 0; y < image->height(); ++y)
        for (int x = 0; x < 400; ++x) {
            if (y < 20)
                ASSERT_EQ(image->row(y)[x], image->row(0)[0]);
            else
                written += image->row(y)[x] != image->row(219)[399] ? 1 : 0;
        }
    EXPECT_GT(written, 500);
}

TEST(TextOfPixels, BoldIsHeavierAndAnUnderlineRunsBelowTheWholeText)
{
    HeadlessPlatform platform;
    auto const ink_of = [&](FontFace const& font, int first_row) {
        RasterPicture picture(60, 20, platform.glyphs(), 15, 0xFFFFFF);
        picture.Font = font;
        picture.Print("I I");
        auto const image = picture.image();
        int ink = 0;
        for (int y = first_row; y < 20; ++y)
            for (int x = 0; x < 60; ++x)
                ink += image->row(y)[x] != image->row(19)[59] ? 1 : 0;
        return ink;
    };
    FontFace const plain{"Arial", 8};
    EXPECT_GT(ink_of({"Arial", 8, true}, 0), ink_of(plain, 0));
    RasterPicture measure(0, 0, platform.glyphs());
    measure.Font = plain;
    EXPECT_EQ(ink_of({"Arial", 8, false, true}, 0) - ink_of(plain, 0), static_cast<int>(measure.TextWidth("I I")));
    EXPECT_EQ(ink_of({"Arial", 8, false, true}, platform.glyphs().line_metrics(plain).ascent),
              static_cast<int>(measure.TextWidth("I I")));
}

} // namespace zendara::test
