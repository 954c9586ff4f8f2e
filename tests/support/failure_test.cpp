#include "zendara/support/failure.hpp"
#include "zendara/support/trap.hpp"

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>

using namespace zendara;

namespace
{

constexpr FailureKind all_kinds[] = {
    FailureKind::Overflow,     FailureKind::SubscriptOutOfRange, FailureKind::DivisionByZero,
    FailureKind::TypeMismatch, FailureKind::ObjectNotSet,        FailureKind::InvalidProcedureCall,
    FailureKind::FileError,    FailureKind::NoSuchMember,
};

} // namespace

TEST(Failure, EachKindHasANameOfItsOwn)
{
    std::set<std::string_view> names;
    for (auto const kind : all_kinds)
        names.insert(name_of(kind));
    EXPECT_EQ(names.size(), std::size(all_kinds));
    EXPECT_EQ(names.count("unknown"), 0u);
    EXPECT_EQ(name_of(FailureKind::SubscriptOutOfRange), "SubscriptOutOfRange");
}

TEST(Failure, CarriesItsKindAndItsMessage)
{
    try {
        fail(FailureKind::FileError, "the file is gone");
        FAIL() << "fail() came back";
    } catch (Failure const& failure) {
        EXPECT_EQ(failure.kind(), FailureKind::FileError);
        EXPECT_STREQ(failure.what(), "the file is gone");
    }
}

TEST(Trap, AnswersWhetherTheStepRanToItsEnd)
{
    EXPECT_TRUE(trap([] {}));
    EXPECT_FALSE(trap([] { fail(FailureKind::Overflow, "too large"); }));
}

TEST(Trap, KeepsWhatTheStepDidBeforeItFailed)
{
    int done = 0;
    trap([&] {
        done = 1;
        fail(FailureKind::Overflow, "too large");
    });
    EXPECT_EQ(done, 1);
}

TEST(Trap, RunsTheRepairAfterAFailureAlone)
{
    int repairs = 0;
    EXPECT_TRUE(trap([] {}, [&] { ++repairs; }));
    EXPECT_EQ(repairs, 0);
    EXPECT_FALSE(trap([] { fail(FailureKind::DivisionByZero, "0"); }, [&] { ++repairs; }));
    EXPECT_EQ(repairs, 1);
}

TEST(Trap, LetsOtherExceptionsThrough)
{
    EXPECT_THROW(trap([] { throw std::logic_error("a fault of the program"); }), std::logic_error);
}

TEST(Trap, LetsAFailureOfTheRepairThrough)
{
    auto const fails = [] { fail(FailureKind::Overflow, "too large"); };
    EXPECT_THROW(trap(fails, fails), Failure);
}
