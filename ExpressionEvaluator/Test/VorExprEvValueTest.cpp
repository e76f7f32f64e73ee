#include "Support/FormulaSupport.h"

#include <limits>

struct VorExprEvValueAccess
{
    static void setType(VorExprEvValue& value, unsigned int type)
    {
        value.m_nType = static_cast<VorExprEvValue::eType>(type);
    }
};

namespace
{
constexpr double kInfinity = std::numeric_limits<double>::infinity();
}

TEST(VorExprEvValueTest, AFreshValueIsUnknown)
{
    const VorExprEvValue value;

    EXPECT_EQ(VorExprEvValue::kUnknown, value.type());
    EXPECT_EQ(VorString(L"UnkValue"), textOf(value));
    EXPECT_EQ(0.0, value.toNumber());
}

TEST(VorExprEvValueTest, TypesHaveTheirNumbers)
{
    EXPECT_EQ(0U, static_cast<unsigned int>(VorExprEvValue::kUnknown));
    EXPECT_EQ(1U, static_cast<unsigned int>(VorExprEvValue::kInteger));
    EXPECT_EQ(2U, static_cast<unsigned int>(VorExprEvValue::kDouble));
    EXPECT_EQ(3U, static_cast<unsigned int>(VorExprEvValue::kBoolean));
}

TEST(VorExprEvValueTest, EveryTypeHasItsText)
{
    EXPECT_EQ(VorString(L"42"), textOf(integerValue(42)));
    EXPECT_EQ(VorString(L"-2147483648"), textOf(integerValue(std::numeric_limits<int>::min())));
    EXPECT_EQ(VorString(L"2.500000"), textOf(doubleValue(2.5)));
    EXPECT_EQ(VorString(L"False"), textOf(booleanValue(0)));
    EXPECT_EQ(VorString(L"True"), textOf(booleanValue(1)));
    EXPECT_EQ(VorString(L"True"), textOf(booleanValue(256))); // not cut to its lowest byte
}

TEST(VorExprEvValueTest, DoublesAreWrittenWithSixDecimalsAndNoExponent)
{
    EXPECT_EQ(VorString(L"0.000000"), textOf(doubleValue(1e-7)));
    EXPECT_EQ(VorString(L"-0.000000"), textOf(doubleValue(-1e-7)));
    EXPECT_EQ(VorString(L"0.333333"), textOf(doubleValue(1.0 / 3.0)));
    EXPECT_EQ(VorString(L"99999999999999991611392.000000"), textOf(doubleValue(1e23)));
    EXPECT_EQ(316, textOf(doubleValue(std::numeric_limits<double>::max())).length());
    EXPECT_EQ(VorString(L"inf"), textOf(doubleValue(kInfinity)));
    EXPECT_EQ(VorString(L"-inf"), textOf(doubleValue(-kInfinity)));
}

TEST(VorExprEvValueTest, IntegersAndDoublesAreNumbers)
{
    EXPECT_EQ(-3.0, integerValue(-3).toNumber());
    EXPECT_EQ(2.25, doubleValue(2.25).toNumber());
}

TEST(VorExprEvValueTest, BooleansCountAsZeroInArithmetic)
{
    EXPECT_EQ(0.0, booleanValue(0).toNumber());
    EXPECT_EQ(0.0, booleanValue(1).toNumber());
}

TEST(VorExprEvValueTest, SettingReplacesTypeAndContents)
{
    const LeakCheck leaks;
    VorExprEvValue value = integerValue(7);

    value.setDouble(1.5);
    EXPECT_EQ(VorString(L"1.500000"), textOf(value));
    value.setDouble(2.5);
    EXPECT_EQ(VorString(L"2.500000"), textOf(value));
    value.setBoolean(1);
    EXPECT_EQ(VorString(L"True"), textOf(value));
    value.setInteger(3);
    EXPECT_EQ(VorString(L"3"), textOf(value));
}

TEST(VorExprEvValueTest, CopiesAreIndependent)
{
    const LeakCheck leaks;
    VorExprEvValue source = doubleValue(1.5);
    VorExprEvValue target = integerValue(9);

    source.copyTo(target);
    source.setDouble(8.0);

    EXPECT_EQ(VorExprEvValue::kDouble, target.type());
    EXPECT_EQ(1.5, target.toNumber());
}

TEST(VorExprEvValueTest, EveryTypeIsCopied)
{
    const LeakCheck leaks;
    VorExprEvValue target;

    integerValue(9).copyTo(target);
    EXPECT_EQ(VorString(L"9"), textOf(target));
    booleanValue(1).copyTo(target);
    EXPECT_EQ(VorString(L"True"), textOf(target));
    target = doubleValue(0.5);
    EXPECT_EQ(VorString(L"0.500000"), textOf(target));
    EXPECT_EQ(VorString(L"0.500000"), textOf(VorExprEvValue(target)));
}

TEST(VorExprEvValueTest, CopyingAnUnknownValueFreesTheTarget)
{
    VorExprEvValue target = doubleValue(1.5);
    const long long numBlocks = VorMemoryControllerController::liveBlocks();

    VorExprEvValue().copyTo(target);

    EXPECT_EQ(numBlocks - 1, VorMemoryControllerController::liveBlocks());
    EXPECT_EQ(VorString(L"UnkValue"), textOf(target));
}

TEST(VorExprEvValueTest, AssigningAValueToItselfKeepsIt)
{
    VorExprEvValue value = integerValue(5);
    const VorExprEvValue& same = value;

    value = same;

    EXPECT_EQ(VorString(L"5"), textOf(value));
}

TEST(VorExprEvValueTest, AReleasedValueIsUnknown)
{
    VorExprEvValue value = doubleValue(1.5);
    const long long numBlocks = VorMemoryControllerController::liveBlocks();

    value.release();
    value.release();

    EXPECT_EQ(numBlocks - 1, VorMemoryControllerController::liveBlocks());
    EXPECT_EQ(VorExprEvValue::kUnknown, value.type());
}

TEST(VorExprEvValueTest, AnImpossibleTypeIsReportedAndHasNoText)
{
    const AssertLog log;
    VorExprEvValue value;
    VorExprEvValueAccess::setType(value, 7);
    wchar_t buffer[VorExprEvValue::kBufferLength] = L"before";

    EXPECT_EQ(0, value.toText(buffer));

    EXPECT_EQ(VorString(L"before"), VorString(buffer));
    EXPECT_TRUE(log.holdsOnly(L"false", L"ExpressionEvaluator/Src/VorExprEvValue"));
    EXPECT_EQ(1, log.count(L"false", L"ExpressionEvaluator/Src/VorExprEvValue", 172));
    EXPECT_EQ(0.0, value.toNumber());
}
