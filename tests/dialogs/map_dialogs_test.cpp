#include "dialog_fixture.hpp"
#include "zendara/dialogs/frm_plot_opt_2d.hpp"

namespace zendara::test
{
namespace
{

struct MapDialog : testing::Test, Opened<frmPlotOpt2d> {
    void open(double x = 5, double y = 6) { dialog.SetValues(*record, x, y, true, QBColor(15)); }
};

struct SigmaDialog : testing::Test, Opened<frmPlotOpt2ds> {
    void open() { dialog.SetValues(*record, 5, 6, 0.5, false, button_face); }
};

TEST_F(MapDialog, OpensWithTheSettingsOfTheControl)
{
    open(2.5, 6);
    EXPECT_EQ(text("tresx"), "2.5");
    EXPECT_EQ(text("tresy"), "6");
    EXPECT_EQ(dialog.GetXRes(), 2.5);
    EXPECT_EQ(dialog.GetYRes(), 6);
    EXPECT_TRUE(child<OptionButton>("optMark", 1).Value());
    EXPECT_EQ(child<OptionButton>("optMark", 1).caption(), "Show");
    EXPECT_TRUE(dialog.GetMarkeSites());
    EXPECT_EQ(child<CheckBox>("whiteback").Value(), 1);
    EXPECT_FALSE(dialog.Redraw());
    EXPECT_EQ(dialog.caption(), "Define Plot Options");
}

TEST_F(MapDialog, AnyColorButWhiteLeavesTheBoxUncheckedAndComesBackAsTheSystemColor)
{
    dialog.SetValues(*record, 5, 5, false, QBColor(3));
    EXPECT_EQ(child<CheckBox>("whiteback").Value(), 0);
    EXPECT_EQ(dialog.GetBackColor(), static_cast<Color>(0x8000000Fu));
    check(true);
    EXPECT_EQ(dialog.GetBackColor(), 0xFFFFFF);
}

TEST_F(MapDialog, HideIsTheButtonWithIndex0)
{
    open();
    child<OptionButton>("optMark", 0).Value(true);
    EXPECT_FALSE(dialog.GetMarkeSites());
    EXPECT_EQ(child<OptionButton>("optMark", 0).caption(), "Hide");
}

TEST_F(MapDialog, ANumberIsInForceWithEveryKeystroke)
{
    open();
    type("tresx", "1");
    EXPECT_EQ(dialog.GetXRes(), 1);
    type("tresx", "1.");
    EXPECT_EQ(dialog.GetXRes(), 1);
    type("tresx", "1.5");
    EXPECT_EQ(dialog.GetXRes(), 1.5);
    type("tresx", "1,5");
    EXPECT_EQ(dialog.GetXRes(), 1.5);
}

TEST_F(MapDialog, AnEmptyFieldCountsAs0)
{
    open();
    EXPECT_EQ(type("tresx", ""), "");
    EXPECT_EQ(dialog.GetXRes(), 0);
}

TEST_F(MapDialog, ALetterPutsTheOpeningValueBackAtOnce)
{
    open();
    type("tresx", "7");
    EXPECT_EQ(type("tresx", "7a"), "5");
    EXPECT_EQ(dialog.GetXRes(), 5);
}

TEST_F(MapDialog, ALoneMinusAndAnExponentAreRefused)
{
    open();
    EXPECT_EQ(type("tresx", "-"), "5");
    EXPECT_EQ(type("tresx", "1e3"), "5");
    EXPECT_EQ(type("tresx", "-1"), "-1");
}

TEST_F(MapDialog, AnOpeningValueThatItselfIsRefusedStays)
{
    open(0.00001);
    EXPECT_EQ(text("tresx"), "1E-05");
    EXPECT_EQ(type("tresx", "x"), "1E-05");
    EXPECT_EQ(dialog.GetXRes(), 0.00001);
}

TEST_F(MapDialog, OkOfGoodFieldsHidesItAndAsksForARedraw)
{
    open();
    EXPECT_EQ(ok(), "");
    EXPECT_TRUE(dialog.Redraw());
    EXPECT_FALSE(dialog.Visible());
}

TEST_F(MapDialog, OneBadFieldIsLetThrough)
{
    open();
    type("tresx", "");
    EXPECT_EQ(ok(), "");
    EXPECT_TRUE(dialog.Redraw());
    EXPECT_EQ(dialog.GetXRes(), 0);
}

TEST_F(MapDialog, TwoBadFieldsBringOneMessageAndTheDialogStaysAsItIs)
{
    open();
    type("tresx", "");
    type("tresy", "");
    EXPECT_EQ(ok(), "Resolution X can not be empty\nResolution Y can not be empty\n");
    EXPECT_FALSE(dialog.Redraw());
    EXPECT_TRUE(dialog.Visible());
    EXPECT_EQ(text("tresx"), "");
}

TEST_F(MapDialog, TheMessageBoxIsSystemModal)
{
    open();
    type("tresx", "0");
    type("tresy", "51");
    dialog.cmdOK.raise("Click");
    auto const messages = platform.take_messages();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].style, 4096);
    EXPECT_EQ(messages[0].text, "Resolution X not valid\nResolution Y not valid\n") << "200 / 4 + 1 is 51";
}

