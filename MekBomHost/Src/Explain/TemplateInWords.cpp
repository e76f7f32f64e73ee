// A section's tuples are told by what they ask for, and what several ask for alike is told once:
//
//   %Name, %Weight, %SumBy:%Weight 0.0, %Formula:%Weight*2   of a footer
//   "shows %Name and %Weight, of the last row counted; adds up %Weight, from 0; leaves %Weight*2 as it is"
//
// The same tuple does another thing on another level, or in a footer: footers compute no formula, headers add nothing.
#include "TemplateInWords.h"

#include "InQuotes.h"
#include "TotalInWords.h"
#include "TotalTokens.h"
#include "Utf8.h"
#include "WordList.h"

#include "VorBomDataToken.h"
#include "VorBomTokenCatalogue.h"

#include <algorithm>
#include <cstddef>

namespace mekbom
{
namespace
{
const char* const kDirections[] = { "descending", "ascending" }; // by SortKey::isAscending

std::vector<std::string> namesOf(const std::vector<VorString>& tokens)
{
    std::vector<std::string> names;
    names.reserve(tokens.size());
    for (const VorString& token : tokens)
        names.push_back(Utf8::toBytes(token));
    return names;
}

// "shows ", { "%Name", "%Weight" }, ", of the last row" -> "shows %Name and %Weight, of the last row"
void addUnlessEmpty(std::vector<std::string>& sentences, const std::string& before,
                    const std::vector<std::string>& words, const std::string& after)
{
    if (!words.empty())
        sentences.push_back(before + WordList::joined(words) + after);
}

std::string joinedBySemicolons(const std::vector<std::string>& parts)
{
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : "; ") + part;
    return text;
}

// "%Formula:%Weight*2" of a total is "%Weight*2" to a reader.
std::string readable(VorString token)
{
    VorBomDataToken::removeFormulaPrefix(token);
    return Utf8::toBytes(token);
}

bool holds(const std::vector<VorString>& tokens, const VorString& token)
{
    return std::find(tokens.begin(), tokens.end(), token) != tokens.end();
}

std::string wordsFor(eEqualLines equalLines)
{
    switch (equalLines)
    {
        case kCountEqualLines: return "Lines of a group that read alike become one, with the pieces and totals of all";
        case kKeepEqualLines: return "Lines that read alike are printed each";
        default: return "A line that reads as the one before it is merged into that, and its row is in no total";
    }
}
}

TemplateInWords::TemplateInWords(const ReportTemplate& reportTemplate)
    : m_template(reportTemplate), m_levels(*reportTemplate.pTemplate)
{
    int ascending = 1; // an element without a direction of its own goes in that of the one before it
    for (int level = 0; level < m_levels.count(); ++level)
    {
        m_sortKeys.emplace_back();
        for (VorString& token : m_levels.sortRequests(level))
        {
            VorBomDataToken::removeSortingPrefix(token, ascending);
            m_sortKeys.back().push_back({ token, ascending == 1 });
        }
    }
}

std::string TemplateInWords::text() const
{
    std::string text = head();
    for (int i = 0; i < m_levels.count(); ++i)
        text += level(i);
    return text;
}

// What holds for the list as a whole, and a blank line behind it.
std::string TemplateInWords::head() const
{
    std::string text;
    if (!m_template.title.empty())
        text += m_template.title + "\n";
    if (!m_template.queryFilter.text().empty())
        text += "The list is about the rows where " + m_template.queryFilter.text() + "\n";
    text += wordsFor(m_template.equalLines) + "\n";
    return text + "\n";
}

std::string TemplateInWords::level(int level) const
{
    return "Level " + std::to_string(level) + ", " + whatItIs(level) + sorting(level) + groupOrder(level) + "\n" +
           section({ level, false }) + section({ level, true });
}

// A level without grouping tokens never splits: its one group lasts as long as the one around it. In the deepest level
// grouping tokens change nothing, since every row is a group of its own there.
std::string TemplateInWords::whatItIs(int level) const
{
    const std::vector<VorString> tokens = m_levels.groupTokens(level);
    if (m_levels.isDeepest(level))
        return "a line for each row";
    if (tokens.empty())
        return level == 0 ? "the whole list" : "all rows of the group around it";
    const std::string names = WordList::joined(namesOf(tokens));
    return (bringsTogether(level) ? "a group for each different " : "a group for each run of rows with the same ") +
           names;
}

// "sorted by %A and %B, ascending, as plain text, then by %C, descending, as numbers": keys that follow each other and
// have direction and order in common are named together.
std::string TemplateInWords::sorting(int level) const
{
    std::string text;
    std::vector<std::string> names;
    const std::vector<SortKey>& keys = m_sortKeys[static_cast<std::size_t>(level)];
    for (std::size_t i = 0; i < keys.size(); ++i)
    {
        names.push_back(Utf8::toBytes(keys[i].token));
        if (i + 1 < keys.size() && keys[i + 1].isAscending == keys[i].isAscending &&
            order(keys[i + 1].token) == order(keys[i].token))
            continue;
        text += (text.empty() ? ", sorted by " : ", then by ") + WordList::joined(names) + ", " +
                kDirections[keys[i].isAscending ? 1 : 0] + ", " + order(keys[i].token);
        names.clear();
    }
    return text;
}

