// What is known of the tokens of one list: from the catalogue, from the template, and from the columns of the data.
//
//   const KnownTokens tokens(reportTemplate, { "%PosNum", "%Weight" });   // a parts list has these columns
//   tokens.knows("%PosNum")       ->  true: the data have it
//   tokens.kindOf("%Weight")      ->  kNumber, of the catalogue
//   tokens.kindOf("%PosNum")      ->  kOpen: only the cells can tell
//   tokens.nearestTo("%Wieght")   ->  "%Weight"
//
// Tokens are UTF-8, without a prefix such as "%SumBy:". The template is not owned and outlives this object, whose
// questions it answers: kinds and units that are registered with it later count.
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

    // `dataTokens` are those that the data have, with their percent signs; none where there are no data.
    KnownTokens(const ReportTemplate& reportTemplate, std::vector<std::string> dataTokens);

    // Whether the catalogue has it; of "%Handle" it is taken for granted.
    bool isInCatalogue(const std::string& token) const;

    // Whether a row can have it at all: the catalogue, the template's "tokens" or "tokenUnits", or the data name it.
    bool knows(const std::string& token) const;

    // Whether it is among the tokens of the data, whoever else knows it.
    bool isOfData(const std::string& token) const;

    // What the catalogue says, else the template's "tokens", else its "tokenUnits": what has a unit is a number.
    eKind kindOf(const std::string& token) const;

    // Whether it is kWhole or kNumber.
    bool isNumeric(const std::string& token) const;

    // Whether numbers of that token are shown in a unit.
    bool hasUnit(const std::string& token) const;

    // Whether the token tells of a row's whole assembly, of a phase or of the model: rows of one assembly all have the
    // same %AssemblyWeight, which none of them adds to the list.
    bool isSharedByRows(const std::string& token) const;

    // Whether rows are sorted by the token in natural order, "P2" before "P10".
    bool isNatural(const std::string& token) const;

    // The token that was meant, or, of a text with a colon, the same behind the prefix that was meant; empty when none
    // is near.
    //   "%Wieght"         ->  "%Weight"
    //   "%Sumby:%Weight"  ->  "%SumBy:%Weight"
    std::string nearestTo(const std::string& token) const;

private:
    const ReportTemplate& m_template;
    std::vector<std::string> m_dataTokens;
    std::unordered_set<std::string> m_isOfData; // the same ones
};
}
