#include "VorBomSectionTree.h"

#include "MekRoots/Exp/VorAssert.h"

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomEvaluator2"; // whose report this is
}

void VorBomSectionTree::take(VorBomEngineStateArray& stack, int level)
{
    VorBomEngineState& completedGroup = stack.begin()[level];
    // Groups are taken innermost first, so the header of the level around is still in its state.
    VorBomItemBase* pParent = level == 0 ? completedGroup.m_pCollector : stack.begin()[level - 1].m_pEvaluatedHeader;
    if (pParent == nullptr)
    {
        VorAssert::vorAssert(L"NULL != completedGroup.m_pCollector", kSourcePath, __LINE__);
        destroySections(completedGroup);
        return;
    }
    pParent->addChild(completedGroup.m_pEvaluatedHeader); // either may be null, which adds nothing
    pParent->addChild(completedGroup.m_pEvaluatedFooter);
    // A merged line without footer adds nothing, and the section before stays what it was.
    completedGroup.m_pSectionBefore = static_cast<const VorBomTemplateItem*>(pParent->lastChild());
    completedGroup.m_pEvaluatedHeader = nullptr;
    completedGroup.m_pEvaluatedFooter = nullptr;
}
