#include "VorBomDataValue.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>

// Damages a value as no public operation can.
struct VorBomDataValueAccess
{
    static void setType(VorBomDataValue& value, int type)
    {
        value.m_nType = static_cast<VorBomDataValue::eBomDataValueType>(type);
    }

    static void empty(VorBomDataValue& value) { value.empty(); }
};

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomDataValue";
const int kCorruptType = 9;

VorBomDataValue text(const wchar_t* characters)
{
    return VorBomDataValue(VorString(characters));
}

double doubleIn(const VorBomDataValue& value)
{
    return *static_cast<const double*>(value.data());
}
}

TEST(VorBomDataValueTest, TypesHaveTheirNumbers)
{
    EXPECT_EQ(0, VorBomDataValue::kUnknownData);
    EXPECT_EQ(1, VorBomDataValue::kIntData);
    EXPECT_EQ(2, VorBomDataValue::kDoubleData);
    EXPECT_EQ(3, VorBomDataValue::kStringData);
}

TEST(VorBomDataValueTest, DefaultIsEmpty)
{
    const VorBomDataValue value;

    EXPECT_EQ(VorBomDataValue::kUnknownData, value.type());
    EXPECT_EQ(nullptr, value.data());
    EXPECT_EQ(VorString(), value.asString());
}

TEST(VorBomDataValueTest, ConstructorsHoldTheirArgument)
{
    const LeakCheck leaks;

    const VorBomDataValue number(-7);
    const VorBomDataValue real(2.5);
    const VorBomDataValue name(text(L"HEA200"));

    EXPECT_EQ(VorBomDataValue::kIntData, number.type());
    EXPECT_EQ(-7, *static_cast<const int*>(number.data()));
    EXPECT_EQ(VorBomDataValue::kDoubleData, real.type());
    EXPECT_EQ(2.5, doubleIn(real));
    EXPECT_EQ(VorBomDataValue::kStringData, name.type());
    EXPECT_EQ(VorString(L"HEA200"), *static_cast<const VorString*>(name.data()));
}

TEST(VorBomDataValueTest, EmptyTextIsNoEmptyValue)
{
    const VorBomDataValue value{ VorString() };

    EXPECT_EQ(VorBomDataValue::kStringData, value.type());
    EXPECT_NE(nullptr, value.data());
}

TEST(VorBomDataValueTest, SetReplacesPayloadAndType)
{
    const LeakCheck leaks;
    VorBomDataValue value(5);

    value.set(2.5);
    EXPECT_EQ(VorBomDataValue::kDoubleData, value.type());
    EXPECT_EQ(VorString(L"2.5"), value.asString());

    value.set(VorString(L"S235"));
    EXPECT_EQ(VorBomDataValue::kStringData, value.type());
    EXPECT_EQ(VorString(L"S235"), value.asString());

    value.set(12);
    EXPECT_EQ(VorBomDataValue::kIntData, value.type());
    EXPECT_EQ(VorString(L"12"), value.asString());
}

TEST(VorBomDataValueTest, ATextIsTakenOverWhateverItReplaces)
{
    const LeakCheck leaks;
    for (const VorBomDataValue& before : { VorBomDataValue(), VorBomDataValue(5), VorBomDataValue(2.5),
                                           VorBomDataValue(VorString(L"a text replaced")) })
    {
        VorBomDataValue value(before);
        VorString text(L"a text taken over");
        const wchar_t* pCharacters = text.getStringW();

        value.set(std::move(text));

        EXPECT_EQ(VorBomDataValue::kStringData, value.type());
        EXPECT_EQ(pCharacters, static_cast<const VorString*>(value.data())->getStringW());
    }
}

TEST(VorBomDataValueTest, SetTakesTheValuesOwnText)
{
    VorBomDataValue value = text(L"S235");

    value.set(*static_cast<const VorString*>(value.data()));

    EXPECT_EQ(VorString(L"S235"), value.asString());
}

