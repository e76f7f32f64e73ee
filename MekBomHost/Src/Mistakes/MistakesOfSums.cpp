// MB301 to MB309, about totals. Most examples differ in the tuples of the group footer alone.
#include "MistakeCodes.h"
#include "MistakeExamples.h"

namespace mekbom::MistakeExamples
{
namespace
{
std::string summing(const Tuples& footer)
{
    return groupedList(kByMaterial, kParts, footer);
}

const char* const kFormula = "%Formula:%Weight*%Quantity";
const char* const kPieces = "%PNum,%Material,%Weight [kg],%Quantity\n";
const char* const kPrices = "%PNum,%Material,%Weight [kg],%Price\nP1,S235,5,10\n";
const char* const kRate =
    R"("tokens": { "%Price": "number" }, "allow": { "MB504": "EUR" }, "columns": [ { "token": "%SumBy:%Price", "label": "Rate",
    "result": "EUR/kg", "total": { "formula": "%C/%W", "of": { "%C": "%SumBy:%Price", "%W": "%SumBy:%Weight" } } } ])";
const char* const kAlike = "%Name,%Material,%Weight [kg]\nHEA200,S235,10\n";
}

std::vector<Mistake> ofSums()
{
    const Tuples detailsWithFormula = { "%PNum", "%Weight", "%Quantity", kFormula };
    const std::string total = std::string("%SumBy:") + kFormula;
    return {
        { &MistakeCodes::kSumOutsideFooter, "%SumBy:%Weight in a header or in the details",
          "Only footers add up: the starting value is printed, usually 0.",
          "Move the total to the footer of the level whose rows it is to add up.",
          groupedList(kByMaterial, { "%PNum", "%SumBy:%Weight" }, {}), summing(kWeights) },
        { &MistakeCodes::kSumOfTexts, "%SumBy:%Name (a text)", "The text of the last row is printed.", "Sum a number.",
          summing({ "%SumBy:%Name" }), summing(kWeights) },
        { &MistakeCodes::kSumOfList, "%SumBy: %Weight, or %SumBy:%Weight,%Length",
          "A total is of one token, whose text is taken as it is: no row has \" %Weight\" or \"%Weight,%Length\".",
          "Write no blank behind the colon, and one tuple for each token.", summing({ "%SumBy: %Weight" }),
          summing({ "%SumBy:%Weight", "%SumBy:%Length" }) },
        { &MistakeCodes::kSumStartsElsewhere, "a starting value that is not 0, or a text",
          "A number is added on top of every total. A text is printed where no row has a number; else it is replaced. "
          "A 0 of the other kind of number does no harm: the total is as exact as the rows.",
          "Take the \"value\" out.", summing({ R"({ "token": "%SumBy:%Weight", "value": 100 })" }),
          summing({ R"({ "token": "%SumBy:%Weight", "value": 0 })" }) },
        { &MistakeCodes::kFooterWithoutSum, "%Weight in a footer, %SumBy: forgotten",
          "The weight of the last row that counts is printed.", "Write %SumBy:%Weight.", summing({ "%Weight" }),
          summing(kWeights) },
        { &MistakeCodes::kSumOfMissingFormula,
          "%SumBy:%Formula:... with that formula in a group header alone, or spelt with other blanks",
          "Only the rows that opened a group are counted, or none at all.",
          "Give the details the formula, letter by letter as the total has it.",
          groupedList(kByMaterial, detailsWithFormula, { "%SumBy:%Formula:%Weight * %Quantity" }),
          groupedList(kByMaterial, detailsWithFormula, { total }) },
        { &MistakeCodes::kTotalsLoseRows, "totals over lines that read alike, without saying what becomes of these",
          "The engine merges lines that read alike, and takes the rows of all but the first out of the totals.",
          "Say what is meant: \"equalLines\": \"count\" makes one line of them and counts all, \"keep\" prints each, "
          "\"merge\" is the engine's own way.",
          groupedList(kByMaterial, { "%Name", "%Weight" }, kWeights, R"("allow": { "MB106": "see MB307" })"),
          groupedList(kByMaterial, { "%Name", "%Weight" }, kWeights, R"("equalLines": "count")"),
          kAlike + std::string("HEA200,S235,10\n"), kAlike + std::string("HEA200,S235,10\n") },
        { &MistakeCodes::kPiecesNotCounted,
          "%SumBy:%Weight, or %SumBy:%Formula:%Weight*1.05, while rows stand for several pieces; "
          "%SumBy:%AssemblyWeight",
          "Values of a row are those of one piece, and are added once per row. What belongs to a whole assembly, phase "
          "or model is added again by each of its rows. With \"equalLines\": \"count\" a value of one piece is an "
          "error: lines add it up to what is neither that of one piece nor that of all.",
          "Sum a formula that the details compute: %SumBy:%Formula:%Weight*%Quantity. Show %AssemblyWeight in the "
          "header of its group.",
          groupedList(kByMaterial, { "%PNum", "%Weight" }, kWeights),
          groupedList(kByMaterial, detailsWithFormula, { total }), kPieces + std::string("P1,S235,10,4\n"),
          kPieces + std::string("P1,S235,10,4\n") },
        { &MistakeCodes::kSumOfRequest, "%SumBy:%SumBy:..., %SumBy:%GroupBy:...", "No row has such a token.",
          "Write one %SumBy: and one token.", summing({ "%SumBy:%SumBy:%Weight" }), summing(kWeights) },
        { &MistakeCodes::kTotalNotCalculated,
          "\"total\": { \"formula\": \"%C/%W\" ... } over costs of fewer rows than weights",
          "Costs of ten rows by the weights of twelve are no price: such a total is left empty, and so is one that "
          "divides by 0.",
          "Fill the gaps in the data, or leave out the rows that have them.",
          groupedList(kByMaterial, { "%PNum" }, { "%SumBy:%Price", "%SumBy:%Weight" }, kRate),
          groupedList(kByMaterial, { "%PNum" }, { "%SumBy:%Price", "%SumBy:%Weight" }, kRate),
          kPrices + std::string("P2,S235,10,\n"), kPrices + std::string("P2,S235,10,30\n") },
    };
}
}
