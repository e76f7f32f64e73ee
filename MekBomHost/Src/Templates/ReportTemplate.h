// A template as its file gives it: the engine's sections, and what the program alone knows about printing them.
//
//   ReportTemplate list = TemplateReader::read(file.name, file.text);
//   const VorBomItemBase& section = *list.pTemplate->child();
//   for (const int tuple : list.shownTuplesOf(section))
//       show(list.columnTokenOf(section, tuple));
//
// Owns the engine's template; may be moved, not copied. Sections are told apart by their address, so styles are good as
// long as the sections that the file gave stay where they are.
#pragma once

#include "ColumnTotal.h"
#include "RowFilter.h"
#include "TextPlace.h"

#include "VorBomTemplate.h"
#include "VorBomTemplateItem.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace mekbom
{
// Where something stands in a template file, for findings about its meaning.
struct TemplatePlace
{
    std::string path; // "/sections/0/tuples/1"
    TextSpan span;
};

// How one column of the table is to look, and what its numbers are.
struct ColumnStyle
{
    // How rows are sorted by the column's token, instead of as the catalogue of tokens says.
    enum eOrder
    {
        kByCatalogue,
        kNatural, // "P2" before "P10"
        kPlain    // "P10" before "P2"
    };

    enum eAlignment
    {
        kByType, // numbers right, texts left
        kLeft,
        kRight
    };

    VorString token;
    std::string label; // UTF-8; empty for one made of the token
    int width = 0;     // in characters on a terminal; 0 for what the longest text needs
    eAlignment alignment = kByType;

    std::string unit;          // "m/2": the unit, with a precision, that the column's numbers are shown in; empty for
                               // that of the list
    int decimals = -1;         // of numbers without a unit; -1 for as many as the data have
    bool hasThousands = false; // a blank between groups of three digits
    eOrder order = kByCatalogue;
    std::string result;    // what a formula gives: a kind ("weight"), "none", or a label of its own ("EUR"); empty
                           // where that follows from the formula's tokens
    bool isHidden = false; // the column is not printed, and tells lines apart all the same
    ColumnTotal total;     // what footers show in it
    TemplatePlace place;
};

// In which order the groups of a level are printed.
struct GroupOrderStyle
{
    VorString by;              // the total in their footer that decides; empty for the order of the engine
    bool isDescending = false; // the greatest total comes first
};

// How the lines of one section are to look.
struct SectionStyle
{
    bool isPrinted = true;
    std::string label;                   // stands in the first column that the line leaves empty
    std::vector<VorString> columnTokens; // for each tuple the column that the file names; empty texts for the usual one
    bool isSummary = false;     // its groups are printed without the lines below them, which isPrinted says too
    GroupOrderStyle groupOrder; // of a header
    TemplatePlace place;
    std::vector<TemplatePlace> tuplePlaces; // of each tuple
};

// What becomes of lines that read alike.
enum eEqualLines
{
    kEqualLinesOpen,  // the template does not say: the engine's own way, as long as no printed total loses by it
    kCountEqualLines, // one line, whose pieces and totals are those of all
    kKeepEqualLines,  // a line each
    kMergeEqualLines  // the engine's own way: one line, and the other rows leave all totals
};

// Of what kind a token is that the catalogue does not know.
enum eOwnToken
{
    kOwnNumber,
    kOwnText
};

struct ReportTemplate
{
    std::unique_ptr<VorBomTemplate> pTemplate;
    std::string fileName;  // as messages call it; empty for the default template
    std::string title;     // UTF-8
    RowFilter queryFilter; // which rows the list is about
    TemplatePlace queryFilterPlace;
    std::vector<ColumnStyle> columns; // in the order of the table; columns not named here follow. See addColumn()
    eEqualLines equalLines = kEqualLinesOpen;
    std::map<std::string, std::string> allowed; // mistakes that the template excuses, by code, with the reason
    std::vector<std::pair<std::string, std::string>> headings; // of columns in parts lists, with their tokens
    std::map<std::string, eOwnToken> ownTokens; // what the template says of tokens that the catalogue does not know
    std::map<std::string, TemplatePlace> tokenUnitPlaces; // of the entries of "tokenUnits"
    std::unordered_map<const VorBomItemBase*, SectionStyle> sectionStyles;

    // The style of a section of pTemplate; the usual one for a section without.
    const SectionStyle& styleOf(const VorBomItemBase* pSection) const;

    // Appends a column to those above. False when there is one with its token, which stays the one that is found.
    bool addColumn(const ColumnStyle& style);

    // The column that shows a section's tuple: the one the file names for it, else the one that has its very token,
    // else the column of what it sums. Empty for a tuple that steers the evaluation and is not shown.
    //   "%Weight"         ->  "%Weight"
    //   "%SumBy:%Weight"  ->  "%Weight", unless there is a column "%SumBy:%Weight"
    VorString columnTokenOf(const VorBomItemBase& section, int tupleIndex) const;

    // What the tuple shows in that column: its token, or for a total that is no sum the one of TotalTokens.
    //   "%SumBy:%Weight" in a column that says "total": "mean"  ->  "%MeanBy:%Weight"
    VorString shownTokenOf(const VorBomItemBase& section, int tupleIndex) const;

    // The style of the column with that token; null when the template describes none.
    const ColumnStyle* columnStyleOf(const VorString& columnToken) const;

    // The same for one of a section's tuples; null for one that steers the evaluation, too.
    const ColumnStyle* styleOfTuple(const VorBomItemBase& section, int tupleIndex) const;

    // Where one of a section's tuples stands in the file; an empty place in a template without a file.
    TemplatePlace placeOfTuple(const VorBomItemBase& section, int tupleIndex) const;

    // The sections that are evaluated, as those of one group come: headers from the outside in, then footers from the
    // inside out.
    std::vector<const VorBomItemBase*> evaluatedSections() const;

    // Which of a section's tuples have a column in the table; none when the section is not printed. A hidden column is
    // in no table.
    std::vector<int> shownTuplesOf(const VorBomItemBase& section) const;

    // Whether the section has a line in the table: a printed one that shows a tuple or a label.
    bool hasLine(const VorBomItemBase& section) const;

private:
    std::unordered_map<std::string, std::size_t> m_columnIndices; // by token, in UTF-8
};
}
