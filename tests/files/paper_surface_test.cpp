// The document: sizes, units, texts, pages, and what stands on the disk at which time.

#include "files/paper_pages.hpp"
#include "support/failure_kind.hpp"
#include "zendara/support/failure.hpp"

#include <cerrno>
#include <sys/mount.h>
#include <unistd.h>

namespace zendara::test
{

namespace
{

/// Takes a variable of the environment for a while.
class Environment
{
public:
    Environment(char const* name, char const* value) : name_(name) { setenv(name, value, 1); }
    ~Environment() { unsetenv(name_); }
    Environment(Environment const&) = delete;
    Environment& operator=(Environment const&) = delete;

private:
    char const* name_;
};

void draw_something(PaperSurface& page)
{
    page.Line(1000, 1000, 3000, 2000, QBColor(12));
    page.Print("Mean: 4.25");
    page.DrawStyle = pen_none;
    page.FillStyle = fill_solid;
    for (std::int32_t i = 0; i < 5; ++i)
        page.Polygon({{{100 * i, 0}, {100 * i + 100, 0}, {100 * i + 100, 50}, {100 * i, 50}}});
}

void write_something(std::filesystem::path const& file)
{
    PaperSurface page(file);
    draw_something(page);
    page.EndDoc();
}

/// The reason that EndDoc gives.
std::string reason_of(PaperSurface& page)
{
    try {
        page.EndDoc();
    } catch (Failure const& failure) {
        EXPECT_EQ(failure.kind(), FailureKind::FileError);
        return failure.what();
    }
    return "it has been written";
}

} // namespace

// --- Page and units -------------------------------------------------------------------------------------------------

TEST_F(Paper, PagesHaveTheSizeOfTheirSheet)
{
    struct Sheet {
        PaperSize paper;
        char const* box; // in points
    };
    for (auto const& [paper, box] :
         {Sheet{a4_paper, "/MediaBox [ 0 0 595.3 841.9 ]"}, Sheet{letter_paper, "/MediaBox [ 0 0 612 792 ]"},
          Sheet{a4_paper.turned(), "/MediaBox [ 0 0 841.9 595.3 ]"}}) {
        PaperSurface page(file(), paper);
        EXPECT_EQ(page.width, paper.width);
        EXPECT_EQ(page.height, paper.height);
        page.EndDoc();
        EXPECT_EQ(count(bytes(), box), 1u) << box;
    }
}

TEST_F(Paper, SheetsAreFoundByNameInUpperOrLowerCase)
{
    EXPECT_EQ(paper_size_of("a4"), a4_paper);
    EXPECT_EQ(paper_size_of("LETTER"), letter_paper);
    EXPECT_EQ(paper_size_of("A5"), std::nullopt);
}

TEST_F(Paper, ASheetOrAPixelWithoutExtentIsRefused)
{
    auto const make = [&](PaperSize const& paper, TwipsPerPixel const& pixel) {
        return failure_of([&] { PaperSurface const page(file(), paper, pixel); });
    };
    EXPECT_EQ(make({0, 100}, {}), FailureKind::InvalidProcedureCall);
    EXPECT_EQ(make({100, 1e6}, {}), FailureKind::InvalidProcedureCall);
    EXPECT_EQ(make(a4_paper, {0, 2.4}), FailureKind::InvalidProcedureCall);
    EXPECT_EQ(make(a4_paper, {2.4, -1}), FailureKind::InvalidProcedureCall);
}

TEST_F(Paper, APrinterStartsInTwipsAtSixHundredDotsPerInch)
{
    PaperSurface page(file());
    EXPECT_TRUE(page.is_printer());
    EXPECT_EQ(page.ScaleMode(), scale_twips);
    EXPECT_EQ(page.TwipsPerPixelX(), 2.4);
    EXPECT_EQ(page.TwipsPerPixelY(), 2.4);
    EXPECT_EQ(page.ScaleWidth(), 11906);
    page.ScaleMode(scale_pixels);
    EXPECT_DOUBLE_EQ(page.ScaleWidth(), 11906 / 2.4);
    EXPECT_DOUBLE_EQ(page.ScaleHeight(), 16838 / 2.4);
}

TEST_F(Paper, ALineInPixelsAndOneInTwipsMeetWhenTheUnitChangesInTheMiddleOfAPage)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file(), a4_paper, {2.4, 4.8});
    page.DrawWidth = 20;
    page.Line(2400, 4800, 4800, 4800, 0);
    page.ScaleMode(scale_pixels);
    page.Line(2000, 1000, 3000, 1000, 0); // 4800 to 7200 twips, at 4800 twips
    page.ScaleMode(scale_twips);
    page.Line(7200, 4800, 9600, 4800, 0);
    page.EndDoc();
    auto const reach = reach_of(shown(144)); // 10 twips a pixel
    EXPECT_NEAR(reach.left, 240, 3);
    EXPECT_NEAR(reach.right, 960, 3);
    EXPECT_NEAR(reach.top, 480, 3);
    EXPECT_NEAR(reach.bottom, 480, 3);
}

