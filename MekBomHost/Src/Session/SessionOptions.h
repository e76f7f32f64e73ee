// What a session is asked for beside its parts and its template: a JSON object whose keys are the options of
// "mekbom report" without their dashes. Options of pairs are objects, options of lists arrays, and flags true or false.
//
//   report    { "units": "imperial", "unit": { "length": "ft-in/16" }, "where": "%Length > 6 m", "sets": 10,
//   input       "row-totals": ["%Weight"], "map": { "Cost code": "%UserAttr1" }, "delimiter": ";",
//   output      "values": "plain", "paper": "a4" }
//
//   const SessionOptions options = SessionOptions::read(bytes);
//   options.fillIn(request);
//   ReportFormats::createWriter("csv", options.output());
//
// Options of files are not among them: no file crosses the border of a session.
#pragma once

#include "JsonChecker.h"
#include "OutputChoices.h"
#include "ReportRequest.h"

#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class SessionOptions
{
public:
    // UTF-8; comments are allowed. Throws a Fault of status kInvalidInput with all that is wrong, each with its place;
    // what units and conditions are worth is for the job to say.
    static SessionOptions read(std::string_view bytes);

    // Sets what was asked for in `request`.
    void fillIn(ReportRequest& request) const;

    // How the list is to be written.
    const OutputChoices& output() const { return m_output; }

private:
    using Pairs = ReportRequest::Pairs;

    void readRows(JsonChecker& json, const JsonItem& root);
    void readInput(JsonChecker& json, const JsonItem& root);
    void readOutput(JsonChecker& json, const JsonItem& root);
    void readFlag(JsonChecker& json, const JsonItem& root, const char* key, OutputChoices::eChoice choice, bool& flag);

    std::string m_units = "metric";
    Pairs m_unitChoices;
    Pairs m_settings;
    std::string m_where;
    std::vector<std::string> m_rowTotals;
    std::vector<std::string> m_allowed;
    Pairs m_inputUnits;
    InputChoices m_input;
    PieceChoices m_pieces;
    bool m_isSummary = false;
    bool m_checksTotals = false;
    OutputChoices m_output;
};
}
