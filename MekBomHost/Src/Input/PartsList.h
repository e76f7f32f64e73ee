// A parts list: records, of which the first, its header row, names the tokens of the columns.
//
//   FileSource file("parts.csv");
//   CsvReader records(file);
//   PartsList parts(records);              // reads the header row
//   parts.setInputUnit("%Paint", "m2");
//   parts.readRows(*pTemplate);            // into the template's data
//
// The catalogue of tokens decides what type a column has; a column it does not know has the type of its content
// (UntypedCells). A cell of lengths, weights and other quantities may carry a unit of its own, as in "7'-6 1/2\"" and
// "7.5 ft". "Handle" is the identity of the object. Everything that is wrong is thrown as one Fault.
#pragma once

#include "FindingList.h"
#include "InputColumn.h"
#include "RecordSource.h"

#include "VorBomTemplate.h"

#include <optional>
#include <string>
#include <vector>

namespace mekbom
{
struct FindingCode;

class PartsList
{
public:
    // Reads the header row. `source` is not owned and outlives the list.
    explicit PartsList(RecordSource& source);

    const std::vector<InputColumn>& columns() const { return m_columns; }

    // The column with this token, or null.
    const InputColumn* find(const std::string& token) const;

    // Says in which unit a column is given whose header row does not. Throws a Fault of status kWrongUsage when there
    // is no such column, or when its header row names another unit.
    void setInputUnit(const std::string& token, const std::string& unit);

    // Appends one row for each record to the template's data. Rows carry the data that the template asks for, whose
    // tokens must have been found already, and those of `otherTokens`. To be called once.
    void readRows(VorBomTemplate& reportTemplate, const std::vector<VorString>& otherTokens = {});

private:
    void readHeader();
    [[noreturn]] void failWithoutHeader() const;
    void checkColumn(const InputColumn& column, FindingList& findings) const;
    void checkSeparator(const InputColumn& column, FindingList& findings) const;
    void addHeaderFinding(Finding finding, FindingList& findings) const;
    void addColumn(const std::string& heading);
    void resolveColumn(InputColumn& column, const VorBomTemplateUnits& units) const;
    void resolveUnit(InputColumn& column, const VorBomTemplateUnits& units) const;
    static void resolveQuantities(InputColumn& column, const std::optional<MEKUnit>& unit);
    [[noreturn]] void failInUnit(const InputColumn& column, const FindingCode& code, const std::string& expected,
                                 const std::string& remedy = std::string()) const;

    RecordSource& m_source;
    std::vector<InputColumn> m_columns;
};
}