TEST_F(Paper, PensAreAsWideAsTheirPixels)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file());
    page.DrawWidth = 100; // 240 twips
    page.Line(2000, 5000, 8000, 5000, 0);
    page.EndDoc();
    auto const shape = shown(144);
    int thickness = 0;
    for (int y = 0; y < shape.height(); ++y)
        thickness += shape.row(y)[500] != white ? 1 : 0;
    EXPECT_NEAR(thickness, 24, 1);
}

// --- Text -----------------------------------------------------------------------------------------------------------

TEST_F(Paper, TextIsTextAndSymbolsAreGreekLetters)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file());
    page.CurrentX = page.CurrentY = 1000;
    page.Print("Mean: 1.5 \xC2\xB0");
    page.Font = {"Symbol", 14};
    page.CurrentX = 1000;
    page.CurrentY = 3000;
    page.Print("sS");
    page.EndDoc();
    EXPECT_EQ(text(), "Mean: 1.5 \xC2\xB0\n\n\xCF\x83\xCE\xA3\n\n\f");
    EXPECT_GE(count(bytes(), "/FontFile"), 2u) << "both faces are embedded";
}

TEST_F(Paper, TextExtentsFollowTheFaceTheSizeAndTheUnit)
{
    PaperSurface page(file(), a4_paper, {2.4, 4.8});
    // A digit of Arial is 1139 of 2048 parts wide; 8 points are 160 twips.
    EXPECT_DOUBLE_EQ(page.TextWidth("0"), 160 * 1139 / 2048.0);
    EXPECT_DOUBLE_EQ(page.TextWidth("00"), 2 * page.TextWidth("0"));
    EXPECT_EQ(page.TextWidth(""), 0);
    double const height = page.TextHeight("0");
    EXPECT_GT(height, 160);
    EXPECT_LT(height, 200);
    page.ScaleMode(scale_pixels);
    EXPECT_DOUBLE_EQ(page.TextWidth("0"), 160 * 1139 / 2048.0 / 2.4);
    EXPECT_DOUBLE_EQ(page.TextHeight("0"), height / 4.8);
    page.Font.size = 16;
    EXPECT_DOUBLE_EQ(page.TextHeight("0"), 2 * height / 4.8);
}

TEST_F(Paper, ATextStandsAtItsUpperLeftCornerAndMovesThePositionOn)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file());
    page.Font.size = 72;
    page.CurrentX = 2000;
    page.CurrentY = 3000;
    page.Print("H");
    EXPECT_DOUBLE_EQ(page.CurrentX, 2000 + page.TextWidth("H"));
    EXPECT_EQ(page.CurrentY, 3000);
    double const line = page.TextHeight("H");
    page.EndDoc();
    auto const reach = reach_of(shown(144));
    EXPECT_GT(reach.left, 200);
    EXPECT_LT(reach.right, (2000 + 1440) / 10);
    EXPECT_GT(reach.top, 300);
    EXPECT_LT(reach.bottom, (3000 + line) / 10);
    EXPECT_NEAR(reach.bottom - reach.top + 1, 0.716 * 144, 5) << "the height of a capital";
}

TEST_F(Paper, OnlyOpaqueTextCoversItsGround)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    constexpr Color red = 255;
    auto const ground_beside_text = [&](bool is_transparent) {
        PaperSurface page(file());
        page.FillBox(1000, 1000, 5000, 3000, red);
        page.FontTransparent = is_transparent;
        page.Font.size = 72;
        page.CurrentX = page.CurrentY = 1000;
        page.Print("i");
        page.EndDoc();
        return shown(144).row(105)[102]; // the corner above the letter's left bearing
    };
    EXPECT_EQ(ground_beside_text(true), 0x0000FFu);
    EXPECT_EQ(ground_beside_text(false), white);
}

