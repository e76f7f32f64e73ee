// Prints a list from a template and a parts list given as texts.
#pragma once

#include "CsvReader.h"
#include "PartsList.h"
#include "Report.h"
#include "TemplateReader.h"
#include "TextTableWriter.h"
#include "Utf8.h"

#include "HostTestSupport.h"

#include "VorBomEvaluator2.h"

#include <memory>
#include <string>

namespace mekbom
{
inline std::unique_ptr<Report> reportOf(const std::string& templateText, const std::string& partsText,
                                        const VorUnitsManager& units = VorUnitsManager::metric(),
                                        LineContents contents = LineContents())
{
    auto pReport =
        std::make_unique<Report>(TemplateReader::read("list.json", templateText), units, DisplaySettings(), contents);
    MemorySource source("parts.csv", partsText);
    CsvReader records(source);
    PartsList(records).readRows(pReport->engineTemplate(), pReport->filterTokens());
    return pReport;
}

inline std::unique_ptr<Report> evaluatedReport(const std::string& templateText, const std::string& partsText)
{
    std::unique_ptr<Report> pReport = reportOf(templateText, partsText);
    pReport->checkTotals();
    pReport->evaluate();
    return pReport;
}

// The evaluated sections as VorBomItemBase::list writes them, in UTF-8, of a report that has not been evaluated yet.
inline std::string listOf(Report& report)
{
    report.filter();
    VorBomTemplate result;
    VorBomEvaluator2::evaluate(&report.engineTemplate(), &result);
    VorString text;
    result.list(text, 0, 1, 1);
    return Utf8::toBytes(text) + "\n";
}

inline std::string tableOf(Report& report)
{
    StringSink sink;
    TextTableWriter().write(report.evaluated(), sink);
    return sink.text;
}

// What a writer makes of a list.
inline std::string writtenBy(const ReportWriter& writer, const std::string& templateText, const std::string& partsText,
                             const VorUnitsManager& units = VorUnitsManager::metric())
{
    const std::unique_ptr<Report> pReport = reportOf(templateText, partsText, units, writer.contents());
    pReport->checkTotals();
    pReport->evaluate();
    StringSink sink;
    writer.write(pReport->evaluated(), sink);
    return sink.isFinished ? sink.text : "the sink was not finished";
}

// The table alone: what it is made of stands below it in the other one.
inline std::string tableOf(const std::string& templateText, const std::string& partsText)
{
    return withoutFoot(tableOf(*evaluatedReport(templateText, partsText)));
}
}
