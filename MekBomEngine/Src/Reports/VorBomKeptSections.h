// What a VorBomReport keeps: records of its sections, their cells and their rows, each in one list.
//
//   rows P1, P1, P2 under level 0 (header and footer) and level 1 (lines); the second P1 is merged
//     sections   header     line P1    line P2    footer
//     level      0          1          1          0
//     rows       [0, 3)     [0, 2)     [2, 3)     [0, 3), of which 2 count
//     end        3          2          3          4         one past all sections under it
//     cells      one for each tuple of each of them
//
// Rows come in the order of the report, each once, as a line or merged into the one before; so the rows of every
// section are a stretch of that one list. Which of them count is written down when it is settled, after the row has
// been placed.
//
// Lists are deques: they grow without being copied, so that a report never takes the memory of two.
#pragma once

#include "VorBomReportSection.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

class VorBomKeptSections
{
public:
    // Also the end of a header whose group has not closed.
    static constexpr std::size_t kOpen = static_cast<std::size_t>(-1);

    struct Cell
    {
        VorString text;
        union
        {
            double number = 0;
            std::int64_t whole; // in the place of the number, which is the double nearest to it
        };
        VorBomTemplateUnits::eTokenUnitType unitType = VorBomTemplateUnits::kNoUnit;
        std::uint8_t type = VorBomDataValue::kUnknownData;
        bool isWhole = false;
    };

    enum eKind : std::uint8_t
    {
        kHeader,
        kLine, // of the deepest level, which has a section for every row
        kFooter,
        kOwnFooter // of a line: it counts the one row, merged or not
    };

    struct Section
    {
        const VorBomTemplateItem* pTemplateSection = nullptr;
        std::size_t firstCell = 0;
        std::size_t firstRow = 0;
        std::size_t end = kOpen;    // of the sections under it
        std::size_t firstDatum = 0; // in the numbers of rows with a datum; of footers alone
        int level = 0;
        int numRows = 0;    // in its stretch of the list, once it is closed
        int numCounted = 0; // of these; of footers alone
        eKind kind = kHeader;
    };

    void clear();

    void addHeader(const VorBomReportSection& header);
    void addFooter(const VorBomReportSection& footer);
    // Its line is the one added last.
    void addMergedRow(const VorBomDataRow& row);
    // The row added last has been placed: whether it counts is settled.
    void settleRow();
    void setComplete() { m_isComplete = true; }
    bool isComplete() const { return m_isComplete; }

    std::size_t size() const { return m_sections.size(); }
    const Section& section(std::size_t index) const { return m_sections[index]; }
    // The stretches of sections and rows of a section end here, also while its group is open.
    std::size_t endOf(const Section& section) const { return section.end == kOpen ? size() : section.end; }
    std::size_t endOfRows(const Section& section) const;

    // As many as the section had when it was added, whatever has become of the template's since.
    int numTuples(std::size_t index) const;
    // Of the section at `index`. Null for a tuple that is none.
    const Cell* cell(std::size_t index, int tuple) const;
    int numRowsWithDatum(std::size_t index, int tuple) const;

    const VorBomDataRow& row(std::size_t index) const { return *m_rows[index]; }
    bool isCounted(std::size_t row) const { return row < m_areCounted.size() && m_areCounted[row]; }

private:
    // A header whose group is open.
    struct Open
    {
        std::size_t section;
        int numCountedBefore; // rows, when it opened
    };

    Section& add(const VorBomReportSection& section, eKind kind);
    void closeDownTo(int level);
    void addRow(const VorBomDataRow& row);
    void countRowsOf(Section& footer, const Open& group) const;
    void countOwnRow(Section& footer, const VorBomCountedRows& rows) const;

    std::deque<Section> m_sections;
    std::deque<Cell> m_cells;
    std::deque<int> m_numRowsWithDatum;
    std::deque<const VorBomDataRow*> m_rows;
    std::vector<bool> m_areCounted;  // one for each row that has been placed
    std::vector<Open> m_open;        // one for each level, outermost first
    std::size_t m_nLastLine = kOpen; // kOpen before the first
    int m_nDeepest = -1;             // level; known from the first line on
    int m_numCounted = 0;            // rows so far
    bool m_isComplete = false;
};
