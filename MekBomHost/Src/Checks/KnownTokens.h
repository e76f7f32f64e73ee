// What is known of the tokens of one list: from the catalogue, from the template, and from the columns of the data.
//
//   const KnownTokens tokens(reportTemplate, { "%PosNum", "%Weight" });   // a parts list has these columns
//   tokens.knows("%PosNum")       ->  true: the data have it
//   tokens.kindOf("%Weight")      ->  kNumber, of the catalogue
//   tokens.kindOf("%PosNum")      ->  kOpen: only the cells can tell
//   tokens.nearestTo("%Wieght")   ->  "%Weight"
//
// Tokens are UTF-8, without a prefix such as "%SumBy:". Looks at the template while it is asked.
#pragma once

#include "ReportTemplate.h"

#include <string>
#include <unordered_set>
#include <vector>

namespace mekbom
{
class KnownTokens
{
public:
    enum eKind
    {
        kText,
        kWhole,  // a whole number
        kNumber, // a number with decimals
        kOpen    // neither the catalogue nor the template says
    };

    // `dataTokens` are those that the data have; none where there are no data.
    KnownTokens(const ReportTemplate& reportTemplate, std::vector<std::string> dataTokens);

    bool isInCatalogue(const std::string& token) const;

    // Whether the catalogue, the template's "tokens" or "tokenUnits", or the data have it.
    bool knows(const std::string& token) const;

    // Whether the data have it.
    bool isOfData(const std::string& token) const;

    eKind kindOf(const std::string& token) const;
    bool isNumeric(const std::string& token) const;

    // Whether numbers of that token are shown in a unit.
    bool hasUnit(const std::string& token) const;

    // Whether the token tells of a row's whole assembly, of a phase or of the model: rows of one assembly all have the
    // same %AssemblyWeight, which none of them adds to the list.
    bool isSharedByRows(const std::string& token) const;

    // Whether rows are sorted by the token in natural order, "P2" before "P10".
    bool isNatural(const std::string& token) const;

    // The token, or the token behind such a prefix as "%SumBy:", that was meant; empty when none is near.
    std::string nearestTo(const std::string& token) const;

private:
    const ReportTemplate& m_template;
    std::vector<std::string> m_dataTokens;
    std::unordered_set<std::string> m_isOfData; // the same ones
};
}