TEST(VorBomDataValueTest, CopiesHaveAPayloadOfTheirOwn)
{
    const LeakCheck leaks;
    for (const VorBomDataValue& source : { VorBomDataValue(5), VorBomDataValue(2.5), text(L"S235") })
    {
        VorBomDataValue copy(source);

        EXPECT_EQ(source.type(), copy.type());
        EXPECT_EQ(0, source.compare(copy));
        EXPECT_NE(source.data(), copy.data());

        copy.set(99);
        EXPECT_NE(VorString(L"99"), source.asString());
    }
}

TEST(VorBomDataValueTest, CopyOfAnEmptyValueIsEmpty)
{
    const VorBomDataValue source;

    const VorBomDataValue copy(source); // NOLINT(performance-unnecessary-copy-initialization)

    EXPECT_EQ(VorBomDataValue::kUnknownData, copy.type());
    EXPECT_EQ(nullptr, copy.data());
}

TEST(VorBomDataValueTest, AssigningReplacesKindAndPayload)
{
    const LeakCheck leaks;
    VorBomDataValue target(5);

    target = VorBomDataValue(2.5);
    EXPECT_EQ(2.5, doubleIn(target));

    const VorBomDataValue source = text(L"S235");
    target = source;
    EXPECT_EQ(VorString(L"S235"), target.asString());
    EXPECT_NE(source.data(), target.data());
}

TEST(VorBomDataValueTest, AssigningEmptyKeepsTheTarget)
{
    const AssertLog log;
    VorBomDataValue target(5);
    const void* pPayload = target.data();
    const VorBomDataValue emptyValue;

    target = emptyValue;
    EXPECT_EQ(VorString(L"5"), target.asString());

    target = VorBomDataValue(); // a temporary means the same
    EXPECT_EQ(VorString(L"5"), target.asString());
    EXPECT_EQ(VorBomDataValue::kIntData, target.type());
    EXPECT_EQ(pPayload, target.data());
    EXPECT_TRUE(log.isEmpty());
}

TEST(VorBomDataValueTest, AssigningToItselfChangesNothing)
{
    const LeakCheck leaks;
    VorBomDataValue value = text(L"S235");
    VorBomDataValue& same = value;

    value = same;
    EXPECT_EQ(VorString(L"S235"), value.asString());

    value = std::move(same);
    EXPECT_EQ(VorString(L"S235"), value.asString());
}

TEST(VorBomDataValueTest, MovedFromIsEmpty)
{
    const LeakCheck leaks;
    VorBomDataValue source = text(L"S235");
    const auto charactersOf = [](const VorBomDataValue& value)
    { return static_cast<const VorString*>(value.data())->getStringW(); };
    const wchar_t* pCharacters = charactersOf(source);

    VorBomDataValue moved(std::move(source));
    EXPECT_EQ(pCharacters, charactersOf(moved));
    EXPECT_EQ(nullptr, source.data()); // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
    EXPECT_EQ(VorBomDataValue::kUnknownData, source.type());

    VorBomDataValue target(5);
    target = std::move(moved);
    EXPECT_EQ(pCharacters, charactersOf(target));
    EXPECT_EQ(VorBomDataValue::kUnknownData,
              moved.type()); // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)

    VorBomDataValue number(2.5);
    target = std::move(number);
    EXPECT_EQ(2.5, doubleIn(target));
    EXPECT_EQ(nullptr, number.data()); // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
}

TEST(VorBomDataValueTest, SwappingExchangesEmptyValuesToo)
{
    VorBomDataValue first(5);
    VorBomDataValue second;

    std::swap(first, second);

    EXPECT_EQ(VorBomDataValue::kUnknownData, first.type());
    EXPECT_EQ(VorString(L"5"), second.asString());
}

