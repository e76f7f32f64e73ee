// Prints a list from a template and a parts list given as texts.
#pragma once

#include "PartsList.h"
#include "Report.h"
#include "TemplateReader.h"

#include "HostTestSupport.h"

#include <memory>
#include <string>

namespace mekbom
{
inline std::unique_ptr<Report> evaluatedReport(const std::string& templateText, const std::string& partsText,
                                               const VorUnitsManager& units = VorUnitsManager::metric())
{
    auto pReport = std::make_unique<Report>(TemplateReader::read("list.json", templateText), units);
    TextSource source(partsText);
    PartsList(source).readRows(pReport->engineTemplate(), pReport->queryFilter());
    pReport->evaluate();
    return pReport;
}

inline std::string tableOf(Report& report)
{
    StringSink sink;
    report.writeTable(sink);
    return sink.text;
}

inline std::string tableOf(const std::string& templateText, const std::string& partsText)
{
    return tableOf(*evaluatedReport(templateText, partsText));
}
}
