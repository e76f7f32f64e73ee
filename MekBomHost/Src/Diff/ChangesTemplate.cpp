#include "ChangesTemplate.h"

#include "JsonText.h"
#include "UnitKinds.h"

#include <algorithm>

namespace mekbom::ChangesTemplate
{
namespace
{
using Texts = std::vector<std::string>;

std::string joined(const Texts& texts)
{
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : ", ") + text;
    return all;
}

std::string member(const std::string& key, const std::string& value)
{
    return jsonText(key) + ": " + value;
}

std::string tuples(const Texts& tokens)
{
    Texts objects;
    for (const std::string& token : tokens)
        objects.push_back("{ " + member("token", jsonText(token)) + " }");
    return member("tuples", "[ " + joined(objects) + " ]");
}

class Writer
{
public:
    Writer(const EvaluatedReport& report, const ReportTemplate& reportTemplate,
           const std::vector<ComparedColumn>& columns)
        : m_report(report), m_template(reportTemplate), m_columns(columns)
    {
        for (std::size_t i = 0; i < columns.size(); ++i)
            if (columns[i].groupLevel >= 0)
            {
                const auto level = static_cast<std::size_t>(columns[i].groupLevel);
                m_groupTokens.resize(std::max(m_groupTokens.size(), level + 1));
                m_groupTokens[level].push_back(shownToken(i));
            }
    }

    std::string text() const
    {
        return "{ " +
               joined({ member("title", jsonText(title())), member("equalLines", "\"keep\""),
                        member("tokens", "{ " + joined(ownTokens()) + " }"),
                        member("tokenUnits", "{ " + joined(tokenUnits()) + " }"),
                        member("columns", "[ " + joined(columnStyles()) + " ]"),
                        member("sections", "[ " + sections() + " ]") }) +
               " }";
    }

private:
    std::string title() const { return m_report.title().empty() ? "Changes" : "Changes: " + m_report.title(); }

    Texts ownTokens() const
    {
        Texts tokens = { member(kKindToken, "\"text\"") };
        for (std::size_t i = 0; i < m_columns.size(); ++i)
        {
            tokens.push_back(member(shownToken(i), "\"text\""));
            if (m_columns[i].isCounted)
                tokens.push_back(member(changeToken(i), "\"number\""));
        }
        return tokens;
    }

    Texts tokenUnits() const
    {
        Texts units;
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            if (const UnitKind* const pKind = m_report.columns()[i].pUnitKind;
                m_columns[i].isCounted && pKind != nullptr)
            {
                const auto type = static_cast<std::size_t>(VorBomTemplateUnits::unitTypeOf(pKind->system));
                units.push_back(member(changeToken(i), jsonText(UnitKinds::typeNames()[type])));
            }
        return units;
    }

    // The columns of the list that are numbers stay on the right, though they show texts here.
    Texts columnStyles() const
    {
        Texts styles = { "{ " + joined({ member("token", jsonText(kKindToken)), member("label", "\"Change\"") }) +
                         " }" };
        for (std::size_t i = 0; i < m_columns.size(); ++i)
        {
            const ReportColumn& column = m_report.columns()[i];
            styles.push_back(
                "{ " +
                joined({ member("token", jsonText(shownToken(i))), member("label", jsonText(m_columns[i].heading)),
                         member("align", column.isAlignedRight ? "\"right\"" : "\"left\""),
                         member("order", "\"natural\"") }) +
                " }");
            if (m_columns[i].isCounted)
                styles.push_back("{ " + joined(changeStyle(i, column)) + " }");
        }
        return styles;
    }

    // In the unit that the list shows the column in, and as finely.
    Texts changeStyle(std::size_t i, const ReportColumn& column) const
    {
        const bool hasOwnLabel = column.pUnitKind == nullptr && !column.unitSymbol.empty(); // such as EUR
        Texts members = { member("token", jsonText(changeToken(i))),
                          member("label", jsonText(column.label + " change" +
                                                   (hasOwnLabel ? " [" + column.unitSymbol + "]" : ""))) };
        const ColumnStyle* const pStyle = m_template.columnStyleOf(column.token);
        if (pStyle == nullptr)
            return members;
        if (!pStyle->unit.empty())
            members.push_back(member("unit", jsonText(pStyle->unit)));
        if (pStyle->decimals >= 0)
            members.push_back(member("decimals", std::to_string(pStyle->decimals)));
        if (pStyle->hasThousands)
            members.push_back(member("thousands", "true"));
        return members;
    }

    // Sections open from the outside in and close the other way, as they may be nested a hundred thousand deep.
    std::string sections() const
    {
        std::string text = openedSection("kReportHeader", {});
        for (const Texts& tokens : m_groupTokens)
            if (!tokens.empty())
                text += openedSection("kGroupHeader", groupRequests(tokens));
        text += "{ " + member("type", "\"kDetails\"") + ", " + tuples(detailsTokens()) + " }";
        for (const Texts& tokens : m_groupTokens)
            if (!tokens.empty())
                text += " ] }" + footer("kGroupFooter");
        return text + " ] }" + footer("kReportFooter");
    }

    static std::string openedSection(const std::string& type, const Texts& tokens)
    {
        return "{ " + joined({ member("type", jsonText(type)), tuples(tokens) }) + ", \"children\": [ ";
    }

    static Texts groupRequests(const Texts& tokens)
    {
        std::string list;
        for (const std::string& token : tokens)
            list += (list.empty() ? "" : ",") + token;
        Texts requests = { "%GroupBy:" + list, "%SortAscBy:" + list };
        requests.insert(requests.end(), tokens.begin(), tokens.end());
        return requests;
    }

    Texts detailsTokens() const
    {
        Texts tokens = { kKindToken };
        for (std::size_t i = 0; i < m_columns.size(); ++i)
        {
            if (m_columns[i].groupLevel < 0)
                tokens.push_back(shownToken(i));
            if (m_columns[i].isCounted)
                tokens.push_back(changeToken(i));
        }
        return tokens;
    }

    std::string footer(const std::string& type) const
    {
        Texts sums;
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            if (m_columns[i].isCounted)
                sums.push_back("%SumBy:" + changeToken(i));
        if (sums.empty())
            return std::string();
        return ", { " + joined({ member("type", jsonText(type)), member("label", "\"Total\""), tuples(sums) }) + " }";
    }

    const EvaluatedReport& m_report;
    const ReportTemplate& m_template;
    const std::vector<ComparedColumn>& m_columns;
    std::vector<Texts> m_groupTokens; // of each level, of the columns that its header shows
};
}

std::string shownToken(std::size_t column)
{
    return "%Shown" + std::to_string(column);
}

std::string changeToken(std::size_t column)
{
    return "%Change" + std::to_string(column);
}

std::string textOf(const EvaluatedReport& report, const ReportTemplate& reportTemplate,
                   const std::vector<ComparedColumn>& columns)
{
    return Writer(report, reportTemplate, columns).text();
}
}
