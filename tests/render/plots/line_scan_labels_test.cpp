#include "listening_container.hpp"
#include "panels.hpp"
#include "render/plots/line_scan_widgets.hpp"
#include "support/failure_kind.hpp"
#include "trace_text.hpp"

#include <gtest/gtest.h>

namespace zendara::test
{

namespace
{

using Captions = std::vector<std::string>;

/// The values of both forms, as labels and indicator get them.
struct Form {
    std::int16_t plotopt = 1;
    std::int16_t phi = 0;
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0, x3 = 0, y3 = 0;

    static Form at(double x, double y, std::int16_t phi)
    {
        Form form;
        form.phi = phi;
        form.x1 = x, form.y1 = y;
        return form;
    }
    static Form through(double x2, double y2, double x3, double y3)
    {
        Form form;
        form.plotopt = 2;
        form.x2 = x2, form.y2 = y2, form.x3 = x3, form.y3 = y3;
        return form;
    }
};

/// The axis labels of a scan.
struct Labels {
    BareWidgets x{5}, y{5};

    Labels(panel& record, Form form)
    {
        record.D1Plot_Show_lblXY(x, y, form.plotopt, form.phi, form.x1, form.y1, form.x2, form.y2, form.x3, form.y3);
    }

    static Captions captions(BareWidgets& labels)
    {
        Captions found;
        for (auto const& label : labels.widgets)
            found.push_back(label->caption());
        return found;
    }
};

std::unique_ptr<panel> panel_with_scale(double low, double high)
{
    auto record = make_panel(300, 200, {});
    record->setMaximalMinial(high, low);
    return record;
}

} // namespace

// --- Labels --------------------------------------------------------------------------------------------------------

TEST(D1Plot_Show_lblXY, DividesTheScaleIntoQuartersFromTheLowerEnd)
{
    auto const record = panel_with_scale(10, 50);
    Labels labels(*record, {});
    // Seven characters, of which " 50" takes three.
    EXPECT_EQ(Labels::captions(labels.y), (Captions{"10.0000", "20.0000", "30.0000", "40.0000", "50.0000"}));
}

TEST(D1Plot_Show_lblXY, ALongerTopLeavesFewerDecimals)
{
    auto const record = panel_with_scale(0, 4000);
    Labels labels(*record, {});
    EXPECT_EQ(Labels::captions(labels.y), (Captions{"0.00", "1000.00", "2000.00", "3000.00", "4000.00"}));
}

TEST(D1Plot_Show_lblXY, ALargeTopShowsInTheScientificForm)
{
    auto const record = panel_with_scale(0, 4e7);
    Labels labels(*record, {});
    EXPECT_EQ(Labels::captions(labels.y), (Captions{"0.00E+00", "1.00E+07", "2.00E+07", "3.00E+07", "4.00E+07"}));
}

TEST(D1Plot_Show_lblXY, TheScaleStartsAtLowWhichMayLieUnderTheLimits)
{
    auto const record = panel_with_scale(10, 50);
    record->Low = 2;
    Labels labels(*record, {});
    EXPECT_EQ(Labels::captions(labels.y), (Captions{"2.0000", "14.0000", "26.0000", "38.0000", "50.0000"}));
}

TEST(D1Plot_Show_lblXY, DividesTheLineIntoQuartersFromItsStart)
{
    auto const record = panel_with_scale(0, 1);
    Labels labels(*record, Form::through(0, 0, 10, 5));
    EXPECT_EQ(Labels::captions(labels.x), (Captions{"X=-150.00\nY=-75.00", "X=-75.00\nY=-37.50", "X=0.00\nY=0.00",
                                                    "X=75.00\nY=37.50", "X=150.00\nY=75.00"}));
}

TEST(D1Plot_Show_lblXY, TheFirstPairCountsInTheAngleFormAlone)
{
    auto const record = panel_with_scale(0, 1);
    Form form = Form::at(5, 7, 0);
    form.x2 = 1, form.y2 = 2, form.x3 = 3, form.y3 = 2;
    Labels by_angle(*record, form);
    EXPECT_EQ(by_angle.x(0).caption(), "X=5.00\nY=-100.00");
    EXPECT_EQ(by_angle.x(4).caption(), "X=5.00\nY=100.00");
    form.plotopt = 7; // any other word
    Labels by_points(*record, form);
    EXPECT_EQ(by_points.x(0).caption(), "X=-150.00\nY=2.00");
    EXPECT_EQ(by_points.x(4).caption(), "X=150.00\nY=2.00");
}

TEST(D1Plot_Show_lblXY, IsWrittenWithoutAnySite)
{
    auto const record = panel_with_scale(0, 1);
    EXPECT_EQ(record->GetNop(), 0);
    Labels labels(*record, Form::at(5, 7, 90));
    EXPECT_EQ(labels.x(4).caption(), "X=-150.00\nY=7.00");
}

TEST(D1Plot_Show_lblXY, ALineOutsideThePanelShowsOnePointFiveTimesAndTheMessageOnce)
{
    auto const record = panel_with_scale(0, 1);
    ListeningContainer container;
    record->container = &container;
    Labels labels(*record, Form::through(0, 300, 10, 310));
    EXPECT_EQ(Labels::captions(labels.x), Captions(5, "X=0.00\nY=0.00"));
    EXPECT_EQ(container.messages.size(), 1u);
}

// --- Indicator -----------------------------------------------------------------------------------------------------

namespace
{

/// A picture of 64 x 44 pixels at (20, 30) in its container, and a mark of 6 x 6.
struct Indicator {
    std::unique_ptr<Recorder> picture;
    BareLine line;
    BareWidget mark;

