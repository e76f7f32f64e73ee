// Makes a tree again of the sections that an evaluation hands over one by one:
//   VorBomTemplate result;
//   SectionTree tree(result);
//   VorBomEvaluator2::evaluate(pTemplate, tree);     // result is what evaluate(pTemplate, &result) makes of it
#pragma once

#include "MekBomEngine/Src/VorBomSectionSink.h"

#include <cstddef>
#include <vector>

class SectionTree : public VorBomSectionSink
{
public:
    explicit SectionTree(VorBomItemBase& result) : m_parents{ &result } {}

    void takeHeader(const VorBomReportSection& header) override
    {
        VorBomTemplateItem* pHeader = hang(header);
        m_parents.resize(static_cast<std::size_t>(header.level) + 1);
        m_parents.push_back(pHeader);
    }
    void takeFooter(const VorBomReportSection& footer) override { hang(footer); }

private:
    VorBomTemplateItem* hang(const VorBomReportSection& taken)
    {
        auto* pCopy = new VorBomTemplateItem(taken.section);
        pCopy->setNext(nullptr);
        pCopy->setChild(nullptr);
        m_parents.at(static_cast<std::size_t>(taken.level))->addChild(pCopy);
        return pCopy;
    }

    std::vector<VorBomItemBase*> m_parents; // of sections of level 0, 1 ... that come next
};
