#include "listening_container.hpp"
#include "panels.hpp"
#include "render/plots/line_scan_widgets.hpp"
#include "support/failure_kind.hpp"
#include "trace_text.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace zendara::test
{

namespace
{

/// What a test passes to D1Plot_MarkSites; a scan along y = 0 from the left to the right on the screen by default.
struct Call {
    std::int16_t phi = 270;
    std::int16_t is_angle = -1;
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    double left = 0, top = 0, width = 0, height = 0;
    std::int16_t show_disp = 0;
    Color color = 255;

    static Call through(double x1, double y1, double x2, double y2)
    {
        Call call;
        call.is_angle = 0;
        call.x1 = x1, call.y1 = y1, call.x2 = x2, call.y2 = y2;
        return call;
    }

    Call on_paper() const
    {
        Call call = *this;
        call.show_disp = 1;
        call.left = 1000, call.top = 500, call.width = 3000, call.height = 2000;
        return call;
    }

    void run(panel& record, Surface& surface, WidgetArray* pictures)
    {
        record.D1Plot_MarkSites(surface, pictures, phi, is_angle, x1, y1, x2, y2, color, left, top, width, height,
                                show_disp);
    }
};

/// A screen picture of 6000 x 4500 units with its array of mark pictures, 210 in the square.
struct Screen {
    std::unique_ptr<Recorder> surface = Recorder::picture({0, 0, 6000, 4500});
    BareWidgets pictures{1};

    Screen() { pictures(0).Move(1, 2, 210, 210); }

    void mark(panel& record, Call call = {}) { call.run(record, *surface, &pictures); }

    /// The centres of the visible marks.
    std::vector<std::pair<double, double>> centres()
    {
        std::vector<std::pair<double, double>> found;
        for (auto const& picture : pictures.widgets)
            if (picture->Visible())
                found.emplace_back(picture->Left() + 105, picture->Top() + 105);
        return found;
    }
};

using Centres = std::vector<std::pair<double, double>>;

// Three sites on y = 0 and two beside it; values from 0 to 100.
std::vector<Site> const five_sites = {{-75, 0, 0}, {0, 10, 100}, {0, 0, 50}, {75, -10, 20}, {75, 0, 25}};

} // namespace

TEST(D1Plot_MarkSites, MarksTheSitesOnTheLineAtTheirDistanceFromTheStartAndTheirValue)
{
    auto const record = make_panel(300, 200, five_sites);
    Screen screen;
    screen.mark(*record);
    // 20 units to the millimetre, 45 to the unit of the value.
    EXPECT_EQ(screen.centres(), (Centres{{1500, 4500}, {3000, 2250}, {4500, 3375}}));
    EXPECT_TRUE(screen.surface->take_record().empty());
}

TEST(D1Plot_MarkSites, AMarkKeepsTheSizeOfItsPicture)
{
    auto const record = make_panel(300, 200, five_sites);
    Screen screen;
    screen.mark(*record);
    EXPECT_EQ(screen.pictures(0).Width(), 210);
    EXPECT_EQ(screen.pictures(0).Height(), 210);
}

TEST(D1Plot_MarkSites, EachRunReusesTheLastPictureAndLoadsTheOthers)
{
    auto const record = make_panel(300, 200, five_sites);
    Screen screen;
    screen.mark(*record);
    EXPECT_EQ(screen.pictures.Count(), 3);
    screen.mark(*record);
    EXPECT_EQ(screen.pictures.Count(), 5);
    EXPECT_FALSE(screen.pictures(0).Visible());
    EXPECT_FALSE(screen.pictures(1).Visible());
    EXPECT_EQ(screen.centres(), (Centres{{1500, 4500}, {3000, 2250}, {4500, 3375}}));
}

TEST(D1Plot_MarkSites, HidesTheMarksOfTheRunBefore)
{
    auto const record = make_panel(300, 200, five_sites);
    Screen screen;
    screen.mark(*record);
    Call other;
    other.y1 = 55; // no site lies there
    screen.mark(*record, other);
    EXPECT_TRUE(screen.centres().empty());
    EXPECT_EQ(screen.pictures.Count(), 3);
}

TEST(D1Plot_MarkSites, TheToolTipOfASlopedLineLacksABlank)
{
    auto const record = make_panel(300, 200, five_sites);
    Screen screen;
    screen.mark(*record);
    EXPECT_EQ(screen.pictures(0).ToolTipText(), "X = -75  Y= 0FW = 0");
    EXPECT_EQ(screen.pictures(2).ToolTipText(), "X = 75  Y= 0FW = 25");
}

TEST(D1Plot_MarkSites, TheToolTipOfAVerticalLineHasIt)
{
    auto const record = make_panel(300, 200, {{0, -50, 0.5}, {1, 1, 2}, {2, 2, 3}, {3, 3, 4}});
    Screen screen;
    Call call;
    call.phi = 0;
    screen.mark(*record, call);
    EXPECT_EQ(screen.pictures(0).ToolTipText(), "X = 0  Y= -50 FW = 0.5");
}

TEST(D1Plot_MarkSites, AVerticalScanOffTheCentreMarksTheSitesOfTheColumnX0)
{
    auto const record = make_panel(300, 200, {{0, -88, 0}, {5, 0, 10}, {5, 50, 10}, {0, 20, 10}});
    Screen screen;
    Call call;
    call.phi = 0;
    call.x1 = 5;
    screen.mark(*record, call);
    // From (5, -100): 13 and the root of 14425 mm, 30 units to the millimetre.
    auto const centres = screen.centres();
    ASSERT_EQ(centres.size(), 2u);
    EXPECT_NEAR(centres[0].first, 13 * 30, 1e-9);
    EXPECT_NEAR(centres[1].first, std::sqrt(14425.0) * 30, 1e-9);
}

TEST(D1Plot_MarkSites, ALineFromTheLeftToTheRightEdgeMarksToFourDecimals)
{
    // y = x / 2. The second site lies on the line in all its digits, but has five decimals.
    auto const record =
        make_panel(300, 200, {{20, 10, 1}, {2.46912, 1.23456, 2}, {40, 20.0001, 3}, {0.0001, 0.0001, 4}, {60, 30, 5}});
    Screen screen;
    screen.mark(*record, Call::through(0, 0, 10, 5));
    // 0.00005 shows as 0.0001, away from zero.
    ASSERT_EQ(screen.centres().size(), 3u);
    EXPECT_EQ(screen.pictures(0).ToolTipText(), "X = 20  Y= 10FW = 1");
    EXPECT_EQ(screen.pictures(1).ToolTipText(), "X = 0.0001  Y= 0.0001FW = 4");
    EXPECT_EQ(screen.pictures(2).ToolTipText(), "X = 60  Y= 30FW = 5");
}

TEST(D1Plot_MarkSites, ALineThatEndsOnTheLowerEdgeMarksByAWrongIntercept)
{
    // The line y = x - 100 ends at (0, -100) and (150, 50); sites are compared with y = x + 50.
    auto const record = make_panel(300, 200, {{20, -80, 1}, {20, 70, 2}, {0, 0, 3}, {30, 80, 4}});
    Screen screen;
    screen.mark(*record, Call::through(0, -100, 10, -90));
    ASSERT_EQ(screen.centres().size(), 2u);
    EXPECT_EQ(screen.pictures(0).ToolTipText(), "X = 20  Y= 70FW = 2");
    EXPECT_EQ(screen.pictures(1).ToolTipText(), "X = 30  Y= 80FW = 4");
}

TEST(D1Plot_MarkSites, ThreeSitesChangeNothingOnTheScreen)
{
    auto const record = make_panel(300, 200, {{-75, 0, 0}, {0, 0, 100}, {75, 0, 50}});
    Screen screen;
    screen.mark(*record);
    EXPECT_TRUE(screen.pictures(0).Visible());
    EXPECT_EQ(screen.pictures(0).Left(), 1);
}

TEST(D1Plot_MarkSites, ALineOutsideThePanelHidesTheMarksAndShowsTheMessage)
{
    auto const record = make_panel(300, 200, five_sites);
    ListeningContainer container;
    record->container = &container;
    Screen screen;
    screen.mark(*record, Call::through(0, 300, 10, 310));
    EXPECT_TRUE(screen.centres().empty());
    EXPECT_EQ(container.messages.size(), 1u);
}

TEST(D1Plot_MarkSites, OnPaperAMarkIsAFilledCircle)
{
    auto const record = make_panel(300, 200, five_sites);
    auto const paper = Recorder::printer(2.4, 2.4);
    Call().on_paper().run(*record, *paper, nullptr);
    EXPECT_EQ(text_of(paper->take_record()), (std::vector<std::string>{
                                                 "Circle 1750 2500 50 255 1 0 255",
                                                 "Circle 2500 1500 50 255 1 0 255",
                                                 "Circle 3250 2000 50 255 1 0 255",
                                             }));
    EXPECT_EQ(paper->FillStyle, fill_none);
}

TEST(D1Plot_MarkSites, OnPaperTheFillColourIsSetEvenWithTooFewSites)
{
    auto const record = make_panel(300, 200, {{0, 0, 1}});
    auto const paper = Recorder::printer(2.4, 2.4);
    Call().on_paper().run(*record, *paper, nullptr);
    EXPECT_EQ(paper->FillColor, 255);
    EXPECT_TRUE(paper->take_record().empty());
}

TEST(D1Plot_MarkSites, OnTheScreenItNeedsItsPictures)
{
    auto const record = make_panel(300, 200, five_sites);
    Screen screen;
    EXPECT_EQ(failure_of([&] { Call().run(*record, *screen.surface, nullptr); }), FailureKind::ObjectNotSet);
    BareWidgets empty(0);
    EXPECT_EQ(failure_of([&] { Call().run(*record, *screen.surface, &empty); }), FailureKind::SubscriptOutOfRange);
}

} // namespace zendara::test
