#include "zendara/controls/control_classes.hpp"
#include "zendara/support/interface.hpp"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

namespace zendara::test
{

namespace
{

/// What hosts bind to, to the letter: the members in the order of their slots, and the saved properties in the order of
/// reading, each with its key, the key and the property on reading where they differ, and its default.
struct Expected {
    std::string_view control;
    std::string_view slots;
    std::string_view stored;
};

void PrintTo(Expected const& expected, std::ostream* out)
{
    *out << expected.control;
}

constexpr Expected tables[] = {
    {"ZvPlot2D",
     R"(
PrinterObj get set
hdc get
hwnd get
MouseIcon get set
MousePointer get put
About
StdDevPercent get
StdDev get
HiLo get
range get
Maximum get
Minimum get
mean get
PanelSizeX put get
PanelSizeY put get
TestSizeX put get
TestSizeY put get
ResolutionX get put
ResolutionY get put
ShowSites get put
Plot
BackColor get put
ShowPlotOption
ReleasePlotLimit
SetPlotLimit
SetPanelData
HideLegend put get
PlotCaption put get
PrintPlot
PrintGridPlot
PrintLegend
PrintPanelStatistic
PrintPanelSize
clear
GetPanelData
Interpolation
IntervalColor1 get put
IntervalColor2 get put
IntervalColor3 get put
IntervalColor4 get put
IntervalColor5 get put
IntervalColor6 get put
IntervalColor7 get put
IntervalColor8 get put
IntervalColor9 get put
IntervalColor0 get put
SetPlotNotVaild
SetDataFile
)",
     R"(
BackColor 2DBackColor = present
PanelSizeX 2DPANELWD < PANELWD = I2 210
PanelSizeY 2DPANELHD < PANELHD = I2 195
IntervalColor0 2DInterCol0 = I4 128
IntervalColor1 2DInterCol1 = I4 255
IntervalColor2 2DInterCol2 = I4 65535
IntervalColor3 2DInterCol3 = I4 65280
IntervalColor4 2DInterCol4 = I4 32896
IntervalColor5 2DInterCol5 = I4 32768
IntervalColor6 2DInterCol6 = I4 8421376
IntervalColor7 2DInterCol7 = I4 16711680
IntervalColor8 2DInterCol8 = I4 8388608
IntervalColor9 2DInterCol9 = I4 8388736
ResolutionX StdResx2D = I2 5
ResolutionY StdResY2D = I2 5
ShowSites StdMark2D = I4 0
HideLegend 2DLegend = I2 0
PlotCaption 2DCaption = BSTR "Panel"
MousePointer 2DMousePointer = I2 0
MouseIcon 2DMouseIcon = nothing
)"},
    {"ZvPlot2DV",
     R"(
PrinterObj get set
hdc get
hwnd get
MouseIcon get set
MousePointer get put
About
StdDevPercent get
StdDev get
HiLo get
range get
Maximum get
Minimum get
mean get
PanelSizeX put get
PanelSizeY put get
TestSizeX put get
TestSizeY put get
Plot
BackColor get put
ShowPlotOption
ReleasePlotLimit
SetPlotLimit
SetPanelData
SetDataFile
HideLegend put get
PlotCaption put get
PrintPlot
PrintLegend
PrintPanelStatistic
PrintPanelSize
clear
GetPanelData
Interpolation
IntervalColor1 get put
IntervalColor2 get put
IntervalColor3 get put
IntervalColor4 get put
IntervalColor5 get put
IntervalColor6 get put
IntervalColor7 get put
IntervalColor8 get put
IntervalColor9 get put
IntervalColor0 get put
SetPlotNotVaild
PrintGridNumber
)",
     R"(
BackColor 2DVBackColor = present
PanelSizeX 2DVPANELWD = I2 210
PanelSizeY 2DVPANELHD = I2 195
IntervalColor0 2DVInterCol0 = I4 128
IntervalColor1 2DVInterCol1 = I4 255
IntervalColor2 2DVInterCol2 = I4 65535
IntervalColor3 2DVInterCol3 = I4 65280
IntervalColor4 2DVInterCol4 = I4 32896
IntervalColor5 2DVInterCol5 = I4 32768
IntervalColor6 2DVInterCol6 = I4 8421376
IntervalColor7 2DVInterCol7 = I4 16711680
IntervalColor8 2DVInterCol8 = I4 8388608
IntervalColor9 2DVInterCol9 = I4 8388736
HideLegend 2DVLegend = I2 0
PlotCaption 2DVCaption = BSTR "Panel"
MousePointer 2DVMousePointer = I2 0
MouseIcon 2DVMouseIcon = nothing
)"},
    {"ZvPlot2DS",
     R"(
PrinterObj get set
hdc get
hwnd get
MouseIcon get set
MousePointer get put
About
StdDevPercent get
StdDev get
HiLo get
range get
Maximum get
Minimum get
mean get
PanelSizeX put get
PanelSizeY put get
TestSizeX put get
TestSizeY put get
ResolutionX get put
ResolutionY get put
ShowSites get put
SigmaRange get put
Plot
BackColor get put
ShowPlotOption
ReleasePlotLimit
SetPlotLimit
SetPanelData
HideLegend put get
PlotCaption put get
PrintPlot
PrintLegend
PrintPanelStatistic
PrintPanelSize
clear
GetPanelData
Interpolation
IntervalColor0 get put
IntervalColor1 get put
IntervalColor2 get put
SetPlotNotVaild
SetDataFile
)",
     R"(
BackColor 2DSBackColor = present
PanelSizeX 2DSPANELWD = I2 210
PanelSizeY 2DSPANELHD = I2 195
IntervalColor0 2DSInterCol0 = I4 128
IntervalColor1 2DSInterCol1 = I4 32768
IntervalColor2 2DSInterCol2 = I4 8388608
ResolutionX StdResx2DS = I2 5
ResolutionY StdResY2DS = I2 5
ShowSites StdMark2DS = I4 0
SigmaRange StdSigRange2DS = R8 0.5
HideLegend 2DSLegend = I2 0
PlotCaption 2DSCaption = BSTR "Panel"
MousePointer 2DSMousePointer = I2 0
MouseIcon 2DSMouseIcon = nothing
)"},
    {"ZvPlot2DC",
     R"(
PrinterObj get set
hdc get
hwnd get
MouseIcon get set
MousePointer get put
About
StdDevPercent get
StdDev get
HiLo get
range get
Maximum get
Minimum get
mean get
PanelSizeX put get
PanelSizeY put get
TestSizeX put get
TestSizeY put get
Interval get put
IntervalInPercent get put
MeasurementUnit get put
marksites get put
Resolution get put
PlotColored get put
MeanCurveColor get put
UpperCurveColor get put
LowerCurveColor get put
Plot
BackColor get put
ShowPlotOption
ReleasePlotLimit
SetPlotLimit
SetPanelData
HideLegend put get
PlotCaption put get
PrintPlot
PrintPlot_THN
PrintLegend
PrintPanelStatistic
PrintPanelSize
clear
GetPanelData
Interpolation
IntervalColor1 get put
IntervalColor2 get put
IntervalColor3 get put
IntervalColor4 get put
IntervalColor5 get put
IntervalColor6 get put
IntervalColor7 get put
IntervalColor8 get put
IntervalColor9 get put
IntervalColor0 get put
SetPlotNotVaild
SetDataFile
)",
     R"(
