// Pages as files: the reports and plots of the program, and the printer of host scripts.

#include "program.hpp"

#include <algorithm>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace zendara
{

namespace
{

class Printing : public Program
{
protected:
    Printing() { write_sites(); }

    static bool has_tools() { return std::system("pdftotext -v >/dev/null 2>&1") == 0; }

    /// The text layer of a PDF file, page after page, in the order of drawing.
    std::string text_of(std::string const& name) const
    {
        auto const command = "pdftotext -raw '" + path(name) + "' '" + path("text.txt") + '\'';
        EXPECT_EQ(std::system(command.c_str()), 0) << command;
        auto const text = contents_of(path("text.txt"));
        std::filesystem::remove(path("text.txt"));
        return text;
    }

    static std::size_t count(std::string const& text, std::string const& part)
    {
        std::size_t found = 0;
        for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size()))
            ++found;
        return found;
    }

    std::string bytes(std::string const& name) const { return contents_of(path(name)); }
};

} // namespace

// --- report ---------------------------------------------------------------------------------------------------------

TEST_F(Printing, AReportHasAllPlotsWithTitleAndPageNumbers)
{
    if (!has_tools())
        GTEST_SKIP() << "pdftotext is not installed";
    auto const outcome = run("report film.csv -o r.pdf --units nm");
    ASSERT_EQ(outcome.exit, 0) << outcome.errors;
    EXPECT_EQ(outcome.output + outcome.errors, "");
    EXPECT_EQ(count(bytes("r.pdf"), "/MediaBox [ 0 0 595.3 841.9 ]"), 5u);

    auto const text = text_of("r.pdf");
    for (std::string const part :
         {"Map", "Histogram", "Values", "Sigma map", "Contours", "Surface", "Sigma surface", "Bars", "Line scan"})
        EXPECT_EQ(count(text, part), 1u) << part;
    EXPECT_EQ(count(text, "film.csv"), 5u);
    for (int page = 1; page <= 5; ++page)
        EXPECT_EQ(count(text, "Page " + std::to_string(page) + " of 5"), 1u);
    EXPECT_EQ(count(text, "Legend"), 7u) << "all but histogram and line scan";
}

TEST_F(Printing, TheFirstPageHasTheFiguresOfThePanel)
{
    if (!has_tools())
        GTEST_SKIP() << "pdftotext is not installed";
    ASSERT_EQ(run("report film.csv -o r.pdf --units nm --size 310x205").exit, 0);
    auto const first = text_of("r.pdf").substr(0, text_of("r.pdf").find('\f'));
    for (std::string const part :
         {"Panel Width:", "310.00 mm", "205.00 mm", "No. Sites:", "Mean:", "8.5000000", "Hi/Lo Var:", "Unit:", "nm"})
        EXPECT_GE(count(first, part), 1u) << part;
}

TEST_F(Printing, AReportIsTheSameOnEveryRunAndHasNoDateOfItsOwn)
{
    ASSERT_EQ(run("report film.csv -o a.pdf").exit, 0);
    ASSERT_EQ(run("report film.csv -o b.pdf").exit, 0);
    EXPECT_TRUE(bytes("a.pdf") == bytes("b.pdf"));
    EXPECT_EQ(count(bytes("a.pdf"), "Date"), 0u);
}

TEST_F(Printing, TheDateIsPrintedAsItIsGiven)
{
    if (!has_tools())
        GTEST_SKIP() << "pdftotext is not installed";
    ASSERT_EQ(run("report film.csv -o r.pdf --date 'first of May' --controls ZvPlot2D").exit, 0);
    EXPECT_EQ(count(text_of("r.pdf"), "first of May"), 1u);
}

TEST_F(Printing, SheetsLieAndHaveTheSizeThatIsAskedFor)
{
    ASSERT_EQ(run("report film.csv -o r.pdf --page Letter --landscape").exit, 0);
    EXPECT_EQ(count(bytes("r.pdf"), "/MediaBox [ 0 0 792 612 ]"), 5u);
    expect_bad_input("report film.csv -o s.pdf --page A5", "--page: expected A4 or Letter, not \"A5\"");
}

