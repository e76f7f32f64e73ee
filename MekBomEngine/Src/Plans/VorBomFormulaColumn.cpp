// Told on "%Formula:%Length*%Quantity/1000" in a section %Length 2000, for rows %Quantity 3, %Quantity 4 ...:
//   made, once         the text is compiled; for %Length and %Quantity it is noted where section and rows have them
//   compute, per row   2000 and 3 are fetched from there, in the order of the names, and the compiled formula gives 6
//   computeOnce        every number becomes a variable of an evaluator that reads the text: for what is not compiled,
//                      for messages, and while a debug switch wants to see each formula
#include "VorBomFormulaColumn.h"

#include "ExpressionEvaluator/Src/ExpressionsEvaluator.h"
#include "ExpressionEvaluator/Src/VorExprEvVariableList.h"
#include "ExpressionEvaluator/Src/VorFormulaText.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

namespace
{
bool isComputable(const VorString& formula)
{
    return VorFormulaText::isFormula({ formula.getStringW(), static_cast<std::size_t>(formula.length()) });
}

bool isBefore(const VorString& a, const VorString& b)
{
    return VorString::compare(a, b) < 0;
}

// The tokens that the formula takes from the row, in the order of isBefore.
std::vector<VorString> sortedRowTokens(const VorString& formula)
{
    const VorStringArray tokens = VorBomDataToken::getTokensFromFormula(formula);
    std::vector<VorString> sorted(tokens.begin(), tokens.end());
    std::sort(sorted.begin(), sorted.end(), isBefore);
    return sorted;
}

// 0 with `number` untouched for a text or an empty value.
int getNumber(const VorBomDataValue& value, double& number)
{
    if (value.type() == VorBomDataValue::kIntData)
        number = *static_cast<const int*>(value.data());
    else if (value.type() == VorBomDataValue::kDoubleData)
        number = *static_cast<const double*>(value.data());
    else
        return 0;
    return 1;
}

// Makes a number known to the formula under the text of its token, which must outlive the evaluation.
void defineVariable(ExpressionsEvaluator& evaluator, const VorString& name, const VorBomDataValue& value)
{
    double number = 0;
    if (!getNumber(value, number))
        return;
    VorExprEvValue variable;
    variable.setDouble(number);
    evaluator.addVariable(VorExprEvTextView(name.getStringW(), 0, name.length()), variable);
}

void defineItemVariables(ExpressionsEvaluator& evaluator, const VorBomDataTupleArray& tuples, int indexOfFormula)
{
    for (int i = 0; i < tuples.length(); ++i)
        if (i != indexOfFormula)
            defineVariable(evaluator, tuples[i].token().token(), tuples[i].value());
}

// Newer variables are found first, so a number of the row hides one of the section.
void defineRowVariables(ExpressionsEvaluator& evaluator, const VorBomDataRow* pRow, const VorStringArray& tokens)
{
    if (pRow == nullptr)
        return;
    for (const VorString& token : tokens)
        if (const VorBomDataTuple* pDatum = pRow->getTupleAt(token))
            defineVariable(evaluator, token, pDatum->value());
}
}

// Compiled from the very text that computeOnce() reads, so that both have the same names. One that is no token, such as
// "Factor", is a variable of the section alone: rows are not asked for it, though they may have a tuple of that name.
VorBomFormulaColumn::VorBomFormulaColumn(std::shared_ptr<VorBomTuplePositions> pPositions,
                                         const VorBomDataTupleArray& tuples, int index)
    : m_nIndex(index),
      m_formula(formulaOf(tuples[index])),
      m_compiled(m_formula.getStringW(), m_formula.length()),
      m_isCompiled(isComputable(m_formula) && m_compiled.isCompiled() != 0),
      m_rowColumns(std::move(pPositions), m_compiled.names()),
      m_values(m_compiled.names().size())
{
    const std::vector<VorString> rowTokens = sortedRowTokens(m_formula);
    const std::vector<VorString>& names = m_compiled.names();
    for (std::size_t name = 0; name < names.size(); ++name)
    {
        if (!std::binary_search(rowTokens.begin(), rowTokens.end(), names[name], isBefore))
            m_rowColumns.leaveOut(static_cast<int>(name));
        m_tuplesOfName.push_back(tuplesNamed(names[name], tuples));
    }
}