BackColor 2DCBackColor = present
PanelSizeX 2DCPANELWD = I2 210
PanelSizeY 2DCPANELHD = I2 195
IntervalColor0 2DCInterCol0 = I4 128
IntervalColor1 2DCInterCol1 = I4 255
IntervalColor2 2DCInterCol2 = I4 65535
IntervalColor3 2DCInterCol3 = I4 65280
IntervalColor4 2DCInterCol4 = I4 32896
IntervalColor5 2DCInterCol5 = I4 32768
IntervalColor6 2DCInterCol6 = I4 8421376
IntervalColor7 2DCInterCol7 = I4 16711680
IntervalColor8 2DCInterCol8 = I4 8388608
IntervalColor9 2DCInterCol9 = I4 8388736
MeanCurveColor 2DCMeanCurveCol = I4 32768
UpperCurveColor 2DCUpperCurveCol = I4 128
LowerCurveColor 2DCLowerCurveCol = I4 8388608
Resolution StdReso = I2 0
MarkSites StdExCon = I2 1
Interval StdDist = I2 1
IntervalInPercent StdDistPerecent = I2 0
PlotColored StdColor = I2 1
MeasurementUnit 2DCMeasurementUnit = BSTR ""
HideLegend 2DCLegend = I2 0
PlotCaption 2DCCaption = BSTR "Panel"
MousePointer 2DCMousePointer = I2 0
MouseIcon 2DCMouseIcon = nothing
)"},
    {"ZvPlot3D",
     R"(
PrinterObj get set
hdc get
hwnd get
MouseIcon get set
MousePointer get put
About
StdDevPercent get
StdDev get
HiLo get
range get
Maximum get
Minimum get
mean get
PanelSizeX put get
PanelSizeY put get
TestSizeX put get
TestSizeY put get
XResolution get put
YResolution get put
GridRotation get put
GridInclination get put
PlotScale get put
PlotType get put
EnableRotation get put
Plot
BackColor get put
ShowPlotOption
ReleasePlotLimit
SetPlotLimit
SetPanelData
HideLegend put get
PlotCaption put get
PrintPlot
PrintLegend
PrintPanelStatistic
PrintPanelSize
clear
GetPanelData
Interpolation
IntervalColor1 get put
IntervalColor2 get put
IntervalColor3 get put
IntervalColor4 get put
IntervalColor5 get put
IntervalColor6 get put
IntervalColor7 get put
IntervalColor8 get put
IntervalColor9 get put
IntervalColor0 get put
SetPlotNotVaild
SetDataFile
)",
     R"(
