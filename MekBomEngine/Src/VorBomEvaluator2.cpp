// The stack of levels, the making of evaluated sections, grouping and the main loop.
//
// Told on rows A, A, B under levels 0 report, 1 group by name, 2 details:
//   A  opens 0, 1 and 2; 2 closes at once and hangs a details section in the header of 1
//   A  joins 0 and 1; opens and closes 2
//   B  joins 0; closes 1, which makes the footer over both A and hangs header and footer in the header of 0; opens 1, 2
//   end: closes 1, then 0, whose header and footer go to the result.
#include "VorBomEvaluator2.h"

#include "MekRoots/Exp/VorAssert.h"

#include <limits>
#include <memory>
#include <utility>
#include <vector>

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomEvaluator2"; // named in assertion reports

// A copy of a template section that hangs nowhere yet.
std::unique_ptr<VorBomTemplateItem> copyWithoutLinks(const VorBomTemplateItem& section)
{
    auto pCopy = std::make_unique<VorBomTemplateItem>(section);
    pCopy->setNext(nullptr);
    pCopy->setChild(nullptr);
    return pCopy;
}

int intOf(const VorBomDataValue& value)
{
    return *static_cast<const int*>(value.data());
}

double doubleOf(const VorBomDataValue& value)
{
    return *static_cast<const double*>(value.data());
}
bool isNumber(const VorBomDataValue& value)
{
    return value.type() == VorBomDataValue::kIntData || value.type() == VorBomDataValue::kDoubleData;
}

double numberOf(const VorBomDataValue& value)
{
    return value.type() == VorBomDataValue::kIntData ? intOf(value) : doubleOf(value);
}

void setToZeroLike(const VorBomDataValue& number, VorBomDataValue& value)
{
    if (number.type() == VorBomDataValue::kIntData)
        value.set(0);
    else
        value.set(0.0);
}

// Totals stay integers while everything added is an integer and the sum fits 32 bits; otherwise they become doubles and
// stay so. A total that is no number yet starts from zero of the added value's type.
void addToTotal(VorBomDataValue& total, const VorBomDataValue& added)
{
    if (!isNumber(total))
        setToZeroLike(added, total);
    if (total.type() == VorBomDataValue::kIntData && added.type() == VorBomDataValue::kIntData)
    {
        const long long sum = static_cast<long long>(intOf(total)) + intOf(added);
        if (sum >= std::numeric_limits<int>::min() && sum <= std::numeric_limits<int>::max())
            total.set(static_cast<int>(sum));
        else
            total.set(static_cast<double>(sum));
        return;
    }
    total.set(numberOf(total) + numberOf(added));
}

// One column of a footer: which datum of the rows it reads, and whether it adds it up.
struct FooterColumn
{
    explicit FooterColumn(const VorBomDataToken& columnToken)
        : token(columnToken.token()), isSum(columnToken.getSummingRequest(token) != 0)
    {
    }

    VorString token;
    bool isSum;
};

// Lets a footer's column take in one row's value.
void takeInto(VorBomDataValue& columnValue, const VorBomDataValue& rowValue, bool isSum)
{
    switch (rowValue.type())
    {
        case VorBomDataValue::kIntData:
        case VorBomDataValue::kDoubleData:
            if (isSum)
                addToTotal(columnValue, rowValue);
            else
                columnValue = rowValue;
            break;
        case VorBomDataValue::kStringData:
            if (isSum)
                VorAssert::vorAssert(L"!bIsSummingRequest", kSourcePath, __LINE__);
            columnValue = rowValue;
            break;
        default: break;
    }
}

VorBomTemplateItem* sectionAt(VorBomItemBase* pItem)
{
    return static_cast<VorBomTemplateItem*>(pItem); // children of sections are sections
}

bool isLastLevel(const VorBomEngineStateArray& stack, int level)
{
    return level == stack.length() - 1;
}
}

int VorBomEvaluator2::evaluate(VorBomTemplate* pTemplate, VorBomTemplate* pResult)
{
    if (pTemplate == nullptr)
        return 0;
    VorBomEngineStateArray stack = getTemplateStack(pTemplate);
    if (stack.isEmpty())
        return 0;
    stack[0].m_pCollector = pResult;
    VorBomData* pData = pTemplate->getBomData();
    if (pData == nullptr)
        return 1;

    VorBomTemplateUnits* pUnits = pTemplate->getBomTemplateUnits();
    sortInpuDataBySortingTokens(pData, stack);
    for (VorBomItemBase* pRow = pData->child(); pRow != nullptr; pRow = pRow->next())
        evaluateData(static_cast<VorBomDataRow*>(pRow), stack, pUnits);
    for (int level = stack.length() - 1; level >= 0; --level)
        endGroup(stack, level, pUnits);
    forgetGroup(stack, 0);
    return 1;
}

