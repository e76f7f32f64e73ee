// Which columns the table of a report has, and in which of them each section shows its tuples.
//
// Every tuple that is shown has a column: that of ReportTemplate::columnTokenOf. Columns that the template describes
// come first, in its order, then the others as the sections name them: headers from the outside in, footers from the
// inside out. Two tuples of one section never share a column; the second one gets one of its own.
#pragma once

#include "ReportTemplate.h"

#include "MekRoots/Exp/VorString.h"
#include "MekRoots/Exp/VorUnitsManager.h"

#include <string>
#include <vector>

namespace mekbom
{
struct TableColumn
{
    VorString token;
    std::vector<VorString> shownTokens; // of the tuples that are shown in it, as the sections come
    std::string label;                  // UTF-8, with the unit of its numbers
    int fixedWidth = 0;
    bool isNumeric = false; // its texts are never broken: half a number would be another number
    bool isAlignedRight = false;
};

// One section of the template: what the table shows of it.
struct TableSection
{
    std::string label;
    int labelColumn = -1;     // the first that shows no tuple; -1 when there is none
    std::vector<int> columns; // of the tuples that are shown, in their order
};

// A header section and the footer after it. Level 0 is the report's outermost.
struct TableLevel
{
    TableSection header;
    TableSection footer;
    bool canShareLine = false; // they show different columns, and neither has a label
};

class TableLayout
{
public:
    // The template's data say what type the columns have that the catalogue of tokens does not know. `units` are those
    // that the template's numbers are shown in.
    TableLayout(const ReportTemplate& reportTemplate, const VorUnitsManager& units);

    const std::vector<TableColumn>& columns() const { return m_columns; }
    const std::vector<TableLevel>& levels() const { return m_levels; }

private:
    void layOutLevels();
    TableSection layOut(const VorBomItemBase* pSection);
    int columnOfTuple(const VorBomItemBase& section, int tupleIndex, const std::vector<int>& taken);
    int columnFor(const VorString& token, const VorString& tupleToken, const std::vector<int>& taken);
    int findColumn(const VorString& token) const;
    int addColumn(const VorString& token);
    void completeColumn(TableColumn& column, const VorUnitsManager& units) const;

    const ReportTemplate& m_template;
    std::vector<TableColumn> m_columns;
    std::vector<TableLevel> m_levels;
};
}
