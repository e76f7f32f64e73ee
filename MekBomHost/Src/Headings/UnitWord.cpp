#include "UnitWord.h"

#include "HeadingKey.h"
#include "InputUnits.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <algorithm>
#include <optional>

namespace mekbom
{
namespace
{
// As headingKey() has them.
const char* const kPieceWords[] = { "pc", "pcs", "pce",  "pces",  "piece",  "pieces", "ea",   "each",
                                    "st", "stk", "stck", "stuck", "stucke", "stuk",   "stuks" };

// What may stand between a unit and such a word instead of a slash.
const char* const kPer[] = { " per", " pro", " je", " par" };

// Ways to write units of the catalogue that it does not have: "lfm" and "ml" are German and French for a metre along a
// length, "m1" is Dutch for it. "ton" is left out on purpose: it may be any of three.
struct Spelling
{
    const char* written; // in small letters
    const char* symbol;
};

const Spelling kSpellings[] = {
    { "kgs", "kg" },     { "m^2", "m2" },      { "qm", "m2" },        { "sqm", "m2" },
    { "sq.m", "m2" },    { "kg/lfm", "kg/m" }, { "kg/ml", "kg/m" },   { "kg/m1", "kg/m" },
    { "m^2/m", "m2/m" }, { "qm/m", "m2/m" },   { "m2/m1", "m2/m" },   { "m\xC2\xB2/m1", "m2/m" },
    { "m2/ml", "m2/m" }, { "m2/lfm", "m2/m" }, { "lbs/ft", "lb/ft" },
};

bool isPieceWord(std::string_view text)
{
    const std::string key = headingKey(text);
    return std::any_of(std::begin(kPieceWords), std::end(kPieceWords),
                       [&key](const char* pWord) { return key == pWord; });
}

std::string inSmallLetters(std::string_view text)
{
    std::string small(text);
    std::transform(small.begin(), small.end(), small.begin(), [](char c) { return VorCharacters::toLower(c); });
    return small;
}

// As it is written first: that is what the catalogue's own names are for.
std::string symbolOf(std::string_view text)
{
    const std::string small = inSmallLetters(text);
    for (const std::string& symbol : { std::string(text), small })
        if (InputUnits::find(symbol, VorBomTemplateUnits::kNoUnit))
            return symbol;
    for (const Spelling& spelling : kSpellings)
        if (small == spelling.written)
            return spelling.symbol;
    return std::string();
}

// The part before "/pc" or " each"; empty when the text does not end so.
std::string_view withoutPerPiece(std::string_view text)
{
    const std::size_t end = text.find_last_of("/ ");
    if (end == std::string_view::npos || !isPieceWord(text.substr(end + 1)))
        return std::string_view();
    text = text.substr(0, end);
    for (const std::string_view per : kPer)
        if (text.size() > per.size() && text.substr(text.size() - per.size()) == per)
            text.remove_suffix(per.size());
    return VorCharacters::trimmed(text, " /");
}
}

UnitWord UnitWord::of(std::string_view text)
{
    text = VorCharacters::trimmed(text, " \t\r\n");
    if (!text.empty() && text.back() == '.')
        text.remove_suffix(1);
    UnitWord word;
    const std::string_view perPiece = withoutPerPiece(text);
    word.isPerPiece = !perPiece.empty();
    word.symbol = symbolOf(word.isPerPiece ? perPiece : text);
    if (const auto unit = InputUnits::find(word.symbol, VorBomTemplateUnits::kNoUnit))
        word.kind = InputUnits::kindOf(*unit);
    word.isPieces = !word.isPerPiece && word.symbol.empty() && isPieceWord(text);
    return word;
}
}
