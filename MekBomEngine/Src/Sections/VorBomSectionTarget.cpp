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

// Called for every level when an evaluation ends. After the last row, or a stop between two rows, there is nothing left
// to destroy. Where a tree has run out of memory, there are the headers of all open groups; where a sink has thrown,
// the section that it was to get next may be left, and the footers of groups that were to be handed over after it.
void VorBomSectionTarget::destroySections(VorBomEngineState& state)
{
    destroy(state.m_pEvaluatedHeader);
    destroy(state.m_pEvaluatedFooter);
}
