// A template as its file gives it: the engine's sections, and what the program alone knows about printing them.
//
//   ReportTemplate list = TemplateReader::read(file.name, file.text);
//   const VorBomItemBase& section = *list.pTemplate->child();
//   for (const int tuple : list.shownTuplesOf(section))
//       show(list.columnTokenOf(section, tuple));
//
// Owns the engine's template; may be moved, not copied. Sections are told apart by their address, so styles are good as
// long as the sections that the file gave stay where they are.
#pragma once

#include "Finding.h"
#include "QueryFilter.h"

#include "VorBomTemplate.h"
#include "VorBomTemplateItem.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace mekbom
{
// How one column of the table is to look.
struct ColumnStyle
{
    enum eAlignment
    {
        kByType, // numbers right, texts left
        kLeft,
        kRight
    };

    VorString token;
    std::string label; // UTF-8; empty for one made of the token
    int width = 0;     // in characters on a terminal; 0 for what the longest text needs
    eAlignment alignment = kByType;
};

// How the lines of one section are to look.
struct SectionStyle
{
    bool isPrinted = true;
    std::string label;                   // stands in the first column that the line leaves empty
    std::vector<VorString> columnTokens; // for each tuple the column that the file names; empty texts for the usual one
};

struct ReportTemplate
{
    std::unique_ptr<VorBomTemplate> pTemplate;
    std::string title; // UTF-8
    QueryFilter queryFilter;
    std::vector<ColumnStyle> columns; // in the order of the table; columns not named here follow
    std::unordered_map<const VorBomItemBase*, SectionStyle> sectionStyles;

    std::vector<Finding> findings; // what the file says to no effect; none of them is an error

    // The style of a section of pTemplate; the usual one for a section without.
    const SectionStyle& styleOf(const VorBomItemBase* pSection) const;

    // The column that shows a section's tuple: the one the file names for it, else the one that has its very token,
    // else the column of what it sums. Empty for a tuple that steers the evaluation and is not shown.
    //   "%Weight"         ->  "%Weight"
    //   "%SumBy:%Weight"  ->  "%Weight", unless there is a column "%SumBy:%Weight"
    VorString columnTokenOf(const VorBomItemBase& section, int tupleIndex) const;

    // Which of a section's tuples have a column; none when the section is not printed.
    std::vector<int> shownTuplesOf(const VorBomItemBase& section) const;

    // Whether the section has a line in the table: a printed one that shows a tuple or a label.
    bool hasLine(const VorBomItemBase& section) const;
};
}
