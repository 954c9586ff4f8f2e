// The program as users start it: what it prints, how it ends, what it writes.

#include "program.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace zendara
{

namespace
{

using Json = nlohmann::json;

/// Width and height in the header of a PNG file; empty for any other file.
std::vector<unsigned> png_size(std::string const& bytes)
{
    if (bytes.size() < 24 || bytes.substr(1, 3) != "PNG")
        return {};
    auto const number = [&](std::size_t at) {
        unsigned value = 0;
        for (std::size_t i = at; i < at + 4; ++i)
            value = value << 8 | static_cast<unsigned char>(bytes[i]);
        return value;
    };
    return {number(16), number(20)};
}

} // namespace

// --- plot -----------------------------------------------------------------------------------------------------------

TEST_F(Program, PlotWritesAPictureNamedAfterTheData)
{
    write_sites();
    auto const outcome = run("plot film.csv");
    EXPECT_EQ(outcome.exit, 0) << outcome.errors;
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(png_size(contents_of(path("film.png"))), (std::vector<unsigned>{1000, 700}));
}

TEST_F(Program, ARawFileAndACsvOfTheSameSitesGiveTheSamePicture)
{
    write_sites();
    ASSERT_EQ(run("plot film.csv -o a.png --pixels 400x300").exit, 0);
    ASSERT_EQ(run("plot film.dat -o b.png --pixels 400x300").exit, 0);
    EXPECT_EQ(png_size(contents_of(path("a.png"))), (std::vector<unsigned>{400, 300}));
    EXPECT_EQ(contents_of(path("a.png")), contents_of(path("b.png")));
}

TEST_F(Program, WithoutASizeThePanelHoldsAllSites)
{
    file("wide.csv", "x,y,z\n-400,0,1\n400,10,2\n0,-10,3\n0,5,4\n");
    auto const outcome = run("plot wide.csv");
    EXPECT_EQ(outcome.exit, 0) << outcome.errors;
    EXPECT_EQ(outcome.errors,
              "zendara: note: the panel is taken as 800 x 20 mm, which holds all sites; --size tells it\n");
    EXPECT_EQ(run("stats wide.csv --format csv").output.substr(0, 10), "file,sites");
}

TEST_F(Program, SitesBeyondThePanelAreToldOnceAndABadOptionAlone)
{
    write_sites();
    auto const gallery = run("gallery film.csv --size 200x200 -o shown");
    EXPECT_EQ(gallery.exit, 0);
    EXPECT_EQ(std::count(gallery.errors.begin(), gallery.errors.end(), '\n'), 1) << gallery.errors;
    expect_bad_input("plot film.csv --size 200x200 --limits 5 1",
                     "--limits: the lower limit has to lie below the upper one");
}

TEST_F(Program, GalleryWritesAPictureOfEachControlAndAPageThatShowsThem)
{
    write_sites();
    auto const outcome = run("gallery film.csv -o shown/here --pixels 600x450");
    ASSERT_EQ(outcome.exit, 0) << outcome.errors;
    auto const page = contents_of(path("shown/here/index.html"));
    auto const names = run("controls").output;
    std::size_t controls = 0;
    for (std::size_t at = 0; at < names.size(); at = names.find('\n', at) + 1, ++controls) {
        auto const name = names.substr(at, names.find_first_of(" \n", at) - at);
        EXPECT_EQ(png_size(contents_of(path("shown/here/" + name + ".png"))), (std::vector<unsigned>{600, 450}));
        EXPECT_NE(page.find("<img src=\"" + name + ".png\" width=\"600\" height=\"450\" alt=\""), std::string::npos);
    }
    EXPECT_GE(controls, 3u);
    EXPECT_NE(page.find("<th scope=\"row\">mean</th><td class=\"number\">8.5</td>"), std::string::npos);
    EXPECT_NE(page.find("<th scope=\"row\">ResolutionX</th><td>5</td>"), std::string::npos);
    EXPECT_EQ(page.find("http"), std::string::npos) << "the page asks for a network";
}

TEST_F(Program, GalleryOfBadDataMakesNoFolder)
{
    file("bad.csv", "x,y,z\n1,2,three\n");
    expect_bad_input("gallery bad.csv -o shown", "bad.csv:2: expected a number in column z, found \"three\"");
}

TEST_F(Program, ASettingChangesThePicture)
{
    write_sites();
    ASSERT_EQ(run("plot film.csv -o a.png").exit, 0);
    for (std::string const setting :
         {"resolutionx=20", "HideLegend=true", "IntervalColor0=#102030", "PlotCaption=Film"}) {
        auto const outcome = run("plot film.csv -o b.png --set " + setting);
        ASSERT_EQ(outcome.exit, 0) << outcome.errors;
        EXPECT_NE(contents_of(path("a.png")), contents_of(path("b.png"))) << setting;
    }
}

TEST_F(Program, LimitsChangeThePicture)
{
    write_sites();
    ASSERT_EQ(run("plot film.csv -o a.png").exit, 0);
    ASSERT_EQ(run("plot film.csv -o b.png --limits -5 5").exit, 0);
    EXPECT_NE(contents_of(path("a.png")), contents_of(path("b.png")));
}

TEST_F(Program, SitesBeyondThePanelAreWarnedOf)
{
    write_sites();
    auto const outcome = run("plot film.csv --size 200x200");
    EXPECT_EQ(outcome.exit, 0);
    EXPECT_EQ(outcome.errors, "zendara: warning: film.csv: 8 of 16 sites lie beyond the panel of 200 x 200 mm; tell "
                              "its size by --size\n");
}

TEST_F(Program, ASiteFarBeyondThePanelEndsInOneLine)
{
    std::vector<double> numbers(3 * 12, 1.0);
    numbers[3] = 1e9;
    raw_file("far.dat", numbers);
    expect_bad_input("plot far.dat --size 300x200",
                     "far.dat: the sites cannot be taken: a value is too large, or a site lies far "
                     "beyond the panel of 300 x 200 mm (--size)");
}

TEST_F(Program, PlotOf32767SitesIsDrawn)
{
    std::vector<double> numbers(3 * 32767, 1.0);
    numbers[0] = 2;
    raw_file("many.dat", numbers);
    EXPECT_EQ(run("plot many.dat --pixels 400x300").exit, 0);
    EXPECT_TRUE(exists("many.png"));
}

TEST_F(Program, AFileThatMayOnlyBeReadIsPlotted)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "the superuser may write any file";
    write_sites();
    std::filesystem::permissions(path("film.dat"), std::filesystem::perms::owner_read);
    EXPECT_EQ(run("plot film.dat").exit, 0);
    EXPECT_TRUE(exists("film.png"));
}

