// What the cells of a line show, and which objects are behind it, as members of an object in JSON.
//
//   JsonLine json(report);
//   json.appendSection(line, { 1, false }, text);     "label": "Total", "values": [null, 7.5], "shown": [null, "7' 6\""]
//   json.appendHandles(line, text);                   , "handles": ["2A0"], "mergedHandles": ["2A4"]
//
// Values and shown texts stand in the order of the columns, null where nothing is shown. A list with columns of several
// units has "units" as well.
#pragma once

#include "EvaluatedReport.h"
#include "SectionPlace.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class JsonLine
{
public:
    // `report` was evaluated with values and rows; it is not owned and outlives this object.
    explicit JsonLine(const EvaluatedReport& report);

    // Appends what one section shows on the line: a header and its footer may share it, each with columns of its own.
    void appendSection(const ReportLine& line, SectionPlace place, std::string& text);

    // Appends what the whole line shows.
    void appendAll(const ReportLine& line, std::string& text);

    // Appends the handles of the rows that made a line of details: of those that count in totals, and of those that
    // were merged away, if there are any.
    void appendHandles(const ReportLine& line, std::string& text) const;

    // Appends the handles of these rows: null for a row without one, so that there are as many as rows.
    static void appendHandles(const char* name, const RowList& rows, std::string& text);

private:
    using WriteCell = void (JsonLine::*)(const ReportLine&, std::size_t, std::string&) const;

    void appendMembers(const ReportLine& line, std::string_view label, std::string& text) const;
    void appendCells(const char* name, const ReportLine& line, WriteCell writeCell, std::string& text) const;
    void appendValue(const ReportLine& line, std::size_t index, std::string& text) const;
    void appendShown(const ReportLine& line, std::size_t index, std::string& text) const;
    void appendUnit(const ReportLine& line, std::size_t index, std::string& text) const;

    const EvaluatedReport& m_report;
    bool m_hasMixedUnits = false; // some column has
    std::vector<bool> m_isShown;  // for each column whether anything that is being written shows something in it
};
}
