#include "decimal_mark.hpp"
#include "failure_kind.hpp"
#include "zendara/support/interface.hpp"
#include "zendara/support/value.hpp"

#include <gtest/gtest.h>

using namespace zendara;

namespace
{

enum class Shade { Light, Dark };

class Lamp : public Object
{
public:
    Interface const& host_interface() const override
    {
        static Interface const none("Lamp", "", {});
        return none;
    }
};

class Shelf : public Lamp
{
public:
    Lamp lamp;
    Object* inner() override { return &lamp; }
};

class Book : public Lamp
{
};

Value const array = HostArray<double>(1, {1.5});

} // namespace

TEST(Value, EveryNumberConvertsToADouble)
{
    EXPECT_EQ(to_double(Value(std::int16_t{-3})), -3);
    EXPECT_EQ(to_double(Value(std::int32_t{70000})), 70000);
    EXPECT_EQ(to_double(Value(0.5F)), 0.5);
    EXPECT_EQ(to_double(Value(0.1)), 0.1);
    EXPECT_EQ(to_double(Value()), 0);
}

TEST(Value, TheTextOfANumberConvertsToADouble)
{
    EXPECT_EQ(to_double(Value(std::string("12,5"))), 12.5);
    EXPECT_EQ(to_double(Value(std::string(" 1e3 "))), 1000);
}

TEST(Value, WhatIsNoNumberDoesNotConvertToOne)
{
    Lamp lamp;
    for (Value const& value : {Value(std::string("abc")), Value(std::string()), array, Value(&lamp)})
        EXPECT_EQ(failure_of([&] { to_double(value); }), FailureKind::TypeMismatch) << value.index();
}

TEST(Value, ARefusalNamesTheValueThatWasWrong)
{
    Book book;
    EXPECT_EQ(message_of([] { to_double(Value(std::string("abc"))); }), "the value is no number: \"abc\"");
    EXPECT_EQ(message_of([] { to_double(Value(std::string(300, '7') + 'x')); }),
              "the value is no number: \"" + std::string(40, '7') + "...\"");
    EXPECT_EQ(message_of([] { to_double(array); }), "the value is no number: an array");
    EXPECT_EQ(message_of([] { to_double(Value(ObjectList{})); }), "the value is no number: a list of objects");
    EXPECT_EQ(message_of([&] { to_text(Value(&book)); }), "the value is no text: an object of class Lamp");
    EXPECT_EQ(message_of([] { to_text(Value(static_cast<Object*>(nullptr))); }), "the value is no text: nothing");
    EXPECT_EQ(message_of([] { to_array(Value()); }), "the value is no array: nothing");
    EXPECT_EQ(message_of([] { to_object(Value(1.5)); }), "the value is no object: 1.5");
    EXPECT_EQ(message_of([] { to_object_list(Value(std::int16_t{-1})); }), "the value is no list of objects: -1");
    EXPECT_EQ(message_of([&] { from_value<Shelf*>(Value(&book)); }),
              "the member does not take what it was given: an object of class Lamp");
}

TEST(Value, NumbersConvertToTheirPlainText)
{
    EXPECT_EQ(to_text(Value(std::int16_t{-3})), "-3");
    EXPECT_EQ(to_text(Value(0.00001)), "1E-05");
    EXPECT_EQ(to_text(Value(std::string("abc"))), "abc");
    EXPECT_EQ(to_text(Value()), "");
    DecimalMark const comma(",");
    EXPECT_EQ(to_text(Value(0.5)), "0,5");
}

TEST(Value, ArraysAndObjectsDoNotConvertToText)
{
    Lamp lamp;
    EXPECT_EQ(failure_of([&] { to_text(array); }), FailureKind::TypeMismatch);
    EXPECT_EQ(failure_of([&] { to_text(Value(&lamp)); }), FailureKind::TypeMismatch);
}

TEST(Value, OnlyAnArrayConvertsToAnArray)
{
    EXPECT_EQ(to_array(array)(1), 1.5);
    EXPECT_EQ(failure_of([] { to_array(Value(1.5)); }), FailureKind::TypeMismatch);
    EXPECT_EQ(failure_of([] { to_array(Value()); }), FailureKind::TypeMismatch);
}

