// A function for each line of the grammar, which stands above it. Each gives false once something is wrong, with the
// finding kept, and so ends the reading from wherever it is. An operator's step comes behind those of both its sides,
// so that whoever takes the steps needs a stack and no tree:
//
//   "%Phase < 10 or !%Role"     readAlternatives   readAll   readOne: condition 0
//                               "or"               readAll   readOne: "!", condition 1, step "not"
//                               step "or"
#include "ConditionReader.h"

#include "FindingCodes.h"
#include "InQuotes.h"
#include "Utf8.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <algorithm>
#include <utility>

namespace mekbom
{
namespace
{
const std::string_view kBlanks = " \t\r\n";
const std::string_view kEndsOfToken = " \t\r\n,()!=<>'\"";
const char* const kConditionExpected = "a condition such as %BoltName, !%BoltName, %Material = 'S355' or %Length > 6 m";

struct OperatorSign
{
    std::string_view sign;
    RowCondition::eOperator value;
};

// Longer signs first: "<=" is not "<" and an operand "= 6 m". Both signs for "unequal" are taken, since people know
// either from other programs.
const OperatorSign kOperators[] = {
    { "<=", RowCondition::kLessOrEqual }, { ">=", RowCondition::kGreaterOrEqual }, { "!=", RowCondition::kUnequal },
    { "<>", RowCondition::kUnequal },     { "=", RowCondition::kEqual },           { "<", RowCondition::kLess },
    { ">", RowCondition::kGreater },
};

// What a word may go on with: "android" does not begin with "and". Every byte beyond ASCII is part of a letter.
bool isWordCharacter(char c)
{
    return VorCharacters::isLetter(c) || VorCharacters::isDigit(c) || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}
}

// What is left over once a whole filter has been read, as of "%A %B" or "%A)", is where another operator would have to
// be.
std::optional<Finding> ConditionReader::read()
{
    if (readAlternatives() && !m_rest.empty())
        failHere("\"and\", \"or\", a comma or the end");
    return m_finding;
}

// alternatives := all { "or" all }
bool ConditionReader::readAlternatives()
{
    if (!readAll())
        return false;
    while (takeWord("or"))
    {
        if (!readAll())
            return false;
        m_steps.push_back({ FilterStep::kOr });
    }
    return true;
}

// all := one { ( "and" | "," ) one }
bool ConditionReader::readAll()
{
    if (!readOne())
        return false;
    while (takeWord("and") || take(","))
    {
        if (!readOne())
            return false;
        m_steps.push_back({ FilterStep::kAnd });
    }
    return true;
}

// one := ( "not" | "!" ) one | "(" alternatives ")" | condition
bool ConditionReader::readOne()
{
    if (m_depth == kDeepest)
        return fail("more than " + std::to_string(kDeepest) + " conditions within each other", "fewer");
    ++m_depth;
    const bool isRead = takeWord("not") || take("!") ? readNegated()
                        : take("(")                  ? readInParentheses()
                                                     : readCondition();
    --m_depth;
    return isRead;
}

bool ConditionReader::readNegated()
{
    if (!readOne())
        return false;
    m_steps.push_back({ FilterStep::kNot });
    return true;
}

bool ConditionReader::readInParentheses()
{
    return readAlternatives() && (take(")") || failHere("\")\""));
}

// condition := token [ operator operand ]
// An operator that is there must have an operand, and none is needed where there is no operator. A "!" behind a
// condition, "%A !%B", lacks the comma in front of it, and is refused wherever the condition stands.
bool ConditionReader::readCondition()
{
    RowCondition condition;
    if (!readToken(condition) || (readOperator(condition) && !readOperand(condition)))
        return false;
    m_steps.push_back({ FilterStep::kCondition, m_conditions.size() });
    m_conditions.push_back(std::move(condition));
    skipBlanks();
    return m_rest.empty() || m_rest.front() != '!' || failHere("\"and\", \"or\", a comma or the end");
}

// token := '%' name | '%' '{' name '}'
// Without braces a name ends where anything else may begin, so that "%Length>6" needs no blanks.
bool ConditionReader::readToken(RowCondition& condition)
{
    skipBlanks();
    const bool isInBraces = m_rest.substr(0, 2) == "%{";
    const std::size_t begin = isInBraces ? 2 : 1;
    const std::size_t end = isInBraces ? m_rest.find('}') : m_rest.find_first_of(kEndsOfToken);
    if (m_rest.empty() || m_rest.front() != '%' || (isInBraces && end == std::string_view::npos))
        return failHere(kConditionExpected);
    const std::string_view name = m_rest.substr(begin, end == std::string_view::npos ? end : end - begin);
    if (name.empty() || name.front() == '%')
        return failHere(kConditionExpected);
    condition.token = Utf8::toWide("%" + std::string(name));
    m_rest.remove_prefix(begin + name.size() + (isInBraces ? 1 : 0));
    return true;
}

// False without a finding where none follows.
bool ConditionReader::readOperator(RowCondition& condition)
{
    for (const OperatorSign& candidate : kOperators)
        if (take(candidate.sign))
        {
            condition.comparison = candidate.value;
            return true;
        }
    return false;
}

// operand := quoted text | what stands before the next comma, parenthesis, "and" or "or"
// Blanks at the end of an operand belong to what follows it: of "S355 and %Name" it is "S355".
bool ConditionReader::readOperand(RowCondition& condition)
{
    skipBlanks();
    if (!m_rest.empty() && (m_rest.front() == '\'' || m_rest.front() == '"'))
        return readQuoted(condition);
    const std::size_t length = operandLength();
    condition.operand = VorCharacters::trimmed(m_rest.substr(0, length), kBlanks);
    if (condition.operand.empty())
        return failHere("a text or a number to compare with");
    m_rest.remove_prefix(length);
    return true;
}

// Either quote closes with its own kind alone, so that a text with one of them stands in the other: "7'-6". There is no
// sign for a quote within.
bool ConditionReader::readQuoted(RowCondition& condition)
{
    const std::size_t end = m_rest.find(m_rest.front(), 1);
    if (end == std::string_view::npos)
        return failHere("a quote that closes the text");
    condition.operand = m_rest.substr(1, end - 1);
    condition.isQuoted = true;
    m_rest.remove_prefix(end + 1);
    return true;
}

// A word ends the operand only where it is one: of "%Name = Hand and %Phase" that is the second "and". An operand
// without quotes may have blanks, as "6 m" has.
std::size_t ConditionReader::operandLength() const
{
    for (std::size_t i = 0; i < m_rest.size(); ++i)
    {
        if (m_rest[i] == ',' || m_rest[i] == '(' || m_rest[i] == ')')
            return i;
        const bool beginsWord = i > 0 && kBlanks.find(m_rest[i - 1]) != std::string_view::npos;
        if (beginsWord && (startsWithWord(m_rest.substr(i), "and") || startsWithWord(m_rest.substr(i), "or")))
            return i;
    }
    return m_rest.size();
}

bool ConditionReader::take(std::string_view sign)
{
    skipBlanks();
    if (m_rest.substr(0, sign.size()) != sign)
        return false;
    m_rest.remove_prefix(sign.size());
    return true;
}

bool ConditionReader::takeWord(std::string_view word)
{
    skipBlanks();
    if (!startsWithWord(m_rest, word))
        return false;
    m_rest.remove_prefix(word.size());
    return true;
}

// Whether the word stands in front, in large letters or small ones, and ends there. `word` is in small letters.
bool ConditionReader::startsWithWord(std::string_view text, std::string_view word) const
{
    if (text.size() < word.size())
        return false;
    for (std::size_t i = 0; i < word.size(); ++i)
        if (VorCharacters::toLower(text[i]) != word[i])
            return false;
    return text.size() == word.size() || !isWordCharacter(text[word.size()]);
}

void ConditionReader::skipBlanks()
{
    m_rest.remove_prefix(std::min(m_rest.find_first_not_of(kBlanks), m_rest.size()));
}

bool ConditionReader::fail(std::string found, std::string expected)
{
    m_finding = Finding::of(FindingCodes::kNoQueryFilter, std::move(found), std::move(expected));
    return false;
}

bool ConditionReader::failHere(const std::string& expected)
{
    return fail(m_rest.empty() ? "the end of the filter" : inQuotes(m_rest), expected);
}
}