VorBomEngineStateArray VorBomEvaluator2::getTemplateStack(VorBomTemplate* pTemplate)
{
    VorBomEngineStateArray stack;
    for (VorBomTemplateItem* pItem = sectionAt(pTemplate->child()); pItem != nullptr; pItem = sectionAt(pItem->child()))
    {
        VorBomEngineState state;
        state.m_pHeader = pItem;
        state.m_pFooter = sectionAt(pItem->next());
        stack.append(std::move(state));
    }
    return stack;
}

VorBomTemplateItem* VorBomEvaluator2::process(VorBomTemplateItem* pTemplateItem, VorBomDataRow* pRow)
{
    if (pTemplateItem == nullptr)
    {
        VorAssert::vorAssert(L"NULL != pTemplateItem", kSourcePath, __LINE__);
        return nullptr;
    }
    auto pEvaluated = copyWithoutLinks(*pTemplateItem);
    for (VorBomDataTuple& tuple : pEvaluated->getData())
    {
        const VorString& token = tuple.token().token();
        if (VorBomDataToken::isFormula(token))
            continue;
        VorBomDataTuple* pDatum = pRow->getTupleAt(token);
        if (pDatum == nullptr)
            continue;
        if (pDatum->value().type() == VorBomDataValue::kUnknownData)
        {
            VorAssert::vorAssert(L"false", kSourcePath, __LINE__);
            continue;
        }
        tuple.value() = pDatum->value();
        pDatum->setUsed(1);
    }
    return pEvaluated.release();
}

VorBomTemplateItem* VorBomEvaluator2::process(VorBomTemplateItem* pTemplateItem, VorBomDataRowPointerArray rows)
{
    if (pTemplateItem == nullptr)
    {
        VorAssert::vorAssert(L"NULL != pTemplateItem", kSourcePath, __LINE__);
        return nullptr;
    }
    auto pEvaluated = copyWithoutLinks(*pTemplateItem);
    VorBomDataTupleArray& tuples = pEvaluated->getData();
    std::vector<FooterColumn> columns;
    for (const VorBomDataTuple& tuple : tuples)
        columns.emplace_back(tuple.token());

    for (const VorBomDataRow* pRow : rows)
    {
        if (pRow->getUseThisDataForSums() == 0)
            continue;
        VorBomDataTuple* pTuple = tuples.begin();
        for (const FooterColumn& column : columns)
        {
            if (const VorBomDataTuple* pDatum = pRow->getTupleAt(column.token))
                takeInto(pTuple->value(), pDatum->value(), column.isSum);
            ++pTuple;
        }
    }
    return pEvaluated.release();
}

int VorBomEvaluator2::evaluateData(VorBomDataRow* pRow, VorBomEngineStateArray& stack, VorBomTemplateUnits* pUnits)
{
    for (int level = 0; level < stack.length(); ++level)
    {
        if (stack[level].m_dataRows.isEmpty())
        {
            beginGroup(pRow, stack, level);
            if (isLastLevel(stack, level))
                endGroup(stack, level, pUnits);
        }
        else if (!dataMatchGroup(pRow, stack[level]))
        {
            for (int inner = level; inner < stack.length(); ++inner)
                endGroup(stack, inner, pUnits);
            beginGroup(pRow, stack, level);
        }
        else
        {
            addedInGroup(pRow, stack, level);
        }
    }
    return 1;
}

int VorBomEvaluator2::beginGroup(VorBomDataRow* pRow, VorBomEngineStateArray& stack, int level)
{
    forgetGroup(stack, level);
    VorBomEngineState& state = stack[level];
    state.m_bGroupOpen = 1;
    VorBomTemplateItem* pEvaluated = process(state.m_pHeader, pRow);
    evaluateExpressions(pEvaluated, pRow);
    pEvaluated->setFirstDataRow(pRow);
    state.m_pEvaluatedHeader = pEvaluated;
    state.m_dataRows.append(pRow);
    return 1;
}

int VorBomEvaluator2::addedInGroup(VorBomDataRow* pRow, VorBomEngineStateArray& stack, int level)
{
    VorBomEngineState& state = stack[level];
    if (state.m_pHeader->type() == VorBomTemplateItem::kDetails) // details that are not the deepest level
        VorAssert::vorAssert(L"VorBomTemplateItem::kDetails != state.m_pHeader->type()", kSourcePath, __LINE__);
    state.m_dataRows.append(pRow);
    return 1;
}

