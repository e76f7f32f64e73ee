// An evaluated report as one page for a browser, which loads nothing else: title, list, the weights of its groups as
// bars, and what the list is made of. Where scripts run, lines can be searched, sorted and put away.
//
//   ListPage(report, sink).write();
//
// The page is in UTF-8, and the same for the same report.
#pragma once

#include "EvaluatedReport.h"
#include "GroupWeights.h"
#include "ListSurvey.h"
#include "OutputChoices.h"
#include "PageTable.h"
#include "TextSink.h"
#include "WeightBars.h"

#include <cstddef>
#include <optional>
#include <string>

namespace mekbom
{
class ListPage
{
public:
    // `report` has values. Neither `report` nor `sink` is owned; both must outlive the page.
    // It is printed on `paper`, or on that of the printer where there is none.
    ListPage(const EvaluatedReport& report, TextSink& sink, std::optional<ePaper> paper = std::nullopt);

    // Writes the whole page into the sink and finishes that. To be called once.
    void write();

private:
    void writeHead();
    std::string sizeOfSheets() const;
    void writeTitle();
    void writeTools();
    void writeList();
    void writeFoot();
    void passOn(std::size_t least);

    const EvaluatedReport& m_report;
    TextSink& m_sink;
    const ListSurvey m_survey;
    const GroupWeights m_weights;
    const WeightBars m_bars;
    std::string m_page; // what has been written but not passed on to the sink
    PageTable m_table;
    std::optional<ePaper> m_paper;
};
}
