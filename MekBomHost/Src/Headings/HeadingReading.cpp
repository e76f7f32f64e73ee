// A unit stands at many places, so a heading is taken apart in all ways that there are, and the first one counts whose
// name is in the table and whose unit measures what the name is about:
//
//   Length in mm        "Length in mm"                no heading of the table
//                       "Length" and "in mm"          no unit
//                       "Length in" and "mm"          %Length; "in" is dropped from the end of the name
//   Weight (each)       "Weight (each)"               the table has it: %Weight
//   Weight (net)        "Weight" and "net"            no unit, so it is a column of one's own
//   Weight [net]        the same, but brackets are for units alone: %Weight in "net", which is refused if it is wanted
#include "HeadingReading.h"

#include "HeadingKey.h"
#include "TokenNames.h"
#include "UnitWord.h"
#include "Utf8.h"

#include "VorBomTokenCatalogue.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <algorithm>

namespace mekbom
{
namespace
{
const char* const kBlanks = " \t\r\n";
const std::size_t kLongest = 80; // bytes; arbitrary: longer than any heading of the table with its unit

struct Parts
{
    std::string name;
    std::string_view unit;
    bool isInBrackets = false; // at the end, where the text must be a unit
};

// "Length in" of "Length in mm", "Weight /" of "Weight / kg", and in French "Longueur en mm".
std::string withoutLink(std::string_view name)
{
    name = VorCharacters::trimmed(name, " \t\r\n,:/_-");
    for (const std::string_view link : { " in", " en" })
        if (name.size() > link.size() && name.substr(name.size() - link.size()) == link)
            name.remove_suffix(link.size());
    return std::string(VorCharacters::trimmed(name, kBlanks));
}

// The last group in brackets or parentheses, wherever it stands: "Weight (kg) total" is "Weight total" and "kg".
void addGroup(std::string_view field, std::vector<Parts>& ways)
{
    const std::size_t begin = field.find_last_of("([");
    if (begin == std::string_view::npos)
        return;
    const std::size_t end = field.find(field[begin] == '(' ? ')' : ']', begin);
    if (end == std::string_view::npos)
        return;
    const std::string name = withoutLink(field.substr(0, begin)) + " " + withoutLink(field.substr(end + 1));
    ways.push_back({ withoutLink(name), field.substr(begin + 1, end - begin - 1),
                     field[begin] == '[' && end + 1 == field.size() });
}

std::vector<Parts> waysToRead(std::string_view field)
{
    std::vector<Parts> ways = { { std::string(field), std::string_view(), false } };
    if (field.size() > kLongest)
        return ways;
    addGroup(field, ways);
    for (std::size_t at = field.find_first_of(" \t\n/_,"); at != std::string_view::npos;
         at = field.find_first_of(" \t\n/_,", at + 1))
        ways.push_back({ withoutLink(field.substr(0, at)), field.substr(at + 1), false });
    return ways;
}

// Those of the entry's tokens that can be in the unit. Of all pieces is no weight that is one "per piece".
std::vector<std::string> tokensInUnit(const HeadingEntry& entry, const UnitWord& unit, const TokenKinds& kinds)
{
    std::vector<std::string> tokens;
    const bool isOfOne =
        entry.meaning != HeadingEntry::kIsOfAllPieces && entry.meaning != HeadingEntry::kMayBeOfAllPieces;
    if (!unit.isKnown() || (unit.isPerPiece && !isOfOne))
        return tokens;
    for (const std::string& token : HeadingTable::split(entry.tokens))
        if (unit.isPieces ? token == TokenNames::kPieces : kinds.of(token) == unit.kind)
            tokens.push_back(token);
    if (tokens.empty() && !unit.isPieces && kinds.of(entry.tokenByUnit) == unit.kind)
        tokens.emplace_back(entry.tokenByUnit);
    return tokens;
}

// Whether the program knows the token whose name stands there without its '%': "UserAttr7" is in no table of headings.
bool isKnown(const std::string& token)
{
    return token == TokenNames::kHandle || VorBomTokenCatalogue::find(Utf8::toWide(token)) != nullptr;
}

// False when the heading is not to be read that way.
bool read(const Parts& way, const TokenKinds& kinds, HeadingReading& reading)
{
    const HeadingEntry* const pEntry = HeadingTable::find(way.name);
    if (pEntry == nullptr)
        return false;
    const UnitWord unit = UnitWord::of(way.unit);
    reading.unit = way.unit.empty() ? pEntry->unit : unit.symbol;
    reading.tokens = way.unit.empty() ? HeadingTable::split(pEntry->tokens) : tokensInUnit(*pEntry, unit, kinds);
    if (reading.tokens.empty() && way.isInBrackets)
    {
        reading.unit = reading.written.unit;
        reading.tokens = HeadingTable::split(pEntry->tokens);
    }
    if (reading.tokens.empty())
        return false;
    reading.meaning = pEntry->meaning;
    reading.label = way.name;
    return true;
}
}

HeadingReading HeadingReading::of(std::string_view field, const TokenKinds& kinds)
{
    field = VorCharacters::trimmed(field, kBlanks);
    HeadingReading reading;
    reading.written = ColumnHeading::parse(field);
    reading.label = reading.written.token.substr(1);
    reading.isToken = !field.empty() && field.front() == '%';
    if (reading.isToken || reading.written.token == "%")
        return reading;
    for (const Parts& way : waysToRead(field))
        if (read(way, kinds, reading))
            return reading;
    if (isKnown(reading.written.token))
    {
        reading.tokens = { reading.written.token };
        reading.unit = reading.written.unit;
    }
    return reading;
}

bool HeadingReading::isCalled(std::string_view field, std::string_view heading)
{
    field = VorCharacters::trimmed(field, kBlanks);
    const std::vector<Parts> ways = waysToRead(field);
    return ColumnHeading::parse(field).token == ColumnHeading::tokenOf(heading) ||
           std::any_of(ways.begin(), ways.end(),
                       [heading](const Parts& way)
                       { return way.name == heading && (way.unit.empty() || UnitWord::of(way.unit).isKnown()); });
}

std::string HeadingReading::unitIn(std::string_view field, const std::string& token, const TokenKinds& kinds)
{
    field = VorCharacters::trimmed(field, kBlanks);
    for (const Parts& way : waysToRead(field))
    {
        const UnitWord unit = UnitWord::of(way.unit);
        if (!unit.symbol.empty() && unit.kind == kinds.of(token))
            return unit.symbol;
    }
    return ColumnHeading::parse(field).unit;
}
}