// The catalogue says it, unless the template does: that a token is a number, in "tokens", or what the order of its
// column is. Numbers are sorted by value, whatever their column says. What the catalogue does not know is told as plain
// text, although a column of the data may turn out to hold numbers: here there are no data.
std::string TemplateInWords::order(const VorString& token) const
{
    const ColumnStyle* const pStyle = m_template.columnStyleOf(token);
    const VorBomTokenCatalogue::Entry* const pEntry = VorBomTokenCatalogue::find(token);
    VorBomDataToken::eSortType type = pEntry != nullptr ? pEntry->sort : VorBomDataToken::kSortString;
    const auto own = m_template.ownTokens.find(Utf8::toBytes(token));
    if (own != m_template.ownTokens.end() && own->second == kOwnNumber)
        type = VorBomDataToken::kSortNumeric;
    if (type != VorBomDataToken::kSortNumeric && pStyle != nullptr && pStyle->order != ColumnStyle::kByCatalogue)
        type =
            pStyle->order == ColumnStyle::kNatural ? VorBomDataToken::kSortAlphanumeric : VorBomDataToken::kSortString;
    switch (type)
    {
        case VorBomDataToken::kSortAlphanumeric: return "in natural order";
        case VorBomDataToken::kSortNumeric: return "as numbers";
        default: return "as plain text";
    }
}

// ", its groups in the order of %SumBy:%Weight, descending": as they are printed, once all rows have come.
std::string TemplateInWords::groupOrder(int level) const
{
    const GroupOrderStyle& order = m_template.styleOf(m_levels.section({ level, false })).groupOrder;
    if (order.by.isEmpty() == 1)
        return std::string();
    return ", its groups in the order of " + Utf8::toBytes(order.by) + ", " + kDirections[order.isDescending ? 0 : 1];
}

// Rows that agree in what this level and those around it group by stand together if the first sort keys are just these,
// in whatever order: with groups by %Material and %Name, the keys %Name, %Material, %Length do, and %Length, %Material,
// %Name do not.
bool TemplateInWords::bringsTogether(int level) const
{
    std::vector<VorString> missing;
    for (int outer = 0; outer <= level; ++outer)
        for (const VorString& token : m_levels.groupTokens(outer))
            if (!holds(missing, token))
                missing.push_back(token);
    const std::vector<VorString> grouped = missing;
    for (const std::vector<SortKey>& keys : m_sortKeys)
        for (const SortKey& key : keys)
        {
            if (missing.empty())
                return true;
            if (!holds(grouped, key.token))
                return false;
            missing.erase(std::remove(missing.begin(), missing.end(), key.token), missing.end());
        }
    return missing.empty();
}

// "  footer  is labelled "Total"; adds up %Weight, from 0": a line for each section, its parts in the order in which
// they matter. A section that is not printed is told all the same, since it opens a group or computes for those that
// are.
std::string TemplateInWords::section(SectionPlace place) const
{
    const VorBomTemplateItem* const pSection = m_levels.section(place);
    if (pSection == nullptr)
        return std::string();
    const bool isDetails = m_levels.isDeepest(place.level) && !place.isFooter;
    std::vector<std::string> parts = tuples(*pSection, place);
    const SectionStyle& style = m_template.styleOf(pSection);
    if (!style.label.empty())
        parts.insert(parts.begin(), "is labelled " + inQuotes(style.label));
    if (!style.isPrinted)
        parts.push_back("is not printed");
    else if (!m_template.hasLine(*pSection))
        parts.push_back("has no line");
    if (style.isSummary)
        parts.push_back("stands for the lines below it, which are not printed");
    return std::string("  ") +
           (isDetails        ? "line    "
            : place.isFooter ? "footer  "
                             : "header  ") +
           joinedBySemicolons(parts) + "\n";
}

// What the tuples do in this place, in three heaps. Grouping and sorting are told of the level, and filters do nothing.
std::vector<std::string> TemplateInWords::tuples(const VorBomTemplateItem& section, SectionPlace place) const
{
    std::vector<std::string> shown;
    std::vector<std::string> computed;
    std::vector<std::string> summed;
    std::vector<std::string> others;
    for (int i = 0; i < section.getData().length(); ++i)
    {
        const VorBomDataTuple& tuple = section.getData()[i];
        const VorString& token = tuple.token().token();
        const ColumnStyle* const pStyle = m_template.columnStyleOf(m_template.columnTokenOf(section, i));
        const std::string hidden = pStyle != nullptr && pStyle->isHidden ? " (hidden)" : "";
        VorString sum;
        if (VorBomDataToken::isInvisibleToken(token) == 1)
            continue;
        const VorString total = m_template.shownTokenOf(section, i);
        if (place.isFooter && TotalTokens::kindOf(total) != ColumnTotal::kSum)
            others.push_back(totalInWords(pStyle->total, TotalTokens::datumOf(total)) + hidden);
        else if (tuple.token().getSummingRequest(sum) == 1)
        {
            const std::string start = Utf8::toBytes(tuple.value().asString());
            summed.push_back(readable(sum) + hidden + (start.empty() ? "" : ", from " + start));
        }
        else
            (VorBomDataToken::isFormula(token) == 1 ? computed : shown).push_back(readable(token) + hidden);
    }
    // A line shows its own row, which needs no words; a header shows that of the first row, and a footer of the last.
    const bool opensGroup = !place.isFooter && !m_levels.isDeepest(place.level);
    std::vector<std::string> parts;
    addUnlessEmpty(parts, "shows ", shown,
                   opensGroup       ? ", of the row that opens it"
                   : place.isFooter ? ", of the last row counted that has it"
                                    : "");
    addUnlessEmpty(parts, place.isFooter ? "leaves " : "computes ", computed, place.isFooter ? " uncomputed" : "");
    for (const std::string& sum : summed)
        parts.push_back((place.isFooter ? "adds up " : "adds nothing to ") + sum);
    for (const std::string& other : others)
        parts.push_back("has " + other);
    return parts;
}
}
