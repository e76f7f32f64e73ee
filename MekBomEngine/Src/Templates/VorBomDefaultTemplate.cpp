#include "VorBomDefaultTemplate.h"

namespace
{
using Sections = VorBomDefaultTemplate;

struct Instruction // starts with empty text
{
    VorBomTemplateItem* Sections::*section;
    const wchar_t* token;
};

struct Column // starts with 0
{
    VorBomTemplateItem* Sections::*section;
    const wchar_t* token;
};

// In each section the instructions stand before the columns. On purpose: spelled as they are, missing "%" included; see
// VorBomTemplate::createDefaultTemplate.
const Instruction kInstructions[] = {
    { &Sections::m_pReportHeader, L"%FilterBy: %Beam , %Plate" }, { &Sections::m_pOuterHeader, L"%GroupBy:%PosNum" },
    { &Sections::m_pOuterHeader, L"%SortAscBy:%Material" },       { &Sections::m_pInnerHeader, L"%GroupBy:Material" },
    { &Sections::m_pInnerHeader, L"%SortDescBy:Weight" },
};
const Column kColumns[] = {
    { &Sections::m_pOuterHeader, L"%PosNum" },
    { &Sections::m_pInnerHeader, L"%Material" },
    { &Sections::m_pDetails, L"%posNum" },
    { &Sections::m_pDetails, L"%Weight" },
    { &Sections::m_pDetails, L"%Material" },
    { &Sections::m_pInnerFooter, L"%SumBy:%Weight" },
    { &Sections::m_pOuterFooter, L"%SumBy:%Weight" },
};
}

int VorBomDefaultTemplate::s_nLayoutSelector = VorBomDefaultTemplate::kFullTree;

VorBomDefaultTemplate::VorBomDefaultTemplate()
    : m_pReportHeader(new VorBomTemplateItem(VorBomTemplateItem::kReportHeader)),
      m_pReportFooter(new VorBomTemplateItem(VorBomTemplateItem::kReportFooter)),
      m_pOuterHeader(new VorBomTemplateItem(VorBomTemplateItem::kGroupHeader)),
      m_pOuterFooter(new VorBomTemplateItem(VorBomTemplateItem::kGroupFooter)),
      m_pInnerHeader(new VorBomTemplateItem(VorBomTemplateItem::kGroupHeader)),
      m_pInnerFooter(new VorBomTemplateItem(VorBomTemplateItem::kGroupFooter)),
      m_pDetails(new VorBomTemplateItem(VorBomTemplateItem::kDetails))
{
    for (const Instruction& instruction : kInstructions)
        (this->*instruction.section)->addData(VorBomDataTuple(instruction.token, VorString()));
    for (const Column& column : kColumns)
        (this->*column.section)->addData(VorBomDataTuple(column.token, 0));
}

void VorBomDefaultTemplate::linkInto(VorBomTemplate& root, int layout) const
{
    if (layout == kDetailsOnly)
        root.addChild(m_pDetails);
    if (layout != kFullTree)
        return;
    root.addChild(m_pReportHeader);
    root.addChild(m_pReportFooter);
    m_pReportHeader->addChild(m_pOuterHeader);
    m_pReportHeader->addChild(m_pOuterFooter);
    m_pOuterHeader->addChild(m_pInnerHeader);
    m_pOuterHeader->addChild(m_pInnerFooter);
    m_pInnerHeader->addChild(m_pDetails);
}

void VorBomDefaultTemplate::registerUnitsWith(VorBomTemplateUnits& units)
{
    units.AddTokenType(L"%PosNum", VorBomTemplateUnits::kNoUnit);
    units.AddTokenType(L"%Material", VorBomTemplateUnits::kNoUnit);
    units.AddTokenType(L"%Weight", VorBomTemplateUnits::kWeightUnit);
    units.AddTokenType(L"%SumBy:%Weight", VorBomTemplateUnits::kWeightUnit);
}
