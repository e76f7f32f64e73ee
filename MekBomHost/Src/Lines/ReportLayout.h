// Which columns a report has, and in which of them each section shows its tuples.
//
// Every tuple that is shown has a column: that of ReportTemplate::columnTokenOf. Columns that the template describes
// come first, in its order, then the others as the sections name them: headers from the outside in, footers from the
// inside out. Two tuples of one section never share a column; the second one gets one of its own.
//
//   columns described   %Name
//   details show        %Name  %Weight  %Name               ->   columns   %Name  %Weight  %Name
//   report footer       %SumBy:%Weight, label "Total"            details   0, 1, 2
//                                                                footer    1, its label in column 0
#pragma once

#include "ReportColumn.h"
#include "ReportTemplate.h"
#include "SectionPlace.h"
#include "TokenQuantities.h"

#include "MekRoots/Exp/VorString.h"
#include "MekRoots/Exp/VorUnitsManager.h"

#include <set>
#include <string>
#include <unordered_map>
#include <vector>

namespace mekbom
{
// What the lines of one section of the template show.
struct SectionLayout
{
    std::string label;             // UTF-8; empty without one
    int labelColumn = -1;          // the first that shows no tuple; -1 when there is none
    std::vector<int> columns;      // of the tuples that are shown, in their order
    std::vector<VorString> tokens; // of the same tuples
    bool isOfPage = false;         // the template calls it a page header or a page footer
};

// A header section and the footer after it.
struct LevelLayout
{
    SectionLayout header; // of the deepest level: the details
    SectionLayout footer;
    bool canShareLine = false; // they show different columns, and neither has a label
};

class ReportLayout
{
public:
    // The template's data say what type the columns have that the catalogue of tokens does not know. `units` are those
    // that the template's numbers are shown in. Both are read while this is constructed, and not looked at later.
    ReportLayout(const ReportTemplate& reportTemplate, const VorUnitsManager& units);

    const std::vector<ReportColumn>& columns() const { return m_columns; }

    // The levels of the report, from the outermost, which is level 0, inwards.
    const std::vector<LevelLayout>& levels() const { return m_levels; }
    const SectionLayout& section(SectionPlace place) const;

private:
    void layOutLevels(const ReportTemplate& reportTemplate);
    SectionLayout layOut(const ReportTemplate& reportTemplate, const VorBomItemBase* pSection);
    void completeLevels();
    void describeColumns(const ReportTemplate& reportTemplate, const VorUnitsManager& units);
    int columnFor(const VorString& token, const VorString& tupleToken, const std::set<int>& taken);
    int findColumn(const VorString& token) const;
    int addColumn(const VorString& token);

    std::vector<ReportColumn> m_columns;
    std::unordered_map<std::string, int> m_indices; // of the first column with each token, in UTF-8
    std::vector<LevelLayout> m_levels;
};
}
