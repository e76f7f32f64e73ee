// A parts list: records, of which the first, its header row, names the tokens of the columns.
//
//   FileSource file("parts.csv");
//   CsvReader records(file);
//   PartsList parts(records);              // reads the header row, as ColumnNames does
//   parts.setInputUnit("%Paint", "m2");
//   parts.setRowTotal("%Weight");
//   const PartsFacts facts = parts.readRows(*pTemplate);    // into the template's data
//
// What a column holds follows from its token, its unit and the template (ColumnTypes), and where these leave it open
// from its content. A column that the list computes with must hold numbers.
//
// A cell of lengths, weights and other quantities may carry a unit of its own, as in "7'-6 1/2\"" and "7.5 ft". Numbers
// without one are in the unit of their column; where nobody names any, lengths are in mm, weights in kg and angles in
// rad, and numbers of other kinds are refused: no file means mm2 or kg/mm.
//
// "Handle" is the identity of the object. "Quantity" is how many pieces a row stands for, 1 where it does not say.
// Everything that is wrong is thrown as one Fault.
#pragma once

#include "Finding.h"
#include "InputColumn.h"
#include "NumberNotation.h"
#include "PartsFacts.h"
#include "RecordSource.h"
#include "ReportTemplate.h"

#include "VorBomTemplate.h"

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

namespace mekbom
{
class CellReader;
class ColumnTypes;
class RowProgress;

class PartsList
{
public:
    // Reads the header row. `source` is not owned and outlives the list. With two processors or more the records of a
    // long list are read on a thread of their own, which changes nothing but the time: less where users of texts are
    // counted without locks (VorString::promiseNotToShare), else rather more. Throws a Fault of status kInvalidInput for
    // a header row that is wrong, and of kWrongUsage when a heading that must be there is not.
    explicit PartsList(RecordSource& source, const HeadingChoices& choices = HeadingChoices(),
                       unsigned numProcessors = 1);

    const std::vector<InputColumn>& columns() const { return m_columns; }

    // The column with this token, or null.
    const InputColumn* find(const std::string& token) const;

    // How numbers are written in the file, as far as its first rows tell; `units` know the kinds of the template's
    // tokens. To be asked for before any row is read. readRows() does it, too.
    NumberNotation notation(const VorBomTemplateUnits& units) const;

    // Whether a column may carry the token that nobody can tell for certain. readRows() throws a Fault of status
    // kInvalidInput, which says how to settle it, when such a token is asked for.
    bool isInDoubt(const std::string& token) const;

    // Says of the columns that carry one of `tokens` which headings were not the names of these but in the table of
    // headings; nothing when there is none.
    std::optional<Finding> readingOf(const std::set<std::string>& tokens) const;

    // Tells `units` of what kind the columns are that nobody knows but whose unit says it: "Gap [in]" is a length. What
    // they know already stays. readRows() does it, too; whoever asks for kinds before that calls it.
    void registerKinds(VorBomTemplateUnits& units) const;

    // Says in which unit a column is given whose header row does not. Throws a Fault of status kWrongUsage when there
    // is no such column, or when its header row names another unit.
    void setInputUnit(const std::string& token, const std::string& unit);

    // Says that the values of a column are those of all pieces of their row: each is divided by the row's "%Quantity".
    // Throws a Fault of status kWrongUsage when there is no such column; readRows() throws one when it has no numbers.
    void setRowTotal(const std::string& token);

    // Says of which kind tokens are that the catalogue does not know.
    void setOwnTokens(const std::map<std::string, eOwnToken>& ownTokens) { m_ownTokens = ownTokens; }

    // Has readRows() tell how many rows it has read. Not owned, outlives the list; may be null.
    void setProgress(RowProgress* pProgress) { m_pProgress = pProgress; }

    // Appends one row for each record to the template's data, and tells what is known of them. Rows carry the data that
    // the template asks for, and those of `otherTokens`. The template must have been told its units and have found its
    // used tokens: what has no kind then is a plain number, and its column may have no unit. To be called once.
    PartsFacts readRows(VorBomTemplate& reportTemplate, const std::vector<VorString>& otherTokens = {});

    // What readRows() has found. None of it is an error.
    const std::vector<Finding>& findings() const { return m_findings; }

    // Whether a column of lengths or the like, which rows were read with, names no unit: its numbers are the model's.
    bool assumesUnits() const;

private:
    void buildRows(CellReader& cells, VorBomData& data, int numFormulas);
    void refuseDoubts(const std::set<std::string>& wantedTokens) const;
    void findWantedColumns(const std::set<std::string>& wantedTokens);
    void resolveColumns(VorBomTemplate& reportTemplate);
    void resolveColumn(InputColumn& column, const ColumnTypes& types) const;
    std::string whyNumbers(const InputColumn& column, const std::set<std::string>& computed) const;
    InputColumn* findColumn(const std::string& token);
    [[noreturn]] void failInUnit(const InputColumn& column, Finding finding) const;

    RecordSource& m_source;
    unsigned m_numProcessors;
    std::vector<InputColumn> m_columns;
    std::unordered_map<std::string, std::size_t> m_indices; // of the first column with each token
    std::map<std::string, eOwnToken> m_ownTokens;
    std::vector<Finding> m_findings;
    RowProgress* m_pProgress = nullptr;
};
}
