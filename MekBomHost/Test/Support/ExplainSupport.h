// A report with all that words about it need, from a template and a parts list given as texts.
//
//   const ExplainedParts parts(templateText, partsText);
//   LineInWords(parts.explained()).text(1)
#pragma once

#include "ExplainedReport.h"
#include "MemorySource.h"
#include "ReportJob.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
class ExplainedParts
{
public:
    ExplainedParts(const std::string& templateText, const std::string& partsText, const std::string& units = "metric",
                   const std::vector<std::string>& allowed = {})
        : m_job(requestOf(templateText, partsText, units, allowed))
    {
        EXPECT_EQ(kDone, m_job.run()) << (m_job.findings().all().empty() ? "" : messageOf(m_job.findings().all()[0]));
        m_pReport = std::make_unique<EvaluatedReport>(m_job.report());
        m_pExplained.reset(
            new ExplainedReport{ m_job.reportTemplate(), m_job.units(), *m_pReport, m_job.rowNumbers() });
    }

    const ExplainedReport& explained() const { return *m_pExplained; }
    const EvaluatedReport& report() const { return *m_pReport; }

    // The line of that number, counted from 1. There must be one.
    ReportLine line(int number) const
    {
        ReportLines lines = m_pReport->lines();
        ReportLine line;
        while (number-- > 0)
            EXPECT_TRUE(lines.next(line));
        return line;
    }

private:
    static ReportRequest requestOf(const std::string& templateText, const std::string& partsText,
                                   const std::string& units, const std::vector<std::string>& allowed)
    {
        ReportRequest request;
        request.parts.push_back(std::make_unique<MemorySource>("parts.csv", partsText));
        request.pTemplate = std::make_unique<MemorySource>("list.json", templateText);
        request.units = units;
        request.allowed = allowed;
        request.contents.values = true;
        request.contents.rows = true;
        return request;
    }

    ReportJob m_job;
    std::unique_ptr<EvaluatedReport> m_pReport;
    std::unique_ptr<ExplainedReport> m_pExplained;
};

// A list of parts grouped by material, with weights per piece and of all, and totals of both levels. `members` are
// further ones of the template: "\"equalLines\": \"count\",".
inline std::string partsByMaterial(const std::string& members = std::string())
{
    return "{ " + members + R"("title": "Weights",
  "columns": [ { "token": "%Material", "label": "Material" }, { "token": "%Name", "label": "Name" },
               { "token": "%Quantity", "label": "Pieces" }, { "token": "%Weight", "label": "Each" },
               { "token": "%Formula:%Weight*%Quantity", "label": "Weight" } ],
  "sections": [
    { "type": "kReportHeader", "children": [
      { "type": "kGroupHeader",
        "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material,%Name" },
                    { "token": "%Material" } ],
        "children": [ { "type": "kDetails",
          "tuples": [ { "token": "%Name" }, { "token": "%Quantity" }, { "token": "%Weight" },
                      { "token": "%Formula:%Weight*%Quantity" } ] } ] },
      { "type": "kGroupFooter", "label": "Sum",
        "tuples": [ { "token": "%SumBy:%Quantity", "value": 0 },
                    { "token": "%SumBy:%Formula:%Weight*%Quantity", "value": 0.0 } ] } ] },
    { "type": "kReportFooter", "label": "Total",
      "tuples": [ { "token": "%SumBy:%Quantity", "value": 0 },
                  { "token": "%SumBy:%Formula:%Weight*%Quantity", "value": 0.0 } ] } ] })";
}

// Of which the second and the third read alike.
inline const char* const kFiveParts = "%Handle,%Name,%Material,%Quantity,%Weight [kg]\n"
                                      "2A0,HEA200,S355,2,260.61\n"
                                      "2A1,IPE240,S235,1,366.59\n"
                                      "2A2,IPE240,S235,1,366.59\n"
                                      "2A3,PL10,S235,4,0.88\n"
                                      ",PL12,S235,3,3.58\n";
}
