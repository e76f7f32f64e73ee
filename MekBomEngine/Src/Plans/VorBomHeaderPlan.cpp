// Told on a details section %Weight 0.0, "%Formula:%Weight*2" "" and a row %Weight 2.5:
//   process             a section with both tuples; 2.5 is the row's, "" the template's
//   computeFormulas     5.0 replaces "", and a tuple with 5.0 is appended to the row
//   process, again      if the section was given back, 2.5 makes way for the next row's weight, in the same tuple
//   leaveLastFormula    after the last row that section is made once more, and its last formula computed by the
//                       evaluator that leaves variables and errors in the thread's lists
#include "VorBomHeaderPlan.h"

#include "ExpressionEvaluator/Src/ExpressionsEvaluator.h"

#include "MekRoots/Exp/VorAssert.h"

#include <algorithm>
#include <utility>

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomEvaluator2"; // whose reports these are

std::vector<VorString> tokensOf(const VorBomDataTupleArray& tuples)
{
    std::vector<VorString> tokens;
    for (const VorBomDataTuple& tuple : tuples)
        tokens.push_back(tuple.token().token());
    return tokens;
}

// The row's value, if it has one, else the template's.
const VorBomDataValue& valueFor(const VorBomDataTuple& column, VorBomDataTuple* pDatum, bool isReported)
{
    if (pDatum == nullptr)
        return column.value();
    if (pDatum->value().type() == VorBomDataValue::kUnknownData)
    {
        if (isReported)
            VorAssert::vorAssert(L"false", kSourcePath, __LINE__);
        return column.value();
    }
    if (pDatum->used() != 1)
        pDatum->setUsed(1); // rows of an earlier evaluation are marked: their memory need not be written
    return pDatum->value();
}

bool isEmpty(const VorBomDataTuple& column)
{
    return column.value().type() == VorBomDataValue::kUnknownData;
}
}

// Formulas are no columns to be looked up: a row of an earlier report carries the result of that under the formula's
// token, and what must stand in the section until the formula is computed is the template's value.
VorBomHeaderPlan::VorBomHeaderPlan(const std::shared_ptr<VorBomTuplePositions>& pPositions,
                                   const VorBomTemplateItem& section)
    : m_section(section), m_columns(pPositions, tokensOf(section.getData())), m_display(section.getData())
{
    const VorBomDataTupleArray& tuples = section.getData();
    for (int i = 0; i < tuples.length(); ++i)
    {
        if (VorBomDataToken::isFormula(tuples[i].token().token()) == 0)
            continue;
        m_columns.leaveOut(i);
        m_formulas.emplace_back(pPositions, tuples, i);
    }
}

std::unique_ptr<VorBomTemplateItem> VorBomHeaderPlan::process(VorBomDataRow& row)
{
    if (m_pSpare == nullptr)
        return makeSection(row, true);
    refill(*m_pSpare, row);
    return std::move(m_pSpare);
}

// A column without a value in the template is empty where a row has none, and no value is made empty by assigning.
void VorBomHeaderPlan::takeBack(std::unique_ptr<VorBomTemplateItem> pSection)
{
    const VorBomDataTupleArray& columns = m_section.getData();
    if (std::none_of(columns.begin(), columns.end(), isEmpty))
        m_pSpare = std::move(pSection);
}

// Each value takes the place of the one before, a number that of the text that it was shown as.
void VorBomHeaderPlan::refill(VorBomTemplateItem& section, VorBomDataRow& row)
{
    const VorBomColumns::Found found = m_columns.find(row);
    const VorBomDataTuple* pColumn = m_section.getData().begin();
    VorBomDataTuple* pTuple = section.getData().begin();
    for (int i = 0; i < m_columns.count(); ++i, ++pColumn, ++pTuple)
        pTuple->value() = valueFor(*pColumn, found[i], true);
}

// A report makes a section for every row, so the room for its tuples is taken at once, and each is made in its place.
std::unique_ptr<VorBomTemplateItem> VorBomHeaderPlan::makeSection(VorBomDataRow& row, bool isEmptyDatumReported)
{
    const VorBomColumns::Found found = m_columns.find(row);
    const VorBomDataTupleArray& columns = m_section.getData();
    auto pEvaluated = std::make_unique<VorBomTemplateItem>(m_section, VorBomTemplateItem::kWithoutLinksAndTuples);
    pEvaluated->getData().setPhysicalLength(columns.length());
    pEvaluated->getData().appendMade(columns.length(),
                                     [found, isEmptyDatumReported, pColumns = columns.begin()](int i)
                                     {
                                         const VorBomDataTuple& column = pColumns[i];
                                         return VorBomDataTuple(column.token().token(),
                                                                valueFor(column, found[i], isEmptyDatumReported),
                                                                column.used());
                                     });
    return pEvaluated;
}

void VorBomHeaderPlan::computeFormulas(VorBomTemplateItem& evaluated, VorBomDataRow* pRow)
{
    VorBomDataTupleArray& tuples = evaluated.getData();
    m_failures.clear();
    m_pLastRow = pRow;
    VorBomFormulaColumn::Error error;
    for (VorBomFormulaColumn& formula : m_formulas)
    {
        VorBomDataTuple& tuple = tuples.begin()[formula.index()];
        double result = 0;
        if (formula.compute(tuples, pRow, result, m_keepsFailures ? &error : nullptr))
        {
            tuple.value().set(result);
            if (pRow != nullptr)
                pRow->getData().emplace(tuple.token().token(), result);
        }
        else if (!error.message.isEmpty()) // a formula that is none has no message: there is nothing to compute
        {
            m_failures.push_back({ formula.index(), tuple.token().token(), error.message, error.position });
            error = VorBomFormulaColumn::Error();
        }
    }
}

// The row has not changed, but for the results appended to it, which no formula takes from it; so all formulas give
// again what they gave.
int VorBomHeaderPlan::leaveLastFormula()
{
    if (m_formulas.empty() || m_pLastRow == nullptr)
        return 0;
    if (ExpressionsEvaluator::isTraced())
        return 1; // nothing was compiled, and computing again would be seen
    const std::unique_ptr<VorBomTemplateItem> pEvaluated = makeSection(*m_pLastRow, false); // reported before
    VorBomDataTupleArray& tuples = pEvaluated->getData();
    for (VorBomFormulaColumn& formula : m_formulas)
    {
        double result = 0;
        if (&formula == &m_formulas.back())
            VorBomFormulaColumn::computeOnce(tuples, formula.index(), m_pLastRow, result);
        else if (formula.compute(tuples, m_pLastRow, result))
            tuples[formula.index()].value().set(result);
    }
    return 1;
}