TEST(VorBomDataValueTest, AssigningACorruptTypeIsReportedAndKeepsTheTarget)
{
    AssertLog log;
    VorBomDataValue corrupt(1);
    VorBomDataValueAccess::setType(corrupt, kCorruptType);
    VorBomDataValue target(5);

    target = corrupt;
    EXPECT_EQ(VorString(L"5"), target.asString());
    target = std::move(corrupt);
    EXPECT_EQ(VorString(L"5"), target.asString());

    EXPECT_TRUE(log.holdsOnly(L"false", kSourcePath));
    EXPECT_EQ(2, log.count(L"false", kSourcePath));
    VorBomDataValueAccess::setType(corrupt, VorBomDataValue::kIntData); // its payload can be freed again
}

TEST(VorBomDataValueTest, EmptyingACorruptTypeIsReportedAndFreesNothing)
{
    AssertLog log;
    VorBomDataValue corrupt;
    VorBomDataValueAccess::setType(corrupt, kCorruptType);

    VorBomDataValueAccess::empty(corrupt);

    EXPECT_TRUE(log.holdsOnly(L"false", kSourcePath));
    EXPECT_EQ(VorBomDataValue::kUnknownData, corrupt.type());
    EXPECT_EQ(nullptr, corrupt.data());
}

TEST(VorBomDataValueTest, EmptyFreesThePayload)
{
    const LeakCheck leaks;
    VorBomDataValue value(2.5);

    VorBomDataValueAccess::empty(value);

    EXPECT_EQ(VorBomDataValue::kUnknownData, value.type());
    EXPECT_EQ(nullptr, value.data());
}

TEST(VorBomDataValueTest, IntsCompareBySize)
{
    const int smallest = std::numeric_limits<int>::min();
    const int largest = std::numeric_limits<int>::max();

    EXPECT_EQ(-1, VorBomDataValue(2).compare(VorBomDataValue(10)));
    EXPECT_EQ(1, VorBomDataValue(10).compare(VorBomDataValue(2)));
    EXPECT_EQ(0, VorBomDataValue(7).compare(VorBomDataValue(7)));
    EXPECT_EQ(-1, VorBomDataValue(smallest).compare(VorBomDataValue(largest))); // their difference has no 32 bits
    EXPECT_EQ(1, VorBomDataValue(largest).compare(VorBomDataValue(smallest)));
}

TEST(VorBomDataValueTest, DoublesCompareWithAnAbsoluteTolerance)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const struct
    {
        double first;
        double second;
        int expected;
    } kCases[] = {
        { 1.0000001, 1.0000005, 0 },
        { 1.0, 1.000002, -1 },
        { 1.000002, 1.0, 1 },
        { 0.0, 0.9e-6, 0 },
        { 0.0, 1e-6, -1 }, // the tolerance itself is a difference
        { 1e-6, 0.0, 1 },
        { 1e-9, 2e-9, 0 },          // twice as much, but absolute
        { 1e12, 1e12 + 0.001, -1 }, // a relative tolerance would take them for equal
        { -2.5, 2.5, -1 },
        { infinity, infinity, 0 },
        { -infinity, infinity, -1 },
        { infinity, 1e300, 1 },
        { nan, nan, 0 },
        { nan, 1.0, 0 },
        { 1.0, nan, 0 },
    };
    const AssertLog log;

    for (const auto& c : kCases)
        EXPECT_EQ(c.expected, VorBomDataValue(c.first).compare(VorBomDataValue(c.second)))
            << c.first << ", " << c.second;

    EXPECT_TRUE(log.isEmpty());
}

TEST(VorBomDataValueTest, TextsCompareByTheirCharacters)
{
    EXPECT_LT(text(L"B10").compare(text(L"B2")), 0); // natural order is compareAlphanumeric's
    EXPECT_GT(text(L"a").compare(text(L"B")), 0);
    EXPECT_LT(text(L"").compare(text(L"A")), 0);
    EXPECT_EQ(text(L"S235").compare(text(L"S235")), 0);
}