BackColor 3DBackColor = present
PanelSizeX 3DPANELWD = I2 210
PanelSizeY 3DPANELHD = I2 195
IntervalColor0 3DInterCol0 < 2DInterCol0 = I4 128
IntervalColor1 3DInterCol1 < 2DInterCol1 = I4 255
IntervalColor2 3DInterCol2 < 2DInterCol2 = I4 65535
IntervalColor3 3DInterCol3 < 2DInterCol3 = I4 65280
IntervalColor4 3DInterCol4 < 2DInterCol4 = I4 32896
IntervalColor5 3DInterCol5 < 2DInterCol5 = I4 32768
IntervalColor6 3DInterCol6 < 2DInterCol6 = I4 8421376
IntervalColor7 3DInterCol7 < 2DInterCol7 = I4 16711680
IntervalColor8 3DInterCol8 < 2DInterCol8 = I4 8388608
IntervalColor9 3DInterCol9 < 2DInterCol9 = I4 8388736
XResolution StdResx3D = I2 5
YResolution StdResy3D = I2 5
GridRotation StdAlp3D = I2 40
GridInclination StdThet3D = I2 35
PlotType StdD3PlotType = I4 1
PlotScale StdD3Scale3D = I2 40
HideLegend 3DLegend = I2 0
PlotCaption 3DCaption = BSTR "Panel"
MousePointer 3DMousePointer = I2 0
MouseIcon 3DMouseIcon = nothing
)"},
    {"ZvPlot3DS",
     R"(
PrinterObj get set
hdc get
hwnd get
MouseIcon get set
MousePointer get put
About
StdDevPercent get
StdDev get
HiLo get
range get
Maximum get
Minimum get
mean get
PanelSizeX put get
PanelSizeY put get
TestSizeX put get
TestSizeY put get
XResolution get put
YResolution get put
GridRotation get put
GridInclination get put
PlotScale get put
PanelRotation get put
SigmaRange get put
Plot
BackColor get put
ShowPlotOption
ReleasePlotLimit
SetPlotLimit
SetPanelData
HideLegend put get
PlotCaption put get
PrintPlot
PrintLegend
PrintPanelStatistic
PrintPanelSize
clear
GetPanelData
Interpolation
IntervalColor0 get put
IntervalColor1 get put
IntervalColor2 get put
SetPlotNotVaild
SetDataFile
)",
     R"(
