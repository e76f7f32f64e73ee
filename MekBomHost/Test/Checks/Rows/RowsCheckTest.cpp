#include "RowsCheck.h"

#include "MistakeExamples.h"
#include "TemplateReader.h"

#include "Support/CheckedText.h"

#include "VorBomDataRow.h"
#include "VorBomDataTuple.h"

#include "MekRoots/Exp/VorArray.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Rows as any program may hand them over; those of a parts list are in MistakeTableTest.

namespace mekbom
{
namespace
{
using MistakeExamples::groupedList;
using MistakeExamples::Tuples;

class RowsCheckTest : public testing::Test
{
protected:
    void use(const Tuples& group, const Tuples& details, const Tuples& footer)
    {
        m_template = TemplateReader::read("list.json", groupedList(group, details, footer));
        m_template.pTemplate->setUnitsForTokens(nullptr);
    }

    VorBomDataRow& add(const std::vector<VorBomDataTuple>& tuples)
    {
        auto* const pRow = new VorBomDataRow();
        for (const VorBomDataTuple& tuple : tuples)
            pRow->addData(tuple);
        m_template.pTemplate->getBomData()->addChild(pRow);
        return *pRow;
    }

    VorBomDataRow& addPart(const wchar_t* mark, const wchar_t* material, double weight)
    {
        return add({ { L"%PNum", VorString(mark) }, { L"%Material", VorString(material) }, { L"%Weight", weight } });
    }

    std::vector<Finding> check() const
    {
        return RowsCheck::run(m_template, KnownTokens(m_template, {}), *m_template.pTemplate->getBomData());
    }

