#include "failure_kind.hpp"
#include "zendara/support/interface.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>

using namespace zendara;

namespace
{

enum class Gait { Walk, Trot };

Enumeration const gaits = {"Gait", {{"gtWalk", 0}, {"gtTrot", 1}}};

class Cart : public Object
{
public:
    double Load = 0;
    Interface const& host_interface() const override;
};

struct Bridle {
    double length = 2;
};

double twice(double value)
{
    return 2 * value;
}

class Horse : public Object
{
public:
    Cart cart;
    Bridle bridle;
    std::string call;
    std::string Name = "Max";
    std::int16_t steps = 0;
    Gait gait = Gait::Walk;

    std::int16_t Steps() const { return steps; }
    void Steps(std::int16_t count) { steps = count; }
    Gait Pace() const { return gait; }
    void Pace(Gait pace) { gait = pace; }
    double Add(double left, double right) { return left + right; }
    void Halve(double& value, BooleanWord& was_odd)
    {
        was_odd = static_cast<int>(value) % 2 != 0;
        value /= 2;
    }
    void Fill(HostArray<double>& array) { array = HostArray<double>(1, {4, 5}); }
    double Weigh(Cart& other) const { return other.Load; }
    std::int16_t Whole(std::int16_t value) const { return value; }
    void Fall() { fail(FailureKind::FileError, "the horse falls"); }
    std::string const& Call() const { return call; }
    void Call(std::string_view text) { call = text; }
    std::int32_t Paint(std::optional<std::int32_t> color) { return color.value_or(-1); }
    /// Changes its arguments before it fails.
    void Stumble(double& value, HostArray<double>& array, double)
    {
        value = -1;
        array = HostArray<double>(1, {4, 5});
        fail(FailureKind::Overflow, "the horse stumbles");
    }

    Object* inner() override { return &cart; }
    Interface const& host_interface() const override;
};

constexpr auto get_steps = static_cast<std::int16_t (Horse::*)() const>(&Horse::Steps);
constexpr auto put_steps = static_cast<void (Horse::*)(std::int16_t)>(&Horse::Steps);

Interface const& Cart::host_interface() const
{
    static Interface const interface("Cart", "What a horse draws.", {field<&Cart::Load>("Load", "In kilograms.")});
    return interface;
}

Interface const& Horse::host_interface() const
{
    using H = Horse;
    static Interface const interface(
        "Horse", "Draws a cart.",
        {
            field<&H::Name>("Name", "How it is called."),
            property<H, std::int16_t, &H::Steps, &H::Steps>("Steps", "Counted so far.").of_kind(MemberKind::PutGet),
            getter<get_steps>("StepsSoFar", ""),
            property<H, Gait, &H::Pace, &H::Pace>("Pace", "").of(gaits).saved(2, "pace", std::int16_t{0}),
            property<H, Gait, &H::Pace, &H::Pace>("Gait", "").of(gaits).saved(1, "gait").read_into("Pace"),
            text_property<H, &H::Call, &H::Call>("Call", ""),
            field<&H::bridle, &Bridle::length>("BridleLength", ""),
            setter<put_steps>("Gallop", ""),
            method<&H::Add>("Add", "The sum.", by_value("left"), optional(by_value("right"), 10.0)),
            method<&H::Halve>("Halve", "", by_references("value", "was_odd")),
            method<&H::Fill>("Fill", "", by_reference("array")),
            method<&H::Weigh>("Weigh", "", by_reference("other")),
            method<&H::Whole>("Whole", "", by_value("value")),
            method<&H::Paint>("Paint", "", optional(by_value("color").as(Type::Color), Empty{})).known_as(-7),
            method<&twice>("Twice", "", by_value("value")),
            method<&H::Fall>("Fall", ""),
            method<&H::Stumble>("Stumble", "", by_reference("value"), by_reference("array"), by_value("other")),
        });
    return interface;
}

class HorseInterface : public testing::Test
{
protected:
    Horse horse;

    Value call(std::string_view name, std::vector<Value> arguments) { return call_member(horse, name, arguments); }
};

} // namespace

TEST_F(HorseInterface, FindsMembersIgnoringUpperAndLowerCase)
{
    auto const& interface = horse.host_interface();
    ASSERT_NE(interface.find("sTEPs"), nullptr);
    EXPECT_EQ(interface.find("sTEPs")->name, "Steps");
    EXPECT_EQ(interface.find("Step"), nullptr);
    EXPECT_EQ(interface.find("Stepss"), nullptr);
    EXPECT_EQ(interface.find(""), nullptr);
}

