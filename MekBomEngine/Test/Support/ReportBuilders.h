// Short spellings for data, templates and reports in tests.
//
//   Report report;
//   VorBomTemplateItem* pHeader = report.addSection(nullptr, VorBomTemplateItem::kReportHeader, {});
//   report.addRow({ { L"%Weight", 2.5 } });
//   report.evaluated()   ->  the list() text of the result
#pragma once

#include "MekBomEngine/Src/VorBomEvaluator2.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

// A template with data, the result of its evaluation, and the destruction of both.
class Report
{
public:
    using Type = VorBomTemplateItem::eTemplateItemType;

    Report() : m_pTemplate(new VorBomTemplate), m_pResult(new VorBomTemplate) {}

    VorBomTemplate& tmpl() { return *m_pTemplate; }
    VorBomTemplate& result() { return *m_pResult; }
    VorBomData& data() { return *m_pTemplate->getBomData(); }

    // Appends a section to `pParent`, null for the root.
    VorBomTemplateItem* addSection(VorBomTemplateItem* pParent, Type type,
                                   std::initializer_list<VorBomDataTuple> tuples)
    {
        auto* pSection = new VorBomTemplateItem(type);
        for (const VorBomDataTuple& tuple : tuples)
            pSection->addData(tuple);
        (pParent == nullptr ? m_pTemplate.get() : pParent)->addChild(pSection);
        return pSection;
    }

    VorBomDataRow* addRow(std::initializer_list<VorBomDataTuple> tuples)
    {
        auto* pRow = new VorBomDataRow;
        for (const VorBomDataTuple& tuple : tuples)
            pRow->addData(tuple);
        data().addChild(pRow);
        return pRow;
    }

    // Prepares and evaluates as a host does.
    int evaluate()
    {
        m_pTemplate->findUsedTokens();
        return VorBomEvaluator2::evaluate(m_pTemplate.get(), m_pResult.get());
    }

    VorString evaluated()
    {
        evaluate();
        return resultText();
    }

    // The result's sections, one per line.
    VorString resultText()
    {
        VorString text;
        if (m_pResult->child() != nullptr)
            m_pResult->child()->list(text, 0, 1, 1);
        return text;
    }

    // What the rows carry under `token`, in their present order, blanks between, "-" for a row without it.
    VorString rowTexts(const VorString& token)
    {
        VorString text;
        for (VorBomItemBase* pRow = data().child(); pRow != nullptr; pRow = pRow->next())
        {
            const VorBomDataTuple* pTuple = pRow->getTupleAt(token);
            text += text.isEmpty() ? L"" : L" ";
            text += pTuple == nullptr ? VorString(L"-") : pTuple->value().asString();
        }
        return text;
    }

private:
    std::unique_ptr<VorBomTemplate> m_pTemplate;
    std::unique_ptr<VorBomTemplate> m_pResult;
};

// A tuple that has a token and no value yet.
inline VorBomDataTuple emptyTuple(const wchar_t* token)
{
    VorBomDataTuple tuple(token, 0);
    VorBomDataValue(std::move(tuple.value())); // a moved-from value is empty
    return tuple;
}

// The single steps of an evaluation.
struct VorBomEvaluator2Access
{
    using E = VorBomEvaluator2;

    static VorBomEngineStateArray getTemplateStack(VorBomTemplate* pTemplate) { return E::getTemplateStack(pTemplate); }
    static std::unique_ptr<VorBomTemplateItem> process(VorBomTemplateItem* pSection, VorBomDataRow* pRow)
    {
        return std::unique_ptr<VorBomTemplateItem>(E::process(pSection, pRow));
    }
    static std::unique_ptr<VorBomTemplateItem> process(VorBomTemplateItem* pSection, std::vector<VorBomDataRow*> rows)
    {
        VorBomDataRowPointerArray array;
        for (VorBomDataRow* pRow : rows)
            array.append(pRow);
        return std::unique_ptr<VorBomTemplateItem>(E::process(pSection, array));
    }
    static int evaluateData(VorBomDataRow* pRow, VorBomEngineStateArray& stack, VorBomTemplateUnits* pUnits)
    {
        return E::evaluateData(pRow, stack, pUnits);
    }
    static int dataMatchGroup(VorBomDataRow* pRow, VorBomEngineState& state) { return E::dataMatchGroup(pRow, state); }
    static int endGroup(VorBomEngineStateArray& stack, int level, VorBomTemplateUnits* pUnits)
    {
        return E::endGroup(stack, level, pUnits);
    }
    static int sortInputData(VorBomData* pData, VorBomEngineStateArray& stack,
                             const VorBomTemplate& reportTemplate = VorBomTemplate())
    {
        return E::sortInpuDataBySortingTokens(pData, stack, reportTemplate);
    }
    static int compareDataRow(VorBomDataRow* pFirst, VorBomDataRow* pSecond)
    {
        return E::compareDataRow(&pFirst, &pSecond);
    }
    static int sortSubGroupsOnLevels(VorBomTemplateItem* pItem, VorBomEngineStateArray& stack, int level)
    {
        return E::sortSubGroupsOnLevels(pItem, stack, level);
    }
    static int sortItemList(VorBomTemplateItem*& pFirst, const VorStringArray& tokens)
    {
        return E::sortItemList(pFirst, tokens);
    }
    static int compareEvaluatedItems(const VorHeaderFooterSortingStruct* pFirst,
                                     const VorHeaderFooterSortingStruct* pSecond)
    {
        return E::compareEvaluatedItems(pFirst, pSecond);
    }
    static int isEqualAsEvaluated(VorBomTemplateItem* pFirst, VorBomTemplateItem* pSecond)
    {
        return E::isEqualAsEvaluated(pFirst, pSecond);
    }
    static void evaluateExpressions(VorBomTemplateItem* pItem, VorBomDataRow* pRow)
    {
        E::evaluateExpressions(pItem, pRow);
    }
    static void applyUnitsForData(VorBomTemplateUnits* pUnits, VorBomDataTupleArray& tuples)
    {
        E::applyUnitsForData(pUnits, tuples);
    }
    static void fillGenericString(VorGenericString& target, const VorBomDataRow* pRow)
    {
        E::fillGenericString(target, pRow);
    }
    static const VorStringArray& sortTokens() { return E::m_arrTokensToSortDataRow; }
    static const VorArray<int>& sortOrders() { return E::m_arrSortOrderForDataRow; }
};
