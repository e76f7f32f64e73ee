// A template holds its sections, units and data together. Told on sections that name %Length and %Name:
//   setUnitsForTokens    registers every token that is known to have a unit, used or not; %Length is a distance
//   findUsedTokens       traces %Length and %Name, and fills what the sections group and sort by
//   isTokenRequired      tells the host that lengths and names are all that it has to gather from its model
//   getBomData           takes the rows that carry these; then all is there that an evaluation reads
#include "VorBomTemplate.h"

#include "VorBomDefaultTemplate.h"
#include "VorBomTokenTrace.h"

#include "MekRoots/Exp/VorStringOrder.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace
{
struct TokenUnit
{
    const wchar_t* token;
    VorBomTemplateUnits::eTokenUnitType type;
};

// The kind of unit of each token whose data are doubles in the catalogue. None of them is an angle: a host whose data
// have angles registers their tokens itself.
// On purpose: "%contourLength" and the two percent signs of "%%PaintMeter" are how the data are named.
// Pinned by VorBomTemplateTest.SetUnitsForTokensRegistersTheWholeTable.
const TokenUnit kTokenUnits[] = {
    { L"%Length", VorBomTemplateUnits::kDistanceUnit },
    { L"%SysLength", VorBomTemplateUnits::kDistanceUnit },
    { L"%SawLength", VorBomTemplateUnits::kDistanceUnit },
    { L"%CurvedBeamRadius", VorBomTemplateUnits::kDistanceUnit },
    { L"%Diameter", VorBomTemplateUnits::kDistanceUnit },
    { L"%Thick", VorBomTemplateUnits::kDistanceUnit },
    { L"%Width", VorBomTemplateUnits::kDistanceUnit },
    { L"%contourLength", VorBomTemplateUnits::kDistanceUnit },
    { L"%LengthInModel", VorBomTemplateUnits::kDistanceUnit },
    { L"%SawLengthInModel", VorBomTemplateUnits::kDistanceUnit },
    { L"%EDValue", VorBomTemplateUnits::kDistanceUnit },
    { L"%WidthExtensionLeft", VorBomTemplateUnits::kDistanceUnit },
    { L"%WidthExtensionRight", VorBomTemplateUnits::kDistanceUnit },
    { L"%BarSpacing", VorBomTemplateUnits::kDistanceUnit },
    { L"%CrossBarSpacing", VorBomTemplateUnits::kDistanceUnit },
    { L"%ObjectTopLevel", VorBomTemplateUnits::kDistanceUnit },
    { L"%ObjectBottomLevel", VorBomTemplateUnits::kDistanceUnit },
    { L"%Weight", VorBomTemplateUnits::kWeightUnit },
    { L"%WeightInAssembly", VorBomTemplateUnits::kWeightUnit },
    { L"%WeightInAllAssembly", VorBomTemplateUnits::kWeightUnit },
    { L"%WeightInAllAssemblyInPhase", VorBomTemplateUnits::kWeightUnit },
    { L"%WeightInPhase", VorBomTemplateUnits::kWeightUnit },
    { L"%WeightInModel", VorBomTemplateUnits::kWeightUnit },
    { L"%AssemblyWeight", VorBomTemplateUnits::kWeightUnit },
    { L"%ExactWeight", VorBomTemplateUnits::kWeightUnit },
    { L"%ExactWeightInAssembly", VorBomTemplateUnits::kWeightUnit },
    { L"%ExactWeightInAllAssembly", VorBomTemplateUnits::kWeightUnit },
    { L"%ExactWeightInAllAssemblyInPhase", VorBomTemplateUnits::kWeightUnit },
    { L"%ExactWeightInPhase", VorBomTemplateUnits::kWeightUnit },
    { L"%ExactWeightInModel", VorBomTemplateUnits::kWeightUnit },
    { L"%AssemblyExactWeight", VorBomTemplateUnits::kWeightUnit },
    { L"%Area", VorBomTemplateUnits::kAreaUnit },
    { L"%Paint", VorBomTemplateUnits::kAreaUnit },
    { L"%PaintInAssembly", VorBomTemplateUnits::kAreaUnit },
    { L"%ExactPaintArea", VorBomTemplateUnits::kAreaUnit },
    { L"%WeightMeter", VorBomTemplateUnits::kWeightPerDistanceUnit },
    { L"%%PaintMeter", VorBomTemplateUnits::kAreaPerDistanceUnit },
    { L"%Density", VorBomTemplateUnits::kDensityUnit },
};

// Every section from `pRoot` down, level by level.
std::vector<VorBomTemplateItem*> sectionsBreadthFirst(VorBomTemplateItem* pRoot)
{
    std::vector<VorBomTemplateItem*> sections{ pRoot };
    // By index, since the list grows while it is gone through.
    for (std::size_t i = 0; i < sections.size(); ++i)
        for (VorBomItemBase* pItem = sections[i]->child(); pItem != nullptr; pItem = pItem->next())
            sections.push_back(static_cast<VorBomTemplateItem*>(pItem));
    return sections;
}

// From the section's first row to the end of the data, not of the section: rows are one chain.
void reportUsedData(VorBomTemplateItem& section, VorStringArrayArray& handles, VorStringArrayArray& tokens)
{
    for (VorBomItemBase* pItem = section.getFirstDataRow(); pItem != nullptr; pItem = pItem->next())
    {
        auto* pRow = static_cast<VorBomDataRow*>(pItem);
        if (pRow->getUseThisDataForSums())
            pRow->appendUsedHandlesAndTokens(handles, tokens);
    }
}
}

