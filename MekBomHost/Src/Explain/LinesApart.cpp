// Two lines are two for one of two reasons, and the first is looked for first: in lines of two groups the texts may
// well be the same. Of a list by %Material with a hidden column %Phase:
//
//   S235  HEA200        row 1, phase 1
//   S235  HEA200        row 2, phase 2     differs in %Phase: the engine compares hidden columns, too
//   S355  HEA200        row 3              is in another group, whatever else differs
#include "LinesApart.h"

#include "InQuotes.h"
#include "PieceTokens.h"
#include "Utf8.h"
#include "WordList.h"

#include "VorBomDataToken.h"
#include "VorBomDataTuple.h"

#include <cstddef>

namespace mekbom
{
namespace
{
const VorBomDataRow& firstRowOf(const ReportLine& line)
{
    return **line.headerRows.begin();
}

// %Name: "IPE450", here "IPE360"
std::string unlike(const VorString& token, const std::string& other, const std::string& here)
{
    return Utf8::toBytes(token) + ": " + other + ", here " + here;
}
}

LinesApart::LinesApart(const ExplainedReport& report)
    : m_report(report),
      m_levels(*report.reportTemplate.pTemplate),
      m_data(report),
      m_details(m_levels.details()),
      m_columns(static_cast<std::size_t>(m_details.getData().length()), -1)
{
    const std::vector<int> shown = report.reportTemplate.shownTuplesOf(m_details);
    const std::vector<int>& columns = report.evaluated.layout().section({ m_levels.count() - 1, false }).columns;
    for (std::size_t i = 0; i < shown.size(); ++i)
        m_columns[static_cast<std::size_t>(shown[i])] = columns[i];
}

std::string LinesApart::text(const ReportLine& line, const ReportLine& other) const
{
    const std::vector<std::string> groups = unlikeGroups(firstRowOf(line), firstRowOf(other));
    if (!groups.empty())
        return "is in another group: " + WordList::joined(groups);
    const std::vector<std::string> texts = unlikeTexts(line, other);
    return texts.empty() ? "reads the same" : "differs in " + WordList::joined(texts);
}

// The evaluation compares the data, which may differ although they read alike: lengths of 100 and 100.00001.
std::vector<std::string> LinesApart::unlikeGroups(const VorBomDataRow& row, const VorBomDataRow& other) const
{
    std::vector<std::string> groups;
    for (int level = 0; level + 1 < m_levels.count(); ++level)
        for (const VorString& token : m_levels.groupTokens(level))
            if (VorBomDataTuple::compareValues(row.getTupleAt(token), other.getTupleAt(token)) != 0)
                groups.push_back(unlike(token, m_data.textOf(other, token), m_data.textOf(row, token)));
    return groups;
}

std::vector<std::string> LinesApart::unlikeTexts(const ReportLine& line, const ReportLine& other) const
{
    std::vector<std::string> texts;
    for (int tuple = 0; tuple < m_details.getData().length(); ++tuple)
    {
        const VorString& token = m_details.getData()[tuple].token().token();
        if (VorBomDataToken::isInvisibleToken(token) == 1 || isCounted(token))
            continue;
        const std::string here = textOf(line, tuple);
        const std::string there = textOf(other, tuple);
        if (here != there)
            texts.push_back(unlike(token, there, here));
    }
    return texts;
}

// Pieces and what grows with them may differ in rows that are counted into one line.
bool LinesApart::isCounted(const VorString& token) const
{
    return m_report.reportTemplate.equalLines == kCountEqualLines && PieceTokens::growWithPieces(token);
}

// The text of the line where there is one; what is not printed is told as the line's first row has it.
std::string LinesApart::textOf(const ReportLine& line, int tuple) const
{
    const int column = m_columns[static_cast<std::size_t>(tuple)];
    if (column >= 0)
        return inQuotes(line.texts[static_cast<std::size_t>(column)].view());
    return m_data.textOf(firstRowOf(line), m_details.getData()[tuple].token().token());
}
}