TEST_F(Program, AnEmptyFileIsNothingToPlot)
{
    file("a.dat", "");
    auto const outcome = run("plot a.dat");
    EXPECT_EQ(outcome.exit, 1);
    EXPECT_EQ(outcome.errors, "zendara: a.dat: the file is empty\n");
    EXPECT_FALSE(exists("a.png"));
}

TEST_F(Program, BadDataEndsWithTheLineThatIsWrong)
{
    file("a.csv", "x,y,z\n1,2,three\n");
    expect_bad_input("plot a.csv", "a.csv:2: expected a number in column z, found \"three\"");
    expect_bad_input("stats a.csv", "a.csv:2: expected a number in column z, found \"three\"");
    expect_bad_input("plot missing.dat", "missing.dat: No such file or directory");
}

TEST_F(Program, AnUnknownSettingIsNamedWithTheNearestNames)
{
    write_sites();
    expect_bad_input("plot film.csv --set Resolutionz=3",
                     "--set Resolutionz=3: ZvPlot2D has no property \"Resolutionz\"; did you mean ResolutionX, "
                     "ResolutionY?");
}

TEST_F(Program, ASettingThatCannotBeIsNamed)
{
    write_sites();
    expect_bad_input("plot film.csv --set ResolutionX=wide", "--set ResolutionX=wide: expected a number");
    expect_bad_input("plot film.csv --set ResolutionX", "--set ResolutionX: expected NAME=VALUE");
    expect_bad_input("plot film.csv --set HideLegend=maybe", "--set HideLegend=maybe: expected true or false");
    expect_bad_input("plot film.csv --set BackColor=green",
                     "--set BackColor=green: expected a colour as #RRGGBB or a number");
    expect_bad_input("plot film.csv --set mean=3", "--set mean=3: ZvPlot2D.mean cannot be set");
    expect_bad_input("plot film.csv --set PrinterObj=3",
                     "--set PrinterObj=3: an object cannot be given on the command line");
}

