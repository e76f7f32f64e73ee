// Each hundred of codes has a page of its own, MistakesOfStructure.cpp and so on, and pages stand in the order of their
// codes, so that the table is sorted as soon as each page is. MistakeTableTest asks whether it is, and whether it has
// every code.
#include "MistakeTable.h"

#include "MistakeExamples.h"

#include <utility>

namespace mekbom::MistakeTable
{
namespace
{
std::vector<Mistake> wholeTable()
{
    std::vector<Mistake> table;
    for (std::vector<Mistake> (*const pPart)() :
         { MistakeExamples::ofStructure, MistakeExamples::ofGrouping, MistakeExamples::ofSums,
           MistakeExamples::ofFormulas, MistakeExamples::ofTokens, MistakeExamples::ofData })
        for (Mistake& mistake : pPart())
            table.push_back(std::move(mistake));
    return table;
}
}

const std::vector<Mistake>& all()
{
    static const std::vector<Mistake> table = wholeTable();
    return table;
}

const Mistake* find(std::string_view code)
{
    for (const Mistake& mistake : all())
        if (code == mistake.pCode->name)
            return &mistake;
    return nullptr;
}
}
