// Reads the text of a filter into conditions and the steps that join them. RowFilter says what the language is.
//
//   ConditionReader reader("%Weight, !%BoltName");
//   reader.read()             ->  nothing wrong
//   reader.conditions()       ->  %Weight, %BoltName
//   reader.steps()            ->  condition 0, condition 1, not, and
#pragma once

#include "Finding.h"
#include "RowCondition.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class ConditionReader
{
public:
    // Parentheses and "not" within each other. Arbitrary: far more than people write, and reading them recurses.
    static constexpr int kDeepest = 100;

    // `text`, UTF-8, is not owned and outlives the reader.
    explicit ConditionReader(std::string_view text) : m_rest(text) {}

    // Reads all of the text; what is wrong with it if it is no filter. To be called once.
    std::optional<Finding> read();

    const std::vector<RowCondition>& conditions() const { return m_conditions; }
    const std::vector<FilterStep>& steps() const { return m_steps; }

private:
    bool readAlternatives();
    bool readAll();
    bool readOne();
    bool readNegated();
    bool readInParentheses();
    bool readCondition();
    bool readToken(RowCondition& condition);
    bool readOperator(RowCondition& condition);
    bool readOperand(RowCondition& condition);
    bool readQuoted(RowCondition& condition);
    bool take(std::string_view sign);
    bool takeWord(std::string_view word);
    bool startsWithWord(std::string_view text, std::string_view word) const;
    void skipBlanks();
    std::size_t operandLength() const;
    bool fail(std::string found, std::string expected);
    bool failHere(const std::string& expected);

    std::string_view m_rest; // what has not been read yet
    int m_depth = 0;
    std::vector<RowCondition> m_conditions;
    std::vector<FilterStep> m_steps;
    std::optional<Finding> m_finding;
};
}