TEST_F(HorseInterface, ReadsAndWritesAField)
{
    put_member(horse, "name", Value(std::string("Moritz")));
    EXPECT_EQ(std::get<std::string>(get_member(horse, "NAME")), "Moritz");
    EXPECT_EQ(horse.Name, "Moritz");
}

TEST_F(HorseInterface, WritesAPropertyThroughItsAccessor)
{
    put_member(horse, "Steps", Value(2.5));
    EXPECT_EQ(std::get<std::int16_t>(get_member(horse, "Steps")), 2);
}

TEST_F(HorseInterface, AValueOfAnotherTypeIsNotWritten)
{
    horse.steps = 7;
    EXPECT_EQ(failure_of([&] { put_member(horse, "Steps", Value(std::string("many"))); }), FailureKind::TypeMismatch);
    EXPECT_EQ(failure_of([&] { put_member(horse, "Steps", Value(40000.0)); }), FailureKind::Overflow);
    EXPECT_EQ(horse.steps, 7);
}

TEST_F(HorseInterface, ANameThatIsNoMemberFails)
{
    EXPECT_EQ(failure_of([&] { get_member(horse, "Wings"); }), FailureKind::NoSuchMember);
    EXPECT_EQ(failure_of([&] { put_member(horse, "Wings", Value(2.0)); }), FailureKind::NoSuchMember);
    EXPECT_EQ(failure_of([&] { call("Wings", {}); }), FailureKind::NoSuchMember);
}

TEST_F(HorseInterface, TheMessageNamesClassAndMember)
{
    try {
        get_member(horse, "Wings");
        FAIL() << "a horse has wings";
    } catch (Failure const& failure) {
        EXPECT_STREQ(failure.what(), "Horse has no member \"Wings\"");
    }
}

TEST_F(HorseInterface, WhatCanOnlyBeReadIsNotWritten)
{
    EXPECT_EQ(failure_of([&] { put_member(horse, "StepsSoFar", Value(1.0)); }), FailureKind::NoSuchMember);
    EXPECT_EQ(failure_of([&] { put_member(horse, "Add", Value(1.0)); }), FailureKind::NoSuchMember);
}

TEST_F(HorseInterface, TheObjectBehindAnswersWhatTheFirstDoesNotKnow)
{
    put_member(horse, "Load", Value(250.0));
    EXPECT_EQ(horse.cart.Load, 250);
    EXPECT_EQ(std::get<double>(get_member(horse, "load")), 250);
}

TEST_F(HorseInterface, CallsAMethodAndGivesItsResult)
{
    EXPECT_EQ(std::get<double>(call("add", {Value(1.0), Value(std::string("2,5"))})), 3.5);
}

TEST_F(HorseInterface, AMissingOptionalArgumentHasItsDefault)
{
    std::vector<Value> arguments = {Value(1.0)};
    EXPECT_EQ(std::get<double>(call_member(horse, "Add", arguments)), 11);
    EXPECT_EQ(arguments.size(), 1u);
}

TEST_F(HorseInterface, AWrongCountOfArgumentsFails)
{
    EXPECT_EQ(failure_of([&] { call("Add", {}); }), FailureKind::InvalidProcedureCall);
    EXPECT_EQ(failure_of([&] {
                  call("Add", {Value(1.0), Value(1.0), Value(1.0)});
              }),
              FailureKind::InvalidProcedureCall);
    EXPECT_EQ(failure_of([&] { call("Fall", {Value(1.0)}); }), FailureKind::InvalidProcedureCall);
    EXPECT_EQ(failure_of([&] { call("Steps", {Value(1.0)}); }), FailureKind::InvalidProcedureCall);
}

TEST_F(HorseInterface, ArgumentsByReferenceComeBackChanged)
{
    std::vector<Value> arguments = {Value(std::int16_t{5}), Value()};
    EXPECT_TRUE(std::holds_alternative<Empty>(call_member(horse, "Halve", arguments)));
    EXPECT_EQ(std::get<double>(arguments[0]), 2.5);
    EXPECT_EQ(std::get<std::int16_t>(arguments[1]), -1);
}

TEST_F(HorseInterface, AnArrayByReferenceComesBackWithItsNewBounds)
{
    std::vector<Value> arguments = {Value(HostArray<double>())};
    call_member(horse, "Fill", arguments);
    EXPECT_EQ(to_array(arguments[0]).upper_bound(), 2);
    EXPECT_EQ(to_array(arguments[0])(1), 4);
}

TEST_F(HorseInterface, ArgumentsByValueStayAsTheyWere)
{
    std::vector<Value> arguments = {Value(2.4)};
    EXPECT_EQ(std::get<std::int16_t>(call_member(horse, "Whole", arguments)), 2);
    EXPECT_EQ(std::get<double>(arguments[0]), 2.4);
}