TEST_F(MapDialog, CancelDropsThePanelAndAsksForNoRedraw)
{
    open();
    cancel();
    EXPECT_FALSE(dialog.Redraw());
    EXPECT_FALSE(dialog.Visible());
    EXPECT_THROW(dialog.cmdOK.raise("Click"), Failure) << "there is no panel to check against";
}

TEST_F(MapDialog, TabGoesFromTheFieldsToTheButtons)
{
    std::vector<std::string> names;
    for (Child* const stop : dialog.tab_order)
        names.push_back(stop->Name() + (stop->Index() ? std::to_string(*stop->Index()) : ""));
    EXPECT_EQ(names,
              (std::vector<std::string>{"tresx", "tresy", "optMark1", "optMark0", "whiteback", "cmdOK", "cmdCancel"}));
    EXPECT_EQ(dialog.default_button, &dialog.cmdOK);
    EXPECT_EQ(dialog.cancel_button, &dialog.cmdCancel);
    EXPECT_EQ(dialog.target_of('y'), &child("tresy"));
}

TEST_F(SigmaDialog, AWidthOf10GivesALimitOf4WhichFails)
{
    record->SizeX = 10; // 10 / 4 + 1 is 3.5, which rounds to the even 4
    open();
    type("tresx", "4");
    EXPECT_EQ(ok(), "Resolution X not valid\n");
    type("tresx", "3.9");
    EXPECT_EQ(ok(), "");
    EXPECT_TRUE(dialog.Redraw());
}

TEST_F(SigmaDialog, AWidthOf14RoundsUpToTheEvenLimitOf4)
{
    record->SizeX = 14; // 4.5, which rounds to the even 4
    open();
    type("tresx", "4.2");
    EXPECT_EQ(ok(), "Resolution X not valid\n");
}

TEST_F(SigmaDialog, EveryFieldHasToPass)
{
    open();
    type("tresx", "");
    type("SSigma", "1000");
    EXPECT_EQ(ok(), "Resolution X can not be empty\nSigma Range not valid\n");
    type("tresx", "5");
    EXPECT_EQ(ok(), "Sigma Range not valid\n");
    type("SSigma", "999.9");
    EXPECT_EQ(ok(), "");
    EXPECT_TRUE(dialog.Redraw());
    EXPECT_EQ(dialog.GetSigRange(), 999.9);
}

TEST_F(SigmaDialog, ALimitItselfFails)
{
    open();
    type("tresy", "0.001");
    EXPECT_EQ(ok(), "Resolution Y not valid\n");
    type("tresy", "0.0011");
    EXPECT_EQ(ok(), "");
}

TEST_F(SigmaDialog, TheSigmaRangeIsFollowedByASignInTheFaceSymbol)
{
    auto& sign = child<Label>("lblSigma");
    EXPECT_EQ(sign.Font().Name, "Symbol");
    EXPECT_EQ(sign.caption(), "s");
    EXPECT_EQ(child<Label>("lblSSigma").caption(), "Sigma Range: ");
}

} // namespace
} // namespace zendara::test
