// The columns are named from the surest to the least sure, and each step sees what the ones before it have taken:
//
//   Part mark   Mark   Length   Total length   Unit weight
//
//   what is mapped or has its "%"     nothing here
//   headings that are one token       Part mark is %PNum, Length is %Length
//   headings that the others settle   Mark is %PNum or %MNum, and %PNum is taken: %MNum
//   headings that usually mean one    nothing is left of them: alone, Mark would be %PNum
//   totals                            Total length is not asked about, as there is a %Length
//   what is left                      Unit weight is in doubt: %Weight or %WeightMeter
//
// What is written or mapped settles nothing for others: a file that has "%MNum" and "Baugruppe" does not say that the
// second is the name of the assembly.
#include "ColumnNames.h"

#include "FindingCodes.h"
#include "HeadingKey.h"
#include "HeadingReading.h"
#include "InQuotes.h"
#include "TokenNames.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <unordered_set>
#include <utility>

namespace mekbom
{
namespace
{
using Columns = std::vector<std::size_t>;

// The columns that may carry a token, tokens in their order so that messages come in one.
using Claims = std::map<std::string, Columns>;

bool isOfTotals(HeadingEntry::eMeaning meaning)
{
    return meaning == HeadingEntry::kIsOfAllPieces || meaning == HeadingEntry::kMayBeOfAllPieces;
}

std::string joined(const std::vector<std::string>& texts)
{
    std::string text;
    for (const std::string& next : texts)
        text += (text.empty() ? "" : &next == &texts.back() ? " or " : ", ") + next;
    return text;
}

// --map "Position=%PNum"
std::string mapOption(const std::string& heading, const std::string& token)
{
    return "--map " + inQuotes(harmless(heading) + "=" + token, 2 * kMostQuoted);
}

class Naming
{
public:
    Naming(const std::vector<std::string>& headings, const HeadingChoices& choices) : m_headings(headings)
    {
        for (const std::string& heading : headings)
            m_readings.push_back(HeadingReading::of(heading, m_kinds));
        for (const HeadingReading& reading : m_readings)
        {
            m_names.columns.emplace_back();
            m_names.columns.back().token = reading.written.token;
            m_names.columns.back().unit = reading.written.unit;
            m_names.columns.back().label = reading.label;
        }
        m_isSettled.resize(headings.size());
        takeMapped(choices.mappings);
        takeWritten(choices.ownTokens);
        takeCertain();
        settleByOthers();
        takeUsual();
        takeTotals();
        doubtOthers();
    }

    ColumnNames takeNames() { return std::move(m_names); }

private:
    // Later mappings replace earlier ones, as the user's come after those of the template.
    void takeMapped(const std::vector<HeadingMapping>& mappings)
    {
        for (const HeadingMapping& mapping : mappings)
        {
            const Columns columns = columnsCalled(mapping.heading);
            for (const std::size_t column : columns)
                give(column, mapping.token, HeadingReading::unitIn(m_headings[column], mapping.token, m_kinds),
                     ColumnName::kMapped);
            if (columns.empty() && mapping.mustBeThere)
                m_names.missing.push_back(mapping);
        }
        for (std::size_t i = 0; i < m_readings.size(); ++i)
            if (m_isSettled[i])
                m_written.insert(m_names.columns[i].token);
    }

    // Those that are called so letter by letter, with the unit or without; where there are none, those that are called
    // so in any way of writing.
    Columns columnsCalled(const std::string& heading) const
    {
        const std::string key = headingKey(heading);
        Columns exact;
        Columns alike;
        for (std::size_t i = 0; i < m_readings.size(); ++i)
        {
            if (HeadingReading::isCalled(m_headings[i], heading))
                exact.push_back(i);
            else if (key == headingKey(m_headings[i]) || key == headingKey(m_readings[i].label))
                alike.push_back(i);
        }
        return exact.empty() ? alike : exact;
    }