BackColor 3DSBackColor = present
PanelSizeX 3DSPANELWD = I2 210
PanelSizeY 3DSPANELHD = I2 195
IntervalColor0 3DSInterCol0 = I4 128
IntervalColor1 3DSInterCol1 = I4 32768
IntervalColor2 3DSInterCol2 = I4 8388608
XResolution StdResx3DS = I2 5
YResolution StdResy3DS = I2 5
GridRotation StdAlp3DS = I2 40
PanelRotation StdPhi3DS = I2 40
GridInclination StdThet3DS = I2 35
SigmaRange StdSigRange3DS = R8 0.5
PlotScale StdD3Scale3DS = I2 40
HideLegend 3DSLegend = I2 0
PlotCaption 3DSCaption = BSTR "Panel"
MousePointer 3DSMousePointer = I2 0
MouseIcon 3DSMouseIcon = nothing
)"},
    {"ZvPlot3DB",
     R"(
PrinterObj get set
hdc get
hwnd get
MouseIcon get set
MousePointer get put
About
StdDevPercent get
StdDev get
HiLo get
range get
Maximum get
Minimum get
mean get
PanelSizeX put get
PanelSizeY put get
TestSizeX put get
TestSizeY put get
BeamWidth get put
BeamHeight get put
BeamScale get put
GridRotation get put
GridInclination get put
EnableRotation get put
Plot
BackColor get put
ShowPlotOption
ReleasePlotLimit
SetPlotLimit
SetPanelData
HideLegend put get
PlotCaption put get
PrintPlot
PrintLegend
PrintPanelStatistic
PrintPanelSize
clear
GetPanelData
Interpolation
IntervalColor1 get put
IntervalColor2 get put
IntervalColor3 get put
IntervalColor4 get put
IntervalColor5 get put
IntervalColor6 get put
IntervalColor7 get put
IntervalColor8 get put
IntervalColor9 get put
IntervalColor0 get put
SetPlotNotVaild
SetDataFile
)",
     R"(
BackColor 2DBBackColor = present
PanelSizeX 2DBPANELWD = I2 210
PanelSizeY 2DBPANELHD = I2 195
IntervalColor0 2DBInterCol0 < 2DInterCol0 = I4 128
IntervalColor1 2DBInterCol1 < 2DInterCol1 = I4 255
IntervalColor2 2DBInterCol2 < 2DInterCol2 = I4 65535
IntervalColor3 2DBInterCol3 < 2DInterCol3 = I4 65280
IntervalColor4 2DBInterCol4 < 2DInterCol4 = I4 32896
IntervalColor5 2DBInterCol5 < 2DInterCol5 = I4 32768
IntervalColor6 2DBInterCol6 < 2DInterCol6 = I4 8421376
IntervalColor7 2DBInterCol7 < 2DInterCol7 = I4 16711680
IntervalColor8 2DBInterCol8 < 2DInterCol8 = I4 8388608
IntervalColor9 2DBInterCol9 < 2DInterCol9 = I4 8388736
BeamWidth Stdbx2DB = I2 5
BeamHeight Stdby2DB = I2 5
GridRotation StdAlp2DB = I2 40
GridInclination StdThet2DB = I2 35
BeamScale StdD3Scale2DB = I2 10
HideLegend 2DBLegend = I2 0
PlotCaption 2DBCaption = BSTR "Panel"
MousePointer 2DBMousePointer = I2 0
MouseIcon 2DBMouseIcon = nothing
)"},
    {"ZvHistogram",
     R"(
PrinterObj get set
hdc get
hwnd get
MouseIcon get set
MousePointer get put
About
StdDevPercent get
StdDev get
HiLo get
range get
Maximum get
Minimum get
mean get
PanelSizeX put get
PanelSizeY put get
TestSizeX put get
TestSizeY put get
PlotType get put
Resolution get put
BeamColor get put
GaussCurveColor get put
Plot
BackColor get put
ShowPlotOption
ReleasePlotLimit
SetPlotLimit
SetPanelData
HideLegend put get
PrintPlot
PrintPlot_THN
PrintPanelStatistic
PrintPanelSize
clear
GetPanelData
Interpolation
SetPlotNotVaild
SetDataFile
SetChartDim
Borderstyle
ShowControlLimit
ResetControlLimit
)",
     R"(
