// The sections of a shape's report: groups within groups, a details line for each row, sums of weights.
//
//   ShapeSections sections;                       // the plain report
//   sections.groups.push_back(L"%Phase");         // a third level within the others
//   const auto pReport = sections.create();
//
//     report header
//       group header %Material                    ascending
//         group header %MNum                      in natural order
//           details                               by length, the longest first; fourteen columns, one formula
//         group footer                            sum of weights, as in the others
//       group footer
//     report footer
#pragma once

#include "MekBomEngine/Src/VorBomTemplate.h"

#include <memory>
#include <vector>

struct ShapeSections
{
    std::vector<VorString> groups{ L"%Material", L"%MNum" }; // each level by one token, outermost first
    std::vector<VorString> columns{ L"%Handle", L"%Num",     L"%MNum",  L"%Material", L"%Name",
                                    L"%Length", L"%Weight",  L"%Paint", L"%Quantity", L"%Phase",
                                    L"%Class",  L"%Coating", L"%Thick", L"%Width" };
    std::vector<VorString> formulas{ L"%Formula:%Length*%Quantity/1000" };

    // A template without rows. Units are set and tokens found once it has them, by prepare().
    std::unique_ptr<VorBomTemplate> create() const;

    // What a host does with a template that has its rows, before it evaluates.
    static void prepare(VorBomTemplate& report);
};
