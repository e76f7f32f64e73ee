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
// behind these two, and what stands below a footer, is in no level. Looks at the template, which outlives it.
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

// A tuple of a section that the engine evaluates.
struct CheckedTuple
{
    std::size_t level; // 0 for the outermost
    bool isFooter;
    const VorBomTemplateItem* pSection;
    int index; // in its section
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
    const CheckedLevel& deepest() const { return m_levels.back(); }
    bool isDeepest(std::size_t level) const { return level + 1 == m_levels.size(); }

    // Of all levels, outermost first, the header before the footer.
    const std::vector<CheckedTuple>& tuples() const { return m_tuples; }

    // Those of one kind.
    const std::vector<const CheckedTuple*>& tuplesOf(TokenRequest::eKind kind) const { return m_tuplesOf[kind]; }

    // What the groups of that level are told apart by: the tokens that the headers down to it are grouped by, the
    // deepest level left out, where grouping has no effect.
    const std::vector<std::string>& groupTokensDownTo(std::size_t level) const { return m_groupTokens[level]; }

    // Whether the list prints groups without the lines in them.
    bool isSummary() const;

    // Whether lines that read alike leave the totals: that is the engine's own way, which a template may change.
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
