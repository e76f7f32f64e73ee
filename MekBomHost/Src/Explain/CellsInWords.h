// Where the cells of a line come from that are not simply what its row has: the sums, what was computed, and what the
// template says itself. A cell that shows what its row has is passed over.
//
//   CellsInWords(explained).ofFooter(line)
//
//   Weight, %Weight added up: 250 + 250 + 14 = 514 kg
//
//   CellsInWords(explained).ofHeader(line)
//
//   Total: %Weight*%Quantity, with %Weight 250 kg and %Quantity 2, is 500 kg
#pragma once

#include "ExplainedReport.h"
#include "ReportLine.h"
#include "RowData.h"
#include "TemplateLevels.h"

#include "VorBomTemplateItem.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
class CellsInWords
{
public:
    // Nothing of `report` is copied; it must outlive this object.
    explicit CellsInWords(const ExplainedReport& report);

    // Sentences in UTF-8, each with its line end; empty for a line without that section. `line` is one of the report,
    // which was evaluated with the values and rows of its lines.
    std::string ofHeader(const ReportLine& line) const;
    std::string ofFooter(const ReportLine& line) const;

private:
    // One cell of a line, and the tuple whose value stands there.
    struct Cell
    {
        const VorBomTemplateItem& section;
        int tuple; // among those of the section
        const ReportColumn& column;
        std::string text;
        const VorBomTypedValue& value;
        const VorBomDataTuple& tupleInTemplate() const { return section.getData()[tuple]; }
    };

    std::vector<Cell> cellsOf(const ReportLine& line, bool isFooter) const;
    std::string inHeader(const Cell& cell, const RowList& rows) const;
    std::string addedUp(const Cell& cell, const RowList& rows, const VorString& token, double start) const;
    std::string computed(const Cell& cell, const VorBomDataRow& row) const;
    std::string otherTotal(const Cell& cell, const RowList& rows, const VorString& shown) const;
    std::string inFooter(const Cell& cell, const RowList& rows) const;

    const ExplainedReport& m_report;
    TemplateLevels m_levels;
    RowData m_data;
};
}
