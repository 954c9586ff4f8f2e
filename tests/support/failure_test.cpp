#include "failure_kind.hpp"
#include "listening_container.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/failure.hpp"
#include "zendara/support/object.hpp"
#include "zendara/support/trap.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <set>
#include <stdexcept>
#include <vector>

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

TEST(Failure, TheMessageNamesTheValueThatWasWrong)
{
    EXPECT_EQ(message_of([] { fail(FailureKind::Overflow, "too large", 1.5); }), "too large: 1.5");
    EXPECT_EQ(message_of([] { fail(FailureKind::Overflow, "too large", 40000); }), "too large: 40000");
    EXPECT_EQ(message_of([] { fail(FailureKind::TypeMismatch, "no number", "abc"); }), "no number: \"abc\"");
}

TEST(Shown, ANumberThatIsNoneHasNoSign)
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(shown(nan), "nan");
    EXPECT_EQ(shown(-nan), "nan");
    EXPECT_EQ(shown(-std::numeric_limits<double>::infinity()), "-inf");
}

TEST(Shown, ALongTextIsCutBehindFortyBytesAndWithinNoLetter)
{
    std::string const forty(40, 'a');
    EXPECT_EQ(shown(forty), '"' + forty + '"');
    EXPECT_EQ(shown(forty + 'b'), '"' + forty + "...\"");
    for (std::size_t const letters : {37u, 38u, 39u}) {
        std::string const start(letters, 'a');
        EXPECT_EQ(shown(start + "\xf0\x9f\x99\x82 and so on"), '"' + start + "...\"") << letters;
    }
    EXPECT_EQ(shown(std::string(36, 'a') + "\xf0\x9f\x99\x82 and so on"),
              '"' + std::string(36, 'a') + "\xf0\x9f\x99\x82...\"");
    EXPECT_EQ(shown(std::string(50, '\x82')).size(), 36u + 5); // no text at all, but short too
}

TEST(Shown, ControlLettersOfATextShowAsQuestionMarks)
{
    EXPECT_EQ(shown("a\tb\nc\x7f \xc3\xa9"), "\"a?b?c? \xc3\xa9\"");
}

namespace
{

/// A routine of an object in a container that listens.
class Routine : public Object
{
public:
    Interface const& host_interface() const override { throw std::logic_error("nobody asks"); }

    test::ListeningContainer container;
    TrapPlace place() { return {&container, *this, "Plot", "zoom"}; }
    TrapPlace unheard() { return {nullptr, *this, "Plot", "zoom"}; }
};

} // namespace

TEST(Trap, AnswersWhetherTheStepRanToItsEnd)
{
    Routine routine;
    EXPECT_TRUE(trap(routine.unheard(), [] {}));
    EXPECT_FALSE(trap(routine.unheard(), [] { fail(FailureKind::Overflow, "too large"); }));
}

TEST(Trap, KeepsWhatTheStepDidBeforeItFailed)
{
    Routine routine;
    int done = 0;
    trap(routine.unheard(), [&] {
        done = 1;
        fail(FailureKind::Overflow, "too large");
    });
    EXPECT_EQ(done, 1);
}

TEST(Trap, TellsTheContainerOfKindStepAndValue)
{
    Routine routine;
    trap(routine.place(), [] {});
    EXPECT_TRUE(routine.container.failures.empty());
    trap(routine.place(), [] { to_i16(40000); });
    ASSERT_EQ(routine.container.failures.size(), 1u);
    EXPECT_EQ(routine.container.failures[0].kind, FailureKind::Overflow);
    EXPECT_EQ(routine.container.failures[0].where, "Plot: zoom");
    EXPECT_EQ(routine.container.failures[0].what, "a number does not fit into 16 bits: 40000");
}

TEST(Trap, TakesExhaustedMemoryAndEndlessLengthsForOverflow)
{
    Routine routine;
    EXPECT_FALSE(trap(routine.place(), [] { throw std::bad_alloc(); }));
    EXPECT_FALSE(trap(routine.place(), [] { std::vector<double>().reserve(std::size_t{1} << 62); }));
    ASSERT_EQ(routine.container.failures.size(), 2u);
    for (auto const& failure : routine.container.failures)
        EXPECT_EQ(failure.kind, FailureKind::Overflow);
}

TEST(Trap, RunsTheRepairAfterAFailureAlone)
{
    Routine routine;
    int repairs = 0;
    EXPECT_TRUE(trap(
        routine.place(), [] {}, [&] { ++repairs; }));
    EXPECT_EQ(repairs, 0);
    EXPECT_FALSE(trap(
        routine.place(), [] { fail(FailureKind::DivisionByZero, "0"); }, [&] { ++repairs; }));
    EXPECT_EQ(repairs, 1);
}

TEST(Trap, LetsOtherExceptionsThrough)
{
    Routine routine;
    EXPECT_THROW(trap(routine.place(), [] { throw std::logic_error("a fault of the program"); }), std::logic_error);
    EXPECT_TRUE(routine.container.failures.empty());
}

TEST(Trap, LetsAFailureOfTheRepairThrough)
{
    Routine routine;
    auto const fails = [] { fail(FailureKind::Overflow, "too large"); };
    EXPECT_THROW(trap(routine.place(), fails, fails), Failure);
}