    // Own tokens of the template are those of the heading with a "%" in front of it, as it stands there.
    void takeWritten(const std::set<std::string>& ownTokens)
    {
        for (std::size_t i = 0; i < m_readings.size(); ++i)
        {
            const ColumnHeading& written = m_readings[i].written;
            const bool isOwn = ownTokens.count(written.token) > 0;
            if (m_isSettled[i] || !(m_readings[i].isToken || m_readings[i].tokens.empty() || isOwn))
                continue;
            m_isSettled[i] = true;
            m_written.insert(written.token);
        }
    }

    // A column that loses its token to what is written is one of its own, without a doubt; so is one of several meanings
    // of which one is written somewhere.
    void takeCertain()
    {
        for (std::size_t i = 0; i < m_readings.size(); ++i)
            for (const std::string& token : m_readings[i].tokens)
                if (m_written.count(token) > 0)
                    m_isSettled[i] = true;
        Claims claims;
        for (std::size_t i = 0; i < m_readings.size(); ++i)
            if (!m_isSettled[i] && m_readings[i].tokens.size() == 1 && !isOfTotals(m_readings[i].meaning))
                claims[m_readings[i].tokens.front()].push_back(i);
        addEither(claims);
        giveOrContest(claims);
    }

    // "Unit weight" beside "Weight": if it is of one piece, "Weight" is most likely of all.
    void addEither(Claims& claims) const
    {
        for (const std::size_t column : openColumns())
            if (m_readings[column].meaning == HeadingEntry::kEither && m_readings[column].tokens.size() > 1)
                if (const auto claim = claims.find(m_readings[column].tokens.front()); claim != claims.end())
                    claim->second.push_back(column);
    }

    // A heading of which the other columns leave one meaning, or none.
    void settleByOthers()
    {
        Claims claims;
        for (const std::size_t column : openColumns())
        {
            const std::vector<std::string> tokens = freeTokensOf(column);
            if (tokens.empty())
                m_isSettled[column] = true;
            else if (tokens.size() == 1 && m_readings[column].meaning != HeadingEntry::kEither)
                claims[tokens.front()].push_back(column);
        }
        giveOrContest(claims);
    }

    // "Mark" is %PNum, even beside an "Item" that may be, too; but beside "Position", of which that is the first meaning
    // as well, one of the two is something else.
    void takeUsual()
    {
        Claims claims;
        for (const std::size_t column : openColumns())
            claims[m_readings[column].tokens.front()].push_back(column);
        for (const auto& [token, columns] : claims)
            if (columns.size() == 1 && !isTaken(token) && m_readings[columns.front()].meaning == HeadingEntry::kUsually)
                giveByTable(columns.front(), token);
    }

    // A total is asked about only where nobody says what one piece has.
    void takeTotals()
    {
        Claims claims;
        for (std::size_t i = 0; i < m_readings.size(); ++i)
            if (!m_isSettled[i] && isOfTotals(m_readings[i].meaning))
                claims[m_readings[i].tokens.front()].push_back(i);
        for (const auto& [token, columns] : claims)
        {
            const std::size_t column = columns.front();
            if (isTaken(token))
                continue;
            if (columns.size() > 1)
                contest(token, columns);
            else if (m_readings[column].meaning == HeadingEntry::kIsOfAllPieces && hasPieces())
            {
                giveByTable(column, token);
                m_names.columns[column].isRowTotal = true;
            }
            else
                doubtTotal(column, token);
        }
    }

    void doubtOthers()
    {
        for (const std::size_t column : openColumns())
        {
            const std::vector<std::string> tokens = freeTokensOf(column);
            if (tokens.empty())
                continue;
            Finding finding =
                Finding::stating(FindingCodes::kHeadingAmbiguous, "may be " + joined(m_readings[column].tokens));
            finding.remedy = "say which, as in " + mapOption(label(column), tokens.front());
            doubt(column, tokens, finding);
        }
    }

