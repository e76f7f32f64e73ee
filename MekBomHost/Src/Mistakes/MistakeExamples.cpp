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

std::string listOfSections(const std::string& sections, const std::string& keys)
{
    return "{\n" + (keys.empty() ? "" : "  " + keys + ",\n") + "  \"sections\": [\n    " + sections + "\n  ]\n}\n";
}
}