// Units and data are there from the start, so that a host may fill them in any order, and go with the template.
VorBomTemplate::VorBomTemplate() : m_pUnits(new VorBomTemplateUnits), m_pData(new VorBomData)
{
    setType(kBomTemplate);
}

VorBomTemplate::~VorBomTemplate()
{
    empty();
    delete m_pUnits;
    m_pUnits = nullptr;
    if (m_pData != nullptr)
        m_pData->empty();
    delete m_pData;
    m_pData = nullptr;
}

VorBomTemplate* VorBomTemplate::createDefaultTemplate()
{
    auto* pTemplate = new VorBomTemplate;
    const VorBomDefaultTemplate sections;
    sections.linkInto(*pTemplate, VorBomDefaultTemplate::s_nLayoutSelector);
    VorBomDefaultTemplate::registerUnitsWith(*pTemplate->getBomTemplateUnits());
    return pTemplate;
}

VorBomData* VorBomTemplate::exchangeBomData(VorBomData* pData)
{
    return std::exchange(m_pData, pData);
}

void VorBomTemplate::setUnitsForTokens(const VorUnitsManager* pManager)
{
    if (pManager != nullptr)
        m_pUnits->setUnits(pManager);
    for (const TokenUnit& entry : kTokenUnits)
        m_pUnits->AddTokenType(entry.token, entry.type);
}

// Told on a group header with "%GroupBy:%PosNum" and its footer with "%SumBy:%Weight":
//   tuples of the header        %GroupBy:%PosNum
//   what it groups by           %PosNum
//   tuples of the footer        %SumBy:%Weight, and what that sums: %Weight
//
// Every section is visited, so each fills its own caches only: going down the nested group headers from every one of
// them would cost the square of their depth.
int VorBomTemplate::findUsedTokens()
{
    VorBomTokenTrace trace(m_tokenTrace);
    for (VorBomTemplateItem* pSection : sectionsBreadthFirst(this))
    {
        for (const VorBomDataTuple& tuple : pSection->getData())
            trace.addTuple(tuple.token().token());
        pSection->findOwnGroupingTokens();
        pSection->findOwnSortingTokens();
        trace.addGroupingTokens(pSection->groupingTokens());
        trace.addSortingTokens(pSection->sortingTokens());
    }
    trace.sort();
    return 1;
}

// A template that uses no token is searched each time it is asked, as its trace stays empty; there is little to search.
const VorStringArray& VorBomTemplate::getTokenTrace()
{
    if (m_tokenTrace.isEmpty())
        findUsedTokens();
    return m_tokenTrace;
}

bool VorBomTemplate::isTokenRequired(const VorString& token) const
{
    // In the order in which findUsedTokens left the trace, which is empty before.
    return std::binary_search(m_tokenTrace.begin(), m_tokenTrace.end(), token, VorStringLessNoCase());
}

void VorBomTemplate::setSortType(const VorString& token, VorBomDataToken::eSortType sortType)
{
    bool inserted = false;
    m_sortTypes.findOrInsert(token, sortType, inserted)->value = sortType;
}

void VorBomTemplate::setSortOrder(const VorString& token, const VorStringArray& values)
{
    for (auto& [ordered, order] : m_sortOrders)
        if (ordered == token)
        {
            order = values;
            return;
        }
    m_sortOrders.emplace_back(token, values);
}

const VorStringArray& VorBomTemplate::sortOrder(const VorString& token) const
{
    static const VorStringArray kNone;
    for (const auto& [ordered, order] : m_sortOrders)
        if (ordered == token)
            return order;
    return kNone;
}

void VorBomTemplate::setNumberFormat(const VorBomTemplateItem& section, int tuple, const VorBomNumberFormat* pFormat)
{
    m_numberFormats[{ &section, tuple }] = pFormat;
}

const VorBomNumberFormat* VorBomTemplate::numberFormat(const VorBomTemplateItem& section, int tuple) const
{
    const auto found = m_numberFormats.find({ &section, tuple });
    return found == m_numberFormats.end() ? nullptr : found->second;
}

int VorBomTemplate::getUsedHandlesAndTokens(VorStringArrayArray& handles, VorStringArrayArray& tokens)
{
    for (VorBomItemBase* pItem = child(); pItem != nullptr; pItem = pItem->next())
    {
        auto* pSection = static_cast<VorBomTemplateItem*>(pItem);
        reportUsedData(*pSection, handles, tokens);
        if (pSection->type() == kReportFooter)
            break;
    }
    return 1;
}

bool VorBomTemplate::isObjectPresentationOptionOn(eObjectsPresentationOptions option) const
{
    return isObjectPresentationOptionOn(m_nObjectPresentationOptions, option);
}

// Where two bits are asked for, one does not do: 5 is on in 7, but not in 4.
bool VorBomTemplate::isObjectPresentationOptionOn(int options, eObjectsPresentationOptions option)
{
    return (options & option) == option;
}

void VorBomTemplate::setQueryFilter(VorString filter)
{
    m_queryFilter = std::move(filter);
}
