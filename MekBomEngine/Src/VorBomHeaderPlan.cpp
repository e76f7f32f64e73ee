#include "VorBomHeaderPlan.h"

#include "MekRoots/Exp/VorAssert.h"

#include <algorithm>
#include <utility>

namespace
{
// How many results of formulas get their memory at once: few at first, as a report may be small, then ever more.
constexpr int kFewestCellsForRows = 16;
constexpr int kMostCellsForRows = VorMemoryControllerController::kLargestNeighbourhood / VorBomPayloadCells::kCellSize;

const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomEvaluator2"; // whose reports these are

std::vector<VorString> tokensOf(const VorBomDataTupleArray& tuples)
{
    std::vector<VorString> tokens;
    for (const VorBomDataTuple& tuple : tuples)
        tokens.push_back(tuple.token().token());
    return tokens;
}

bool hasValue(const VorBomDataTuple& datum)
{
    if (datum.value().type() != VorBomDataValue::kUnknownData)
        return true;
    VorAssert::vorAssert(L"false", kSourcePath, __LINE__);
    return false;
}
}

VorBomHeaderPlan::VorBomHeaderPlan(const std::shared_ptr<VorBomRowLayouts>& pLayouts, const VorBomTemplateItem& section)
    : m_section(section), m_columns(pLayouts, tokensOf(section.getData()))
{
    const VorBomDataTupleArray& tuples = section.getData();
    for (int i = 0; i < tuples.length(); ++i)
    {
        m_isFormula.push_back(VorBomDataToken::isFormula(tuples[i].token().token()) != 0 ? 1 : 0);
        if (m_isFormula.back() != 0)
            m_formulas.emplace_back(pLayouts, tuples, i);
        m_displays.emplace_back(tuples[i].token());
    }
}

std::unique_ptr<VorBomTemplateItem> VorBomHeaderPlan::process(VorBomDataRow& row)
{
    m_columns.find(row);
    const VorBomDataTupleArray& columns = m_section.getData();
    auto pEvaluated = std::make_unique<VorBomTemplateItem>(m_section, VorBomTemplateItem::kWithoutLinksAndTuples);
    VorBomDataTupleArray& tuples = pEvaluated->getData();
    tuples.setPhysicalLength(columns.length());
    VorBomPayloadCells cells(columns.length());
    const VorBomDataTuple* pColumn = columns.begin();
    for (int i = 0; i < columns.length(); ++i, ++pColumn)
    {
        VorBomDataTuple* pDatum = m_isFormula[static_cast<std::size_t>(i)] != 0 ? nullptr : m_columns[i];
        if (pDatum == nullptr || !hasValue(*pDatum))
        {
            tuples.emplace(pColumn->token().token(), pColumn->value(), cells).setUsed(pColumn->used());
            continue;
        }
        tuples.emplace(pColumn->token().token(), pDatum->value(), cells).setUsed(pColumn->used());
        if (pDatum->used() != 1)
            pDatum->setUsed(1); // rows of an earlier evaluation are marked: their memory need not be written
    }
    return pEvaluated;
}

void VorBomHeaderPlan::computeFormulas(VorBomTemplateItem& evaluated, VorBomDataRow& row)
{
    VorBomDataTupleArray& tuples = evaluated.getData();
    for (VorBomFormulaColumn& formula : m_formulas)
    {
        double result = 0;
        if (!formula.compute(tuples, &row, result))
            continue;
        VorBomDataTuple& tuple = tuples[formula.index()];
        tuple.value().set(result);
        row.getData().emplace(tuple.token().token(), result, cellsForRows());
    }
}

void VorBomHeaderPlan::showInUnits(VorBomTemplateUnits& units, VorBomTemplateItem& evaluated)
{
    VorBomDisplayColumn::showAll(m_displays, units, evaluated.getData());
}

VorBomPayloadCells& VorBomHeaderPlan::cellsForRows()
{
    if (!m_cellsForRows || m_cellsForRows->isUsedUp())
    {
        m_numCellsForRows = std::clamp(2 * m_numCellsForRows, kFewestCellsForRows, kMostCellsForRows);
        m_cellsForRows.emplace(m_numCellsForRows);
    }
    return *m_cellsForRows;
}
