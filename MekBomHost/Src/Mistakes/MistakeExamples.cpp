// An example differs from a right list in one place, and is short enough to be read on a page. groupedList(kByMaterial,
// { "%PNum" }, kWeights) is nearly the shortest list that groups and sums:
//
//   { "sections": [
//     { "type": "kReportHeader", "children": [
//       { "type": "kGroupHeader", "tuples": [ %GroupBy:%Material, %SortAscBy:%Material, %Material ],
//         "children": [ { "type": "kDetails", "tuples": [ %PNum ] } ] },
//       { "type": "kGroupFooter", "tuples": [ %SumBy:%Weight ] } ] },
//     { "type": "kReportFooter" } ] }
#include "MistakeExamples.h"

namespace mekbom::MistakeExamples
{
const Tuples kByMaterial = { "%GroupBy:%Material", "%SortAscBy:%Material", "%Material" };
const Tuples kParts = { "%PNum", "%Length", "%Weight" };
const Tuples kWeights = { "%SumBy:%Weight" };

std::string tuplesOf(const Tuples& tuples)
{
    std::string text;
    for (const std::string& tuple : tuples)
        text += (text.empty() ? "" : ", ") + (tuple.front() == '{' ? tuple : "{ \"token\": \"" + tuple + "\" }");
    return text;
}

std::string groupedList(const Tuples& group, const Tuples& details, const Tuples& footer, const std::string& keys)
{
    return listOfSections("{ \"type\": \"kReportHeader\", \"children\": [\n"
                          "      { \"type\": \"kGroupHeader\",\n"
                          "        \"tuples\": [ " +
                              tuplesOf(group) +
                              " ],\n"
                              "        \"children\": [\n"
                              "          { \"type\": \"kDetails\",\n"
                              "            \"tuples\": [ " +
                              tuplesOf(details) +
                              " ] } ] },\n"
                              "      { \"type\": \"kGroupFooter\",\n"
                              "        \"tuples\": [ " +
                              tuplesOf(footer) +
                              " ] } ] },\n"
                              "    { \"type\": \"kReportFooter\" }",
                          keys);
}

std::string listWithFormula(const std::string& formula, const std::string& keys)
{
    Tuples details = kParts;
    details.push_back(formula);
    return groupedList(kByMaterial, details, kWeights, keys);
}

std::string withForeignRows(const std::string& happens)
{
    return happens + " Parts lists have none such; rows that another program hands over may.";
}

std::string listOfSections(const std::string& sections, const std::string& keys)
{
    return "{\n" + (keys.empty() ? "" : "  " + keys + ",\n") + "  \"sections\": [\n    " + sections + "\n  ]\n}\n";
}
}
