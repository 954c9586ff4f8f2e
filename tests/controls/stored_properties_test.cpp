#include "zendara/controls/stored_properties.hpp"

#include <gtest/gtest.h>

namespace zendara::test
{

namespace
{

using Table = std::vector<StoredProperty>;

std::vector<Table const*> all_tables()
{
    return {&stored_properties_of_line_scan(), &stored_properties_of_2d(),  &stored_properties_of_2ds(),
            &stored_properties_of_2dc(),       &stored_properties_of_3d(),  &stored_properties_of_3ds(),
            &stored_properties_of_histogram(), &stored_properties_of_2dv(), &stored_properties_of_3db()};
}

StoredProperty const& find(Table const& table, std::string_view property)
{
    for (auto const& entry : table)
        if (entry.property == property)
            return entry;
    throw std::runtime_error("no property " + std::string(property));
}

} // namespace

TEST(StoredProperties, ReadTheBackColourFirstThenTheSizesAndThePointerAtTheEnd)
{
    for (auto const* const table : all_tables()) {
        EXPECT_EQ(table->at(0).property, "BackColor");
        EXPECT_EQ(table->at(1).property, "PanelSizeX");
        EXPECT_EQ(table->at(2).property, "PanelSizeY");
        EXPECT_EQ((table->end() - 2)->property, "MousePointer");
        EXPECT_EQ((table->end() - 1)->property, "MouseIcon");
    }
}

TEST(StoredProperties, TheColourMapReadsItsSizesFromKeysThatNothingWrites)
{
    EXPECT_EQ(find(stored_properties_of_2d(), "PanelSizeX").key, "2DPANELWD");
    EXPECT_EQ(find(stored_properties_of_2d(), "PanelSizeX").key_on_read, "PANELWD");
    EXPECT_EQ(find(stored_properties_of_2d(), "PanelSizeY").key_on_read, "PANELHD");
    EXPECT_EQ(find(stored_properties_of_2ds(), "PanelSizeX").key_on_read, "2DSPANELWD");
}

TEST(StoredProperties, TheThreeDimensionalPlotsReadTheirColoursFromTheKeysOfTheColourMap)
{
    EXPECT_EQ(find(stored_properties_of_3d(), "IntervalColor7").key, "3DInterCol7");
    EXPECT_EQ(find(stored_properties_of_3d(), "IntervalColor7").key_on_read, "2DInterCol7");
    EXPECT_EQ(find(stored_properties_of_3db(), "IntervalColor0").key, "2DBInterCol0");
    EXPECT_EQ(find(stored_properties_of_3db(), "IntervalColor0").key_on_read, "2DInterCol0");
    EXPECT_EQ(find(stored_properties_of_3ds(), "IntervalColor2").key_on_read, "3DSInterCol2");
}

TEST(StoredProperties, TheLineScanReadsTheYOfItsEndPointIntoTheX)
{
    auto const& end_y = find(stored_properties_of_line_scan(), "LineEndPointY");
    EXPECT_EQ(end_y.key_on_read, "1DLineEndY");
    EXPECT_EQ(end_y.property_on_read, "LineEndPointX");
}

TEST(StoredProperties, DefaultsHaveTheTypesOfTheStore)
{
    auto const& map = stored_properties_of_2d();
    EXPECT_FALSE(find(map, "BackColor").default_value.has_value());
    EXPECT_TRUE(std::holds_alternative<std::int16_t>(*find(map, "PanelSizeX").default_value));
    EXPECT_TRUE(std::holds_alternative<std::int32_t>(*find(map, "IntervalColor0").default_value));
    EXPECT_TRUE(std::holds_alternative<std::int32_t>(*find(map, "ShowSites").default_value));
    EXPECT_TRUE(std::holds_alternative<double>(*find(stored_properties_of_2ds(), "SigmaRange").default_value));
    EXPECT_TRUE(std::holds_alternative<Empty>(*find(map, "MouseIcon").default_value));
    EXPECT_EQ(std::get<std::string>(*find(stored_properties_of_line_scan(), "PlotCaption").default_value), "");
}

} // namespace zendara::test
