// The data tokens that the engine knows: what kind of value each carries and how it sorts.
//
//   VorBomTokenCatalogue::find(L"%Weight")->type   ->  kDoubleData
//   VorBomTokenCatalogue::find(L"%UserAttr7")      ->  the entry "%UserAttr", which stands for all that start so
//   VorBomTokenCatalogue::find(L"%PosNum")         ->  null: a template may use it, but nothing is known about it
//
// Answers without reporting anything, for callers to whom an unknown token is no mistake; VorBomDataToken::getTokenType
// reports. The table never changes and may be read by several threads. A new token is one line in the .cpp.
//
// The whole token is compared, case included. Prefixes of the report language are the caller's to strip:
// "%SumBy:%Weight" is not found although "%Weight" is, and formulas are not in the table at all. What the catalogue
// says of a kind is what templates may rely on; it does not make anybody convert a value that is of another kind.
//
// A look-up passes over some hundred entries, so whoever asks for every row asks once and keeps the pointer. Entries
// are constants of the program: pointers to them hold as long as it runs, are owned by nobody and never to be deleted.
#pragma once

#include "VorBomDataToken.h"
#include "VorBomDataValue.h"

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorString.h"

#include <cstddef>

class MEK_BOM_API VorBomTokenCatalogue
{
public:
    // One kind of token. Owns nothing: names are literals.
    struct Entry
    {
        // Takes the length from the literal.
        // Entries are made by the table alone, when the program is compiled; nothing runs at its start.
        template <std::size_t N>
        constexpr Entry(const wchar_t (&entryName)[N], VorBomDataValue::eBomDataValueType valueType,
                        VorBomDataToken::eSortType entrySort, bool entryIsPrefix = false)
            : name(entryName),
              length(static_cast<int>(N - 1)),
              type(valueType),
              sort(entrySort),
              isPrefix(entryIsPrefix)
        {
        }

        // Whether `token` is this one, or starts with its name where that stands for all that do.
        //   VorBomTokenCatalogue::find(L"%Weight")->matches(L"%WeightMeter")     ->  false
        //   VorBomTokenCatalogue::find(L"%UserAttr")->matches(L"%UserAttr7")     ->  true
        bool matches(const VorString& token) const;

        // Ends with a zero. One entry, "%%PaintMeter", is none that VorBomDataToken::isToken would call a token, on
        // purpose: data carry it so.
        const wchar_t* name;
        int length; // of the name, in characters
        VorBomDataValue::eBomDataValueType type;
        VorBomDataToken::eSortType sort;
        bool isPrefix; // any token that starts with the name
    };

    // The first entry that matches the whole token, its prefix not stripped; null when there is none. Case counts.
    // A prefix entry matches its own name as well: "%UserAttr" alone is found like "%UserAttr7". No two entries match
    // one token with different answers, so their order matters to nobody but a reader.
    //   VorBomTokenCatalogue::find(L"%Length")->sort        ->  kSortNumeric
    //   VorBomTokenCatalogue::find(L"%SumBy:%Length")       ->  null
    static const Entry* find(const VorString& token);

    // The table as a half-open range: tokens of texts, then of whole numbers, then of numbers.
    // Each entry has the sort type of its kind: numbers sort as numbers, texts naturally or plainly.
    //   for (const auto* pEntry = VorBomTokenCatalogue::begin(); pEntry != VorBomTokenCatalogue::end(); ++pEntry)
    //       offer(pEntry->name);
    static const Entry* begin();
    static const Entry* end();
};