TEST_F(Program, AnUnknownControlIsNamed)
{
    write_sites();
    expect_bad_input("plot film.csv --control nothing_like_it",
                     "--control: there is no control \"nothing_like_it\"; \"zendara controls\" lists them");
    auto const near = run("plot film.csv --control ZvPlot2X");
    EXPECT_EQ(near.exit, 2);
    EXPECT_NE(near.errors.find("did you mean ZvPlot2D"), std::string::npos) << near.errors;
}

TEST_F(Program, ABadSizeIsNamedWithItsOption)
{
    write_sites();
    expect_bad_input("plot film.csv --size 300", "--size: expected WIDTHxHEIGHT, 300x200 for example, not \"300\"");
    expect_bad_input("plot film.csv --size 0x200", "--size: expected WIDTHxHEIGHT, 300x200 for example, not \"0x200\"");
    expect_bad_input("plot film.csv --size infx2", "--size: expected WIDTHxHEIGHT, 300x200 for example, not \"infx2\"");
    expect_bad_input("plot film.csv --pixels 99999x10",
                     "--pixels: expected whole numbers from 1 to 16384, not \"99999x10\"");
}

TEST_F(Program, LimitsInTheWrongOrderAreRejected)
{
    write_sites();
    expect_bad_input("plot film.csv --limits 5 5", "--limits: the lower limit has to lie below the upper one");
    expect_bad_input("plot film.csv --limits nan 5", "--limits: the lower limit has to lie below the upper one");
}

TEST_F(Program, OutputsThatCannotBeWrittenAreRejected)
{
    write_sites();
    expect_bad_input("plot film.csv -o a.gif", "-o a.gif: expected a name that ends in .png, .pdf or .svg");
    expect_bad_input("plot film.csv -o missing/a.png", "missing/a.png: No such file or directory");
}

TEST_F(Program, TheDataFileIsNeverOverwritten)
{
    write_sites();
    std::filesystem::rename(path("film.dat"), path("film.png"));
    auto const before = contents_of(path("film.png"));
    expect_bad_input("plot film.png", "-o film.png: is the data file itself");
    EXPECT_EQ(contents_of(path("film.png")), before);
}

// --- stats ----------------------------------------------------------------------------------------------------------

TEST_F(Program, StatsTellTheFiguresAsJson)
{
    file("a.csv", "x,y,z\n0,0,1\n1,1,3\n");
    auto const outcome = run("stats a.csv --format json");
    ASSERT_EQ(outcome.exit, 0) << outcome.errors;
    auto const figures = Json::parse(outcome.output);
    EXPECT_EQ(figures["file"], "a.csv");
    EXPECT_EQ(figures["sites"], 2);
    EXPECT_EQ(figures["mean"], 2);
    EXPECT_EQ(figures["StdDev"], 1.4142135623730951); // the root of 2
    EXPECT_EQ(figures["Minimum"], 1);
    EXPECT_EQ(figures["Maximum"], 3);
    EXPECT_EQ(figures["range"], 2);
    EXPECT_EQ(figures["HiLo"], 50); // (3 - 1) / (3 + 1)
    EXPECT_NEAR(figures["StdDevPercent"].get<double>(), 70.710678118654755, 1e-12);
    EXPECT_EQ(figures["zero"], false);
    EXPECT_EQ(figures["negative"], false);
}

TEST_F(Program, StatsFlagZeroAndNegativeValues)
{
    file("a.csv", "x,y,z\n0,0,0\n1,1,-3\n");
    auto const figures = Json::parse(run("stats a.csv --format json").output);
    EXPECT_EQ(figures["zero"], true);
    EXPECT_EQ(figures["negative"], true);
}

