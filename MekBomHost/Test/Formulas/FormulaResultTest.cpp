#include "FormulaResult.h"

#include "Support/FormulaSupport.h"
#include "UnitKinds.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
FormulaResult derived(const wchar_t* formula)
{
    return FormulaResult::derive(formula, operandOfTest);
}

// The kind's name, "plain", or the reason why there is none.
std::string measureOf(const FormulaResult& result)
{
    switch (result.measure)
    {
        case FormulaResult::kKind: return UnitKinds::find(result.kind)->name;
        case FormulaResult::kPlain: return "plain";
        default: return result.what;
    }
}

struct ResultCase
{
    const wchar_t* formula;
    const char* measure;
};

template <std::size_t N>
void expectMeasures(const ResultCase (&cases)[N])
{
    for (const ResultCase& c : cases)
        EXPECT_EQ(c.measure, measureOf(derived(c.formula))) << c.formula;
}
}

TEST(FormulaResultTest, ProductsOfTokensHaveAKind)
{
    const ResultCase cases[] = {
        { L"%Weight*%Quantity", "weight" },
        { L"%Length*%WeightMeter", "weight" },
        { L"%Length*2", "length" },
        { L"2*%Length", "length" },
        { L"-%Length", "length" },
        { L"%Weight/%Length", "weight-per-length" },
        { L"%Length*%Width", "area" },
        { L"%PaintMeter*%Quantity", "area-per-length" },
        { L"%PaintMeter*%Length", "area" },
        { L"%Paint/%Length", "length" },
        { L"%Weight/(%Length*%Width*%Thick)", "density" },
        { L"%Length*%Width*%Thick*%Density", "weight" },
        { L"%Skew*2", "angle" },
        { L"%Weight*%Length/%Width", "weight" },
        { L"%Weight*1.05", "weight" },
        { L"%Length/1000*1000", "length" },
        { L"(%Length+%Width)*2", "length" },
        { L"%Length+0*1", "length" },
        { L"%Paint+%Length*%Width", "area" },
        { L"%Length-(%Width+%Thick)", "length" },
        { L"%Weight *", "weight" }, // 0 kg
    };
    expectMeasures(cases);
}

TEST(FormulaResultTest, NumbersWithoutUnitArePlain)
{
    const ResultCase cases[] = {
        { L"2*3+4", "plain" },
        { L"%Quantity*1000", "plain" },
        { L"%MQuantity/%Quantity+1", "plain" },
        { L"%Length/%Width", "plain" },
        { L"%Length/%Width*1000", "plain" },
        { L"%Price*%Quantity", "plain" }, // whatever the price is in, it does not depend on the model's units
        { L"%Price+%Price*2", "plain" },
    };
    expectMeasures(cases);
}

TEST(FormulaResultTest, WhatHasNoKindIsToBeDeclared)
{
    const ResultCase cases[] = {
        { L"%Weight*%Price", "weight x %Price is no kind of quantity" },
        { L"%Length*%Width*%Thick", "length^3 is no kind of quantity" },
        { L"1/%Length", "1 / length is no kind of quantity" },
        { L"%Length/1000", "the constant 1000 hides a unit of length (1 m = 1000 mm)" },
        { L"0.001*%Length", "the constant 0.001 hides a unit of length (1 m = 1000 mm)" },
        { L"%Length*%Width/1000000", "the constant 1000000 hides a unit of area (1 m2 = 1000000 mm2)" },
        { L"%Length/1000*(%Width/1000)", "the constant 1000 hides a unit of length (1 m = 1000 mm)" },
        { L"%Weight*2.2", "the constant 2.2 hides a unit of weight (1 lb = 0.45359237 kg)" },
        { L"%Length/(10*100)", "the constant 1000 hides a unit of length (1 m = 1000 mm)" },
        { L"(%Length+%Width)/1000", "the constant 1000 hides a unit of length (1 m = 1000 mm)" },
        { L"%Length/1000+%Width", "the constant 1000 hides a unit of length (1 m = 1000 mm)" },
        { L"%Weight+%Length", "adds weight and length" },
        { L"%Length-100", "adds length and the bare number 100" },
        { L"%Quantity+%Length", "adds a number without unit and length" },
        { L"%Price+5", "adds %Price and the bare number 5" },
        { L"%Price+%Hours", "adds %Price and %Hours" },
        { L"%PaintMeter+%Length", "adds area-per-length and length" },
        { L"%Weight*%Name", "\"%Name\" is a text" },
        { L"%Wieght*2", "nobody knows \"%Wieght\"" },
        { L"(%Weight*2", "the parentheses do not balance" },
        { L"()()", "there is nothing to compute" },
    };
    expectMeasures(cases);
}