TEST(VorBomDataValueTest, UnlikeKindsAreReportedAndCompareLess)
{
    AssertLog log;

    EXPECT_EQ(-1, VorBomDataValue(5).compare(VorBomDataValue(5.0)));
    EXPECT_EQ(-1, VorBomDataValue(5.0).compare(VorBomDataValue(5)));
    EXPECT_EQ(-1, text(L"5").compare(VorBomDataValue(5)));
    EXPECT_EQ(-1, VorBomDataValue(5).compare(VorBomDataValue()));
    EXPECT_EQ(-1, VorBomDataValue().compare(VorBomDataValue(5)));

    EXPECT_TRUE(log.holdsOnly(L"false", kSourcePath));
    EXPECT_EQ(5, log.count(L"false", kSourcePath));
}

TEST(VorBomDataValueTest, EmptyValuesAreReportedAndCompareEqual)
{
    AssertLog log;

    EXPECT_EQ(0, VorBomDataValue().compare(VorBomDataValue()));

    EXPECT_TRUE(log.holdsOnly(L"false", kSourcePath));
    EXPECT_EQ(1, log.count(L"false", kSourcePath));
}

TEST(VorBomDataValueTest, EqualCorruptTypesAreReportedAndCompareEqual)
{
    AssertLog log;
    VorBomDataValue first;
    VorBomDataValue second;
    VorBomDataValueAccess::setType(first, kCorruptType);
    VorBomDataValueAccess::setType(second, kCorruptType);

    EXPECT_EQ(0, first.compare(second));
    EXPECT_EQ(0, first.compareAlphanumeric(second));
    EXPECT_EQ(VorString(), first.asString());

    EXPECT_EQ(2, log.count(L"false", kSourcePath));
    VorBomDataValueAccess::setType(first, VorBomDataValue::kUnknownData);
    VorBomDataValueAccess::setType(second, VorBomDataValue::kUnknownData);
}

TEST(VorBomDataValueTest, TextsCompareNaturally)
{
    const AssertLog log;

    EXPECT_LT(text(L"B2").compareAlphanumeric(text(L"B10")), 0);
    EXPECT_GT(text(L"B10").compareAlphanumeric(text(L"B2")), 0);
    EXPECT_EQ(0, text(L"B2").compareAlphanumeric(text(L"B2")));
    EXPECT_NE(0, text(L"B2").compareAlphanumeric(text(L"B02"))); // only identical texts are equal

    EXPECT_TRUE(log.isEmpty());
}

TEST(VorBomDataValueTest, NumbersNeverCompareNaturally)
{
    AssertLog log;

    EXPECT_EQ(0, VorBomDataValue(2).compareAlphanumeric(VorBomDataValue(10)));
    EXPECT_EQ(0, VorBomDataValue(2.0).compareAlphanumeric(VorBomDataValue(10.0)));
    EXPECT_EQ(0, VorBomDataValue().compareAlphanumeric(VorBomDataValue()));

    EXPECT_TRUE(log.holdsOnly(L"false", kSourcePath));
    EXPECT_EQ(3, log.count(L"false", kSourcePath));
}

TEST(VorBomDataValueTest, UnlikeKindsAreReportedAndCompareLessNaturally)
{
    AssertLog log;

    EXPECT_EQ(-1, text(L"5").compareAlphanumeric(VorBomDataValue(5)));
    EXPECT_EQ(-1, VorBomDataValue(5).compareAlphanumeric(VorBomDataValue(5.0)));

    EXPECT_TRUE(log.holdsOnly(L"false", kSourcePath));
}