    // Neither settled nor a total.
    Columns openColumns() const
    {
        Columns columns;
        for (std::size_t i = 0; i < m_readings.size(); ++i)
            if (!m_isSettled[i] && !isOfTotals(m_readings[i].meaning))
                columns.push_back(i);
        return columns;
    }

    std::vector<std::string> freeTokensOf(std::size_t column) const
    {
        std::vector<std::string> tokens;
        for (const std::string& token : m_readings[column].tokens)
            if (!isTaken(token))
                tokens.push_back(token);
        return tokens;
    }

    bool isTaken(const std::string& token) const { return m_taken.count(token) > 0 || m_written.count(token) > 0; }

    // Pieces in doubt are none.
    bool hasPieces() const
    {
        return std::any_of(m_names.columns.begin(), m_names.columns.end(),
                           [](const ColumnName& column)
                           { return column.token == TokenNames::kPieces && !column.doubt; });
    }

    const std::string& label(std::size_t column) const { return m_names.columns[column].label; }

    void give(std::size_t column, const std::string& token, const std::string& unit, ColumnName::eOrigin origin)
    {
        ColumnName& name = m_names.columns[column];
        name.token = token;
        name.unit = unit;
        name.origin = origin;
        m_isSettled[column] = true;
    }

    // A heading that is the very name of its token tells nobody anything new.
    void giveByTable(std::size_t column, const std::string& token)
    {
        const bool isWritten = m_readings[column].written.token == token;
        give(column, token, m_readings[column].unit, isWritten ? ColumnName::kWritten : ColumnName::kTable);
        m_taken.insert(token);
    }

    void giveOrContest(const Claims& claims)
    {
        for (const auto& [token, columns] : claims)
            if (columns.size() == 1)
                giveByTable(columns.front(), token);
            else
                contest(token, columns);
    }

    // Two are named: a third has to wait until one of them is mended.
    void contest(const std::string& token, const Columns& columns)
    {
        const std::string& other = label(columns[1]);
        Finding finding = Finding::stating(FindingCodes::kHeadingsOfOneToken,
                                           "columns " + inQuotes(m_headings[columns[0]]) + " and " +
                                               inQuotes(m_headings[columns[1]]) + " may both be " + token);
        finding.remedy = "say what one of them is instead, as in " + mapOption(other, "%Other");
        for (const std::size_t column : columns)
            doubt(column, { token }, finding);
        m_taken.insert(token);
    }

    void doubtTotal(std::size_t column, const std::string& token)
    {
        const bool isCertain = m_readings[column].meaning == HeadingEntry::kIsOfAllPieces;
        const std::string map = mapOption(label(column), token);
        Finding finding = isCertain
                              ? Finding::stating(FindingCodes::kTotalWithoutPieces,
                                                 "is " + token + " of all pieces of a row, and no column says how many")
                              : Finding::stating(FindingCodes::kHeadingAmbiguous,
                                                 "may be " + token + " of one piece or of all pieces of a row");
        finding.remedy = isCertain ? "if each row is one piece, say " + map
                                   : "say " + map + ", and --row-totals " + token + " if it is of all";
        doubt(column, { token }, finding);
    }

    void doubt(std::size_t column, const std::vector<std::string>& tokens, Finding finding)
    {
        if (finding.code != FindingCodes::kHeadingsOfOneToken.name)
            finding.field = m_headings[column];
        m_names.columns[column].doubt = std::make_shared<HeadingDoubt>(HeadingDoubt{ tokens, std::move(finding) });
        m_isSettled[column] = true;
    }

    const std::vector<std::string>& m_headings;
    TokenKinds m_kinds;
    std::vector<HeadingReading> m_readings;    // one for each heading
    std::vector<bool> m_isSettled;             // the same
    std::unordered_set<std::string> m_written; // tokens that are mapped or written
    std::unordered_set<std::string> m_taken;   // tokens that the table has given to a column, or that several claim
    ColumnNames m_names;
};
}

ColumnNames ColumnNames::of(const std::vector<std::string>& headings, const HeadingChoices& choices)
{
    return Naming(headings, choices).takeNames();
}
}