TEST_F(HorseInterface, AnObjectArgumentIsPassedOn)
{
    Cart other;
    other.Load = 80;
    EXPECT_EQ(std::get<double>(call("Weigh", {Value(&other)})), 80);
    EXPECT_EQ(std::get<double>(call("Weigh", {Value(&horse)})), 0); // its own cart, which lies behind it
}

TEST_F(HorseInterface, NothingInThePlaceOfAnObjectFails)
{
    EXPECT_EQ(failure_of([&] { call("Weigh", {Value()}); }), FailureKind::ObjectNotSet);
    EXPECT_EQ(failure_of([&] { call("Weigh", {Value(1.0)}); }), FailureKind::TypeMismatch);
}

TEST_F(HorseInterface, AFailureOfTheMemberComesThrough)
{
    EXPECT_EQ(failure_of([&] { call("Fall", {}); }), FailureKind::FileError);
    EXPECT_EQ(failure_of([&] { call("Stumble", {1.0, HostArray<double>(), 2.0}); }), FailureKind::Overflow);
}

TEST_F(HorseInterface, WhatAMemberHasWrittenByReferenceComesBackAlsoWhenItFails)
{
    std::vector<Value> arguments = {1.0, HostArray<double>(), 2.0};
    EXPECT_EQ(failure_of([&] { call_member(horse, "Stumble", arguments); }), FailureKind::Overflow);
    EXPECT_EQ(std::get<double>(arguments[0]), -1);
    EXPECT_EQ(to_array(arguments[1])(2), 5);
    EXPECT_EQ(std::get<double>(arguments[2]), 2);
}

TEST_F(HorseInterface, ArgumentsStayAsTheyAreWhenALaterOneCannotBeTaken)
{
    std::vector<Value> arguments = {std::string("1"), HostArray<double>(), std::string("much")};
    EXPECT_EQ(failure_of([&] { call_member(horse, "Stumble", arguments); }), FailureKind::TypeMismatch);
    EXPECT_EQ(std::get<std::string>(arguments[0]), "1");
}

TEST_F(HorseInterface, TheFirstArgumentThatCannotBeTakenDecidesOnTheFailure)
{
    EXPECT_EQ(failure_of([&] { call("Whole", {40000.0}); }), FailureKind::Overflow);
    EXPECT_EQ(failure_of([&] {
                  call("Stumble", {std::string("x"), HostArray<double>(), Empty{}});
              }),
              FailureKind::TypeMismatch);
}

TEST_F(HorseInterface, OptionalArgumentsThatWereFilledInGoAgainAfterAFailure)
{
    std::vector<Value> arguments = {std::string("x")};
    EXPECT_EQ(failure_of([&] { call_member(horse, "Add", arguments); }), FailureKind::TypeMismatch);
    EXPECT_EQ(arguments.size(), 1u);
}

TEST_F(HorseInterface, ASetterCanOnlyBeWritten)
{
    put_member(horse, "Gallop", Value(5.0));
    EXPECT_EQ(horse.steps, 5);
    EXPECT_EQ(failure_of([&] { get_member(horse, "Gallop"); }), FailureKind::NoSuchMember);
    EXPECT_EQ(failure_of([&] { call("Gallop", {}); }), FailureKind::NoSuchMember);
}

TEST_F(HorseInterface, TextsGoInByView)
{
    put_member(horse, "Call", Value(std::string("whoa")));
    EXPECT_EQ(std::get<std::string>(get_member(horse, "Call")), "whoa");
    EXPECT_EQ(horse.host_interface().find("Call")->type, Type::Bstr);
}

TEST_F(HorseInterface, APartOfAFieldIsAPropertyOfTheObject)
{
    put_member(horse, "BridleLength", Value(3.5));
    EXPECT_EQ(horse.bridle.length, 3.5);
    EXPECT_EQ(std::get<double>(get_member(horse, "BridleLength")), 3.5);
}

TEST_F(HorseInterface, AnOptionalArgumentMayBeLeftOut)
{
    EXPECT_EQ(std::get<std::int32_t>(call("Paint", {})), -1);
    EXPECT_EQ(std::get<std::int32_t>(call("Paint", {7.0})), 7);
    EXPECT_EQ(horse.host_interface().find("Paint")->arguments[0].type, Type::Color);
}

TEST_F(HorseInterface, AFreeFunctionMayStandAsAMethod)
{
    EXPECT_EQ(std::get<double>(call("Twice", {4.0})), 8);
}

