#include "MekBomEngine/Test/Support/ReportBuilders.h"

#include "ExpressionEvaluator/Src/VorExprEvVariableList.h"

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomEvaluator2";

using Item = VorBomTemplateItem;
using Access = VorBomEvaluator2Access;

// A details section with `tuples` after the formulas were computed for a row with `rowTuples`.
class Computed
{
public:
    Computed(std::initializer_list<VorBomDataTuple> tuples, std::initializer_list<VorBomDataTuple> rowTuples)
        : section(Item::kDetails)
    {
        for (const VorBomDataTuple& tuple : tuples)
            section.addData(tuple);
        for (const VorBomDataTuple& tuple : rowTuples)
            row.addData(tuple);
        Access::evaluateExpressions(&section, &row);
    }

    // Of the last tuple.
    const VorBomDataValue& value() { return section.getData().last().value(); }

    VorString rowText()
    {
        VorString text;
        row.list(text, 0, 0, 0);
        return text;
    }

    Item section;
    VorBomDataRow row;
};

// Every number as one word, so that lines read alike.
class AsWord : public VorBomNumberFormat
{
public:
    VorString textOf(int) const override { return VorString(L"whole"); }
    VorString textOf(double) const override { return VorString(L"broken"); }
};

// What the report shows for one tuple.
VorString shown(VorBomTemplateUnits& units, const VorBomDataTuple& tuple)
{
    VorBomDataTupleArray tuples;
    tuples.append(tuple);
    Access::applyUnitsForData(&units, tuples);
    return tuples[0].value().asString();
}
}

TEST(VorBomEvaluator2DisplayTest, FormulaOverTheSectionGoesIntoSectionAndRow)
{
    Computed computed({ { L"%Length", 2000 }, { L"%Formula:%Length/1000", L"" } }, {});

    ASSERT_EQ(VorBomDataValue::kDoubleData, computed.value().type());
    EXPECT_EQ(VorString(L"2"), computed.value().asString());
    EXPECT_EQ(VorString(L"[%Formula:%Length/1000:2]"), computed.rowText());
    EXPECT_EQ(0, computed.row.getData()[0].used());
}

TEST(VorBomEvaluator2DisplayTest, NumberOfTheRowHidesTheSectionsOwn)
{
    Computed computed({ { L"%Length", 5.0 }, { L"%Formula:%Length*2", L"" } }, { { L"%Length", 7.0 } });

    EXPECT_EQ(VorString(L"14"), computed.value().asString());
}

TEST(VorBomEvaluator2DisplayTest, FormulaMayUseDataThatTheSectionDoesNotShow)
{
    Computed computed({ { L"%Formula:(%Weight+%Quantity)*2", L"" } }, { { L"%Weight", 1.5 }, { L"%Quantity", 4 } });

    EXPECT_EQ(VorString(L"11"), computed.value().asString());
}

TEST(VorBomEvaluator2DisplayTest, FirstTupleOfARowCounts)
{
    Computed computed({ { L"%Formula:%Weight*2", L"" } }, { { L"%Weight", 1.5 }, { L"%Weight", 100.0 } });

    EXPECT_EQ(VorString(L"3"), computed.value().asString());
}

TEST(VorBomEvaluator2DisplayTest, LaterTupleOfTheSectionCounts)
{
    Computed computed({ { L"%Width", 1.5 }, { L"%Width", 100.0 }, { L"%Formula:%Width*2", L"" } }, {});

    EXPECT_EQ(VorString(L"200"), computed.value().asString());
}

TEST(VorBomEvaluator2DisplayTest, TextsDefineNothing)
{
    Computed computed({ { L"%Weight", L"3" }, { L"%Formula:%Weight*2", L"kept" } }, { { L"%Weight", L"4" } });

    EXPECT_EQ(VorString(L"kept"), computed.value().asString());
    EXPECT_EQ(VorString(L"[%Weight:4]"), computed.rowText());
}

