// What a template makes of any parts list, level by level, in plain words.
//
//   TemplateInWords(reportTemplate).text()
//
//   Level 1, a group for each different %Material, sorted by %Material, ascending, as plain text
//     header  shows %Material, of the row that opens it
//     footer  adds up %Weight, from 0
//   Level 2, a line for each row
//     line    shows %Name; computes %Weight*%Quantity
//
// Says what the evaluation does and not what the types of sections promise: a group whose rows the sorting does not
// bring together is "a group for each run of rows with the same %Material".
#pragma once

#include "ReportTemplate.h"
#include "TemplateLevels.h"

#include "MekRoots/Exp/VorString.h"

#include <string>
#include <vector>

namespace mekbom
{
class TemplateInWords
{
public:
    // The template is not owned and outlives this object.
    explicit TemplateInWords(const ReportTemplate& reportTemplate);

    // In UTF-8, each line with its end.
    std::string text() const;

private:
    struct SortKey
    {
        VorString token;
        bool isAscending;
    };

    // Parts of the text, each with its line ends, and parts of a line.
    std::string head() const;
    std::string level(int level) const;
    std::string whatItIs(int level) const;
    std::string sorting(int level) const;
    std::string groupOrder(int level) const;
    std::string section(SectionPlace place) const;
    std::vector<std::string> tuples(const VorBomTemplateItem& section, SectionPlace place) const;
    std::string order(const VorString& token) const;
    bool bringsTogether(int level) const;

    const ReportTemplate& m_template;
    TemplateLevels m_levels;
    std::vector<std::vector<SortKey>> m_sortKeys; // of each level
};
}