TEST(VorBomDataValueTest, NumbersShowAsPrintfShowsThem)
{
    const struct
    {
        VorBomDataValue value;
        const wchar_t* expected;
    } kCases[] = {
        { 0, L"0" },
        { -12, L"-12" },
        { std::numeric_limits<int>::min(), L"-2147483648" },
        { std::numeric_limits<int>::max(), L"2147483647" },
        { 0.1, L"0.1" },
        { 1234567.0, L"1.23457e+06" },
        { 123456.0, L"123456" },
        { 2.50, L"2.5" },
        { 1e-5, L"1e-05" },
        { 0.0001, L"0.0001" },
        { -0.0, L"-0" },
        { std::numeric_limits<double>::infinity(), L"inf" },
        { -std::numeric_limits<double>::max(), L"-1.79769e+308" },
        { VorString(L" as is "), L" as is " },
    };

    for (const auto& c : kCases)
        EXPECT_EQ(VorString(c.expected), c.value.asString());
}

namespace
{
struct WideCase
{
    VorBomDataValue value;
    VorBomDataValue::eBomDataValueType type;
    double number; // of those that are one
    const wchar_t* text;
};
}

// Each is the number that it was made from, to the last digit, or a text of its digits.
TEST(VorBomDataValueTest, IntegersOfAnyWidthLoseNoDigit)
{
    using V = VorBomDataValue;
    const long long k2To53 = 1LL << 53;
    const WideCase cases[] = {
        { 12L, V::kIntData, 12, L"12" },
        { -12LL, V::kIntData, -12, L"-12" },
        { 12U, V::kIntData, 12, L"12" },
        { std::size_t{ 12 }, V::kIntData, 12, L"12" },
        { 2147483647LL, V::kIntData, 2147483647, L"2147483647" },
        { 2147483648LL, V::kDoubleData, 2147483648, L"2.14748e+09" },
        { -2147483648LL, V::kIntData, -2147483648.0, L"-2147483648" },
        { -2147483649LL, V::kDoubleData, -2147483649.0, L"-2.14748e+09" },
        { 4294967295U, V::kDoubleData, 4294967295.0, L"4.29497e+09" },
        { k2To53, V::kDoubleData, 9007199254740992.0, L"9.0072e+15" },
        { k2To53 + 1, V::kStringData, 0, L"9007199254740993" },
        { k2To53 + 2, V::kDoubleData, 9007199254740994.0, L"9.0072e+15" },
        { -k2To53 - 1, V::kStringData, 0, L"-9007199254740993" },
        { std::numeric_limits<long long>::max(), V::kStringData, 0, L"9223372036854775807" },
        { std::numeric_limits<long long>::min(), V::kDoubleData, -9223372036854775808.0, L"-9.22337e+18" },
        { std::numeric_limits<unsigned long long>::max(), V::kStringData, 0, L"18446744073709551615" },
        { 0ULL, V::kIntData, 0, L"0" },
    };
    for (const WideCase& c : cases)
    {
        ASSERT_EQ(c.type, c.value.type()) << c.text;
        EXPECT_EQ(VorString(c.text), c.value.asString());
        if (c.type == V::kStringData)
            continue;
        const void* const pData = c.value.data();
        EXPECT_EQ(c.number,
                  c.type == V::kIntData ? *static_cast<const int*>(pData) : *static_cast<const double*>(pData));
    }
}

TEST(VorBomDataValueTest, WideIntegersReplaceWhatThereIs)
{
    VorBomDataValue value(VorString(L"a text"));
    value.set(3LL);
    EXPECT_EQ(VorBomDataValue::kIntData, value.type());
    value.set(std::size_t{ 4'000'000'000 });
    EXPECT_EQ(VorBomDataValue::kDoubleData, value.type());
}

// What promotes to an int or a double goes on doing so.
TEST(VorBomDataValueTest, NarrowIntegersAndFloatsAreTakenAsEver)
{
    EXPECT_EQ(VorBomDataValue::kIntData, VorBomDataValue(static_cast<short>(7)).type());
    EXPECT_EQ(VorBomDataValue::kIntData, VorBomDataValue(static_cast<unsigned char>(7)).type());
    EXPECT_EQ(VorBomDataValue::kIntData, VorBomDataValue(true).type());
    EXPECT_EQ(VorBomDataValue::kDoubleData, VorBomDataValue(1.5F).type());
}
