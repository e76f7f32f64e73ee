// Builds the sections of VorBomTemplate::createDefaultTemplate.
//
//   VorBomDefaultTemplate sections;                  // seven sections with their tuples, not linked
//   sections.linkInto(*pTemplate, VorBomDefaultTemplate::kFullTree);   // the template owns them now
//   VorBomDefaultTemplate::registerUnitsWith(*pTemplate->getBomTemplateUnits());
//
// Sections that the layout leaves unlinked belong to whoever holds this object.
#pragma once

#include "VorBomTemplate.h"

struct VorBomDefaultTemplate
{
    enum eLayout : int
    {
        kFullTree = 0,
        kDetailsOnly = 1 // directly under the root; any other layout links nothing
    };

    VorBomDefaultTemplate();

    void linkInto(VorBomTemplate& root, int layout) const;
    static void registerUnitsWith(VorBomTemplateUnits& units);

    // What createDefaultTemplate links; nothing changes it.
    static int s_nLayoutSelector;

    VorBomTemplateItem* m_pReportHeader;
    VorBomTemplateItem* m_pReportFooter;
    VorBomTemplateItem* m_pOuterHeader;
    VorBomTemplateItem* m_pOuterFooter;
    VorBomTemplateItem* m_pInnerHeader;
    VorBomTemplateItem* m_pInnerFooter;
    VorBomTemplateItem* m_pDetails;
};
