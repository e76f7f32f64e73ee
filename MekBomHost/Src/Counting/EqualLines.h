// Makes one line of the lines of a group that read alike, wherever in the group they stand: what a cutting list means
// by a line with a number of pieces. For templates that say "equalLines": "count".
//
//   lines of one group   P1  2 pieces  5.0 kg          ->   P1  3 pieces  7.5 kg
//                        P2  1 piece   4.0 kg               P2  1 piece   4.0 kg
//                        P1  1 piece   2.5 kg
//
//   EqualLines lines(reportTemplate, sections);
//   VorBomEvaluator2::evaluate(reportTemplate.pTemplate.get(), lines);
//   lines.finish();                                // hands on the lines of a group that no footer closed
//
// What is added up, and what has to read alike:
//   1. %Quantity, and a formula that grows in step with it: added up; rows may differ in it.
//   2. Any other column that a footer sums: added up, but it has to read alike, too.
//   3. All else, whether it is printed or not: has to read alike.
// So a weight of one piece stays one, "%Weight*%Quantity" becomes that of all pieces, and "%Weight/%Quantity" keeps
// lines apart of which it is unlike. Where a number is missing, what stands in its place has to read alike.
//
// The engine must hand over equal lines (RowTally asks for them): its totals have every row. Lines with a footer of
// their own, and lines that are not printed, are handed on as they come. A line is followed by the rows that were added
// to it, as takeMergedRow. Memory: the lines of one group, and a pointer for each of its rows.
#pragma once

#include "Finding.h"
#include "ReportTemplate.h"
#include "SectionRelay.h"

#include "VorBomTemplateUnits.h"

#include "MekRoots/Exp/VorString.h"

#include "VorBomNumberFormat.h"

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

namespace mekbom
{
class EqualLines : public SectionRelay
{
public:
    // `reportTemplate` is not owned, outlives this object, and keeps its sections and number formats meanwhile.
    EqualLines(const ReportTemplate& reportTemplate, VorBomSectionSink& next);
    EqualLines(const EqualLines&) = delete; // its set of lines looks at it
    EqualLines& operator=(const EqualLines&) = delete;

    void takeHeader(const VorBomReportSection& header) override;
    void takeFooter(const VorBomReportSection& footer) override;

    // Hands on the lines of the last group. To be called once, when the evaluation has come to its end.
    void finish();

    // What was found, each with its place in the template: MB110, once for each column, of two lines that were made one
    // though a number of the one differs from that of the other by more than a thousandth.
    const std::vector<Finding>& findings() const { return m_findings; }

    // How many rows stand in the line of another one.
    int numRowsAdded() const { return m_numRowsAdded; }

private:
    // What becomes of one column of lines that are made one.
    struct Column
    {
        bool isAdded = false;
        bool mustReadAlike = true;
        const VorBomNumberFormat* pFormat = nullptr; // not owned; null where the template's units show its numbers
        TemplatePlace place = {};
        bool isFound = false; // that rounding alone made two numbers alike
    };

    // A line of the open group. Its texts and numbers are those from its index times the number of columns on.
    struct Line
    {
        const VorBomDataRow* pRow = nullptr;
        std::vector<const VorBomDataRow*> otherRows;
    };

    // The set knows lines by their index, and takes those for equal that read alike.
    struct Hash
    {
        std::size_t operator()(std::size_t line) const { return pLines->hashOf(line); }
        const EqualLines* pLines;
    };
    struct Equal
    {
        bool operator()(std::size_t first, std::size_t second) const { return pLines->readAlike(first, second); }
        const EqualLines* pLines;
    };
    using LineSet = std::unordered_set<std::size_t, Hash, Equal>;

    LineSet noLines() const { return LineSet(0, Hash{ this }, Equal{ this }); }
    void take(const VorBomReportSection& line);
    void append(const VorBomReportSection& line);
    void addRounding(std::size_t line, std::size_t column, const VorBomTypedValue& other);
    void addLastTo(std::size_t line);
    void handOn();
    void handOn(std::size_t line);
    std::size_t hashOf(std::size_t line) const;
    bool readAlike(std::size_t first, std::size_t second) const;
    bool tellsApart(std::size_t column, const VorBomTypedValue& value) const;

    const std::string m_fileName; // of the template
    const VorBomTemplateUnits& m_units;
    int m_level = -1; // of the lines that are counted; -1 when none are
    std::vector<Column> m_columns;

    std::vector<Line> m_lines; // of the open group
    std::vector<VorString> m_texts;
    std::vector<VorBomTypedValue> m_values;
    LineSet m_index;                                        // of the lines above
    std::unique_ptr<VorBomTemplateItem> m_pShown;           // the line that is handed on
    const VorBomTemplateItem* m_pTemplateSection = nullptr; // that lines are made from; not owned
    int m_numRowsAdded = 0;
    std::vector<Finding> m_findings;
};
}
