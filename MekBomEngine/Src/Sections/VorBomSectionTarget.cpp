#include "VorBomSectionTarget.h"

namespace
{
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
