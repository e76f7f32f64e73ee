// MB201 to MB214, about grouping, sorting and filtering. Most examples differ in the tuples of the group header alone.
#include "MistakeCodes.h"
#include "MistakeExamples.h"

namespace mekbom::MistakeExamples
{
namespace
{
std::string groupedBy(const Tuples& group, const std::string& keys = "")
{
    return groupedList(group, kParts, kWeights, keys);
}

// Two levels of groups, the outer one by material and the inner one by another token.
std::string groupedTwice(const std::string& inner)
{
    return listOfSections(R"({ "type": "kGroupHeader",
      "tuples": [ )" + tuplesOf(kByMaterial) +
                          R"( ],
      "children": [
        { "type": "kGroupHeader",
          "tuples": [ )" + tuplesOf({ "%GroupBy:" + inner, "%SortAscBy:" + inner, inner }) +
                          R"( ],
          "children": [ { "type": "kDetails", "tuples": [ )" +
                          tuplesOf(kParts) + " ] } ] } ] }");
}

const char* const kMarks = "%PNum,%Material,%Weight [kg]\n";
}

std::vector<Mistake> ofGrouping()
{
    return {
        { &MistakeCodes::kGroupNotSorted, "%GroupBy:%Material without a sort key for it, or with another key before it",
          "Groups are made of rows that follow each other, so they split: the same material heads several groups.",
          "Give the section a tuple %SortAscBy: or %SortDescBy: with the same tokens, and no other key in front.",
          groupedBy({ "%GroupBy:%Material", "%SortAscBy:%Name,%Material", "%Material" }), groupedBy(kByMaterial) },
        { &MistakeCodes::kRequestWithoutPercent, "%GroupBy:Material, %SortDescBy:Weight (no %)",
          "No row has a token without a percent sign: all rows are one group, and nothing is sorted.",
          "Write the percent sign: %GroupBy:%Material.", groupedBy({ "%GroupBy:Material", "%Material" }),
          groupedBy(kByMaterial) },
        { &MistakeCodes::kGroupingWithoutEffect, "%GroupBy: in the deepest level, or in a footer",
          "It has no effect: in the deepest level each row is a group of its own, and footers are not asked.",
          "Move it to the kGroupHeader whose groups it is to make.",
          groupedList(kByMaterial, { "%GroupBy:%Name", "%PNum", "%Weight" }, kWeights), groupedBy(kByMaterial) },
        { &MistakeCodes::kSortingWithoutEffect, "a sorting request in a footer", "It is never read.",
          "Move it to the header in front of the footer.",
          groupedList(kByMaterial, kParts, { "%SortDescBy:%Weight", "%SumBy:%Weight" }),
          groupedList(kByMaterial, { "%SortDescBy:%Weight", "%PNum", "%Weight" }, kWeights) },
        { &MistakeCodes::kListMalformed, "%A,,%B or ,%A or a trailing comma, a semicolon or a tab as separator",
          "The list has elements such as \",%B\" or an empty one, which match nothing.",
          "Put one comma between two tokens, and none at either end.",
          groupedBy({ "%GroupBy:%Material,", "%SortAscBy:%Material", "%Material" }), groupedBy(kByMaterial) },
        { &MistakeCodes::kRequestWithinRequest, "%GroupBy:%SortAscBy:%Material",
          "Rows are looked at for a token of that whole text, which none has.", "Give each request a tuple of its own.",
          groupedBy({ "%GroupBy:%SortAscBy:%Material", "%Material" }), groupedBy(kByMaterial) },
        { &MistakeCodes::kGroupingByFormula, "grouping or sorting by a formula",
          "A formula is computed when its group is open already: every row is a group of its own, and sorting by it "
          "is ignored.",
          "Group by tokens of the data, or write the value into a column of the data.",
          groupedBy({ "%GroupBy:%Formula:%Length*2", "%Material" }), groupedBy(kByMaterial) },
        { &MistakeCodes::kDescendingGoesOn, "%SortDescBy:%A,%B", "%B is sorted in descending order, too.",
          "Give %B a direction of its own: %SortDescBy:%A,%SortAscBy:%B.",
          groupedList(kByMaterial, { "%SortDescBy:%Name,%PNum", "%PNum", "%Weight" }, kWeights),
          groupedList(kByMaterial, { "%SortDescBy:%Name,%SortAscBy:%PNum", "%PNum", "%Weight" }, kWeights) },
        { &MistakeCodes::kGroupingByFloat, "grouping by a number with decimals such as %Length",
          "Groups split at a millionth of the model's unit, although both values print alike.",
          "Group by a mark or a text. Where the data are rounded, excuse it: \"allow\": { \"MB209\": \"reason\" }.",
          groupedBy({ "%GroupBy:%Length", "%SortAscBy:%Length", "%Length" }), groupedBy(kByMaterial) },
        { &MistakeCodes::kPlainOrder, "sorting by %Phase, %Level, %UserAttr..., %HeatNumber and the like",
          "They are sorted as plain text: \"10\" comes before \"2\".",
          "Say \"order\": \"natural\" in the column of the token.",
          groupedBy({ "%GroupBy:%Phase", "%SortAscBy:%Phase", "%Phase" }),
          groupedBy({ "%GroupBy:%Phase", "%SortAscBy:%Phase", "%Phase" },
                    R"("columns": [ { "token": "%Phase", "order": "natural" } ])") },
        { &MistakeCodes::kSortingByUnknown, "sorting by a token that the catalogue lacks (%PosNum)",
          "Texts come in plain order, \"10\" before \"2\". With data it is told of columns of texts alone: numbers "
          "come in the order of their values.",
          "Say \"order\": \"natural\" or \"plain\" in the column of the token, or declare it a number in \"tokens\".",
          groupedBy({ "%GroupBy:%PosNum", "%SortAscBy:%PosNum", "%PosNum" }, R"("tokens": { "%PosNum": "text" })"),
          groupedBy({ "%GroupBy:%PosNum", "%SortAscBy:%PosNum", "%PosNum" }, R"("tokens": { "%PosNum": "text" },
  "columns": [ { "token": "%PosNum", "order": "natural" } ])") },
        { &MistakeCodes::kMarksNearlyEqual, "marks \"B2\" and \"B02\" under natural order",
          "They stand side by side and are two marks, in an order that only the zeros decide: two groups, which look "
          "as if one came twice.",
          "Write a mark in one way in the data.",
          groupedList({ "%GroupBy:%PNum", "%SortAscBy:%PNum", "%PNum" }, { "%Handle", "%Weight" }, kWeights),
          groupedList({ "%GroupBy:%PNum", "%SortAscBy:%PNum", "%PNum" }, { "%Handle", "%Weight" }, kWeights),
          kMarks + std::string("B2,S235,10\nB02,S235,12\n"), kMarks + std::string("B2,S235,10\nB10,S235,12\n") },
        { &MistakeCodes::kGroupedTwice, "one token grouped on two levels", "The inner level splits nothing.",
          "Take the token out of the inner level, or the level out of the list.", groupedTwice("%Material"),
          groupedTwice("%Name") },
        { &MistakeCodes::kFilterWithoutEffect, "%FilterBy: %Beam , %Plate, or any %FilterBy: expected to filter",
          "The engine filters no row; the texts become whatever number they begin with.",
          "Write the condition into \"queryFilter\" of the template.",
          groupedBy({ "%FilterBy: %Beam , %Plate", "%GroupBy:%Material", "%SortAscBy:%Material", "%Material" }),
          groupedBy(kByMaterial, R"("queryFilter": "%Weight")") },
        { &MistakeCodes::kTextsDifferInBlanks, "\"S355\" and \"S355 \" under a token that the list is grouped by",
          "Texts stay as they are written: there are two groups that read alike, each with totals of its own.",
          "Take the blanks out of the cells.", groupedList(kByMaterial, { "%PNum", "%Weight" }, kWeights),
          groupedList(kByMaterial, { "%PNum", "%Weight" }, kWeights), kMarks + std::string("P1,S355,10\nP2,S355 ,12\n"),
          kMarks + std::string("P1,S355,10\nP2,S355,12\n") },
    };
}
}