TEST(FormulaResultTest, TheReasonIsData)
{
    EXPECT_EQ(FormulaResult::kNone, derived(L"%Weight*2").reason);
    EXPECT_EQ(FormulaResult::kNoKind, derived(L"%Weight*%Price").reason);
    EXPECT_EQ(FormulaResult::kHiddenUnit, derived(L"%Length/1000").reason);
    EXPECT_EQ(FormulaResult::kUnlikeSum, derived(L"%Weight+%Length").reason);
    EXPECT_EQ(FormulaResult::kUnknownOperand, derived(L"%Wieght*2").reason);
    EXPECT_EQ(FormulaResult::kTextOperand, derived(L"%Name*2").reason);
    EXPECT_EQ(FormulaResult::kUnreadable, derived(L"(%Weight").reason);
}

// What counts is the tree that the engine makes.
TEST(FormulaResultTest, TheEnginesReadingDecides)
{
    const ResultCase cases[] = {
        { L"%Weight+(%Length)*%Weight", "adds weight and length" }, // (W+L)*W
        { L"round(%Length*2)", "length" },
        { L"%Weight(%Length*2)", "length" }, // the weight disappears
    };
    expectMeasures(cases);
}

TEST(FormulaResultTest, VariablesCarryWhatTheyWereAssigned)
{
    const ResultCase cases[] = {
        { L"a=%Length ;a*%Width*1", "area" },
        { L"x=%Length ;y=x*x;y*3", "area" },
        { L"x=%Weight ;x=%Length ;x*2", "length" },
        { L"%Weight=%Length ;%Weight*2", "length" },
        { L"a=5;a*%Length;", "length" },
        { L"x=1000;%Length/x*1", "the constant 1000 hides a unit of length (1 m = 1000 mm)" },
        { L"x=%Length ;2*x", "nobody knows \"x?\"" }, // no variable has that name with a zero character behind it
    };
    expectMeasures(cases);
}

TEST(FormulaResultTest, NobodyIsAskedForNamesThatAreAssignedOrReachBeyondTheFormula)
{
    std::vector<VorString> asked;
    const auto operandOf = [&](const VorString& name)
    {
        asked.push_back(name);
        return operandOfTest(name);
    };

    FormulaResult::derive(L"x=%Length ;y=%Weight*x;2*x", operandOf);

    EXPECT_EQ((std::vector<VorString>{ L"%Length", L"%Weight" }), asked);
}

TEST(FormulaResultTest, AColumnSaysWhatDoesNotFollow)
{
    const FormulaResult cost = FormulaResult::of(L"%Weight*%Price", operandOfTest, "EUR");
    EXPECT_EQ("plain", measureOf(cost));
    EXPECT_EQ("EUR", cost.label);
    EXPECT_EQ(FormulaResult::kNoKind, cost.reason);

    const FormulaResult metres = FormulaResult::of(L"%Length/1000", operandOfTest, "none");
    EXPECT_EQ("plain", measureOf(metres));
    EXPECT_EQ("", metres.label);

    const FormulaResult sheet = FormulaResult::of(L"%Length*%Width*0.0785", operandOfTest, "weight");
    EXPECT_EQ("weight", measureOf(sheet));
    EXPECT_EQ("", sheet.contradiction);

    EXPECT_EQ("area-per-length", measureOf(FormulaResult::of(L"%Paint/%Length", operandOfTest, "area-per-length")));
    EXPECT_EQ("weight-per-length", measureOf(FormulaResult::of(L"%Weight*1", operandOfTest, "weight-per-distance")));
}

TEST(FormulaResultTest, WhatAColumnSaysHoldsOverWhatFollows)
{
    EXPECT_EQ("EUR", FormulaResult::of(L"%Weight*2", operandOfTest, "EUR").label);
    EXPECT_EQ("plain", measureOf(FormulaResult::of(L"%Weight*2", operandOfTest, "none")));
}

