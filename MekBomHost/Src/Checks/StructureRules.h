// The rules about the structure of sections, MB101 to MB109: what stands where, whatever it shows.
#pragma once

#include "TemplateRules.h"

namespace mekbom
{
class StructureRules : private TemplateRules
{
public:
    using TemplateRules::TemplateRules;

    void run();

private:
    void findPageHeaderFirst();
    void findThirdSections(const CheckedLevel& level);
    void findFooterOfOtherType(const CheckedLevel& level);
    void findGroupHeaderDeepest();
    void findEmptyDetails();
    void findDetailsWithoutMark();
    void findSectionsBelowDetails(std::size_t level);
    void findChildrenOfFooter(const CheckedLevel& level);
    void findFooterBesideDetails();

    bool isDetailsDeepest() const;
};
}
