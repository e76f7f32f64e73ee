// What moves as one when evaluated sections are sorted: a header or details section, and the footer that follows it.
// Owns nothing.
#pragma once

#include "VorBomTemplateItem.h"

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorArray.h"

class MEK_BOM_API VorHeaderFooterSortingStruct
{
public:
    VorBomTemplateItem* m_pHeaderItem = nullptr;
    VorBomTemplateItem* m_pFooterItem = nullptr; // null when no footer follows
};

using VorHeaderFooterSortingArray =
    VorArray<VorHeaderFooterSortingStruct, VorArrayMemCopyReallocator<VorHeaderFooterSortingStruct>>;
