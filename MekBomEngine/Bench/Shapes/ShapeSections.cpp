#include "ShapeSections.h"

#include "MekRoots/Exp/VorUnitsManager.h"

namespace
{
using Item = VorBomTemplateItem;

Item* addSection(VorBomItemBase& parent, Item::eTemplateItemType type, const std::vector<VorString>& tokens)
{
    auto* pSection = new Item(type);
    for (const VorString& token : tokens)
        pSection->addData(VorBomDataTuple(token, VorString()));
    parent.addChild(pSection);
    return pSection;
}

VorString request(const VorString& prefix, const VorString& token)
{
    VorString text = prefix;
    text += token;
    return text;
}

void addWeightFooter(VorBomItemBase& parent, Item::eTemplateItemType type)
{
    addSection(parent, type, {})->addData(VorBomDataTuple(L"%SumBy:%Weight", 0.0));
}

void addDetails(VorBomItemBase& parent, const ShapeSections& sections)
{
    std::vector<VorString> tokens{ L"%SortDescBy:%Length" };
    tokens.insert(tokens.end(), sections.columns.begin(), sections.columns.end());
    tokens.insert(tokens.end(), sections.formulas.begin(), sections.formulas.end());
    addSection(parent, Item::kDetails, tokens);
}
}

std::unique_ptr<VorBomTemplate> ShapeSections::create() const
{
    auto pReport = std::make_unique<VorBomTemplate>();
    VorBomItemBase* pLevel = addSection(*pReport, Item::kReportHeader, {});
    addWeightFooter(*pReport, Item::kReportFooter);
    for (const VorString& token : groups)
    {
        VorBomItemBase* pGroup = addSection(
            *pLevel, Item::kGroupHeader,
            { request(VorBomDataToken::kGroupPrefix, token), request(VorBomDataToken::kSortAscPrefix, token), token });
        addWeightFooter(*pLevel, Item::kGroupFooter);
        pLevel = pGroup;
    }
    addDetails(*pLevel, *this);
    return pReport;
}

void ShapeSections::prepare(VorBomTemplate& report)
{
    const VorUnitsManager metric;
    report.setUnitsForTokens(&metric);
    report.findUsedTokens();
}