// On purpose: formulas are computed in headers only, not in the footer made here.
// Pinned by VorBomEvaluator2Test.FooterFormulasAreNotComputed.
int VorBomEvaluator2::endGroup(VorBomEngineStateArray& stack, int level, VorBomTemplateUnits* pUnits)
{
    VorBomEngineState& state = stack[level];
    if (state.m_bGroupOpen != 1)
        return 1;
    state.m_bGroupOpen = 0;
    if (state.m_pFooter != nullptr)
        state.m_pEvaluatedFooter = process(state.m_pFooter, state.m_dataRows);
    return groupIsCompleted(stack, level, pUnits);
}

int VorBomEvaluator2::groupIsCompleted(VorBomEngineStateArray& stack, int level, VorBomTemplateUnits* pUnits)
{
    VorBomEngineState& completedGroup = stack[level];
    if (completedGroup.m_pEvaluatedHeader != nullptr)
        applyUnitsForData(pUnits, completedGroup.m_pEvaluatedHeader->getData());
    if (completedGroup.m_pEvaluatedFooter != nullptr)
        applyUnitsForData(pUnits, completedGroup.m_pEvaluatedFooter->getData());
    if (level > 0 && isLastLevel(stack, level))
        dropDuplicateDetails(stack, level);
    hangSections(stack, level);
    completedGroup.m_dataRows.empty();
    return 1;
}

int VorBomEvaluator2::dataMatchGroup(VorBomDataRow* pRow, VorBomEngineState& state)
{
    if (state.m_pHeader == nullptr || state.m_dataRows.isEmpty() || state.m_pHeader->groupingTokens().isEmpty())
        return 1;
    return pRow->compare(state.m_dataRows.last(), state.m_pHeader->groupingTokens()) == 0 ? 1 : 0;
}

// Deletes a details section that reads as the one before it under the same parent, and takes its row out of all sums.
void VorBomEvaluator2::dropDuplicateDetails(VorBomEngineStateArray& stack, int level)
{
    VorBomEngineState& completedGroup = stack[level];
    VorBomTemplateItem* pDetails = completedGroup.m_pEvaluatedHeader;
    if (pDetails == nullptr || pDetails->type() != VorBomTemplateItem::kDetails)
        return;
    VorBomTemplateItem* pParent = stack[level - 1].m_pEvaluatedHeader;
    if (pParent->child() == nullptr || pParent->lastChild() == nullptr ||
        isEqualAsEvaluated(pDetails, sectionAt(pParent->lastChild())) == 0)
        return;

    if (completedGroup.m_dataRows.length() != 1)
        VorAssert::vorAssert(L"1 == completedGroup.m_dataRows.length()", kSourcePath, __LINE__);
    for (VorBomDataRow* pRow : completedGroup.m_dataRows)
        pRow->setUseThisDataForSums(0);
    delete pDetails;
    completedGroup.m_pEvaluatedHeader = nullptr;
}

// Appends the level's header, then its footer, to the sections of the level above, or at level 0 to the collector.
void VorBomEvaluator2::hangSections(VorBomEngineStateArray& stack, int level)
{
    const VorBomEngineState& completedGroup = stack[level];
    VorBomItemBase* pTarget = level == 0 ? completedGroup.m_pCollector : stack[level - 1].m_pEvaluatedHeader;
    if (pTarget == nullptr)
    {
        VorAssert::vorAssert(L"NULL != completedGroup.m_pCollector", kSourcePath, __LINE__);
        return;
    }
    pTarget->addChild(completedGroup.m_pEvaluatedHeader);
    pTarget->addChild(completedGroup.m_pEvaluatedFooter);
}

// Makes the level ready for its next group. What it evaluated hangs in the tree above, unless level 0 had no collector:
// then it is destroyed with everything under it, only now, since inner groups are hung in it after it was closed.
void VorBomEvaluator2::forgetGroup(VorBomEngineStateArray& stack, int level)
{
    VorBomEngineState& state = stack[level];
    if (level == 0 && state.m_pCollector == nullptr)
    {
        if (state.m_pEvaluatedHeader != nullptr)
            state.m_pEvaluatedHeader->empty();
        delete state.m_pEvaluatedHeader;
        delete state.m_pEvaluatedFooter;
    }
    state.m_dataRows.empty();
    state.m_pEvaluatedHeader = nullptr;
    state.m_pEvaluatedFooter = nullptr;
}