TEST_F(Program, StatsAsCsvAreAHeaderAndARow)
{
    file("a.csv", "x,y,z\n0,0,1\n1,1,3\n");
    auto const output = run("stats a.csv --format csv").output;
    EXPECT_EQ(output.substr(0, output.find('\n')),
              "file,sites,mean,StdDev,Minimum,Maximum,range,HiLo,StdDevPercent,zero,negative");
    EXPECT_NE(output.find("\na.csv,2,2,1.4142135623730951,1,3,2,50,"), std::string::npos) << output;
}

TEST_F(Program, StatsAsTextUseTheNumbersOfTheLabels)
{
    file("a.csv", "x,y,z\n0,0,1\n1,1,3\n");
    auto const output = run("stats a.csv").output;
    EXPECT_NE(output.find("sites               2\n"), std::string::npos) << output;
    EXPECT_NE(output.find("standard deviation  1.4142\n"), std::string::npos) << output;
}

// --- run ------------------------------------------------------------------------------------------------------------

TEST_F(Program, AScriptIsReadFromStandardInput)
{
    file("a.json", R"([["new","s","Support"],["call","s","IsWholeText","7"]])");
    auto const outcome = run("run - < a.json");
    EXPECT_EQ(outcome.exit, 0) << outcome.errors;
    EXPECT_EQ(outcome.output, "{\"step\":1,\"result\":-1,\"args\":[\"7\"]}\n");
}

TEST_F(Program, ABrokenScriptNamesTheStep)
{
    file("a.json", R"([["messages"],["messages"],["get" "c"]])");
    auto const outcome = run("run a.json");
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_EQ(outcome.output, "") << "nothing runs before the whole script is read";
    EXPECT_EQ(outcome.errors.substr(0, 25), "zendara: a.json: step 2: ");
}

TEST_F(Program, StepsOfAWrongShapeAreNamed)
{
    file("a.json", R"([["messages"],["fly"]])");
    expect_bad_input("run a.json", "a.json: step 1: there is no step \"fly\"");
    file("a.json", R"([["messages"],["get","c"]])");
    expect_bad_input("run a.json", "a.json: step 1: expected [\"get\", OBJ, MEMBER]");
    file("a.json", R"([["put","c","x",{"lower":0}]])");
    expect_bad_input("run a.json", "a.json: step 0: expected [\"put\", OBJ, MEMBER, VALUE]");
    file("a.json", R"([["modal",[["messages"],["messages",1]]]])");
    expect_bad_input("run a.json", "a.json: step 0, step 1 of its modal: expected [\"messages\"]");
    file("a.json", R"([7])");
    expect_bad_input("run a.json", "a.json: step 0: expected an array that begins with the name of a step");
    file("a.json", R"({"step":1})");
    expect_bad_input("run a.json", "a.json: expected an array of steps");
    expect_bad_input("run missing.json", "missing.json: No such file or directory");
}

TEST_F(Program, ModalsNestOnlySoDeep)
{
    std::string text = R"(["messages"])";
    for (int i = 0; i < 5000; ++i)
        text = R"(["modal",[)" + text + "]]";
    file("a.json", '[' + text + ']');
    EXPECT_EQ(run("run a.json").exit, 2);
}

TEST_F(Program, APictureStepWritesTheControlAndItsPictureBox)
{
    file("a.json", R"([
        ["new","c","ZvPlot2D",{"Width":6000,"Height":4500}],
        ["call","c","SetPanelData",[-100,100,100,-100],[-50,-50,50,50],[1,2,3,4]],
        ["call","c","Plot"],
        ["picture","c","control.png"],
        ["picture","c.PLOTA","plot.png"],
        ["new","p","Picture",{"ScaleWidth":40,"ScaleHeight":30}],
        ["picture","p","picture.png"]])");
    auto const outcome = run("run a.json");
    EXPECT_EQ(outcome.exit, 0) << outcome.errors;
    EXPECT_EQ(outcome.output.find("failure"), std::string::npos) << outcome.output;
    EXPECT_EQ(png_size(contents_of(path("control.png"))), (std::vector<unsigned>{400, 300}));
    EXPECT_EQ(png_size(contents_of(path("picture.png"))), (std::vector<unsigned>{40, 30}));
    EXPECT_EQ(png_size(contents_of(path("plot.png"))).size(), 2u);
}

