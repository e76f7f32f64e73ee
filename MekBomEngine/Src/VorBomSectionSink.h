// Takes an evaluated report section by section, each before what is under it, a footer after: the order in which
// VorBomItemBase::list writes the tree of the same report.
//
//   class TotalsOnly : public VorBomSectionSink
//   {
//       void takeHeader(const VorBomTemplateItem&, int) override {}
//       void takeFooter(const VorBomTemplateItem& footer, int level) override { print(footer.getData(), level); }
//   };
//   TotalsOnly totals;
//   VorBomEvaluator2::evaluate(pTemplate, totals);
//
// A section is complete when it is handed over, its numbers shown as texts, but hangs in no tree: its links say nothing.
// It lives until the call returns. Levels count from 0, the outermost; details are headers of the deepest level, and
// lines that were merged away are not handed over. A sink should not throw: the sections in progress would be leaked.
#pragma once

#include "VorBomTemplateItem.h"

class VorBomSectionSink
{
public:
    virtual ~VorBomSectionSink() = default;

    virtual void takeHeader(const VorBomTemplateItem& header, int level) = 0;
    virtual void takeFooter(const VorBomTemplateItem& footer, int level) = 0;

protected:
    VorBomSectionSink() = default;
    VorBomSectionSink(const VorBomSectionSink&) = default;
    VorBomSectionSink& operator=(const VorBomSectionSink&) = default;
};