TEST(FormulaResultTest, AKindThatCannotBeIsAContradiction)
{
    const struct
    {
        const wchar_t* formula;
        const char* declared;
        const char* contradiction;
    } cases[] = {
        { L"%Length*%Width", "weight", "is area, declared as weight" },
        { L"%Length*%Width*%Thick", "weight", "is length^3, declared as weight" },
        { L"%MQuantity*%Quantity", "weight", "is a number without unit, declared as weight" },
        { L"%Length*%Width", "area", "" },
        { L"%Length*%Width", "none", "" },
        { L"%Length*%Width", "EUR", "" },
        { L"%Paint/%Length", "area-per-length", "" },
        { L"%Length*%Width*7.85", "weight", "" }, // 7.85 may be kg/mm²
        { L"7.85*%Length*%Width", "weight", "" },
        { L"7.85/%Length", "weight", "" },
        { L"12*1", "weight", "" },
        { L"%Length*%Price", "weight", "" }, // so may %Price
        { L"%Length+50", "weight", "" },
        { L"%Length+%Weight", "weight", "" },
        { L"%Wieght*2", "area", "" },
        { L"(%Length", "area", "" },
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.contradiction, FormulaResult::of(c.formula, operandOfTest, c.declared).contradiction) << c.formula;
}

// Was printed as 0.51 kg.
TEST(FormulaResultTest, AKindWhoseNumberAConstantChangesIsAContradiction)
{
    const FormulaResult weight = FormulaResult::of(L"%Length*%WeightMeter/1000*%Quantity", operandOfTest, "weight");

    EXPECT_EQ("gives weight already, and the constant 1000 hides a unit of weight (1 t = 1000 kg), which makes it "
              "another number",
              weight.contradiction);
    EXPECT_EQ("take the constant out: lists show the number in the reader's unit; or give it a label of its own in the "
              "column, \"result\": \"t\"",
              weight.remedy);
    EXPECT_NE("", FormulaResult::of(L"%Length*%Width/1000000", operandOfTest, "area").contradiction);
    EXPECT_NE("", FormulaResult::of(L"%Length/1000+%Width", operandOfTest, "length").contradiction);
    EXPECT_EQ("", FormulaResult::of(L"%Length*%Width*7.85/1000000", operandOfTest, "weight").contradiction);
    EXPECT_EQ("", FormulaResult::of(L"%Weight*1.05", operandOfTest, "weight").contradiction);
}

TEST(FormulaResultTest, AUnitAsLabelIsAContradictionUnlessAConstantMakesIt)
{
    const struct
    {
        const wchar_t* formula;
        const char* unit;
        bool isRight;
    } cases[] = {
        { L"%Length*%Quantity", "m", false },
        { L"%Weight*%Quantity", "lb", false },
        { L"%Weight*1.05", "t", false },
        { L"%Weight/1000", "kg", false },
        { L"%Weight/1000", "lb", false },
        { L"%Paint*10.764", "ft2", false }, // of mm2
        { L"%Weight/1000", "t", true },
        { L"%Weight*1.05/1000", "t", true },
        { L"%Weight*2.2", "lb", true },
        { L"%Length*%WeightMeter/1000*%Quantity", "t", true },
        { L"%Length/1000*%Width/1000*1.05", "m2", true },
        { L"%Length*%Width/1000000", "m2", true },
        { L"%Length/1000+%Width/1000*1.05", "m", true },
        { L"(%Length+%Width)/1000", "m", true },
        { L"%Skew*180/3.14159", "deg", true },
        { L"%Weight*1.05", "kg", true },
        { L"%Length*%Width*7.85", "kg", true }, // 7.85 may be kg/mm²
        { L"%Weight*%Price", "t", true },
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.isRight, FormulaResult::of(c.formula, operandOfTest, c.unit).contradiction.empty())
            << c.formula << c.unit;
    const FormulaResult metres = FormulaResult::of(L"%Length*%Quantity", operandOfTest, "m");
    EXPECT_EQ("gives length, but no number of \"m\"", metres.contradiction);
    EXPECT_EQ("write \"unit\": \"m\" in the column instead of \"result\"", metres.remedy);
}

TEST(FormulaResultTest, HostileFormulasEnd)
{
    VorString nested;
    nested.append(L'(', 100000);
    nested += L"%Length*2";
    nested.append(L')', 100000);
    VorString product = L"%Length";
    VorString nestedQuotient = L"%Price";
    VorString assignments;
    for (int i = 0; i < 20000; ++i)
    {
        product += L"*%Width";
        nestedQuotient += L"/(%Price";
        assignments += L"a=";
    }
    nestedQuotient.append(L')', 20000);
    assignments += L"%Length*1";

    EXPECT_EQ("length", measureOf(derived(nested.getStringW())));
    EXPECT_EQ("length^1000 is no kind of quantity", measureOf(derived(product.getStringW())));
    EXPECT_EQ("plain", measureOf(derived(nestedQuotient.getStringW())));
    EXPECT_EQ("length", measureOf(derived(assignments.getStringW())));
}
}
