// MB601 to MB606, about data. The template is right throughout, and the same in both examples: the data differ.
#include "MistakeCodes.h"
#include "MistakeExamples.h"

namespace mekbom::MistakeExamples
{
namespace
{
std::string weights()
{
    return groupedList(kByMaterial, { "%PNum", "%Weight" }, kWeights);
}

std::string traced()
{
    return groupedList(kByMaterial, { "%Handle", "%Weight" }, kWeights);
}

std::string ownNumbers()
{
    return groupedList(kByMaterial, { "%PNum", "%Price" }, { "%SumBy:%Price" });
}
}

std::vector<Mistake> ofData()
{
    const std::string head = "%PNum,%Material,%Weight [kg]\n";
    const std::string handles = "%Handle,%Material,%Weight [kg]\n";
    const std::string prices = "%PNum,%Material,%Price\n";
    return {
        { &MistakeCodes::kKindsMixed, "one token with texts and numbers in the data",
          "A column that is computed with has numbers alone: order, groups and totals would be arbitrary otherwise.",
          "Mend the cells that are named.", ownNumbers(), ownNumbers(), prices + "P1,S235,10\nP2,S235,n/a\n",
          prices + "P1,S235,10\nP2,S235,12\n" },
        { &MistakeCodes::kTokenTwiceInRow, "a token twice in one row", withForeignRows("The first value counts."),
          "Give each row every token once.", weights(), weights(), "", "", true },
        { &MistakeCodes::kSubRows, "rows below rows", withForeignRows("They are in no list."),
          "Put all rows side by side.", weights(), weights(), "", "", true },
        { &MistakeCodes::kNotANumber, "NaN, or an infinite number, in the data",
          "It is equal to everything, and no total with it is a number.", "Leave the cell empty.", weights(), weights(),
          head + "P1,S235,nan\n", head + "P1,S235,\n" },
        { &MistakeCodes::kMarksOfEarlierReport, "data that have been evaluated before",
          withForeignRows("Rows that were merged then are in no total now, and formulas show their old values."),
          "Build the data anew for each report.", weights(), weights(), "", "", true },
        { &MistakeCodes::kHandleNotUnique, "empty or repeated object handles",
          "A line cannot be traced back to its object.", "Give each row a handle of its own.", traced(), traced(),
          handles + "A1,S235,10\nA1,S235,12\n", handles + "A1,S235,10\nA2,S235,12\n" },
        { &MistakeCodes::kNoNumberLeft, "numbers in the data that are far too large",
          "A total or the result of a formula passes the greatest number there is, 1.8e+308, and would be printed as "
          "\"inf\" or \"nan\".",
          "Mend the cells: numbers of that size are slips.", weights(), weights(),
          head + "P1,S235,1e308\nP2,S235,1e308\n", head + "P1,S235,1e307\nP2,S235,1e307\n" },
    };
}
}
