// MB101 to MB109, about sections. An example is as few sections as the mistake takes, and the right one has the same
// sections in their places.
#include "MistakeCodes.h"
#include "MistakeExamples.h"

namespace mekbom::MistakeExamples
{
namespace
{
const char* const kPlainDetails =
    R"({ "type": "kDetails", "tuples": [ { "token": "%PNum" }, { "token": "%Weight" } ] })";

// Sections below a report header, with its footer.
std::string reportOf(const std::string& sections)
{
    return listOfSections("{ \"type\": \"kReportHeader\", \"children\": [\n      " + sections +
                          " ] },\n    { \"type\": \"kReportFooter\" }");
}

// A group by material around its children, empty for none, and behind it what stands as its footer.
std::string groupOf(const std::string& children, const std::string& footer = R"({ "type": "kGroupFooter" })")
{
    return R"({ "type": "kGroupHeader",
        "tuples": [ )" +
           tuplesOf(kByMaterial) + (children.empty() ? " ] }" : " ],\n        \"children\": [ " + children + " ] }") +
           ",\n      " + footer;
}

// Lengths with so many decimals.
std::string countedLengths(int decimals)
{
    return groupedList(kByMaterial, { "%Name", "%Quantity", "%Length" }, {},
                       R"("equalLines": "count", "columns": [ { "token": "%Length", "decimals": )" +
                           std::to_string(decimals) + " } ]");
}

const char* const kLengths = "%Name,%Material,%Quantity,%Length [mm]\nM10,S235,4,9.6\nM10,S235,2,10.4\n";
}

std::vector<Mistake> ofStructure()
{
    const std::string details = kPlainDetails;
    return {
        { &MistakeCodes::kPageHeaderFirst, "a page header as the first child of the root",
          "It becomes the outermost level: one page header per row, and no details at all.",
          "Begin with a kReportHeader that has the other sections as its children.",
          listOfSections(R"({ "type": "kPageHeader" },
    { "type": "kReportHeader", "children": [ )" +
                         details + " ] }"),
          reportOf(details) },
        { &MistakeCodes::kThirdSection, "three sections side by side",
          "Only the first two are evaluated: they are the header and the footer of the level.",
          "Put the section into the \"children\" of the one that it belongs to, or take it out.",
          listOfSections(R"({ "type": "kReportHeader", "children": [ )" + details + R"( ] },
    { "type": "kReportFooter" },
    { "type": "kPageFooter" })"),
          reportOf(details) },
        { &MistakeCodes::kFooterOfOtherType, "a header and a footer that do not belong together",
          "Position decides which section is the footer of which; the type is not looked at.",
          "Give each header the footer of its own type: kGroupHeader and kGroupFooter, kReportHeader and "
          "kReportFooter.",
          reportOf(groupOf(details, R"({ "type": "kReportFooter" })")), reportOf(groupOf(details)) },
        { &MistakeCodes::kGroupHeaderDeepest, "a group header as the deepest level, to get totals only",
          "The deepest level opens and closes for every row: there is one line and one subtotal per row.",
          "Give it a kDetails as its child; for groups and totals alone one with \"summary\": true.",
          reportOf(groupOf("")), reportOf(groupOf(R"({ "type": "kDetails", "summary": true })")) },
        { &MistakeCodes::kDetailsEmpty, "an empty details section, to get totals only",
          "All lines are equal, so all rows of a group but the first are merged and leave the totals.",
          "Write { \"type\": \"kDetails\", \"summary\": true }.", reportOf(groupOf(R"({ "type": "kDetails" })")),
          reportOf(groupOf(R"({ "type": "kDetails", "summary": true })")) },
        { &MistakeCodes::kDetailsWithoutMark, "details without an identifying column such as a mark",
          "Lines that look alike, if only after rounding, are merged and leave the totals.",
          "Show a mark such as %PNum, or say what becomes of equal lines: \"equalLines\": \"count\" makes one line of "
          "them and counts all, \"keep\" prints each, \"merge\" is the engine's own way.",
          groupedList(kByMaterial, { "%Name", "%Length", "%Weight" }, kWeights),
          groupedList(kByMaterial, { "%Name", "%Length", "%Weight" }, kWeights, R"("equalLines": "count")") },
        { &MistakeCodes::kSectionBelowDetails, "details that have a section below them",
          "They are no details any more: the engine reports each row after the first, and the values of the first "
          "row stay.",
          "Make the details the deepest level, and what stands above them a kGroupHeader.",
          listOfSections(R"({ "type": "kDetails", "tuples": [ { "token": "%PNum" } ], "children": [ )" + details +
                         " ] }"),
          listOfSections(details) },
        { &MistakeCodes::kChildrenOfFooter, "children under a footer", "They are never evaluated.",
          "Make them the children of the header in front of the footer.",
          reportOf(groupOf(details, R"({ "type": "kGroupFooter", "children": [ { "type": "kDetails" } ] })")),
          reportOf(groupOf(details)) },
        { &MistakeCodes::kFooterBesideDetails, "a footer beside the details", "It is printed after every row.",
          "Move it one level up, behind the section whose child the details are.",
          reportOf(groupOf(details + R"(, { "type": "kGroupFooter" })")), reportOf(groupOf(details)) },
        { &MistakeCodes::kRoundedAlike, "\"equalLines\": \"count\", and numbers that are alike only as they are shown",
          "Lines of bolts of 9.5 and of 10 mm, both shown as 3/8\", become one, and the list says of all what it says "
          "of "
          "the first. Numbers within a thousandth of each other count as alike.",
          "Show the column more precisely: give it \"decimals\", or a \"unit\" such as \"mm/2\", of its own.",
          countedLengths(0), countedLengths(1), kLengths, kLengths },
    };
}
}