TEST_F(Program, ThousandsOfStepsPrintThousandsOfLines)
{
    std::string text = R"([["new","s","Support"])";
    for (int i = 0; i < 20000; ++i)
        text += R"(,["call","s","FormatLbl",)" + std::to_string(i) + "]";
    file("a.json", text + "]");
    auto const outcome = run("run a.json");
    EXPECT_EQ(outcome.exit, 0);
    EXPECT_EQ(std::count(outcome.output.begin(), outcome.output.end(), '\n'), 20000);
    EXPECT_NE(outcome.output.find(R"({"step":20000,"result":"19999.0","args":[19999]})"), std::string::npos);
}

// --- controls and the rest ------------------------------------------------------------------------------------------

TEST_F(Program, ControlsListsOneNameALine)
{
    auto const outcome = run("controls");
    EXPECT_EQ(outcome.exit, 0);
    EXPECT_NE(('\n' + outcome.output).find("\nZvPlot2D "), std::string::npos);
}

TEST_F(Program, AControlIsDescribedAsJsonInTheOrderOfItsSlots)
{
    auto const table = Json::parse(run("controls zvplot2d --format json").output);
    EXPECT_EQ(table["name"], "ZvPlot2D");
    auto const& first = table["members"][0];
    EXPECT_EQ(first["name"], "PrinterObj");
    EXPECT_EQ(first["slots"], Json::parse(R"([{"slot":0,"dispatch":"propget"},{"slot":1,"dispatch":"propputref"}])"));
    EXPECT_EQ(table["members"][1]["name"], "hdc");
    EXPECT_EQ(table["members"][1]["slots"], Json::parse(R"([{"slot":2,"dispatch":"propget"}])"));
    auto const& members = table["members"];
    auto const legend = std::find_if(members.begin(), members.end(),
                                     [](Json const& member) { return member["name"] == "PrintLegend"; });
    ASSERT_NE(legend, members.end());
    EXPECT_EQ((*legend)["arguments"][2],
              Json::parse(R"({"name":"DrawFrame","type":"BOOL","ref":true,"optional":true,"default":-1})"));
    EXPECT_EQ(table["events"][2]["name"], "MouseDown");
    EXPECT_EQ(table["events"][2]["arguments"][2]["type"], "R4");
}

TEST_F(Program, AControlIsDescribedWithTheValuesOfItsEnumerationsAndItsKeys)
{
    auto const text = run("controls ZvPlot2D").output;
    EXPECT_NE(text.find("SetPlotLimit(LPL ref R8, UPL ref R8): BOOL"), std::string::npos) << text;
    EXPECT_NE(text.find("[DrawFrame ref BOOL = True]"), std::string::npos);
    EXPECT_NE(text.find("\"2DPANELWD\", read from \"PANELWD\""), std::string::npos);
    EXPECT_NE(text.find("\nEnumeration Sites\n"), std::string::npos);
}

TEST_F(Program, AnUnknownControlHasNoTable)
{
    EXPECT_EQ(run("controls nothing_like_it").exit, 2);
    EXPECT_EQ(run("controls nothing_like_it").errors, "zendara: controls: there is no control \"nothing_like_it\"\n");
}

TEST_F(Program, HelpAndVersionAreEverywhere)
{
    for (std::string const command : {"", "plot ", "stats ", "run ", "controls "}) {
        auto const help = run(command + "--help");
        EXPECT_EQ(help.exit, 0);
        EXPECT_NE(help.output.find("--help"), std::string::npos);
        auto const version = run(command + "--version");
        EXPECT_EQ(version.exit, 0);
        EXPECT_EQ(version.output.substr(0, 8), "zendara ");
        EXPECT_EQ(version.errors, "");
    }
}

TEST_F(Program, OptionsThatDoNotExistAreNamedInOneLine)
{
    for (std::string const words : {"", "fly", "plot", "plot a.csv --colour red", "plot a.csv --limits 1",
                                    "stats a.csv --format xml", "plot a.csv --sites many"}) {
        auto const outcome = run(words);
        EXPECT_EQ(outcome.exit, 2) << words;
        EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 1) << outcome.errors;
    }
    EXPECT_NE(run("plot a.csv --colour red").errors.find("--colour"), std::string::npos);
}

} // namespace zendara