TEST(VorBomEvaluator2DisplayTest, ShortAndPlainFormulasAreNotComputed)
{
    EXPECT_EQ(VorString(L"kept"), Computed({ { L"%Formula:1+2", L"kept" } }, {}).value().asString());
    EXPECT_EQ(VorString(L"kept"),
              Computed({ { L"%Formula:%Weight", L"kept" } }, { { L"%Weight", 1.0 } }).value().asString());
    EXPECT_EQ(VorString(L"3"), Computed({ { L"%Formula:1 +2", L"kept" } }, {}).value().asString());
}

TEST(VorBomEvaluator2DisplayTest, FailedFormulaKeepsItsTextAndLeavesTheRow)
{
    Computed computed({ { L"%Formula:%Weight/0", L"kept" } }, { { L"%Weight", 1.0 } });

    EXPECT_EQ(VorString(L"kept"), computed.value().asString());
    EXPECT_EQ(VorString(L"[%Weight:1]"), computed.rowText());
}

TEST(VorBomEvaluator2DisplayTest, ResultHasSixDecimals)
{
    Computed computed({ { L"%Formula:%Weight/3", L"" } }, { { L"%Weight", 1.0 } });

    EXPECT_EQ(0.333333, *static_cast<const double*>(computed.value().data()));
}

TEST(VorBomEvaluator2DisplayTest, EachFormulaIsAppendedToTheRowInOrder)
{
    Computed computed({ { L"%Formula:%Weight*2", L"" }, { L"%Formula:%Weight*3", L"" } }, { { L"%Weight", 1.0 } });

    EXPECT_EQ(VorString(L"[%Weight:1][%Formula:%Weight*2:2][%Formula:%Weight*3:3]"), computed.rowText());
}

TEST(VorBomEvaluator2DisplayTest, FormulaWithoutARowIsComputedFromTheSection)
{
    Item section(Item::kDetails);
    section.addData(VorBomDataTuple(L"%Length", 2000.0));
    section.addData(VorBomDataTuple(L"%Formula:%Length/1000", VorString()));

    Access::evaluateExpressions(&section, nullptr);
    Access::evaluateExpressions(nullptr, nullptr);

    EXPECT_EQ(VorString(L"2"), section.getData()[1].value().asString());
}

TEST(VorBomEvaluator2DisplayTest, VariablesStayUntilTheNextFormula)
{
    Computed computed({ { L"%Formula:%Weight*2", L"" } }, { { L"%Weight", 1.0 }, { L"%Length", 2.0 } });
    ASSERT_NE(nullptr, VorExprEvVariableList::ofThread().head());
    EXPECT_EQ(1, VorExprEvVariableList::ofThread().count());

    Computed plain({ { L"%Formula:%Weight", L"" } }, { { L"%Weight", 1.0 } });
    EXPECT_EQ(0, VorExprEvVariableList::ofThread().count()) << "emptied even for a formula that is not computed";
}

TEST(VorBomEvaluator2DisplayTest, IntegersShowWithoutUnits)
{
    VorBomTemplateUnits units;
    units.AddTokenType(L"%Weight", VorBomTemplateUnits::kReservedUnitType);

    EXPECT_EQ(VorString(L"7"), shown(units, VorBomDataTuple(L"%Weight", 7)));
    EXPECT_EQ(VorString(L"-2147483648"), shown(units, VorBomDataTuple(L"%Weight", -2147483647 - 1)));
    EXPECT_EQ(VorString(), shown(units, VorBomDataTuple(L"%Weight", 7.0)));
}

TEST(VorBomEvaluator2DisplayTest, SumsShowInTheUnitOfWhatTheySum)
{
    VorBomTemplateUnits units;
    units.AddTokenType(L"%Weight", VorBomTemplateUnits::kReservedUnitType);

    EXPECT_EQ(units.getDisplayString(L"%Weight", 12.5), shown(units, VorBomDataTuple(L"%SumBy:%Weight", 12.5)));
    EXPECT_EQ(VorString(L"12.5"), shown(units, VorBomDataTuple(L"%SumBy:%Length", 12.5)));
}

