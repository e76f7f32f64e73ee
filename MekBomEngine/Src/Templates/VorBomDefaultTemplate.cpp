// Two tables say what the seven sections hold, the constructor gives it to them, and linkInto() hangs them together.
// Told on the inner group header, which is a section of both tables:
//   kInstructions   "%GroupBy:Material" and "%SortDescBy:Weight", each with an empty text
//   kColumns        "%Material" with 0
//   its tuples      [%GroupBy:Material:][%SortDescBy:Weight:][%Material:0]
//   linkInto        it becomes a child of the outer header; its footer, the next child, closes what it opens
// Sections are made whether or not they are linked: the layout says later which of them belong to the report.
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

// Of two children the first opens a level and the second closes it, so headers are hung before their footers.
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

// A total is shown in the unit of what it sums, so the last entry changes no text of a report; it is for callers who
// ask the units for that very token. The first two keep their tokens from getting a unit later: the first registration
// wins.
void VorBomDefaultTemplate::registerUnitsWith(VorBomTemplateUnits& units)
{
    units.AddTokenType(L"%PosNum", VorBomTemplateUnits::kNoUnit);
    units.AddTokenType(L"%Material", VorBomTemplateUnits::kNoUnit);
    units.AddTokenType(L"%Weight", VorBomTemplateUnits::kWeightUnit);
    units.AddTokenType(L"%SumBy:%Weight", VorBomTemplateUnits::kWeightUnit);
}