    ReportTemplate m_template;
};

const Tuples kByMark = { "%GroupBy:%PNum", "%SortAscBy:%PNum", "%PNum", "%Material" };
const Tuples kLine = { "%Handle", "%Weight" };
const Tuples kTotal = { "%SumBy:%Weight" };
}

TEST_F(RowsCheckTest, WhatVariesWithinAGroupIsToldWithItsValues)
{
    use(kByMark, kLine, kTotal);
    addPart(L"P1", L"S235", 10);
    addPart(L"P2", L"S275", 10);
    addPart(L"P1", L"S355", 10); // groups need not follow each other yet

    EXPECT_EQ(
        "list.json:5:118: warning MB503: \"%Material\" varies: S235, S355; the kGroupHeader shows that of the first "
        "row of a group; help: group by %Material as well, or show it in the details\n",
        linesOf(check()));
}

TEST_F(RowsCheckTest, WhatSomeRowsOfAGroupLackVaries)
{
    use(kByMark, kLine, kTotal);
    addPart(L"P1", L"S235", 10);
    add({ { L"%PNum", VorString(L"P1") } });

    EXPECT_NE(std::string::npos, linesOf(check()).find("varies: S235, nothing;"));
}

TEST_F(RowsCheckTest, WhatIsTheSameInEveryGroupIsNoMistake)
{
    use(kByMark, kLine, kTotal);
    for (int i = 0; i < 3; ++i)
    {
        addPart(L"P1", L"S235", 10);
        addPart(L"P2", L"S355", 10);
    }

    EXPECT_EQ("", linesOf(check()));
}

TEST_F(RowsCheckTest, RowsOfSeveralPiecesOrEqualPartsAreNotAddedOnce)
{
    use(kByMark, kLine, kTotal);
    addPart(L"P1", L"S235", 10).addData(VorBomDataTuple(L"%Quantity", 1));
    EXPECT_EQ("", codesOf(check()));

    addPart(L"P2", L"S235", 10).addData(VorBomDataTuple(L"%Quantity", 4));
    VorStringArray equalParts;
    equalParts.append(L"2B");
    addPart(L"P3", L"S235", 10).setEqualPartObjectHandles(equalParts);

    const std::string lines = linesOf(check());
    EXPECT_NE(std::string::npos,
              lines.find("warning MB308: \"%SumBy:%Weight\" adds the value of one piece for each row, "
                         "and 2 rows stand for another number of pieces"))
        << lines;
    EXPECT_NE(std::string::npos, lines.find("write \"%SumBy:%Formula:%Weight*%Quantity\" here")) << lines;
}

TEST_F(RowsCheckTest, FormulasTellHowManyRowsLackTheirNumbers)
{
    use(kByMark, { "%Handle", "%Formula:%Weight*%Length*%Weight" }, kTotal);
    addPart(L"P1", L"S235", 10);
    add({ { L"%PNum", VorString(L"P1") }, { L"%Material", VorString(L"S235") }, { L"%Length", 2.0 } });

    const std::string lines = linesOf(check());
    EXPECT_EQ("MB413 MB413", codesOf(check()));
    EXPECT_NE(std::string::npos, lines.find("1 of 2 rows have no number %Weight")) << lines;
    EXPECT_NE(std::string::npos, lines.find("1 of 2 rows have no number %Length")) << lines;
}

TEST_F(RowsCheckTest, ANumberOfTheTemplateIsAnOperandLikeAnyOther)
{
    use(kByMark, { "%Handle", R"({ "token": "%Factor", "value": 2.5 })", "%Formula:%Weight*%Factor" }, kTotal);
    addPart(L"P1", L"S235", 10);

    EXPECT_EQ("", codesOf(check()));
}

TEST_F(RowsCheckTest, MarksThatDifferByZerosAreNoted)
{
    use(kByMark, kLine, kTotal);
    addPart(L"B10", L"S235", 1);
    addPart(L"B1", L"S235", 1);
    EXPECT_EQ("", codesOf(check()));

    addPart(L"B010", L"S235", 1);
    const std::vector<Finding> findings = check();
    ASSERT_EQ("MB212", codesOf(findings));
    EXPECT_EQ(Finding::kNote, findings[0].severity);
    EXPECT_NE(std::string::npos, findings[0].statement.find("\"B10\" and \"B010\""));
}

TEST_F(RowsCheckTest, WholeNumbersUnderAUnitAreTold)
{
    use(kByMark, kLine, kTotal);
    add({ { L"%PNum", VorString(L"P1") }, { L"%Weight", 12 } });

    EXPECT_EQ("MB506", codesOf(check()));
}

TEST_F(RowsCheckTest, RowsThatNoReaderMakesAreTold)
{
    use({ "%GroupBy:%PNum", "%SortAscBy:%PNum", "%PNum" }, kLine, kTotal);
    addPart(L"P1", L"S235", 10);
    EXPECT_EQ("", codesOf(check()));

    addPart(L"P2", L"S235", 10).addData(VorBomDataTuple(L"%Weight", 11.0));
    EXPECT_EQ("MB602", codesOf(check()));
    EXPECT_NE(std::string::npos, linesOf(check()).find("1 of 2 rows have a token twice, such as \"%Weight\""));

    addPart(L"P3", L"S235", 10).addChild(new VorBomDataRow());
    EXPECT_EQ("MB602 MB603", codesOf(check()));

    addPart(L"P4", L"S235", 10).setUseThisDataForSums(0);
    addPart(L"P5", L"S235", 10).addData(VorBomDataTuple(L"%Formula:%Weight*2", 20.0));
    EXPECT_EQ("MB602 MB603 MB605", codesOf(check()));
    EXPECT_NE(std::string::npos, linesOf(check()).find("2 of 5 rows carry the marks"));
}

TEST_F(RowsCheckTest, AFormulaWithoutPiecesIsOfOnePieceToo)
{
    const auto linesFor = [this](const std::string& formula)
    {
        use(kByMark, { "%Handle", formula }, { "%SumBy:" + formula });
        VorBomDataRow& row = addPart(L"P1", L"S235", 10);
        row.addData(VorBomDataTuple(L"%Quantity", 4));
        row.addData(VorBomDataTuple(L"%AssemblyWeight", 80.0));
        return linesOf(check());
    };

    EXPECT_NE(std::string::npos,
              linesFor("%Formula:%Weight*1.05").find("write \"%SumBy:%Formula:%Weight*1.05*%Quantity\" here"));
    EXPECT_NE(std::string::npos,
              linesFor("%Formula:%Weight+%Weight").find("\"%SumBy:%Formula:(%Weight+%Weight)*%Quantity\" here"));
    EXPECT_EQ("", linesFor("%Formula:%Weight*%Quantity"));
    EXPECT_EQ("", linesFor("%Formula:%Weight/%AssemblyWeight"));
}

TEST_F(RowsCheckTest, CountedLinesAddUpOnePieceToWhatIsNeitherEachNorAll)
{
    use(kByMark, kLine, kTotal);
    addPart(L"P1", L"S235", 10).addData(VorBomDataTuple(L"%Quantity", 4));
    ASSERT_EQ("MB308", codesOf(check()));
    EXPECT_EQ(Finding::kWarning, check()[0].severity);

    m_template.equalLines = kCountEqualLines;
    EXPECT_EQ(Finding::kError, check()[0].severity);
}

TEST_F(RowsCheckTest, ValuesThatPrintAlikeDoNotVary)
{
    use({ "%GroupBy:%PNum", "%SortAscBy:%PNum", "%Length", "%Price" }, kLine, kTotal);
    const auto addPriced = [this](double length, double price) {
        add({ { L"%PNum", VorString(L"P1") }, { L"%Weight", 1.0 }, { L"%Length", length }, { L"%Price", price } });
    };
    m_template.ownTokens["%Price"] = kOwnNumber;
    addPriced(500, 1);
    addPriced(499.999, 1);
    EXPECT_EQ("", linesOf(check()));

    addPriced(500, 1.001); // a plain number is printed in full
    EXPECT_EQ("MB503", codesOf(check()));
    addPriced(500.006, 1);
    EXPECT_EQ("MB503 MB503", codesOf(check()));
}

TEST_F(RowsCheckTest, AColumnOfNumbersIsSortedAsNumbers)
{
    use({ "%GroupBy:%Gap", "%SortAscBy:%Gap", "%Gap" }, kLine, kTotal);
    add({ { L"%Gap", 10 }, { L"%Weight", 1.0 } });
    EXPECT_EQ("", codesOf(check()));

    add({ { L"%Gap", VorString(L"9a") }, { L"%Weight", 1.0 } });
    EXPECT_NE(std::string::npos, linesOf(check()).find("warning MB211: \"%SortAscBy:%Gap\" sorts by %Gap")) << "texts";
    EXPECT_NE(std::string::npos, linesOf(check()).find("texts such as \"9a\" come in plain order"));
}

// Two groups of the same name, without a word.
TEST_F(RowsCheckTest, TextsOfGroupsThatDifferInBlanksAloneAreToldOnce)
{
    const Tuples byMaterial = { "%GroupBy:%Material", "%SortAscBy:%Material", "%Material" };
    for (const wchar_t* const padded : { L"S355 ", L" S355", L"\tS355\r\n" })
        for (const bool isPaddedFirst : { true, false })
        {
            use(byMaterial, kLine, kTotal);
            addPart(L"P1", isPaddedFirst ? padded : L"S355", 1);
            addPart(L"P2", L"S235", 1);
            addPart(L"P3", isPaddedFirst ? L"S355" : padded, 1);
            addPart(L"P4", L"S355", 1);
            EXPECT_EQ("MB215", codesOf(check())) << isPaddedFirst;
        }

    use(byMaterial, kLine, kTotal);
    addPart(L"P1", L"S355 ", 1);
    addPart(L"P2", L"S235 ", 1);
    addPart(L"P3", L"S355 J2", 1);
    EXPECT_EQ("", codesOf(check())) << "no two of them read alike";

    addPart(L"P4", L" S355", 1);
    ASSERT_EQ("MB215", codesOf(check()));
    EXPECT_EQ(
        "%Material has \"S355 \" and \" S355\", which differ in blanks alone: they are two groups that read alike",
        check()[0].statement);
}

}
