// An evaluated report of a few parts, as writers get it.
//
//   const EvaluatedParts parts(templateText, { { L"HEA200", L"S355", 10.5 } });
//   parts.report().lines()
#pragma once

#include "EvaluatedReport.h"
#include "TemplateReader.h"

#include "VorBomDataRow.h"
#include "VorBomDataTuple.h"
#include "VorBomEvaluator2.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
struct Part
{
    const wchar_t* name;
    const wchar_t* material;
    double weight; // in kg
};

class EvaluatedParts
{
public:
    EvaluatedParts(const std::string& templateText, const std::vector<Part>& parts,
                   LineContents contents = LineContents(), VorUnitsManager units = VorUnitsManager::metric())
        : m_units(std::move(units)),
          m_template(TemplateReader::read("list.json", templateText)),
          m_sections(m_template, contents)
    {
        VorBomTemplate& engineTemplate = *m_template.pTemplate;
        engineTemplate.setUnitsForTokens(&m_units);
        engineTemplate.findUsedTokens();
        for (const Part& part : parts)
            engineTemplate.getBomData()->addChild(rowOf(part));
        VorBomEvaluator2::evaluate(&engineTemplate, m_sections);
        m_pReport = std::make_unique<EvaluatedReport>(m_template, m_units, m_sections);
    }

    const EvaluatedReport& report() const { return *m_pReport; }

private:
    static VorBomDataRow* rowOf(const Part& part)
    {
        auto* const pRow = new VorBomDataRow();
        pRow->addData(VorBomDataTuple(L"%Name", VorString(part.name)));
        pRow->addData(VorBomDataTuple(L"%Material", VorString(part.material)));
        pRow->addData(VorBomDataTuple(L"%Weight", part.weight));
        return pRow;
    }

    VorUnitsManager m_units;
    ReportTemplate m_template;
    PackedSections m_sections;
    std::unique_ptr<EvaluatedReport> m_pReport;
};

// Groups by material, with details, and totals at both levels.
inline const char* const kPartsByMaterial = R"({
  "title": "Weights",
  "sections": [
    { "type": "kReportHeader", "children": [
      { "type": "kGroupHeader",
        "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" }, { "token": "%Material" } ],
        "children": [ { "type": "kDetails", "tuples": [ { "token": "%Name" }, { "token": "%Weight" } ] } ] },
      { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] },
    { "type": "kReportFooter", "label": "Total", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] })";

// The same without details lines.
inline const char* const kMaterials = R"({
  "sections": [
    { "type": "kReportHeader", "children": [
      { "type": "kGroupHeader",
        "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" }, { "token": "%Material" } ],
        "children": [ { "type": "kDetails", "print": false, "tuples": [ { "token": "%Name" } ] } ] },
      { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] },
    { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] })";
}
