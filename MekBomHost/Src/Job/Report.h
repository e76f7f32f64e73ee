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
#include "ReportTemplate.h"
#include "RowFilter.h"
#include "RowNumbers.h"

#include "VorBomTemplate.h"

#include "MekRoots/Exp/VorString.h"
#include "MekRoots/Exp/VorUnitsManager.h"

#include <memory>
#include <vector>

namespace mekbom
{
class Report
{
public:
    // `settings` say how numbers are shown, whatever the settings repository of the process holds; `contents` what is
    // to be known of a line beside its texts.
    Report(ReportTemplate reportTemplate, const VorUnitsManager& units,
           const DisplaySettings& settings = DisplaySettings(), LineContents contents = LineContents());

    // Leaves rows out beside those that the template leaves out. To be called before the rows are read.
    void addFilter(const RowFilter& filter) { m_where = filter; }

    // The template whose data the rows go to.
    VorBomTemplate& engineTemplate() { return *m_template.pTemplate; }
    const ReportTemplate& reportTemplate() const { return m_template; }

    // That numbers are shown in.
    const VorUnitsManager& units() const { return m_units; }

    // Of all rows that were read, once they were evaluated; of none unless lines keep their rows.
    const RowNumbers& rowNumbers() const { return m_rowNumbers; }

    // What is wrong with what the template says of numbers: formulas whose result nobody can tell, units that do not
    // measure what their columns show. All are errors; a report that is evaluated all the same shows such numbers
    // without a unit, or in that of the list. To be called before evaluate().
    std::vector<Finding> columnErrors() const;

    // The tokens that rows are left out by, which rows must be read with: a datum that was not kept would be taken for
    // one that is not there.
    std::vector<VorString> filterTokens() const;

    // Throws what is wrong with a filter, with its place: the template's, or else the one added.
    [[noreturn]] void failInFilter(Finding finding, bool isFromTemplate) const;

    // Leaves out the rows that the list is not about. Throws a Fault for a filter that compares a datum with what it
    // cannot be compared with. To be called once; evaluate() does it where nobody has.
    void filter();

    // Has evaluate() add up every total a second time, from the rows, and see where each row has gone.
    void checkTotals() { m_checksTotals = true; }

    // Filters, unless that has been done, then evaluates. To be called once. Throws std::runtime_error when totals are
    // checked and one is wrong, or a row has gone nowhere.
    void evaluate();

    // What evaluate() found: numbers that have become too large, and lines that were rounded into one.
    const std::vector<Finding>& mistakes() const { return m_mistakes; }

    // What became of the rows, for the foot of the list; evaluate() counts them. Who knows more of them says it here.
    ListFacts& facts() { return m_facts; }

    // The evaluated report, which looks at this object and must not outlive it.
    EvaluatedReport evaluated() const { return EvaluatedReport(m_template, m_units, m_sections, m_facts); }

private:
    void apply(RowFilter& filter, bool isFromTemplate);
    void prepareNumbers();
    void setOrders(const TokenQuantities& quantities);
    void evaluateRows();
    void checkRows() const;

    VorUnitsManager m_units; // that numbers are shown in
    DisplaySettings m_settings;
    ReportTemplate m_template;
    std::unique_ptr<NumberFormats> m_pFormats; // that the template refers to, once it is evaluated
    bool m_isFiltered = false;
    RowFilter m_where;
    RowNumbers m_rowNumbers;
    PackedSections m_sections; // of the evaluated report
    ListFacts m_facts;
    std::vector<Finding> m_mistakes;
    bool m_checksTotals = false;
};
}