TEST_F(HorseInterface, RowsWithoutAnIdentityAreNumberedByTheirPlace)
{
    auto const& interface = horse.host_interface();
    EXPECT_EQ(interface.find("Name")->dispatch_id, 1);
    EXPECT_EQ(interface.find("Steps")->dispatch_id, 2);
    EXPECT_EQ(interface.find("Paint")->dispatch_id, -7);
}

TEST_F(HorseInterface, SavedPropertiesComeInTheOrderOfReading)
{
    auto const stored = horse.host_interface().stored_members();
    ASSERT_EQ(stored.size(), 2u);
    EXPECT_EQ(stored[0]->name, "Gait");
    EXPECT_EQ(stored[0]->stored->property_on_read, "Pace");
    EXPECT_FALSE(stored[0]->stored->default_value.has_value());
    EXPECT_EQ(stored[1]->stored->key, "pace");
    EXPECT_EQ(stored[1]->stored->key_on_read, "pace");
}

TEST_F(HorseInterface, APropertyAnswersACallWithoutArguments)
{
    horse.steps = 3;
    EXPECT_EQ(std::get<std::int16_t>(call("Steps", {})), 3);
}

TEST_F(HorseInterface, AMethodAnswersAReadWithItsDefaults)
{
    EXPECT_EQ(failure_of([&] { get_member(horse, "Add"); }), FailureKind::InvalidProcedureCall);
    EXPECT_EQ(failure_of([&] { get_member(horse, "Fall"); }), FailureKind::FileError);
}

TEST_F(HorseInterface, EnumerationsComeFromNumbersAndEachIsListedOnce)
{
    put_member(horse, "Pace", Value(std::int16_t{1}));
    EXPECT_EQ(horse.gait, Gait::Trot);
    EXPECT_EQ(std::get<std::int32_t>(get_member(horse, "Gait")), 1);
    EXPECT_EQ(horse.host_interface().enumerations(), std::vector<Enumeration const*>{&gaits});
}

TEST_F(HorseInterface, TypesComeFromTheMembersThemselves)
{
    auto const& interface = horse.host_interface();
    EXPECT_EQ(interface.find("Name")->type, Type::Bstr);
    EXPECT_EQ(interface.find("Steps")->type, Type::I2);
    EXPECT_EQ(interface.find("Pace")->type, Type::Enumeration);
    EXPECT_EQ(interface.find("Add")->type, Type::R8);
    EXPECT_EQ(interface.find("Fall")->type, Type::None);
    EXPECT_EQ(interface.find("Halve")->arguments[1].type, Type::Bool);
    EXPECT_EQ(interface.find("Fill")->arguments[0].type, Type::ArrayOfR8);
    EXPECT_EQ(interface.find("Weigh")->arguments[0].type, Type::Object);
}

TEST_F(HorseInterface, ArgumentsSayHowTheyArePassed)
{
    auto const& interface = horse.host_interface();
    EXPECT_FALSE(interface.find("Add")->arguments[0].is_by_reference);
    EXPECT_TRUE(interface.find("Halve")->arguments[0].is_by_reference);
    EXPECT_FALSE(interface.find("Add")->arguments[0].default_value.has_value());
    EXPECT_TRUE(interface.find("Add")->arguments[1].default_value.has_value());
}

TEST(InterfaceTable, JoinsListsInOrder)
{
    auto const row = [](std::string_view name) { return field<&Horse::Name>(name, ""); };
    auto const all = join({{row("a")}, {}, {row("b"), row("c")}});
    ASSERT_EQ(all.size(), 3u);
    EXPECT_EQ(all[0].name, "a");
    EXPECT_EQ(all[2].name, "c");
}

TEST(InterfaceTable, AMemberCalledOnAnotherClassFails)
{
    Cart cart;
    Member const steps = getter<get_steps>("Steps", "");
    EXPECT_EQ(failure_of([&] { steps.get(cart); }), FailureKind::TypeMismatch);
}

TEST(EqualsIgnoringCase, ComparesLettersAlikeAndLengthsToo)
{
    EXPECT_TRUE(equals_ignoring_case("PlotStyle", "plotSTYLE"));
    EXPECT_TRUE(equals_ignoring_case("", ""));
    EXPECT_FALSE(equals_ignoring_case("Plot", "Plo"));
    EXPECT_FALSE(equals_ignoring_case("a1", "a2"));
}

TEST(TypeNames, AreThoseOfATypeLibrary)
{
    EXPECT_EQ(name_of(Type::R8), "R8");
    EXPECT_EQ(name_of(Type::Bool), "BOOL");
    EXPECT_EQ(name_of(Type::Bstr), "BSTR");
    EXPECT_EQ(name_of(Type::ArrayOfR8), "array of R8");
    EXPECT_EQ(name_of(Type::None), "");
}