BackColor BackColor = present
PanelSizeX PanelSizeX = I2 210
PanelSizeY PanelSizeY = I2 195
PlotType StdPlotType = I2 1
Resolution StdStatResol = I2 10
BeamColor StdBeamColor = I4 32768
GaussCurveColor StdGaussCurveColor = I4 128
HideLegend Legend = I2 0
MousePointer MousePointer = I2 0
MouseIcon MouseIcon = nothing
)"},
    {"ZvLineScan",
     R"(
PrinterObj get set
hdc get
hwnd get
MouseIcon get set
MousePointer get put
About
StdDevPercent get
StdDev get
HiLo get
range get
Maximum get
Minimum get
mean get
PanelSizeX put get
PanelSizeY put get
TestSizeX put get
TestSizeY put get
angle get put
PlotType get put
RotationPointX get put
RotationPointY get put
LineStartPointX get put
LineStartPointY get put
LineEndPointX get put
LineEndPointY get put
ShowSites get put
Plot
BackColor get put
ShowPlotOption
ReleasePlotLimit
SetPlotLimit
SetPanelData
HideLegend put get
PlotCaption put get
PrintPlot
PrintPanelStatistic
PrintPanelSize
clear
GetPanelData
Interpolation
SetPlotNotVaild
SetDataFile
GetLineOrAngle
SetLineOrAngle
)",
     R"(
BackColor BackColor = present
PanelSizeX 1DPANELWD = I2 210
PanelSizeY 1DPANELHD = I2 195
ShowSites 1DMark = I4 0
angle RotAngle = I2 0
PlotType 1DPlotType = I2 1
RotationPointX 1DRotationX = I2 0
RotationPointY 1DRotationY = I2 0
LineStartPointX 1DLineStartX = I2 0
LineStartPointY 1DLineStartY = I2 0
LineEndPointX 1DLineEndX = I2 0
LineEndPointY 1DLineEndY > LineEndPointX = I2 0
HideLegend 1DLegend = I2 0
PlotCaption 1DCaption = BSTR ""
MousePointer 1DMousePointer = I2 0
MouseIcon 1DMouseIcon = nothing
)"},
};

std::string_view accessors_of(MemberKind kind)
{
    switch (kind) {
    case MemberKind::Get:
        return " get";
    case MemberKind::GetPut:
        return " get put";
    case MemberKind::PutGet:
        return " put get";
    case MemberKind::GetSet:
        return " get set";
    case MemberKind::Set:
        return " set";
    case MemberKind::Method:
        break;
    }
    return "";
}

std::string slots_of(Interface const& table)
{
    std::string text = "\n";
    for (Member const& member : table.members)
        text += std::string(member.name) + std::string(accessors_of(member.kind)) + '\n';
    return text;
}

std::string text_of(std::optional<Value> const& default_value)
{
    if (!default_value)
        return "present";
    if (auto const* const word = std::get_if<std::int16_t>(&*default_value))
        return "I2 " + std::to_string(*word);
    if (auto const* const number = std::get_if<std::int32_t>(&*default_value))
        return "I4 " + std::to_string(*number);
    if (auto const* const text = std::get_if<std::string>(&*default_value))
        return "BSTR \"" + *text + '"';
    if (auto const* const number = std::get_if<double>(&*default_value))
        return "R8 " + std::to_string(*number).substr(0, 3);
    return std::holds_alternative<Empty>(*default_value) ? "nothing" : "?";
}

std::string stored_of(Interface const& table)
{
    std::string text = "\n";
    for (Member const* const member : table.stored_members()) {
        Stored const& stored = *member->stored;
        text += std::string(stored.property) + ' ' + stored.key;
        if (stored.key_on_read != stored.key)
            text += " < " + stored.key_on_read;
        if (stored.property_on_read != stored.property)
            text += " > " + std::string(stored.property_on_read);
        text += " = " + text_of(stored.default_value) + '\n';
    }
    return text;
}

class ControlTables : public testing::TestWithParam<Expected>
{
protected:
    Interface const& table() const { return find_control_class(GetParam().control)->interface_table(); }
};

} // namespace

TEST_P(ControlTables, HaveTheirSlotsInTheOrderOfTheInterface)
{
    EXPECT_EQ(slots_of(table()), GetParam().slots);
}

TEST_P(ControlTables, HaveTheirStoredKeysAndDefaultsInTheOrderOfReading)
{
    EXPECT_EQ(stored_of(table()), GetParam().stored);
}

INSTANTIATE_TEST_SUITE_P(All, ControlTables, testing::ValuesIn(tables),
                         [](auto const& info) { return std::string(info.param.control); });

TEST(ControlTables, AreThoseOfAllControls)
{
    EXPECT_EQ(std::size(tables), control_classes().size());
}

} // namespace zendara::test
