// What the trade calls the data of parts, in English, German, Dutch and French, and which tokens it means by that.
//
//   HeadingTable::find("Werkstoff")->tokens   ->  "%Material"
//   HeadingTable::find("QTY.")->tokens        ->  "%Quantity"
//   HeadingTable::find("Position")->tokens    ->  "%PNum, %Num": one of them, and the heading does not say which
//   HeadingTable::find("Cost code")           ->  null
//
// Headings are found however they are written (headingKey). The names of the catalogue's tokens are found, too, as words
// of their own language: "bolt name" is %BoltName. The table is a constant; pointers to its entries hold as long as the
// program runs.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
struct HeadingEntry
{
    enum eMeaning
    {
        kIs,              // the first token, and there is one alone
        kUsually,         // the first token, unless other columns of the file say otherwise
        kMayBe,           // one of the tokens, the likeliest first; the file's other columns may tell which
        kEither,          // one of the tokens, and no other columns tell which, only a unit
        kIsOfAllPieces,   // the token, of all pieces of a row and not of one: "Total weight"
        kMayBeOfAllPieces // the token, and whether of one piece or of all is open: "Total length"
    };

    eMeaning meaning;
    const char* tokens;      // with ", " between them
    const char* tokenByUnit; // what it is in a unit per length: "Weight [kg/m]" is %WeightMeter; else empty
    const char* unit;        // that the heading is by itself: "kg"; else empty
    const char* headings[4]; // by language, each with ", " between them
};

namespace HeadingTable
{
// The languages of HeadingEntry::headings.
extern const char* const kLanguages[4];

// The entries in the order of their tokens, without the catalogue's names.
const std::vector<HeadingEntry>& all();

// The entry that has the heading; null when none does.
const HeadingEntry* find(std::string_view heading);

// The texts of a list as above:  "%PNum, %Num"  ->  "%PNum", "%Num"
std::vector<std::string> split(std::string_view list);

// All headings that mean one token for certain: for guesses at what was meant by a misspelled one.
const std::vector<std::string>& certain();

// The table for a terminal, aligned, with an explanation below: those entries that have `word` in a token or in a
// heading, however it is written; all of them for an empty word. Empty when there is none.
std::string textOf(std::string_view word);
}
}
