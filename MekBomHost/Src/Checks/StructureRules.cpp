// The engine goes down the first children of a template and looks at no type on its way. An author who writes a page
// header, then the list, gets a page header per row:
//
//   kPageHeader                   the header of the only level
//   kReportHeader { kDetails }    its footer; what stands below a footer is never looked at
//
// So the rules here ask what stands where, and whether its type says that the author meant it to.
#include "StructureRules.h"

#include "VorBomDataToken.h"

#include <algorithm>
#include <string>

namespace mekbom
{
namespace
{
using Section = VorBomTemplateItem;

// The footer that belongs to a header; kUnkTemplateItemType for details, which need none.
Section::eTemplateItemType footerTypeOf(Section::eTemplateItemType header)
{
    switch (header)
    {
        case Section::kReportHeader: return Section::kReportFooter;
        case Section::kPageHeader: return Section::kPageFooter;
        case Section::kGroupHeader: return Section::kGroupFooter;
        default: return Section::kUnkTemplateItemType;
    }
}

bool isFooterType(Section::eTemplateItemType type)
{
    return type == Section::kReportFooter || type == Section::kPageFooter || type == Section::kGroupFooter;
}

// Whether a line of the section has no text at all: what groups, sorts and filters is never printed.
bool showsNothing(const Section& section)
{
    const auto& tuples = section.getData();
    return std::all_of(tuples.begin(), tuples.end(),
                       [](const VorBomDataTuple& tuple)
                       { return VorBomDataToken::isInvisibleToken(tuple.token().token()) == 1; });
}

// Tokens of the catalogue that hardly two objects share.
bool isMark(const std::string& token)
{
    static const std::vector<std::string> marks = {
        "%Handle", "%MNum", "%PNum", "%Num", "%PreliminaryNum", "%ElementID"
    };
    return contains(marks, token);
}
}

void StructureRules::run()
{
    findPageHeaderFirst();
    for (std::size_t i = 0; i < m_list.levels().size(); ++i)
    {
        const CheckedLevel& level = m_list.levels()[i];
        findThirdSections(level);
        findFooterOfOtherType(level);
        findSectionsBelowDetails(i);
        findChildrenOfFooter(level);
    }
    findGroupHeaderDeepest();
    findEmptyDetails();
    findDetailsWithoutMark();
    findFooterBesideDetails();
}

// MB101 trips on [ kPageHeader, kReportHeader ] side by side, and does not on [ kReportHeader, kReportFooter ]. With
// the list as its child the page header is the outermost level: printed once, and no less a surprise.
void StructureRules::findPageHeaderFirst()
{
    const Section& first = *m_list.levels().front().pHeader;
    if (first.type() != Section::kPageHeader)
        return;
    const std::string what = first.child() == nullptr
                                 ? "the page header comes first and is the only level: it heads every row, and no "
                                   "details are printed"
                                 : "the page header comes first and is the outermost level: it is printed once, and "
                                   "on no page again";
    m_mistakes.add(MistakeCodes::kPageHeaderFirst, first, what,
                   "begin with a kReportHeader that has the other sections as its children, and show in it what the "
                   "page header shows");
}

// MB102 trips on the third of [ kReportHeader, kReportFooter, kPageFooter ], and does not on the first two.
void StructureRules::findThirdSections(const CheckedLevel& level)
{
    const VorBomItemBase* pItem = level.pFooter == nullptr ? nullptr : level.pFooter->next();
    for (; pItem != nullptr; pItem = pItem->next())
    {
        const auto& section = static_cast<const Section&>(*pItem);
        m_mistakes.add(MistakeCodes::kThirdSection, section,
                       "the " + typeName(section) +
                           " stands behind the header and footer of its level, where nothing "
                           "is evaluated",
                       "put it into the \"children\" of the " + typeName(*level.pHeader) + ", or take it out");
    }
}

// MB103 trips on [ kGroupHeader, kReportFooter ] and does not on [ kGroupHeader, kGroupFooter ]. The engine would take
// either; what sections are called tells what the author expects of them. Two headers side by side, where the second
// was to be the child of the first, are another form of it. A section of no type promises nothing.
void StructureRules::findFooterOfOtherType(const CheckedLevel& level)
{
    const Section& header = *level.pHeader;
    if (isFooterType(header.type()))
        m_mistakes.add(MistakeCodes::kFooterOfOtherType, header,
                       "the " + typeName(header) + " is the first section of its level, and so its header",
                       "put the header of the level in front of it");
    const auto wanted = footerTypeOf(header.type());
    if (level.pFooter == nullptr || wanted == Section::kUnkTemplateItemType ||
        level.pFooter->type() == Section::kUnkTemplateItemType || level.pFooter->type() == wanted)
        return;
    const std::string name = typeName(*level.pFooter);
    m_mistakes.add(MistakeCodes::kFooterOfOtherType, *level.pFooter,
                   "the " + name + " is the second section of its level, and so the footer of the " + typeName(header),
                   isFooterType(level.pFooter->type())
                       ? "make it a " + typeName(Section(wanted)) + ", or move it to the level that it closes"
                       : "put it into the \"children\" of the " + typeName(header));
}

// MB104 trips on a kGroupHeader without children: with the rows 10 kg and 12 kg of S235 it prints S235 twice, each time
// with a total of one row. It does not once a kDetails stands below, or a summary in its place.
void StructureRules::findGroupHeaderDeepest()
{
    const Section& header = *m_list.deepest().pHeader;
    if ((header.type() != Section::kGroupHeader && header.type() != Section::kReportHeader) || m_list.isSummary())
        return;
    m_mistakes.add(MistakeCodes::kGroupHeaderDeepest, header,
                   "the " + typeName(header) +
                       " is the deepest level, which opens and closes for every row: there is "
                       "a line and a total for each of them",
                   "give it a kDetails as its child; for groups and totals alone write { \"type\": \"kDetails\", "
                   "\"summary\": true }");
}

bool StructureRules::isDetailsDeepest() const
{
    return m_list.deepest().pHeader->type() == Section::kDetails;
}

// MB105 trips on details without tuples, or with "%SortAscBy:%PNum" alone: rows of 10 and 12 kg make two lines without
// a text, which read alike, so that the second row is merged and the total is 10 kg. It does not where the template
// says "equalLines": "keep" or "count", or "summary".
void StructureRules::findEmptyDetails()
{
    if (!isDetailsDeepest() || !showsNothing(*m_list.deepest().pHeader) || !m_list.mergesEqualLines())
        return;
    m_mistakes.add(MistakeCodes::kDetailsEmpty, *m_list.deepest().pHeader,
                   "the details show nothing, so all lines of a group are equal: all rows but the first are merged "
                   "and leave the totals",
                   "for groups and totals alone write { \"type\": \"kDetails\", \"summary\": true }");
}

// MB106 trips on details of %Name and %Weight, where two beams of one name and weight are one line, and does not once
// %PNum is shown, or where the template says what becomes of equal lines. A token that the catalogue lacks may be
// anything, and so a mark, too.
void StructureRules::findDetailsWithoutMark()
{
    const Section& details = *m_list.deepest().pHeader;
    if (!isDetailsDeepest() || showsNothing(details) || !m_list.mergesEqualLines() ||
        m_list.file().equalLines == kMergeEqualLines)
        return;
    for (const CheckedTuple& tuple : m_list.tuples())
        if (tuple.pSection == &details && tuple.request.kind == TokenRequest::kShow &&
            (isMark(tuple.token) || !m_tokens.isInCatalogue(tuple.token)))
            return;
    m_mistakes.add(MistakeCodes::kDetailsWithoutMark, details,
                   "no column of the details tells one object from another: lines that look alike are merged and "
                   "leave the totals",
                   "show a mark such as %PNum, or say what becomes of equal lines: \"equalLines\": \"count\"");
}

// MB107 trips on kDetails { kDetails }: the outer one opens with the first row, and shows its values for all of them.
// It does not on kGroupHeader { kDetails }.
void StructureRules::findSectionsBelowDetails(std::size_t level)
{
    const Section& header = *m_list.levels()[level].pHeader;
    if (header.type() == Section::kDetails && !m_list.isDeepest(level))
        m_mistakes.add(MistakeCodes::kSectionBelowDetails, header,
                       "the details have a " + typeName(*m_list.levels()[level + 1].pHeader) +
                           " below them: they are printed once, with the values of the first row",
                       "make them the deepest level, or make the section a kGroupHeader");
}

// MB108 trips on [ kGroupHeader, kGroupFooter { kDetails } ] and does not on [ kGroupHeader { kDetails }, kGroupFooter
// ].
void StructureRules::findChildrenOfFooter(const CheckedLevel& level)
{
    if (level.pFooter != nullptr && level.pFooter->child() != nullptr)
        m_mistakes.add(MistakeCodes::kChildrenOfFooter, *level.pFooter,
                       "the " + typeName(*level.pFooter) + " is a footer: what stands below it is never evaluated",
                       "move its \"children\" to the " + typeName(*level.pHeader) + " in front of it");
}

// MB109 trips on kGroupHeader { kDetails, kGroupFooter } and does not on [ kGroupHeader { kDetails }, kGroupFooter ]:
// the first has a total of one row below each line.
void StructureRules::findFooterBesideDetails()
{
    const CheckedLevel& level = m_list.deepest();
    if (isDetailsDeepest() && level.pFooter != nullptr)
        m_mistakes.add(MistakeCodes::kFooterBesideDetails, *level.pFooter,
                       "the " + typeName(*level.pFooter) +
                           " stands beside the details, which close for every row: it is printed after each of them",
                       "move it one level up, behind the section whose child the details are");
}
}
