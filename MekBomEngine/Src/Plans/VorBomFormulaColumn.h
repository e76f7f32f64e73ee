// One "%Formula:" tuple of a header or details section, computed row by row.
//
//   section  %Length 2000, "%Formula:%Length*%Quantity/1000"      row  %Quantity 3
//   compute(tuples, row, result)  ->  1, result 6
//
// A token in the formula stands for the row's number under it; where the row has none, for that of the section's last
// other tuple that has the token and a number. A name that is no token is looked for in the section alone. Texts define
// nothing. Formulas of 3 characters or fewer, or without any of "*/+-=()", are taken for plain tokens or numbers and
// not computed. The result has passed through its text, so it has six decimals.
#pragma once

#include "VorBomColumns.h"
#include "VorBomDataRow.h"

#include "ExpressionEvaluator/Src/VorCompiledFormula.h"

#include <memory>
#include <vector>

class VorBomFormulaColumn
{
public:
    struct Error
    {
        VorString message;
        int position = -1; // in the formula, in characters; -1 for none
    };

    // `tuples` are those of the section that all others are made from; the one at `index` must be a formula.
    VorBomFormulaColumn(std::shared_ptr<VorBomTuplePositions> pPositions, const VorBomDataTupleArray& tuples,
                        int index);

    int index() const { return m_nIndex; }

    // 0 with `result` untouched when the formula is none or fails. The row may be null. `pError`, if not null, is set
    // to the error of a formula that fails, which costs another evaluation.
    int compute(const VorBomDataTupleArray& tuples, VorBomDataRow* pRow, double& result, Error* pError = nullptr);

    // Computes it by the formula evaluator, whose variables and errors of this thread are afterwards those of the
    // formula. What a debug switch lets see is seen once.
    static int computeOnce(const VorBomDataTupleArray& tuples, int index, const VorBomDataRow* pRow, double& result,
                           Error* pError = nullptr);

private:
    int computeCompiled(const VorBomDataTupleArray& tuples, VorBomDataRow* pRow, double& result);
    static VorString formulaOf(const VorBomDataTuple& tuple);
    std::vector<int> tuplesNamed(const VorString& name, const VorBomDataTupleArray& tuples) const;
    int findInSection(std::size_t name, const VorBomDataTupleArray& tuples, double& value) const;

    int m_nIndex;
    VorString m_formula;
    VorCompiledFormula m_compiled;
    bool m_isCompiled;
    // Where a name of the compiled formula gets its value from: first the row, if the name is one of its tokens, then
    // the section's tuples of that token, in this order.
    VorBomColumns m_rowColumns;
    std::vector<std::vector<int>> m_tuplesOfName;
    std::vector<double> m_values;
};
