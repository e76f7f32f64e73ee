// Told on details with "%Formula:%Weight*%Price", whose column says "result": "EUR", and a footer with
// "%SumBy:%Formula:%Weight*%Price":
//   declarationsOf()       "%Weight*%Price" -> "EUR", in whatever section the column is that says it
//   add(), details         a new entry: what FormulaResult makes of formula and declaration, and where it stands
//   add(), footer          the same formula, which has its entry already
//   find("%SumBy:...")     the entry of the formula that is summed: label "EUR"
// So a total is in the unit of the lines above it, be it said there once or not at all.
#include "FormulaResults.h"

#include "InQuotes.h"
#include "LabelUnit.h"
#include "MistakeCodes.h"
#include "TotalTokens.h"
#include "UnitKinds.h"
#include "Utf8.h"

#include "VorBomDataToken.h"

#include <set>
#include <utility>

namespace mekbom
{
namespace
{
// The text of a formula or of the formula that is summed; empty for any other token.
VorString formulaOf(const VorString& token)
{
    VorString formula = TotalTokens::datumOf(token);
    return VorBomDataToken::removeFormulaPrefix(formula) == 1 ? formula : VorString();
}

// As a column would say it.
std::string resultOf(VorBomTemplateUnits::eTokenUnitType type)
{
    const UnitKind* const pKind = UnitKinds::find(type);
    return pKind == nullptr ? FormulaResult::kDeclaredPlain : pKind->name;
}

// "length" and "distance" are one kind.
bool areSame(const std::string& result, const std::string& other)
{
    const UnitKind* const pKind = UnitKinds::find(result);
    return result == other || (pKind != nullptr && pKind == UnitKinds::find(other));
}

// A plain number under a label that names a unit is one in that unit: "none" over "Total [lb]" says "lb".
std::string resultOf(const ColumnStyle& style)
{
    const LabelUnit named = LabelUnit::of(style.label);
    return style.result == FormulaResult::kDeclaredPlain && named.pUnit != nullptr ? named.text : style.result;
}

Finding placed(Finding finding, const TemplatePlace& place)
{
    finding.begin = place.span.begin;
    finding.end = place.span.end;
    finding.path = place.path;
    return finding;
}
}

FormulaResults::FormulaResults(const ReportTemplate& reportTemplate)
{
    declareByColumns(reportTemplate);
    for (const VorBomItemBase* pSection : reportTemplate.evaluatedSections())
        for (int i = 0; i < pSection->getData().length(); ++i)
        {
            const VorString formula = formulaOf(pSection->getData()[i].token().token());
            if (formula.isEmpty() == 0)
                add(reportTemplate, formula, reportTemplate.placeOfTuple(*pSection, i));
        }
    for (const ColumnStyle& style : reportTemplate.columns)
        if (style.total.kind == ColumnTotal::kCalculated)
            addTotal(reportTemplate, style);
}

// A column that shows a formula on several levels says it once.
void FormulaResults::declareByColumns(const ReportTemplate& reportTemplate)
{
    std::set<std::pair<std::string, const ColumnStyle*>> seen;
    for (const VorBomItemBase* pSection : reportTemplate.evaluatedSections())
        for (int i = 0; i < pSection->getData().length(); ++i)
        {
            const VorString formula = formulaOf(pSection->getData()[i].token().token());
            const ColumnStyle* const pStyle = reportTemplate.styleOfTuple(*pSection, i);
            if (formula.isEmpty() == 0 && pStyle != nullptr && !pStyle->result.empty() &&
                seen.emplace(Utf8::toBytes(formula), pStyle).second)
                declare(Utf8::toBytes(formula),
                        { resultOf(*pStyle), "the column " + inQuotes(Utf8::toBytes(pStyle->token)) }, pStyle->place);
        }
}

// That a formula has no unit does not say that its column must not call it something.
void FormulaResults::declareByUnits(const ReportTemplate& reportTemplate, const VorString& formula)
{
    const std::string name = Utf8::toBytes(formula);
    const auto entry = reportTemplate.tokenUnitPlaces.find(name);
    if (entry == reportTemplate.tokenUnitPlaces.end())
        return;
    const std::string result = resultOf(reportTemplate.pTemplate->getBomTemplateUnits()->getUnitType(formula));
    const std::string declared = declaredFor(name);
    if (declared.empty() || result != FormulaResult::kDeclaredPlain || UnitKinds::find(declared) != nullptr)
        declare(name, { result, "\"tokenUnits\"" }, entry->second);
}

void FormulaResults::declare(const std::string& formula, const Declaration& declaration, const TemplatePlace& place)
{
    const Declaration& first = m_declared.emplace(formula, declaration).first->second;
    if (areSame(first.result, declaration.result))
        return;
    const auto saying = [](const Declaration& one) { return one.where + " says " + inQuotes(one.result); };
    Finding finding = Finding::stating(MistakeCodes::kResultUndeclared,
                                       inQuotes(formula) + ": " + saying(first) + ", and " + saying(declaration));
    finding.remedy = "say it in one of them alone: a formula gives the same wherever it stands";
    m_conflicts.push_back(placed(finding, place));
}

// Formulas are the same when their texts are, blanks included: so the engine tells them apart, too.
void FormulaResults::add(const ReportTemplate& reportTemplate, const VorString& formula, const TemplatePlace& place)
{
    bool isNew = false;
    m_indices.findOrInsert(formula, static_cast<int>(m_entries.size()), isNew);
    if (!isNew)
        return;
    declareByUnits(reportTemplate, formula);
    const auto operands = [&reportTemplate](const VorString& operand) { return operandOf(reportTemplate, operand); };
    m_entries.push_back(
        { formula, formula, FormulaResult::of(formula, operands, declaredFor(Utf8::toBytes(formula))), place });
}

// Comes behind all formulas of rows, which it may be about.
void FormulaResults::addTotal(const ReportTemplate& reportTemplate, const ColumnStyle& style)
{
    bool isNew = false;
    const VorString token = TotalTokens::of(style.total, style.token, style.token);
    m_indices.findOrInsert(token, static_cast<int>(m_entries.size()), isNew);
    const auto operands = [&](const VorString& name) { return operandOfTotal(reportTemplate, style.total, name); };
    const VorString& formula = style.total.formula;
    m_entries.push_back({ token, formula, FormulaResult::of(formula, operands, resultOf(style)), style.place });
}

// A total measures what it sums. Of a formula that is no quantity nobody knows in which unit it is: only its author.
FormulaOperand FormulaResults::operandOfTotal(const ReportTemplate& reportTemplate, const ColumnTotal& total,
                                              const VorString& name) const
{
    for (const ColumnTotal::Operand& operand : total.operands)
        if (operand.name == name)
        {
            const FormulaResult* const pResult = find(operand.sum);
            if (pResult == nullptr)
                return operandOf(reportTemplate, TotalTokens::datumOf(operand.sum));
            return pResult->measure == FormulaResult::kKind ? FormulaOperand::ofType(pResult->kind)
                                                            : FormulaOperand{ FormulaOperand::kOwnUnit };
        }
    return FormulaOperand();
}

// The catalogue comes first. What it does not know is a number of the user's own, unless the template says that it is a
// text: a formula would not be computed with texts, so its author means a number. What is no token at all stays
// unknown.
FormulaOperand FormulaResults::operandOf(const ReportTemplate& reportTemplate, const VorString& name)
{
    const FormulaOperand known = FormulaOperand::ofCatalogue(name, *reportTemplate.pTemplate->getBomTemplateUnits());
    if (known.meaning != FormulaOperand::kUnknown || VorBomDataToken::isToken(name) == 0)
        return known;
    const auto own = reportTemplate.ownTokens.find(Utf8::toBytes(name));
    const bool isText = own != reportTemplate.ownTokens.end() && own->second == kOwnText;
    return { isText ? FormulaOperand::kText : FormulaOperand::kOwnUnit, VorBomTemplateUnits::kNoUnit };
}

const FormulaResult* FormulaResults::find(const VorString& token) const
{
    const VorString formula = TotalTokens::kindOf(token) == ColumnTotal::kCalculated ? token : formulaOf(token);
    const auto* const pNode = formula.isEmpty() == 1 ? nullptr : m_indices.find(formula);
    return pNode == nullptr ? nullptr : &m_entries[static_cast<std::size_t>(pNode->value)].result;
}

std::string FormulaResults::declaredFor(const std::string& formula) const
{
    const auto declared = m_declared.find(formula);
    return declared == m_declared.end() ? std::string() : declared->second.result;
}

void FormulaResults::registerWith(VorBomTemplateUnits& units) const
{
    for (const Entry& entry : m_entries)
        units.AddTokenType(entry.token, entry.result.kind);
}

std::vector<Finding> FormulaResults::undeclared() const
{
    std::vector<Finding> findings = m_conflicts;
    for (const Entry& entry : m_entries)
    {
        const bool isOpen = entry.result.measure == FormulaResult::kUndeclared;
        if (!isOpen && entry.result.contradiction.empty())
            continue;
        Finding finding = Finding::stating(MistakeCodes::kResultUndeclared,
                                           inQuotes(Utf8::toBytes(entry.formula)) + ": " +
                                               (isOpen ? entry.result.what : entry.result.contradiction));
        finding.remedy = entry.result.remedy;
        findings.push_back(placed(finding, entry.place));
    }
    return findings;
}
}
