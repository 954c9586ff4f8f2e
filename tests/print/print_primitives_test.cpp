#include "page_fixture.hpp"

namespace zendara::test
{

namespace
{

using Texts = PrintedPage;

} // namespace

TEST_F(Texts, ALeftTextThatFitsStandsAtItsPlaceInItsColour)
{
    std::string text = "abcd";
    paper.DrawLeftText(text, 1000, 2000, 400, 2);
    EXPECT_EQ(record(), Lines{R"(Text "abcd" 1000 2000 32768 "Arial" 8)"});
    EXPECT_EQ(text, "abcd");
}

TEST_F(Texts, ALeftTextTooWideKeepsItsBeginningAlsoInTheCallersString)
{
    std::string text = "abcdef";
    paper.DrawLeftText(text, 1000, 2000, 450, 0);
    EXPECT_EQ(record(), Lines{R"(Text "abcd" 1000 2000 0 "Arial" 8)"});
    EXPECT_EQ(text, "abcd");
}

TEST_F(Texts, ACentredTextTooWideKeepsItsMiddle)
{
    std::string text = "abcdef";
    paper.DrawCenterText(text, 1000, 2000, 450, 0);
    EXPECT_EQ(record(), Lines{R"(Text "bcde" 800 2000 0 "Arial" 8)"});
    EXPECT_EQ(text, "bcde");
}

TEST_F(Texts, ACentredTextBeginsAtAWholeTwipWithHalvesToTheEvenOne)
{
    std::string text = "abc";
    paper.DrawCenterText(text, 1000.5, 0, 450, 0);
    paper.DrawCenterText(text, 1001.5, 0, 450, 0);
    EXPECT_EQ(record(), (Lines{R"(Text "abc" 850 0 0 "Arial" 8)", R"(Text "abc" 852 0 0 "Arial" 8)"}));
}

TEST_F(Texts, ARightTextTooWideKeepsItsEndAndEndsAtItsPlace)
{
    std::string text = "abcdef";
    paper.DrawRightText(text, 1000.5, 2000, 450, 0);
    EXPECT_EQ(record(), Lines{R"(Text "cdef" 600.5 2000 0 "Arial" 8)"});
    EXPECT_EQ(text, "cdef");
}

TEST_F(Texts, ALetterOfSeveralBytesGoesAsAWhole)
{
    std::string left_text = "ab\u00B0";
    std::string right_text = "\u00B0ab";
    std::string middle_text = "\u00B0a\u00B0";
    paper.DrawLeftText(left_text, 0, 0, 200, 0);
    paper.DrawRightText(right_text, 0, 0, 200, 0);
    paper.DrawCenterText(middle_text, 0, 0, 200, 0);
    EXPECT_EQ(left_text, "ab");
    EXPECT_EQ(right_text, "ab");
    EXPECT_EQ(middle_text, "a");
}

TEST_F(Texts, ABrokenByteCountsAsALetter)
{
    std::string text = "ab\xC3";
    paper.DrawLeftText(text, 0, 0, 200, 0);
    EXPECT_EQ(text, "ab");
}

TEST_F(Texts, OfAWidthOfZeroAnEmptyTextIsWritten)
{
    std::string text = "abc";
    paper.DrawCenterText(text, 1000, 2000, 0, 0);
    EXPECT_EQ(record(), Lines{R"(Text "" 1000 2000 0 "Arial" 8)"});
    EXPECT_EQ(text, "");
}

TEST_F(Texts, AWidthBelowZeroFailsOnceTheTextIsEmpty)
{
    for (auto const draw : {&PrintPanel::DrawLeftText, &PrintPanel::DrawCenterText, &PrintPanel::DrawRightText}) {
        std::string text = "abc";
        EXPECT_EQ(failure_of([&] { (paper.*draw)(text, 0, 0, -1, 0); }), FailureKind::InvalidProcedureCall);
        EXPECT_EQ(text, "");
        EXPECT_TRUE(record().empty());
    }
}

TEST_F(Texts, ATextWiderThan32767TwipsFails)
{
    std::string fits(327, 'x');
    std::string too_wide(328, 'x');
    paper.DrawLeftText(fits, 0, 0, 40000, 0);
    EXPECT_EQ(failure_of([&] { paper.DrawLeftText(too_wide, 0, 0, 40000, 0); }), FailureKind::Overflow);
    EXPECT_EQ(too_wide.size(), 328u);
}

TEST_F(Texts, OnlyALeftTextMakesThePenSolid)
{
    std::string text = "a";
    page->FontTransparent = false;
    page->DrawStyle = pen_none;
    paper.DrawCenterText(text, 0, 0, 100, 0);
    paper.DrawRightText(text, 0, 0, 100, 0);
    EXPECT_EQ(page->DrawStyle, pen_none);
    EXPECT_TRUE(page->FontTransparent);
    paper.DrawLeftText(text, 0, 0, 100, 0);
    EXPECT_EQ(page->DrawStyle, pen_solid);
}

TEST_F(PrintedPage, AFrameWithACaptionHasAGapInItsTopLine)
{
    paper.DrawFrame("Cap", left, top, width, height);
    EXPECT_EQ(record(), captioned_frame);
}

TEST_F(PrintedPage, AFrameWithoutACaptionIsClosedAndLiesOneLineLowerThanItsBox)
{
    paper.DrawFrame("", left, top, width, height);
    EXPECT_EQ(record(), (Lines{
                            "ScaleMode 1",
                            "ScaleMode 1",
                            "Line 1000 2200 1000 6200 4210752 2 0",
                            "Line 1000 6200 6000 6200 4210752 2 0",
                            "Line 6000 6200 6000 2200 4210752 2 0",
                            "Line 6000 2200 1000 2200 4210752 2 0",
                            "ScaleMode 1",
                        }));
}

TEST_F(PrintedPage, ASigmaStandsAQuarterOfItsHeightHigherAndLeavesTheFontAlone)
{
    page->Font = {"Courier", 20, true, true};
    paper.DrawSigmaChar(500, 600, 4);
    // 350 twips high at 14 points.
    EXPECT_EQ(record(), Lines{R"(Text "s" 500 512.5 128 "Symbol" 14)"});
    EXPECT_EQ(page->Font, (FontFace{"Courier", 20, true, true}));
}

TEST_F(PrintedPage, AResetPutsTheWholeDrawingStateBack)
{
    page->ScaleMode(scale_pixels);
    page->FontTransparent = false;
    page->Font = {"Symbol", 14};
    page->DrawWidth = 9;
    page->DrawStyle = pen_none;
    page->FillStyle = fill_none;
    page->FillColor = 3;
    page->ForeColor = 4;
    paper.ResetPrinterObj();
    EXPECT_EQ(page->ScaleMode(), scale_twips);
    EXPECT_TRUE(page->FontTransparent);
    EXPECT_EQ(page->Font, (FontFace{"Arial", 8}));
    EXPECT_EQ(page->DrawWidth, 1);
    EXPECT_EQ(page->DrawStyle, pen_solid);
    EXPECT_EQ(page->FillStyle, fill_solid);
    EXPECT_EQ(page->FillColor, white);
    EXPECT_EQ(page->ForeColor, black);
}

TEST_F(PrintedPage, LabelTextsFollowTheMagnitude)
{
    EXPECT_EQ(paper.FormatLbl(0), "0.0");
    EXPECT_EQ(paper.FormatLbl(0.12345678), "0.1234568");
    EXPECT_EQ(paper.FormatLbl(-2), "-2.0");
    EXPECT_EQ(paper.FormatLbl(10000), "10000.0");
    EXPECT_EQ(paper.FormatLbl(10000.126), "10000.13");
    EXPECT_EQ(paper.FormatLbl(100001), "1.E+5");
    EXPECT_EQ(paper.FormatLbl(0.00000002), "2.E-8");
}

TEST_F(PrintedPage, WithoutAPageEveryRoutineFails)
{
    PrintPanel nowhere;
    std::string text = "a";
    auto const record = small_panel();
    EXPECT_EQ(failure_of([&] { nowhere.DrawLeftText(text, 0, 0, 1000, 0); }), FailureKind::ObjectNotSet);
    EXPECT_EQ(failure_of([&] { nowhere.DrawPanelSize(*record, 0, 0); }), FailureKind::ObjectNotSet);
    EXPECT_EQ(failure_of([&] { nowhere.Print_2DVPlot(*record, left, top, width, height, "", true); }),
              FailureKind::ObjectNotSet);
}

} // namespace zendara::test
