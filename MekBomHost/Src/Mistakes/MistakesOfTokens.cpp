// MB501 to MB506, about tokens and columns. Most examples add one tuple to the details of a list by material.
#include "MistakeCodes.h"
#include "MistakeExamples.h"

namespace mekbom::MistakeExamples
{
namespace
{
std::string showing(const std::string& tuple, const std::string& keys = "")
{
    return groupedList(kByMaterial, { "%PNum", tuple }, kWeights, keys);
}
}

std::vector<Mistake> ofTokens()
{
    const Tuples withName = { "%GroupBy:%Material", "%SortAscBy:%Material", "%Material", "%Name" };
    return {
        { &MistakeCodes::kTokenUnknown, "%posNum, %PaintMeter, any token not in the catalogue",
          "Tokens are looked up letter by letter: what no row has shows the template's own value on every line, often "
          "\"0\".",
          "Write the token as `mekbom tokens` lists it, or declare one of your own: \"tokens\": { \"%posNum\": "
          "\"text\" }. A column of the data is known, too.",
          showing("%posNum"), showing("%posNum", R"("tokens": { "%posNum": "text" })") },
        { &MistakeCodes::kColumnTokenMalformed, "a column without %, or with %%",
          "It is no token for formulas and units, and stays blank: every heading of a parts list gets one %.",
          "Write one %.", showing("Name"), showing("%Name") },
        { &MistakeCodes::kTokenVariesInGroup,
          "a token in a header or footer that is neither a grouping token of its level nor of one around it",
          "The value of the group's first row is shown in the header, that of the last row that counts in the footer. "
          "With data it is told only where it varies; lengths and the like that differ by less than 0.005 do not. "
          "%Quantity, or a formula with it, is told in every header: one row's pieces are never those of the group.",
          "Group by it as well, or show it in the details; sum pieces in the footer. What belongs to a mark needs no "
          "more than the mark: %MName within groups by %MNum, %Material within groups by %PNum.",
          groupedList(withName, kParts, kWeights),
          groupedList({ "%GroupBy:%Material,%Name", "%SortAscBy:%Material,%Name", "%Material", "%Name" }, kParts,
                      kWeights) },
        { &MistakeCodes::kNumberWithoutUnit, "a number of your own without a unit",
          "It is printed as it is, whatever units are asked for.",
          "Give it a kind if it measures something: \"tokenUnits\": { \"%Gap\": \"kDistanceUnit\" }.",
          showing("%Gap", R"("tokens": { "%Gap": "number" })"),
          showing("%Gap", R"("tokens": { "%Gap": "number" }, "tokenUnits": { "%Gap": "kDistanceUnit" })") },
        { &MistakeCodes::kNumberAsData,
          "a starting value 0 on a column of texts, or one other than 0 on a column of numbers",
          "It is printed wherever a row lacks the text or the number, and reads like data. A token that neither the "
          "catalogue nor the data have is a constant of the template, and may start as it likes.",
          "Take the \"value\" out.", showing(R"({ "token": "%Width", "value": 1000.0 })"),
          showing(R"({ "token": "%Width", "value": 0.0 })") },
        { &MistakeCodes::kWholeNumberUnderUnit, "a whole number under a token with a unit",
          withForeignRows("It is printed as it is, in the model's unit, whatever units are asked for."),
          "Hand over a number with decimals.", showing("%Length"), showing("%Length"), "", "", true },
        { &MistakeCodes::kOtherKindThanCatalogue, "\"tokenUnits\": { \"%Length\": \"kNoUnit\" }",
          "The model's number, in mm, is printed under whatever the label says, or as a quantity that it is not.",
          "Take the entry out; a \"unit\" in the column shows lengths in another unit than the list.",
          showing("%Length", R"("tokenUnits": { "%Length": "kNoUnit" })"),
          showing("%Length", R"("tokenUnits": { "%Length": "kDistanceUnit" })") },
    };
}
}
