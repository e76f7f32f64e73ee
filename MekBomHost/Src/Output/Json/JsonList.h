// An evaluated report as JSON, for programs. MekBomHost/Schema/mekbom-list.schema.json describes it; these are its parts:
//
//   head      "format": "mekbom-list", "version": 1, "title": "Beams"
//   columns   {"token": "%Name", "label": "Profile", "heading": "Profile", "kind": "text", "unit": null, ...}
//             {"token": "%Length", "label": "Length", "heading": "Length [ft-in]", "kind": "length", "unit": "ft", ...}
//   lines     {"level": 1, "values": ["HEA200", 7.5], "shown": ["HEA200", "7' 6\""], "handles": ["2A0"]}
//   groups    {"level": 0, "lines": [...], "footer": {"label": "Total", "values": [null, 7.5], ...}}
//   pages     "footer": {"ofPage": true, "label": "Total", ...}, of sections that stand on each page where there are pages
//   foot      "foot": {"rowsRead": 1, ...}
//
// Values and shown texts stand in the order of the columns, null where the section shows nothing. A group is open from
// its header to its footer; one without a header opens with the first line in it. Groups are written as they come, with
// a list of those that are open, however deep they go.
#pragma once

#include "EvaluatedReport.h"
#include "JsonLine.h"
#include "TextSink.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
class JsonList
{
public:
    // `report` was evaluated with values and rows. Neither it nor `sink` is owned; both must outlive the list.
    JsonList(const EvaluatedReport& report, TextSink& sink);

    // Writes the whole list into the sink and finishes that. To be called once.
    void write();

private:
    void writeHead();
    void writeLines();
    void openUpTo(int level);
    void closeDownTo(int level);
    void open();
    void closeInside();
    void writeHeader(const ReportLine& line);
    void writeFooter(const ReportLine& line);
    void writeFoot();
    bool isDeepest(int level) const;
    int numOpen() const { return static_cast<int>(m_hasInside.size()) - 1; }
    void passOn(std::size_t least);

    const EvaluatedReport& m_report;
    TextSink& m_sink;
    JsonLine m_line;
    int m_handleLevel = -1;        // the deepest level with a line, which the handles stand at
    std::vector<bool> m_hasInside; // of the file, then of each open level: whether the array of what is in it is open
    std::string m_text;            // what has been written but not passed on to the sink
};
}