TEST_F(Printing, OnlyTheControlsOfTheListArePrintedInItsOrder)
{
    if (!has_tools())
        GTEST_SKIP() << "pdftotext is not installed";
    ASSERT_EQ(run("report film.csv -o r.pdf --controls ZvPlot3D,zvplot2dv,ZvPlot2D").exit, 0);
    EXPECT_EQ(count(bytes("r.pdf"), "/MediaBox"), 2u);
    auto const text = text_of("r.pdf");
    auto const surface = text.find("Surface"), values = text.find("Values"), map = text.find("Map");
    EXPECT_LT(surface, values);
    EXPECT_LT(values, map);
    EXPECT_NE(map, std::string::npos);
    EXPECT_EQ(count(text, "Statistics"), 1u) << "beside the first plot, whichever it is";
    expect_bad_input("report film.csv -o s.pdf --controls ZvPlot2D,ZvPlot4D",
                     "--controls: there is no control \"ZvPlot4D\"; did you mean ZvPlot2D, ZvPlot3D, ZvPlot2DV?");
}

TEST_F(Printing, ASettingGoesToTheControlsThatHaveIt)
{
    if (!has_tools())
        GTEST_SKIP() << "pdftotext is not installed";
    ASSERT_EQ(run("report film.csv -o r.pdf --set PlotCaption=Oxide --limits 3 12").exit, 0);
    auto const text = text_of("r.pdf");
    EXPECT_EQ(count(text, "Oxide"), 8u) << "all but the histogram";
    EXPECT_EQ(count(text, "Map"), 0u);
    EXPECT_GE(count(text, " >"), 1u) << "the legend has limits";
    expect_bad_input("report film.csv -o s.pdf --set Sparkle=1",
                     "--set Sparkle=1: no printed control has this property");
}

TEST_F(Printing, AReportThatCannotBeWrittenIsToldInOneLineAndLeavesNothing)
{
    expect_bad_input("report film.csv -o nowhere/r.pdf", "nowhere/r.pdf: No such file or directory");
    expect_bad_input("report film.csv -o r.png", "-o r.png: expected a name that ends in .pdf");
    expect_bad_input("report gone.csv -o r.pdf", "gone.csv: No such file or directory");
    std::filesystem::create_directory(path("r.pdf"));
    expect_bad_input("report film.csv -o r.pdf", "r.pdf: Is a directory");
}

TEST_F(Printing, AFolderWithoutTheRightToWriteIsTold)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write everywhere";
    std::filesystem::create_directory(path("locked"));
    chmod(path("locked").c_str(), 0555);
    expect_bad_input("report film.csv -o locked/r.pdf", "locked/r.pdf: Permission denied");
}

TEST_F(Printing, WithoutSitesThereIsNoReport)
{
    file("empty.csv", "x,y,z\n");
    auto const outcome = run("report empty.csv -o r.pdf");
    EXPECT_NE(outcome.exit, 0);
    EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 1) << outcome.errors;
    EXPECT_FALSE(exists("r.pdf"));
}

// --- plot -----------------------------------------------------------------------------------------------------------

TEST_F(Printing, APlotAsPdfHasAPageAsLargeAsThePicture)
{
    ASSERT_EQ(run("plot film.csv -o a.pdf --pixels 800x600").exit, 0);
    EXPECT_EQ(count(bytes("a.pdf"), "/MediaBox [ 0 0 600 450 ]"), 1u) << "0.75 points a pixel";
    EXPECT_FALSE(exists("film.png"));
    EXPECT_EQ(file_count(), 3u);
}

TEST_F(Printing, APlotAsPdfHasItsCaptionAndItsLegendUnlessHidden)
{
    if (!has_tools())
        GTEST_SKIP() << "pdftotext is not installed";
    ASSERT_EQ(run("plot film.csv -o a.pdf --set PlotCaption=Oxide").exit, 0);
    auto const text = text_of("a.pdf");
    EXPECT_EQ(count(text, "Oxide"), 1u);
    EXPECT_EQ(count(text, "Legend"), 1u);
    ASSERT_EQ(run("plot film.csv -o b.pdf --set HideLegend=true").exit, 0);
    EXPECT_EQ(count(text_of("b.pdf"), "Legend"), 0u);
    ASSERT_EQ(run("plot film.csv -o c.pdf --pixels 320x240").exit, 0) << "no room";
    EXPECT_EQ(count(text_of("c.pdf"), "Legend"), 0u);
}

TEST_F(Printing, EveryControlCanBePlottedAsPdfAndAsSvg)
{
    for (std::string const control : {"ZvPlot2D", "ZvPlot2DS", "ZvPlot2DC", "ZvPlot2DV", "ZvPlot3D", "ZvPlot3DS",
                                      "ZvPlot3DB", "ZvHistogram", "ZvLineScan"}) {
        for (std::string const ending : {".pdf", ".svg"}) {
            auto const outcome = run("plot film.csv --control " + control + " -o " + control + ending);
            EXPECT_EQ(outcome.exit, 0) << control << outcome.errors;
            EXPECT_GT(bytes(control + ending).size(), 1000u) << control;
        }
    }
    EXPECT_EQ(count(bytes("ZvPlot2D.svg"), "width=\"750pt\" height=\"525pt\""), 1u);
}