int VorBomFormulaColumn::compute(const VorBomDataTupleArray& tuples, VorBomDataRow* pRow, double& result, Error* pError)
{
    // What is traced must be what is computed, so tracing does without the compiled form.
    if (!m_isCompiled || ExpressionsEvaluator::isTraced())
        return computeOnce(tuples, m_nIndex, pRow, result, pError);
    if (computeCompiled(tuples, pRow, result))
        return 1;
    if (pError != nullptr) // which the compiled formula does not know
        computeOnce(tuples, m_nIndex, pRow, result, pError);
    return 0;
}

// A name that has a number nowhere makes the formula fail, as an unknown variable does when the text is read. What was
// written to m_values until then is of no matter: the next row writes all of it anew.
int VorBomFormulaColumn::computeCompiled(const VorBomDataTupleArray& tuples, VorBomDataRow* pRow, double& result)
{
    std::optional<VorBomColumns::Found> found;
    if (pRow != nullptr)
        found = m_rowColumns.find(*pRow);
    for (std::size_t name = 0; name < m_values.size(); ++name)
    {
        const VorBomDataTuple* pDatum = found.has_value() ? (*found)[static_cast<int>(name)] : nullptr;
        if ((pDatum == nullptr || !getNumber(pDatum->value(), m_values[name])) &&
            !findInSection(name, tuples, m_values[name]))
            return 0;
    }
    return m_compiled.evaluate(m_values.data(), result);
}

int VorBomFormulaColumn::computeOnce(const VorBomDataTupleArray& tuples, int index, const VorBomDataRow* pRow,
                                     double& result, Error* pError)
{
    const VorString formula = formulaOf(tuples[index]);
    ExpressionsEvaluator evaluator(formula.getStringW(), static_cast<unsigned int>(formula.length()));
    if (!isComputable(formula))
        return 0;
    const VorStringArray rowTokens = VorBomDataToken::getTokensFromFormula(formula);
    defineItemVariables(evaluator, tuples, index);
    defineRowVariables(evaluator, pRow, rowTokens);

    wchar_t text[VorExprEvValue::kBufferLength];
    const int nResult = evaluator.evaluate(text);
    VorExprEvVariableList::ofThread().keepNames(); // those of the section and the row go, the variables stay
    if (!nResult)
    {
        if (pError != nullptr)
            *pError = { VorString(text), evaluator.errorPosition() };
        return 0;
    }
    // Through its text, as the result of a formula always comes: rounded to the decimals that the text has.
    result = VorString::toDouble(text, 0);
    return 1;
}

// Without the prefix, as the evaluator reads it.
VorString VorBomFormulaColumn::formulaOf(const VorBomDataTuple& tuple)
{
    VorString formula;
    tuple.token().getFormulaRequest(formula);
    return formula;
}

// The last first, as the formula looks for them. The formula itself is never its own variable.
std::vector<int> VorBomFormulaColumn::tuplesNamed(const VorString& name, const VorBomDataTupleArray& tuples) const
{
    std::vector<int> indices;
    for (int i = tuples.length() - 1; i >= 0; --i)
        if (i != m_nIndex && tuples[i].token().token() == name)
            indices.push_back(i);
    return indices;
}

// A text under the name does not end the search: an earlier tuple of that token may have a number.
int VorBomFormulaColumn::findInSection(std::size_t name, const VorBomDataTupleArray& tuples, double& value) const
{
    for (const int index : m_tuplesOfName[name])
        if (getNumber(tuples[index].value(), value))
            return 1;
    return 0;
}
