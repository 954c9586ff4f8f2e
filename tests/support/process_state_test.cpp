#include "decimal_mark.hpp"
#include "zendara/support/number_text.hpp"
#include "zendara/support/process_state.hpp"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>

using namespace zendara;

namespace
{

/// A host that has chosen a C locale with a comma.
class GermanHost : public testing::Test
{
protected:
    void SetUp() override
    {
#ifdef ZENDARA_TEST_LOCALES
        setenv("LOCPATH", ZENDARA_TEST_LOCALES, 1);
#endif
        for (char const* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8"})
            if (std::setlocale(LC_ALL, name) != nullptr)
                return;
        GTEST_SKIP() << "this machine has no locale with a comma";
    }

    void TearDown() override
    {
        std::setlocale(LC_ALL, "C");
        set_decimal_separator("");
        unsetenv("LOCPATH");
    }
};

} // namespace

TEST(DecimalSeparator, IsAPointAtFirst)
{
    EXPECT_EQ(decimal_separator(), ".");
}

TEST(DecimalSeparator, IsSetByTheContainerAndAnEmptyTextMeansAPoint)
{
    set_decimal_separator(";");
    EXPECT_EQ(decimal_separator(), ";");
    set_decimal_separator("");
    EXPECT_EQ(decimal_separator(), ".");
}

TEST(DecimalSeparator, ATextThatWasInUseStaysReadable)
{
    std::string const& before = decimal_separator();
    DecimalMark const comma(",");
    EXPECT_EQ(before, ".");
    EXPECT_EQ(decimal_separator(), ",");
}

TEST(HistogramLimits, AreSharedAndComeBackAsTheyWereSet)
{
    set_histogram_limits({true, 2, 3});
    EXPECT_TRUE(histogram_limits().HistLimitOn);
    EXPECT_EQ(histogram_limits().HistLCL, 2);
    EXPECT_EQ(histogram_limits().HistUCL, 3);
    set_histogram_limits({});
    EXPECT_FALSE(histogram_limits().HistLimitOn);
}

TEST_F(GermanHost, TheMarkOfTheLocaleIsTakenOnlyWhenAContainerTakesIt)
{
    EXPECT_EQ(decimal_separator_of_c_locale(), ",");
    EXPECT_EQ(decimal_separator(), ".");
    EXPECT_EQ(plain_text(0.5), "0.5");
    set_decimal_separator(decimal_separator_of_c_locale());
    EXPECT_EQ(format_label(1.5), "1,5");
    EXPECT_EQ(FormatFixed(1.999, 0, 2, false), "1,99");
}

TEST_F(GermanHost, TextsKeepThePointWhileNobodySetsAnother)
{
    EXPECT_EQ(plain_text(0.5), "0.5");
    EXPECT_EQ(format_scientific(123456), "1.23E+05");
}

TEST_F(GermanHost, NumbersReadAlikeWithEitherMark)
{
    EXPECT_EQ(parse_number("12,5"), 12.5);
    EXPECT_EQ(parse_number("12.5"), 12.5);
    EXPECT_EQ(parse_number("1.25e1"), 12.5);
}

TEST_F(GermanHost, TheLibraryLeavesTheLocaleAsItIs)
{
    set_decimal_separator(decimal_separator_of_c_locale());
    plain_text(1.5);
    parse_number("1.5");
    EXPECT_STREQ(std::localeconv()->decimal_point, ",");
}
