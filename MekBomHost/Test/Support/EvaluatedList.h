// An evaluated list of the rows of a CSV text, with the values of its cells, as writers of numbers get it.
//
//   const EvaluatedList list(templateText, "%Name,%Weight\nHEA200,12.5\n");
//   HtmlWriter().write(list.report(), sink);
#pragma once

#include "ReportTestSupport.h"

#include <memory>
#include <string>

namespace mekbom
{
class EvaluatedList
{
public:
    EvaluatedList(const std::string& templateText, const std::string& partsText,
                  const VorUnitsManager& units = VorUnitsManager::metric())
    {
        LineContents contents;
        contents.values = true;
        m_pReport = std::make_unique<Report>(TemplateReader::read("list.json", templateText), units, DisplaySettings(),
                                             contents);
        MemorySource source("parts.csv", partsText);
        CsvReader records(source);
        PartsList(records).readRows(m_pReport->engineTemplate(), m_pReport->filterTokens());
        m_pReport->checkTotals();
        m_pReport->evaluate();
        m_pEvaluated = std::make_unique<EvaluatedReport>(m_pReport->evaluated());
    }

    const EvaluatedReport& report() const { return *m_pEvaluated; }

private:
    std::unique_ptr<Report> m_pReport;
    std::unique_ptr<EvaluatedReport> m_pEvaluated;
};

// Details of these tuples, in a report that is nothing else.
//   details(R"({ "token": "%Name" })", R"("title": "Names")")
inline std::string details(const std::string& tuples, const std::string& members = std::string())
{
    return "{ " + members + (members.empty() ? "" : ", ") + "\"equalLines\": \"keep\", " +
           "\"sections\": [ { \"type\": \"kReportHeader\", \"children\": [ " +
           "{ \"type\": \"kDetails\", \"tuples\": [ " + tuples + " ] } ] } ] }";
}

// Names and weights by material, with totals of both levels; the outer level is of the section types given.
inline std::string weightsByMaterial(const std::string& outer = "Report")
{
    return R"({ "title": "Weights", "equalLines": "keep", "sections": [
        { "type": "k)" +
           outer + R"(Header", "children": [
          { "type": "kGroupHeader",
            "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" },
                        { "token": "%Material" } ],
            "children": [ { "type": "kDetails", "tuples": [ { "token": "%Name" }, { "token": "%Weight" } ] } ] },
          { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight" } ] } ] },
        { "type": "k)" +
           outer + R"(Footer", "label": "Total", "tuples": [ { "token": "%SumBy:%Weight" } ] } ] })";
}
}
