// What the formulas of a template give: a quantity that is shown in the reader's unit of its kind, or a plain number.
//
//   columns   { "token": "%Formula:%Weight*%Price", "label": "Cost", "result": "EUR" }
//   details   %Formula:%Length*%WeightMeter   %Formula:%Weight*%Price   %Formula:%Length/1000
//
//   const FormulaResults results(reportTemplate);
//   results.find(L"%SumBy:%Formula:%Length*%WeightMeter")->kind;   // kWeightUnit, as of its tokens
//   results.find(L"%Formula:%Weight*%Price")->label;               // "EUR", as its column says
//   results.undeclared();                                          // one finding, about %Length/1000
//
// One formula gives one result wherever it stands: what the column of its details says holds for its totals, in
// whatever column these are. Kinds that "tokenUnits" of the template name for a formula's text count as said, too. Two
// that say something else of one formula are an error.
#pragma once

#include "Finding.h"
#include "FormulaResult.h"
#include "ReportTemplate.h"

#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Exp/VorString.h"

#include <map>
#include <string>
#include <vector>

namespace mekbom
{
class FormulaResults
{
public:
    // The kinds of the template's tokens must be registered. The template is not looked at later.
    explicit FormulaResults(const ReportTemplate& reportTemplate);

    // What a name in a formula of the template stands for. A token of the user's own is what the template says; a number,
    // when it says nothing.
    static FormulaOperand operandOf(const ReportTemplate& reportTemplate, const VorString& name);

    // What a name in a formula over totals stands for: what the sum of that name measures.
    FormulaOperand operandOfTotal(const ReportTemplate& reportTemplate, const ColumnTotal& total,
                                  const VorString& name) const;

    // Of "%Formula:..." or its total, and of a total that is calculated, "%TotalIn:..."; null for any other token and for
    // a formula that the template has not.
    const FormulaResult* find(const VorString& token) const;

    // What a column or "tokenUnits" says that the formula gives, by the text without prefixes; empty where none does.
    std::string declaredFor(const std::string& formula) const;

    // Tells the engine, so that it shows each formula in the unit of its kind, or without any. A formula whose measure
    // nobody says is one without.
    void registerWith(VorBomTemplateUnits& units) const;

    // The errors of the formulas whose measure neither follows from their tokens nor is said, and of those that are said
    // to be what they cannot be, or two things: each with its place in the template, without the name of the file.
    std::vector<Finding> undeclared() const;

private:
    struct Entry
    {
        VorString token;   // that its kind is registered for: the formula's text, or that of a calculated total
        VorString formula; // without prefixes
        FormulaResult result;
        TemplatePlace place; // of the first tuple that shows it
    };

    // What somebody says that a formula gives.
    struct Declaration
    {
        std::string result; // "weight", "none", "EUR"
        std::string where;  // "the column "%Cost"", "tokenUnits"
    };

    void declareByColumns(const ReportTemplate& reportTemplate);
    void declareByUnits(const ReportTemplate& reportTemplate, const VorString& formula);
    void declare(const std::string& formula, const Declaration& declaration, const TemplatePlace& place);
    void add(const ReportTemplate& reportTemplate, const VorString& formula, const TemplatePlace& place);
    void addTotal(const ReportTemplate& reportTemplate, const ColumnStyle& style);

    std::vector<Entry> m_entries;                  // as the sections name them
    VorStringHashMap<int> m_indices;               // by formula, or by the token of a calculated total
    std::map<std::string, Declaration> m_declared; // by formula; of several the first
    std::vector<Finding> m_conflicts;              // of those that say something else
};
}