TEST(Value, NothingConvertsToNoObject)
{
    Lamp lamp;
    EXPECT_EQ(to_object(Value()), nullptr);
    EXPECT_EQ(to_object(Value(&lamp)), &lamp);
    EXPECT_EQ(failure_of([] { to_object(Value(1.5)); }), FailureKind::TypeMismatch);
}

TEST(FromValue, WholeNumbersAreRoundedHalfToEvenAndChecked)
{
    EXPECT_EQ(from_value<std::int16_t>(2.5), 2);
    EXPECT_EQ(from_value<std::int16_t>(Value(std::string("3.5"))), 4);
    EXPECT_EQ(from_value<std::int32_t>(70000.4), 70000);
    EXPECT_EQ(failure_of([] { from_value<std::int16_t>(Value(70000.0)); }), FailureKind::Overflow);
    EXPECT_EQ(failure_of([] { from_value<std::int32_t>(Value(3e9)); }), FailureKind::Overflow);
}

TEST(FromValue, ANumberBeyondSinglePrecisionIsAFailure)
{
    EXPECT_EQ(from_value<float>(Value(0.1)), 0.1F);
    EXPECT_EQ(from_value<float>(Value(-3.4e38)), -3.4e38F);
    EXPECT_EQ(failure_of([] { from_value<float>(Value(1e39)); }), FailureKind::Overflow);
}

TEST(FromValue, ABooleanWordKeepsItsWord)
{
    EXPECT_EQ(from_value<BooleanWord>(Value(std::int16_t{5})).word, 5);
    EXPECT_EQ(from_value<BooleanWord>(Value()).word, 0);
    EXPECT_EQ(failure_of([] { from_value<BooleanWord>(Value(1e6)); }), FailureKind::Overflow);
}

TEST(FromValue, EnumerationsComeFromTheirNumbers)
{
    EXPECT_EQ(from_value<Shade>(Value(std::int32_t{1})), Shade::Dark);
}

TEST(FromValue, AnObjectIsFoundBehindTheOneGiven)
{
    Shelf shelf;
    Book book;
    EXPECT_EQ(from_value<Shelf*>(Value(&shelf)), &shelf);
    EXPECT_EQ(from_value<Book*>(Value(&book)), &book);
    EXPECT_EQ(from_value<Book*>(Value()), nullptr);
    EXPECT_EQ(failure_of([&] { from_value<Book*>(Value(&shelf)); }), FailureKind::TypeMismatch);
}

TEST(FromValue, AVariantTakesTheValueAsItIs)
{
    EXPECT_TRUE(std::holds_alternative<Empty>(from_value<Value>(Value())));
    EXPECT_EQ(std::get<std::string>(from_value<Value>(Value(std::string("1")))), "1");
}

TEST(ToValue, KeepsTheTypesOfTheInterface)
{
    EXPECT_EQ(std::get<std::int16_t>(to_value(BooleanWord(true))), -1);
    EXPECT_EQ(std::get<std::int32_t>(to_value(Shade::Dark)), 1);
    EXPECT_EQ(std::get<double>(to_value(0.5)), 0.5);
    EXPECT_EQ(std::get<float>(to_value(0.5F)), 0.5F);
    EXPECT_EQ(std::get<std::string>(to_value(std::string("a"))), "a");
    Book book;
    EXPECT_EQ(std::get<Object*>(to_value(&book)), &book);
}

TEST(ObjectCast, LooksBehindTheObject)
{
    Shelf shelf;
    EXPECT_EQ(object_cast<Shelf>(&shelf), &shelf);
    EXPECT_EQ(object_cast<Book>(&shelf), nullptr);
    EXPECT_EQ(object_cast<Book>(nullptr), nullptr);
}

TEST(Value, AListOfObjectsConvertsBackAndNothingIsAnEmptyOne)
{
    Lamp lamp;
    Value const list = ObjectList{&lamp, nullptr};
    EXPECT_EQ(from_value<ObjectList>(list), (ObjectList{&lamp, nullptr}));
    EXPECT_TRUE(from_value<ObjectList>(Empty{}).empty());
    EXPECT_TRUE(from_value<ObjectList>(HostArray<double>(0, {})).empty());
    EXPECT_THROW(from_value<ObjectList>(array), Failure);
    EXPECT_THROW(from_value<ObjectList>(std::string("lamp")), Failure);
    EXPECT_THROW(to_double(list), Failure);
    EXPECT_THROW(to_text(list), Failure);
}
