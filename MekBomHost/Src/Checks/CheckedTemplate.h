// A template as the rules look at it: level by level as the engine goes through it, outermost first.
//
//   sections of the file                         level   header          footer
//   kReportHeader                                0       kReportHeader   kReportFooter
//     kGroupHeader  "%GroupBy:%Material"         1       kGroupHeader    kGroupFooter
//       kDetails                                 2       kDetails        none
//     kGroupFooter  "%SumBy:%Weight"
//   kReportFooter
//
// Position alone makes a header or footer: of siblings the first opens a level and the second closes it. What stands
// behind these two, and what stands below a footer, is in no level.
//
// The template is not owned, outlives this object and keeps its sections meanwhile.
#pragma once

#include "ReportTemplate.h"
#include "TokenRequest.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
struct CheckedLevel
{
    const VorBomTemplateItem* pHeader;
    const VorBomTemplateItem* pFooter; // null for a level without one
};

// A tuple of a section that the engine evaluates, with where it stands and what it asks for.
struct CheckedTuple
{
    std::size_t level; // 0 for the outermost
    bool isFooter;
    const VorBomTemplateItem* pSection; // the template's
    int index;                          // among the tuples of its section, from 0
    std::string token;
    TokenRequest request;

    const VorBomDataValue& value() const { return pSection->getData()[index].value(); }
};

class CheckedTemplate
{
public:
    explicit CheckedTemplate(const ReportTemplate& reportTemplate);
    CheckedTemplate(const CheckedTemplate&) = delete; // has pointers to its own tuples
    CheckedTemplate& operator=(const CheckedTemplate&) = delete;

    const ReportTemplate& file() const { return m_template; }
    const std::vector<CheckedLevel>& levels() const { return m_levels; }

    // The level that has none below it: the details of most lists. Only where there are levels at all.
    const CheckedLevel& deepest() const { return m_levels.back(); }
    bool isDeepest(std::size_t level) const { return level + 1 == m_levels.size(); }

    // The tuples of all levels, outermost first and of each level those of the header first.
    const std::vector<CheckedTuple>& tuples() const { return m_tuples; }

    // The tuples of one kind, in the same order.
    const std::vector<const CheckedTuple*>& tuplesOf(TokenRequest::eKind kind) const { return m_tuplesOf[kind]; }

    // What tells the groups of that level from each other: the tokens that its header and those around it group by.
    // A grouping request in the deepest level adds none: each row is a group of its own there.
    const std::vector<std::string>& groupTokensDownTo(std::size_t level) const { return m_groupTokens[level]; }

    // Whether what a footer shows is how many rows have the datum, be that a number or a text.
    bool isCount(const CheckedTuple& tuple) const;

    // Whether the list makes use of the sum that the tuple asks for: shows it, and not a mean or the like, or calculates
    // another total from it.
    bool usesSum(const CheckedTuple& tuple) const;

    // Whether the list prints groups without the lines in them.
    bool isSummary() const;

    // Whether the engine merges a line into the one before it where both read alike, and takes its row out of all
    // totals: its own way, unless the template says "count" or "keep", or prints no lines.
    bool mergesEqualLines() const;

private:
    void addTuples(const VorBomTemplateItem* pSection, bool isFooter);
    void addGroupTokens(std::size_t level);

    const ReportTemplate& m_template;
    std::vector<CheckedLevel> m_levels;
    std::vector<CheckedTuple> m_tuples;
    std::vector<const CheckedTuple*> m_tuplesOf[TokenRequest::kFormula + 1]; // by kind
    std::vector<std::vector<std::string>> m_groupTokens;                     // of each level
};

// "kGroupHeader": the name that template files have for the section's type; "section" for one without.
std::string typeName(const VorBomTemplateItem& section);

bool contains(const std::vector<std::string>& texts, const std::string& text);
}
