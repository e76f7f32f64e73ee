// One text of the report language, and what it asks for.
//
//   "%Weight"                          shows a datum
//   "%GroupBy:%PosNum,%Material"       groups rows by two data
//   "%SortAscBy:%Name"  "%SortDescBy:%Length"   order rows
//   "%SumBy:%Weight"                   asks for a total
//   "%FilterBy:3,7"                    names the object types wanted
//   "%Formula:%Weight*2"               computes a number
//
// The text is kept as written: no trimming, no case folding. Prefixes are matched exactly. A text that is not of the
// asked kind is no error: the answer is 0 and the outputs stay untouched. Owns its text; copies are independent. The
// static operations read tables that never change and may run on several threads.
#pragma once

#include "VorBomDataValue.h"

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Exp/VorString.h"

#include <utility>

class MEK_BOM_API VorBomDataToken
{
public:
    // How rows are ordered by a token.
    enum eSortType : int
    {
        kSortAlphanumeric = 0, // texts with embedded numbers in natural order: VorBomDataValue::compareAlphanumeric
        kSortString = 1,       // texts: VorBomDataValue::compare
        kSortNumeric = 2       // numbers: VorBomDataValue::compare
    };

    // How rows are ordered by some tokens in place of what getSortType() answers, as VorBomTemplate::setSortType() has it.
    using SortTypes = VorStringHashMap<eSortType>;

    static const VorString kTokenPrefix;    // "%", which every token starts with
    static const VorString kGroupPrefix;    // "%GroupBy:"
    static const VorString kSortAscPrefix;  // "%SortAscBy:"
    static const VorString kSortDescPrefix; // "%SortDescBy:"
    static const VorString kSumPrefix;      // "%SumBy:"
    static const VorString kFilterPrefix;   // "%FilterBy:"
    static const VorString kFormulaPrefix;  // "%Formula:"
    static const VorString kFunctionPrefix; // "%%"; a text that contains it anywhere is no token

    VorBomDataToken() = default;
    VorBomDataToken(const VorString& token) : m_token(token) {}
    VorBomDataToken(VorString&& token) noexcept : m_token(std::move(token)) {}

    const VorString& token() const { return m_token; }
    void setToken(const VorString& token) { m_token = token; }

    // Appends what this token groups by; 0 with `tokens` untouched if it is no grouping request.
    //   "%GroupBy: %PosNum , %Material"  ->  "%PosNum", "%Material"    blanks (no other white space) are dropped
    //   "%GroupBy:"                      ->  ""                        one empty element
    //   "%GroupBy:%A,,%B"                ->  "%A", ",%B"
    //   "%GroupBy:,%A"                   ->  ",%A"
    // On purpose: a comma where an element should start ends the split, and everything from it on is the last element.
    // Pinned by VorBomDataTokenTest.CommaListsAreSplitUpToAnEmptyElement. Sorting and filtering requests split alike.
    int getGroupingRequest(VorStringArray& tokens) const;

    // Appends what this token sorts by, each element with the direction prefix it carries, if any; 0 with `tokens`
    // untouched if it is no sorting request. removeSortingPrefix takes the elements on from here.
    //   "%SortAscBy:%A,%SortDescBy:%B,%C"  ->  "%SortAscBy:%A", "%SortDescBy:%B", "%C"
    int getSortingRequest(VorStringArray& tokens) const;

    // Sets `token` to what is summed, blanks kept, nothing split; 0 with `token` untouched if it is no summing request.
    //   "%SumBy:%Weight"  ->  "%Weight"
    int getSummingRequest(VorString& token) const;

    // Appends the integers that this token filters on; 0 with `values` untouched if it is no filtering request. An
    // element that is no number counts as VorString::toInteger reads it.
    //   "%FilterBy: 3, 7"  ->  3, 7
    // On purpose: the prefix may stand anywhere, yet as many characters as it has are cut from the start.
    //   "x%FilterBy:15"    ->  0        from ":15", which is no number
    // Pinned by VorBomDataTokenTest.FilterPrefixCountsAnywhereButIsCutFromTheStart.
    int getFilteringRequest(VorArray<int>& values) const;

    // Sets `formula` to the text after "%Formula:"; 0 with `formula` untouched if it is no formula.
    int getFormulaRequest(VorString& formula) const;

    // 1 when the text starts with "%" and contains "%%" nowhere.
    static int isToken(const VorString& text);

    // 1 for grouping, sorting and filtering requests: they steer the evaluation and are never printed. Sums and
    // formulas are printed.
    static int isInvisibleToken(const VorString& text);

    // 1 when the text starts with "%Formula:".
    static int isFormula(const VorString& text);

    // Strips "%SortAscBy:" or "%SortDescBy:" and sets `ascending` to 1 or 0; 0 with both arguments untouched when the
    // text starts with neither. Such an element sorts in the direction of the one before it.
    static int removeSortingPrefix(VorString& text, int& ascending);

    // Strips "%Formula:"; 0 with `text` untouched when it does not start so.
    static int removeFormulaPrefix(VorString& text);

    // The tokens in a formula text without its prefix, in order of appearance, repeated ones as often as they occur.
    //   "(%Weight+%Paint)*2"  ->  "%Weight", "%Paint"
    static VorStringArray getTokensFromFormula(const VorString& formula);

    // The kind of value that a token's data have, from the catalogue of known tokens; a sum has the type of what it
    // sums, a formula is kDoubleData. Reports "type != VorBomDataValue::kUnknownData" and answers kUnknownData for
    // everything else, grouping, sorting and filtering requests included.
    //   "%Weight"  ->  kDoubleData      "%SumBy:%Quantity"  ->  kIntData      "%UserAttr7"  ->  kStringData
    static VorBomDataValue::eBomDataValueType getTokenType(const VorString& token);

    // How rows are ordered by `token`. Reports "0", beside what getTokenType reports, and answers kSortString for a
    // token without known type.
    static eSortType getSortType(const VorString& token);

private:
    VorString m_token;
};