    explicit Indicator(Recorder::PictureArea const& area = {0, 0, 64, 44}) : picture(Recorder::picture(area))
    {
        picture->left = 20, picture->top = 30, picture->width = 64, picture->height = 44;
        mark.Move(0, 0, 6, 6);
        mark.Visible(false);
    }

    void show(panel& record, Form form)
    {
        record.draw_indicator(line, mark, form.plotopt, form.phi, form.x1, form.y1, form.x2, form.y2, form.x3, form.y3,
                              *picture);
    }

    void expect_line(double x1, double y1, double x2, double y2) const
    {
        EXPECT_EQ(line.X1, x1);
        EXPECT_EQ(line.Y1, y1);
        EXPECT_EQ(line.X2, x2);
        EXPECT_EQ(line.Y2, y2);
    }
};

} // namespace

TEST(draw_indicator, LaysTheLineOverThePictureOfThePanel)
{
    auto const record = make_panel(300, 200, {});
    Indicator indicator;
    indicator.show(*record, Form::through(0, 0, 10, 5));
    // A fifth of a pixel to the millimetre, the centre at (32, 22).
    indicator.expect_line(2, 37, 62, 7);
}

TEST(draw_indicator, TakesTheSmallerScaleAndTheOriginOfThePicture)
{
    auto const record = make_panel(300, 400, {});
    Indicator indicator({10, 5, 64, 44});
    indicator.show(*record, Form::at(0, 0, 90));
    // A tenth of a pixel to the millimetre, the centre at (10 + 32, 5 + 22).
    indicator.expect_line(57, 27, 27, 27);
}

TEST(draw_indicator, SetsTheMarkOutsideThePictureOnTheStartOfTheLine)
{
    auto const record = make_panel(300, 200, {});
    Indicator indicator;
    indicator.show(*record, Form::through(0, 0, 10, 5));
    // (64 + 15 - 4) / 300 is the smaller scale, the centre (52, 52): (14.5, 70.75), rounded half to even.
    EXPECT_EQ(indicator.mark.Left(), 14 - 3);
    EXPECT_EQ(indicator.mark.Top(), 71 - 3);
    EXPECT_EQ(indicator.mark.Width(), 6);
    EXPECT_TRUE(indicator.mark.Visible());
}

TEST(draw_indicator, PutsTheTestedAreaBackAndDrawsNothing)
{
    auto const record = make_panel(300, 200, {});
    Indicator indicator;
    indicator.show(*record, Form::at(5, 7, 33));
    EXPECT_EQ(record->TestSizeX, 300);
    EXPECT_EQ(record->TestSizeY, 200);
    EXPECT_TRUE(indicator.picture->take_record().empty());
}

TEST(draw_indicator, ALineOutsideThePanelShowsTheMessageTwice)
{
    auto const record = make_panel(300, 200, {});
    ListeningContainer container;
    record->container = &container;
    Indicator indicator;
    indicator.show(*record, Form::through(0, 300, 10, 310));
    EXPECT_EQ(container.messages.size(), 2u);
    indicator.expect_line(32, 22, 32, 22);
}

TEST(draw_indicator, APanelWithoutSizeIsADivisionBy0)
{
    auto const record = make_panel(0, 0, {});
    Indicator indicator;
    EXPECT_EQ(failure_of([&] { indicator.show(*record, Form::at(0, 0, 0)); }), FailureKind::DivisionByZero);
}

} // namespace zendara::test
