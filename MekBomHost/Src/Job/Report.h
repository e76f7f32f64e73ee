// One report, from a template and rows of data to the lines that writers read.
//
//   Report report(TemplateReader::read(name, text), VorUnitsManager::metric());
//   parts.readRows(report.engineTemplate(), report.filterTokens());
//   report.evaluate();
//   ReportFormats::createWriter(ReportFormats::kText)->write(report.evaluated(), sink);
//
// Takes the engine's steps in the order it asks for: what the template groups and sorts by is found, and units are set,
// when the report is made, so that rows can be read with no more than the data it needs.
#pragma once

#include "DisplaySettings.h"
#include "EvaluatedReport.h"
#include "LineContents.h"
#include "ListFacts.h"
#include "NumberFormats.h"
#include "PackedSections.h"
#include "PieceChoices.h"
#include "ReportTemplate.h"
#include "RowFilter.h"
#include "RowNumbers.h"

#include "VorBomTemplate.h"

#include "MekRoots/Exp/VorString.h"
#include "MekRoots/Exp/VorUnitsManager.h"

#include <memory>
#include <optional>
#include <vector>

namespace mekbom
{
class RowProgress;

class Report
{
public:
    // Takes the template over, and copies the rest. `settings` say how numbers are shown, whatever the settings
    // repository of the process holds; `contents` what is to be known of a line beside its texts.
    Report(ReportTemplate reportTemplate, const VorUnitsManager& units,
           const DisplaySettings& settings = DisplaySettings(), LineContents contents = LineContents());

    // Leaves rows out beside those that the template leaves out. To be called before the rows are read.
    void addFilter(const RowFilter& filter) { m_where = filter; }

    // The template whose data the rows go to; owned by the report.
    VorBomTemplate& engineTemplate() { return *m_template.pTemplate; }
    const ReportTemplate& reportTemplate() const { return m_template; }

    // The units that numbers are shown in.
    const VorUnitsManager& units() const { return m_units; }
    const DisplaySettings& settings() const { return m_settings; }

    // The numbers of all rows that were read, once they were filtered; of none unless lines keep their rows.
    const RowNumbers& rowNumbers() const { return m_rowNumbers; }

    // What is wrong with what the template says of numbers: formulas whose result nobody can tell, units that do not
    // measure what their columns show. All are errors; a report that is evaluated all the same shows such numbers
    // without a unit, or in that of the list. To be called before evaluate().
    std::vector<Finding> columnErrors() const;

    // The tokens that the filters ask for, the template's and the one added. Rows must be read with them, even where
    // the list shows none of them: a datum that was not kept would be taken for one that is not there.
    std::vector<VorString> filterTokens() const;

    // Throws a Fault of what is wrong with a filter: with its place in the template and of status kInvalidInput, or,
    // for the one added, of status kWrongUsage.
    [[noreturn]] void failInFilter(Finding finding, bool isFromTemplate) const;

    // Multiplies the pieces of the rows, and has the parts of rows stand in their place, as `choices` say: behind the
    // reading of the rows, which must have their "%Parent" and "%Quantity", and before they are filtered. Gives what is
    // wrong, without a place: an error, which leaves nothing to go on with, or a warning.
    std::optional<Finding> multiplyPieces(const PieceChoices& choices);

    // Leaves out the rows that the list is not about. Throws a Fault for a filter that compares a datum with what it
    // cannot be compared with. To be called once; evaluate() does it where nobody has.
    void filter();

    // Has the report print groups and totals without the lines below them, and without the columns that these alone
    // fill. Totals stay what they are, and so does what becomes of equal lines. To be called before evaluate(), which
    // is behind everything that looks for mistakes in the template. Throws a Fault of status kWrongUsage when nothing
    // would be left.
    void summarize();

    // Has evaluate() add up every total a second time, from the rows, and see where each row has gone. To be called
    // before it.
    void checkTotals() { m_checksTotals = true; }

    // Has evaluate() tell how many rows it has placed in the list. Not owned, outlives the call; may be null.
    void setProgress(RowProgress* pProgress) { m_pProgress = pProgress; }

    // Filters, unless that has been done, then evaluates. To be called once. Throws std::runtime_error when totals are
    // checked and one is wrong, or a row has gone nowhere.
    void evaluate();

    // What evaluate() found: numbers that have become too large, and lines that were rounded into one.
    const std::vector<Finding>& mistakes() const { return m_mistakes; }

    // What became of the rows, for the foot of the list; evaluate() counts them. Who knows more of them says it here.
    ListFacts& facts() { return m_facts; }

    // The evaluated report, which looks at this object and must not outlive it. To be called behind evaluate().
    EvaluatedReport evaluated() const { return EvaluatedReport(m_template, m_units, m_sections, m_facts); }

private:
    void countRows();
    void apply(RowFilter& filter, bool isFromTemplate);
    void prepareNumbers();
    void setOrders(const TokenQuantities& quantities);
    void evaluateRows();
    void addMistakes(const std::vector<Finding>& mistakes);
    void checkRows() const;

    VorUnitsManager m_units;
    DisplaySettings m_settings;
    ReportTemplate m_template;
    std::unique_ptr<NumberFormats> m_pFormats; // what the template writes its numbers with from evaluate() on
    bool m_isCounted = false;
    bool m_isFiltered = false;
    RowFilter m_where;
    RowNumbers m_rowNumbers;
    PackedSections m_sections; // what was evaluated; it refers to m_template
    ListFacts m_facts;
    std::vector<Finding> m_mistakes;
    bool m_checksTotals = false;
    RowProgress* m_pProgress = nullptr;
};
}
