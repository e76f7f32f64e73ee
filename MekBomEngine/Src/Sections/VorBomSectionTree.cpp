// Told on level 1 of three, when its group closes. Its header H1 has two lines by now, its footer F1 was just made:
//   before    H0, the header of the level around, has no child yet; H1 and F1 stand in the state of level 1
//   take 1    H1, with its lines, and F1 become children of H0, and the state of level 1 names neither any more
//   then      the next row opens level 1 anew, with a header of its own, which will come behind F1
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