TEST(VorBomEvaluator2DisplayTest, FormulaShowsInTheUnitOfItsFirstTokenThatHasOne)
{
    VorBomTemplateUnits units;
    units.AddTokenType(L"%Plain", VorBomTemplateUnits::kNoUnit);
    units.AddTokenType(L"%Paint", VorBomTemplateUnits::kReservedUnitType);
    units.AddTokenType(L"%Length", VorBomTemplateUnits::kDistanceUnit);

    EXPECT_EQ(VorString(), shown(units, VorBomDataTuple(L"%Formula:%Plain*%Paint/%Length", 2.5)));
    EXPECT_EQ(VorBomTemplateUnits::kReservedUnitType, units.getUnitType(L"%Plain*%Paint/%Length"));
    EXPECT_EQ(units.getDisplayString(L"%Length", 2.5),
              shown(units, VorBomDataTuple(L"%SumBy:%Formula:%Length\t*2", 2.5)));
    EXPECT_EQ(VorString(L"2.5"), shown(units, VorBomDataTuple(L"%Formula:%Plain*2", 2.5)));
    EXPECT_EQ(VorBomTemplateUnits::kNoUnit, units.getUnitType(L"%Plain*2"));
}

TEST(VorBomEvaluator2DisplayTest, RegisteredFormulaKeepsItsUnit)
{
    VorBomTemplateUnits units;
    units.AddTokenType(L"%Length", VorBomTemplateUnits::kDistanceUnit);
    units.AddTokenType(L"%Length*2", VorBomTemplateUnits::kReservedUnitType);

    EXPECT_EQ(VorString(), shown(units, VorBomDataTuple(L"%Formula:%Length*2", 2.5)));
}

TEST(VorBomEvaluator2DisplayTest, FunctionTokensGiveAFormulaNoUnit)
{
    VorBomTemplateUnits units;
    units.AddTokenType(L"%%PaintMeter", VorBomTemplateUnits::kReservedUnitType);

    EXPECT_EQ(VorString(L"2.5"), shown(units, VorBomDataTuple(L"%Formula:%%PaintMeter*2", 2.5)));
    EXPECT_EQ(VorString(), shown(units, VorBomDataTuple(L"%%PaintMeter", 2.5)));
}

TEST(VorBomEvaluator2DisplayTest, TextsAndEmptyValuesStayAsTheyAre)
{
    VorBomTemplateUnits units;
    VorBomDataTupleArray tuples;
    tuples.append(VorBomDataTuple(L"%Weight", VorString(L"heavy")));
    tuples.append(emptyTuple(L"%Weight"));

    Access::applyUnitsForData(&units, tuples);

    EXPECT_EQ(VorString(L"heavy"), tuples[0].value().asString());
    EXPECT_EQ(VorBomDataValue::kUnknownData, tuples[1].value().type());
}

TEST(VorBomEvaluator2DisplayTest, GenericStringTakesEveryTupleOfARow)
{
    VorBomDataRow row;
    row.addData(VorBomDataTuple(L"%Quantity", 4));
    row.addData(VorBomDataTuple(L"%Weight", 2.25));
    row.addData(VorBomDataTuple(L"%Name", VorString(L"HEA200")));
    row.addData(emptyTuple(L"%Role"));
    VorGenericString target;
    AssertLog log;

    Access::fillGenericString(target, &row);

    ASSERT_EQ(4, target.tokens().length());
    EXPECT_EQ(VorString(L"%Role"), target.tokens()[3]);
    VorString text;
    EXPECT_EQ(1, target.findEntry(L"%Quantity", text));
    EXPECT_EQ(VorString(L"4"), text);
    EXPECT_EQ(1, target.findEntry(L"%Weight", text));
    EXPECT_EQ(VorString(L"2.2"), text) << "one decimal, half to even as the exact binary value has it";
    EXPECT_EQ(1, target.findEntry(L"%Name", text));
    EXPECT_EQ(VorString(L"HEA200"), text);
    EXPECT_EQ(0, target.findEntry(L"%Role", text));
    EXPECT_TRUE(log.holdsOnly(L"false", kSourcePath));
}