// --- Pages and files ------------------------------------------------------------------------------------------------

TEST_F(Paper, EveryNewPageAddsOne)
{
    PaperSurface page(file());
    page.Print("first");
    page.NewPage();
    page.Print("second");
    page.NewPage();
    page.Print("third");
    page.EndDoc();
    EXPECT_EQ(count(bytes(), "/MediaBox"), 3u);
}

TEST_F(Paper, NothingIsOnTheDiskBeforeTheDocumentEnds)
{
    {
        PaperSurface page(file());
        draw_something(page);
        page.NewPage();
        EXPECT_EQ(file_count(), 0u);
    }
    EXPECT_EQ(file_count(), 0u) << "a document that is never ended is lost";
    write_something(file());
    EXPECT_EQ(file_count(), 1u);
}

TEST_F(Paper, NothingCanBeDrawnAfterTheDocumentHasEnded)
{
    PaperSurface page(file());
    page.EndDoc();
    EXPECT_EQ(failure_of([&] { page.Line(0, 0, 1, 1, 0); }), FailureKind::InvalidProcedureCall);
    EXPECT_EQ(failure_of([&] { page.NewPage(); }), FailureKind::InvalidProcedureCall);
    EXPECT_EQ(failure_of([&] { page.EndDoc(); }), FailureKind::InvalidProcedureCall);
    EXPECT_GT(page.TextWidth("0"), 0) << "measuring needs no page";
}

TEST_F(Paper, TheSameCallsGiveTheSameBytesAndNoDate)
{
    for (std::string const ending : {".pdf", ".svg"}) {
        write_something(path("a" + ending));
        write_something(path("b" + ending));
        EXPECT_TRUE(bytes_of(path("a" + ending)) == bytes_of(path("b" + ending))) << ending;
    }
    EXPECT_EQ(count(bytes_of(path("a.pdf")), "Date"), 0u);
}

TEST_F(Paper, TheDateOfAReproducibleBuildStandsInTheFile)
{
    {
        Environment const epoch("SOURCE_DATE_EPOCH", "86400");
        write_something(file());
    }
    EXPECT_EQ(count(bytes(), "19700102000000Z"), 1u);
    Environment const epoch("SOURCE_DATE_EPOCH", "yesterday");
    write_something(file());
    EXPECT_EQ(count(bytes(), "Date"), 0u);
}

TEST_F(Paper, AnSvgFileHasOnePageInPoints)
{
    PaperSurface page(path("page.svg"));
    draw_something(page);
    EXPECT_EQ(failure_of([&] { page.NewPage(); }), FailureKind::InvalidProcedureCall);
    page.EndDoc();
    auto const svg = bytes_of(path("page.svg"));
    EXPECT_EQ(count(svg, "width=\"595.3pt\" height=\"841.9pt\""), 1u) << svg.substr(0, 300);
}

TEST_F(Paper, AFolderThatIsNotThereIsToldAndNothingIsWritten)
{
    auto const missing = path("missing") / "page.pdf";
    PaperSurface page(missing);
    draw_something(page);
    EXPECT_EQ(reason_of(page), missing.string() + ": No such file or directory");
    EXPECT_EQ(file_count(), 0u);
}

TEST_F(Paper, AFolderInPlaceOfTheFileIsToldAndStays)
{
    std::filesystem::create_directory(file());
    PaperSurface page(file());
    EXPECT_EQ(reason_of(page), file().string() + ": Is a directory");
    EXPECT_EQ(file_count(), 1u);
}

TEST_F(Paper, AFullDiskIsToldAndTheFileFromBeforeStays)
{
    auto const disk = path("disk");
    std::filesystem::create_directory(disk);
    if (mount("none", disk.c_str(), "tmpfs", 0, "size=8k") != 0)
        GTEST_SKIP() << "no right to mount a small disk";
    auto const target = disk / "page.pdf";
    std::ofstream(target) << "before";

    PaperSurface page(target);
    draw_something(page);
    EXPECT_EQ(reason_of(page), target.string() + ": No space left on device");
    EXPECT_EQ(bytes_of(target), "before");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(disk), {}), 1);
    EXPECT_EQ(umount(disk.c_str()), 0);
}

} // namespace zendara::test
