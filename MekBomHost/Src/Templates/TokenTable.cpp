// The catalogue knows the type and order of each token, but no kinds of quantity: these a template registers as soon as
// it is told its units. So a template without a section is made for each table, and asked for the kind of %Weight.
#include "TokenTable.h"

#include "AlignedTable.h"
#include "UnitKinds.h"
#include "Utf8.h"

#include "VorBomTemplate.h"
#include "VorBomTokenCatalogue.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <algorithm>

namespace mekbom::TokenTable
{
namespace
{
using Entry = VorBomTokenCatalogue::Entry;

const char* const kNotes =
    "Natural order is that of marks, P2 before P10; plain order compares characters, 10 before 2.\n"
    "A name that ends in dots stands for all that begin so. Parts lists may have other columns, too.\n";

const char* valueOf(const Entry& entry)
{
    switch (entry.type)
    {
        case VorBomDataValue::kIntData: return "whole number";
        case VorBomDataValue::kDoubleData: return "number";
        default: return "text";
    }
}

const char* orderOf(const Entry& entry)
{
    switch (entry.sort)
    {
        case VorBomDataToken::kSortAlphanumeric: return "natural";
        case VorBomDataToken::kSortNumeric: return "number";
        default: return "plain";
    }
}

std::string kindOf(const Entry& entry, const VorBomTemplateUnits& units)
{
    const UnitKind* const pKind = UnitKinds::find(units.getUnitType(entry.name));
    return pKind == nullptr ? "" : pKind->name;
}

// Asked for "weight", the table has %Weight and %AssemblyWeight; so case does not count.
bool holds(const std::string& name, std::string_view word)
{
    return std::search(name.begin(), name.end(), word.begin(), word.end(),
                       [](char one, char other)
                       { return VorCharacters::toLower(one) == VorCharacters::toLower(other); }) != name.end();
}
}

// A word that is a whole token is found by the catalogue as well: "%UserAttr17" is in no name, and yet one of those
// that begin with %UserAttr.
std::vector<Line> lines(std::string_view word)
{
    VorBomTemplate withUnits;
    withUnits.setUnitsForTokens(nullptr);
    std::vector<Line> lines;
    for (const Entry* pEntry = VorBomTokenCatalogue::begin(); pEntry != VorBomTokenCatalogue::end(); ++pEntry)
    {
        const std::string name = Utf8::toBytes(pEntry->name);
        if (holds(name, word) || pEntry->matches(Utf8::toWide(word)))
            lines.push_back({ name, pEntry->isPrefix, valueOf(*pEntry), orderOf(*pEntry),
                              kindOf(*pEntry, *withUnits.getBomTemplateUnits()) });
    }
    return lines;
}

std::string textOf(std::string_view word)
{
    AlignedTable table({ "Token", "Value", "Order", "Kind" });
    for (const Line& line : lines(word))
        table.add({ line.token + (line.isPrefix ? "..." : ""), line.value, line.order, line.kind });
    return table.isEmpty() ? std::string() : table.text() + "\n" + kNotes;
}

std::vector<std::string> names()
{
    std::vector<std::string> names;
    for (const Entry* pEntry = VorBomTokenCatalogue::begin(); pEntry != VorBomTokenCatalogue::end(); ++pEntry)
        names.push_back(Utf8::toBytes(pEntry->name));
    return names;
}
}
