// Told on details with "%Formula:%Weight*%Price", whose column says "result": "EUR", and a footer with
// "%SumBy:%Formula:%Weight*%Price":
//   declarationsOf()       "%Weight*%Price" -> "EUR", in whatever section the column is that says it
//   add(), details         a new entry: what FormulaResult makes of formula and declaration, and where it stands
//   add(), footer          the same formula, which has its entry already
//   find("%SumBy:...")     the entry of the formula that is summed: label "EUR"
// So a total is in the unit of the lines above it, be it said there once or not at all.
#include "FormulaResults.h"

#include "InQuotes.h"
#include "MistakeCodes.h"
#include "TokenQuantities.h"
#include "UnitKinds.h"
#include "Utf8.h"

#include "VorBomDataToken.h"

#include <cstddef>

namespace mekbom
{
namespace
{
// The text of a formula or of the formula that is summed; empty for any other token.
VorString formulaOf(const VorString& token)
{
    VorString formula = TokenQuantities::datumOf(token);
    return VorBomDataToken::removeFormulaPrefix(formula) == 1 ? formula : VorString();
}

// What "tokenUnits" of the template say of a formula's text. Nothing is derived then: whoever names a formula there
// knows what it gives.
FormulaResult ofType(VorBomTemplateUnits::eTokenUnitType type)
{
    FormulaResult result;
    result.measure = UnitKinds::find(type) != nullptr ? FormulaResult::kKind : FormulaResult::kPlain;
    result.kind = type;
    return result;
}

// What columns say of formulas, by formula; of two that say something of one, the first.
std::map<std::string, std::string> declarationsOf(const ReportTemplate& reportTemplate)
{
    std::map<std::string, std::string> declarations;
    for (const VorBomItemBase* pSection : reportTemplate.evaluatedSections())
        for (int i = 0; i < pSection->getData().length(); ++i)
        {
            const VorString formula = formulaOf(pSection->getData()[i].token().token());
            const ColumnStyle* const pStyle = reportTemplate.styleOfTuple(*pSection, i);
            if (formula.isEmpty() == 0 && pStyle != nullptr && !pStyle->result.empty())
                declarations.emplace(Utf8::toBytes(formula), pStyle->result);
        }
    return declarations;
}

// The default template comes without a file, and its tuples have no places.
TemplatePlace placeOf(const ReportTemplate& reportTemplate, const VorBomItemBase* pSection, int tuple)
{
    const std::vector<TemplatePlace>& places = reportTemplate.styleOf(pSection).tuplePlaces;
    const auto index = static_cast<std::size_t>(tuple);
    return index < places.size() ? places[index] : TemplatePlace();
}
}

FormulaResults::FormulaResults(const ReportTemplate& reportTemplate) : m_declared(declarationsOf(reportTemplate))
{
    for (const VorBomItemBase* pSection : reportTemplate.evaluatedSections())
        for (int i = 0; i < pSection->getData().length(); ++i)
        {
            const VorString formula = formulaOf(pSection->getData()[i].token().token());
            if (formula.isEmpty() == 0)
                add(reportTemplate, formula, placeOf(reportTemplate, pSection, i));
        }
}

// Formulas are the same when their texts are, blanks included: so the engine tells them apart, too.
void FormulaResults::add(const ReportTemplate& reportTemplate, const VorString& formula, const TemplatePlace& place)
{
    bool isNew = false;
    m_indices.findOrInsert(formula, static_cast<int>(m_entries.size()), isNew);
    if (!isNew)
        return;
    const std::string name = Utf8::toBytes(formula);
    if (reportTemplate.tokenUnitPlaces.count(name) > 0)
    {
        m_entries.push_back(
            { formula, ofType(reportTemplate.pTemplate->getBomTemplateUnits()->getUnitType(formula)), place });
        return;
    }
    const auto operands = [&reportTemplate](const VorString& operand) { return operandOf(reportTemplate, operand); };
    m_entries.push_back({ formula, FormulaResult::of(formula, operands, declaredFor(name)), place });
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
    const VorString formula = formulaOf(token);
    const auto* const pNode = formula.isEmpty() == 1 ? nullptr : m_indices.find(formula);
    return pNode == nullptr ? nullptr : &m_entries[static_cast<std::size_t>(pNode->value)].result;
}

std::string FormulaResults::declaredFor(const std::string& formula) const
{
    const auto declared = m_declared.find(formula);
    return declared == m_declared.end() ? std::string() : declared->second;
}

void FormulaResults::registerWith(VorBomTemplateUnits& units) const
{
    for (const Entry& entry : m_entries)
        units.AddTokenType(entry.formula, entry.result.kind);
}

std::vector<Finding> FormulaResults::undeclared() const
{
    std::vector<Finding> findings;
    for (const Entry& entry : m_entries)
    {
        const bool isOpen = entry.result.measure == FormulaResult::kUndeclared;
        if (!isOpen && entry.result.contradiction.empty())
            continue;
        Finding finding = Finding::stating(MistakeCodes::kResultUndeclared,
                                           inQuotes(Utf8::toBytes(entry.formula)) + ": " +
                                               (isOpen ? entry.result.what : entry.result.contradiction));
        finding.remedy = entry.result.remedy;
        finding.begin = entry.place.span.begin;
        finding.end = entry.place.span.end;
        finding.path = entry.place.path;
        findings.push_back(finding);
    }
    return findings;
}
}
