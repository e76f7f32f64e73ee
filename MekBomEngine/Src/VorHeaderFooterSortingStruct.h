// What moves as one when evaluated sections are sorted: a header or details section, and the footer that follows it.
//
//   VorHeaderFooterSortingStruct pair;
//   pair.m_pHeaderItem = pHeader;   // of the siblings H1 F1 H2 the first two; H2 makes a pair by itself
//   pair.m_pFooterItem = pFooter;
//
// Neither section is owned, and copies are as good as their source.
//
// Only the header takes part in comparing: a pair stands where the data of the row that opened its header put it.
// Lists of pairs move them byte by byte, which the two plain pointers allow; a member with a copy constructor of its
// own would not.
#pragma once

#include "VorBomTemplateItem.h"

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorArray.h"

class MEK_BOM_API VorHeaderFooterSortingStruct
{
public:
    // Null only in a pair that was not filled yet.
    VorBomTemplateItem* m_pHeaderItem = nullptr;
    VorBomTemplateItem* m_pFooterItem = nullptr; // null when no footer follows
};

using VorHeaderFooterSortingArray =
    VorArray<VorHeaderFooterSortingStruct, VorArrayMemCopyReallocator<VorHeaderFooterSortingStruct>>;