TEST(VorBomEvaluator2DisplayTest, FormatOfTheHostShowsTheNumbersOfItsTupleAlone)
{
    Report report;
    Item* pHeader = report.addSection(nullptr, Item::kGroupHeader, { { L"%Weight", 0.0 } });
    Item* pDetails = report.addSection(pHeader, Item::kDetails, { { L"%Weight", 0.0 }, { L"%Weight", 0.0 } });
    Item* pFooter = report.addSection(nullptr, Item::kGroupFooter, { { L"%SumBy:%Weight", 0.0 } });
    report.addRow({ { L"%Weight", 2.5 } });
    const AsWord format;
    report.tmpl().setNumberFormat(*pDetails, 1, &format);
    report.tmpl().setNumberFormat(*pFooter, 0, &format);
    report.tmpl().setNumberFormat(*pHeader, 0, &format);
    report.tmpl().setNumberFormat(*pHeader, 0, nullptr);

    const VorString text = report.evaluated();

    EXPECT_EQ(nullptr, report.tmpl().numberFormat(*pHeader, 0));
    EXPECT_EQ(nullptr, report.tmpl().numberFormat(*pDetails, 0));
    EXPECT_EQ(&format, report.tmpl().numberFormat(*pDetails, 1));
    EXPECT_GE(text.find(L"[%Weight:2.5][%Weight:broken]", 0), 0) << text;
    EXPECT_GE(text.find(L"[%SumBy:%Weight:broken]", 0), 0) << text;
}

TEST(VorBomEvaluator2DisplayTest, LinesThatReadAlikeByTheHostsFormatAreMerged)
{
    Report report;
    Item* pHeader = report.addSection(nullptr, Item::kGroupHeader, {});
    Item* pDetails = report.addSection(pHeader, Item::kDetails, { { L"%Weight", 0.0 } });
    report.addSection(nullptr, Item::kGroupFooter, { { L"%SumBy:%Weight", 0.0 } });
    report.addRow({ { L"%Weight", 2.5 } });
    report.addRow({ { L"%Weight", 4.5 } });
    const AsWord format;
    report.tmpl().setNumberFormat(*pDetails, 0, &format);

    EXPECT_GE(report.evaluated().find(L"[%SumBy:%Weight:2.5]", 0), 0);
}

// A price is no 1.7214e+07, and its total and what is computed with it are prices, too.
TEST(VorBomEvaluator2DisplayTest, DecimalsOfATokenAreThoseOfItsTotalsAndFormulas)
{
    VorBomTemplateUnits units;
    units.AddTokenType(L"%Length", VorBomTemplateUnits::kDistanceUnit);
    units.setDecimals(L"%Price", 2);

    EXPECT_EQ(VorString(L"17214000.00"), shown(units, VorBomDataTuple(L"%Price", 17214000.0)));
    EXPECT_EQ(VorString(L"17214000.00"), shown(units, VorBomDataTuple(L"%SumBy:%Price", 17214000.0)));
    EXPECT_EQ(VorString(L"17214000.00"), shown(units, VorBomDataTuple(L"%Formula:2*%Price", 17214000.0)));
    EXPECT_EQ(VorString(L"17214000.00"), shown(units, VorBomDataTuple(L"%SumBy:%Formula:2*%Price", 17214000.0)));
    EXPECT_EQ(VorString(L"1.7214e+07"), shown(units, VorBomDataTuple(L"%Hours", 17214000.0)));
    EXPECT_EQ(VorString(L"17214000"), shown(units, VorBomDataTuple(L"%Formula:%Price*%Length", 17214000.0)))
        << "a length, by its second token";
    EXPECT_EQ(VorString(L"3"), shown(units, VorBomDataTuple(L"%Price", 3))) << "whole numbers stay whole";

    units.setDecimals(L"2*%Price", 0);
    EXPECT_EQ(VorString(L"17214000"), shown(units, VorBomDataTuple(L"%Formula:2*%Price", 17214000.0)));
}
