#include "VorBomSectionTarget.h"

namespace
{
// A header of a tree may have lines and whole groups in it by now; deleting it alone would leak them.
void destroy(VorBomTemplateItem*& pSection)
{
    if (pSection != nullptr)
        pSection->empty();
    delete pSection;
    pSection = nullptr;
}
}

void VorBomSectionTarget::destroySections(VorBomEngineState& state)
{
    destroy(state.m_pEvaluatedHeader);
    destroy(state.m_pEvaluatedFooter);
}
