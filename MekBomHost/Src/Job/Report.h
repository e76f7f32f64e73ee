// One report, from a template and rows of data to the lines that writers read.
//
//   Report report(TemplateReader::read(name, text), VorUnitsManager::metric());
//   parts.readRows(report.engineTemplate(), report.queryFilter());
//   report.evaluate();
//   ReportFormats::createWriter(ReportFormats::kText)->write(report.evaluated(), sink);
//
// Takes the engine's steps in the order it asks for: what the template groups and sorts by is found, and units are set,
// when the report is made, so that rows can be read with no more than the data it needs.
#pragma once

#include "DisplaySettings.h"
#include "EvaluatedReport.h"
#include "LineContents.h"
#include "PackedSections.h"
#include "ReportTemplate.h"

#include "VorBomTemplate.h"

#include "MekRoots/Exp/VorUnitsManager.h"

namespace mekbom
{
class Report
{
public:
    // `settings` say how numbers are shown, whatever the settings repository of the process holds; `contents` what is
    // to be known of a line beside its texts.
    Report(ReportTemplate reportTemplate, const VorUnitsManager& units,
           const DisplaySettings& settings = DisplaySettings(), LineContents contents = LineContents());

    // The template whose data the rows go to.
    VorBomTemplate& engineTemplate() { return *m_template.pTemplate; }
    const ReportTemplate& reportTemplate() const { return m_template; }
    const QueryFilter& queryFilter() const { return m_template.queryFilter; }

    // Leaves out the rows that the template is not about, then evaluates. To be called once.
    void evaluate();

    // How many rows had a line equal to the one before it, were merged into that and count in no total.
    int numMergedRows() const { return m_sections.numMergedRows(); }

    // The evaluated report, which looks at this object and must not outlive it.
    EvaluatedReport evaluated() const { return EvaluatedReport(m_template, m_units, m_sections); }

private:
    VorUnitsManager m_units; // that numbers are shown in
    ReportTemplate m_template;
    PackedSections m_sections; // of the evaluated report
};
}
