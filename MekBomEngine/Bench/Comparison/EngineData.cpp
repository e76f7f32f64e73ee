#include "EngineData.h"

#include "PartsFile.h"

#include "MekRoots/Exp/MEKUnit.h"
#include "MekRoots/Exp/VorUnitTransform.h"
#include "MekRoots/Exp/VorUnitsManager.h"

#include <initializer_list>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace
{
using Item = VorBomTemplateItem;

const wchar_t* const kTokens[PartsFile::kNumColumns] = { L"%Handle", L"%Num",     L"%MNum",  L"%Material", L"%Name",
                                                         L"%Length", L"%Weight",  L"%Paint", L"%Quantity", L"%Phase",
                                                         L"%Class",  L"%Coating", L"%Thick", L"%Width" };
const wchar_t kFormula[] = L"%Formula:%Length*%Quantity/1000";

bool isNumber(int column)
{
    return column == PartsFile::kLength || column == PartsFile::kWeight || column == PartsFile::kPaint ||
           column == PartsFile::kThickness || column == PartsFile::kWidth;
}

VorString wideText(std::string_view text)
{
    const std::wstring wide(text.begin(), text.end()); // the file is ASCII
    return VorString(wide.c_str());
}

Item* addSection(VorBomItemBase& parent, Item::eTemplateItemType type, std::initializer_list<const wchar_t*> tokens)
{
    auto* pSection = new Item(type);
    for (const wchar_t* token : tokens)
        pSection->addData(VorBomDataTuple(token, VorString()));
    parent.addChild(pSection);
    return pSection;
}

void addWeightFooter(VorBomItemBase& parent, Item::eTemplateItemType type)
{
    addSection(parent, type, {})->addData(VorBomDataTuple(L"%SumBy:%Weight", 0.0));
}

void addDetails(VorBomItemBase& parent, eLastColumn lastColumn)
{
    Item* pDetails = addSection(parent, Item::kDetails, { L"%SortDescBy:%Length" });
    for (const wchar_t* token : kTokens)
        pDetails->addData(VorBomDataTuple(token, VorString()));
    if (lastColumn != kNoColumn)
        pDetails->addData(VorBomDataTuple(lastColumn == kFormulaColumn ? kFormula : L"%Length", VorString()));
}

// Reads rows one after the other, remembering the texts of each column where they are shared.
class RowReader
{
public:
    RowReader(const std::string& path, eTexts texts) : m_file(path), m_nTexts(texts)
    {
        for (const wchar_t* token : kTokens)
            m_tokens.emplace_back(token);
    }

    bool next() { return m_file.next(); }

    std::unique_ptr<VorBomDataRow> row()
    {
        auto pRow = std::make_unique<VorBomDataRow>();
        pRow->getData().setPhysicalLength(PartsFile::kNumColumns + 1); // room for the formula's result
        for (int i = 0; i < PartsFile::kNumColumns; ++i)
            pRow->addData(tuple(static_cast<PartsFile::eColumn>(i)));
        pRow->setObjectHandle(*static_cast<const VorString*>(pRow->getData().first().value().data()));
        return pRow;
    }

private:
    VorBomDataTuple tuple(PartsFile::eColumn column)
    {
        const VorString& token = m_tokens[static_cast<std::size_t>(column)];
        if (column == PartsFile::kQuantity)
            return VorBomDataTuple(token, static_cast<int>(m_file.number(column)));
        if (column == PartsFile::kPaint)
            return VorBomDataTuple(token, m_squareMetre.getVorUnitTransform().toInternalUnits(m_file.number(column)));
        if (isNumber(column))
            return VorBomDataTuple(token, m_file.number(column));
        if (m_nTexts == kOwnTexts || column == PartsFile::kHandle) // of handles no two are equal
            return VorBomDataTuple(token, wideText(m_file.text(column)));
        return VorBomDataTuple(token, sharedText(column));
    }

    const VorString& sharedText(PartsFile::eColumn column)
    {
        const auto [found, isNew] = m_texts[column].try_emplace(m_file.text(column));
        if (isNew)
            found->second = wideText(found->first);
        return found->second;
    }

    PartsFile m_file;
    const eTexts m_nTexts;
    const MEKUnit m_squareMetre{ 3003, 3003, 2 };
    std::vector<VorString> m_tokens;
    std::unordered_map<std::string_view, VorString> m_texts[PartsFile::kNumColumns];
};
}

std::unique_ptr<VorBomTemplate> createComparisonReport(eLastColumn lastColumn)
{
    auto pReport = std::make_unique<VorBomTemplate>();
    Item* pHeader = addSection(*pReport, Item::kReportHeader, {});
    addWeightFooter(*pReport, Item::kReportFooter);
    Item* pMaterial =
        addSection(*pHeader, Item::kGroupHeader, { L"%GroupBy:%Material", L"%SortAscBy:%Material", L"%Material" });
    addWeightFooter(*pHeader, Item::kGroupFooter);
    Item* pMark = addSection(*pMaterial, Item::kGroupHeader, { L"%GroupBy:%MNum", L"%SortAscBy:%MNum", L"%MNum" });
    addWeightFooter(*pMaterial, Item::kGroupFooter);
    addDetails(*pMark, lastColumn);
    const VorUnitsManager metric;
    pReport->setUnitsForTokens(&metric);
    pReport->findUsedTokens();
    return pReport;
}

void loadComparisonRows(VorBomTemplate& report, const std::string& path, eTexts texts)
{
    RowReader reader(path, texts);
    while (reader.next())
        report.getBomData()->addChild(reader.row().release());
}

InputRows::InputRows(VorBomTemplate& report) : m_pOwner(report.getBomData())
{
    for (VorBomItemBase* pRow = m_pOwner->child(); pRow != nullptr; pRow = pRow->next())
        m_rows.push_back(static_cast<VorBomDataRow*>(pRow));
}

void InputRows::hangUnder(VorBomTemplate& report)
{
    restore();
    m_pOwner->setChild(nullptr);
    m_pOwner = report.getBomData();
    m_pOwner->setChild(m_rows.empty() ? nullptr : m_rows.front());
}

void InputRows::restore()
{
    VorBomItemBase* pNext = nullptr;
    for (auto p = m_rows.rbegin(); p != m_rows.rend(); ++p)
    {
        VorBomDataRow& row = **p;
        row.getData().setLogicalLength(PartsFile::kNumColumns);
        for (VorBomDataTuple& tuple : row.getData())
            tuple.setUsed(0);
        row.setUseThisDataForSums(1);
        row.setNext(pNext);
        pNext = &row;
    }
}