TEST_F(Printing, APlotThatCannotBeWrittenIsToldInOneLineAndLeavesNothing)
{
    expect_bad_input("plot film.csv -o nowhere/a.pdf", "nowhere/a.pdf: No such file or directory");
    expect_bad_input("plot film.csv -o nowhere/a.svg", "nowhere/a.svg: No such file or directory");
}

// --- the printer of host scripts -------------------------------------------------------------------------------------

TEST_F(Printing, AScriptPrintsTwoPagesByName)
{
    file("s.json", R"([
        ["new", "p", "PdfPrinter", {"file": "out.pdf", "page": "Letter", "landscape": true}],
        ["get", "p", "width"],
        ["put", "p", "FontSize", 12],
        ["put", "p", "CurrentX", 1000],
        ["put", "p", "CurrentY", 1000],
        ["call", "p", "Print", "first page"],
        ["call", "p", "NewPage"],
        ["new", "c", "ZvPlot2D", {"Width": 9000, "Height": 6000}],
        ["put", "c", "PrinterObj", "$p"],
        ["call", "c", "SetPanelData", [-100, 100, 100, -100], [-50, -50, 50, 50], [1, 2, 3, 4]],
        ["call", "c", "PrintPlot", 1000, 1000, 8000, 6000],
        ["call", "c", "PrintLegend", 9500, 1000],
        ["call", "p", "EndDoc"],
        ["call", "p", "EndDoc"]
    ])");
    auto const outcome = run("run s.json");
    ASSERT_EQ(outcome.exit, 0) << outcome.errors;
    EXPECT_NE(outcome.output.find("{\"step\":1,\"value\":15840.0}"), std::string::npos) << outcome.output;
    EXPECT_EQ(count(outcome.output, "\"result\":0"), 3u) << outcome.output;
    EXPECT_NE(outcome.output.find("{\"step\":13,\"failure\":\"InvalidProcedureCall\"}"), std::string::npos);
    EXPECT_EQ(count(bytes("out.pdf"), "/MediaBox [ 0 0 792 612 ]"), 2u);
    if (has_tools()) {
        EXPECT_EQ(count(text_of("out.pdf"), "first page"), 1u);
    }
}

TEST_F(Printing, AScriptsPrinterWantsAFileAndAKnownPageAndTellsWhatCannotBeWritten)
{
    file("s.json", R"([
        ["new", "a", "PdfPrinter"],
        ["new", "b", "PdfPrinter", {"file": "b.pdf", "page": "A7"}],
        ["new", "c", "PdfPrinter", {"file": 7}],
        ["new", "d", "PdfPrinter", {"file": "d.pdf", "TwipsPerPixelX": 0}],
        ["new", "e", "PdfPrinter", {"file": "nowhere/e.pdf", "TwipsPerPixelX": 15, "TwipsPerPixelY": 12}],
        ["get", "e", "TwipsPerPixelY"],
        ["call", "e", "EndDoc"]
    ])");
    EXPECT_EQ(run("run s.json").output, "{\"step\":0,\"failure\":\"InvalidProcedureCall\"}\n"
                                        "{\"step\":1,\"failure\":\"InvalidProcedureCall\"}\n"
                                        "{\"step\":2,\"failure\":\"TypeMismatch\"}\n"
                                        "{\"step\":3,\"failure\":\"InvalidProcedureCall\"}\n"
                                        "{\"step\":5,\"value\":12.0}\n"
                                        "{\"step\":6,\"failure\":\"FileError\"}\n");
    EXPECT_EQ(file_count(), 3u) << "the data and the script";
}

TEST_F(Printing, AControlWithoutAPrinterRefusesInAScript)
{
    file("s.json", R"([
        ["new", "c", "ZvPlot2D"],
        ["call", "c", "SetPanelData", [-100, 100, 100, -100], [-50, -50, 50, 50], [1, 2, 3, 4]],
        ["call", "c", "PrintPlot", 1000, 1000, 8000, 6000]
    ])");
    EXPECT_NE(run("run s.json").output.find("{\"step\":2,\"result\":2"), std::string::npos);
}

} // namespace zendara
