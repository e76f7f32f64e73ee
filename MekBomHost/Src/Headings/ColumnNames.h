// The tokens of a header row: which datum each column carries, in which unit, and whether of one piece or of all.
//
//   HeadingChoices choices;
//   choices.mappings = { { "Cost code", "%UserAttr1" } };
//   const ColumnNames names = ColumnNames::of({ "Mark", "Qty", "Total weight [kg]", "Cost code", "Bay" }, choices);
//
//   names.columns     %PNum   %Quantity   %Weight in kg, of all pieces   %UserAttr1   %Bay, which is one of its own
//
// Who says what a column is, in this order: the mappings; the heading itself, if it has its "%"; the template, if it asks
// for a token of that name; the table of headings. What the table says depends on the other columns: "Mark" is the mark
// of an assembly beside "Part mark", and "Total weight" is left alone beside "Weight". Whatever that leaves open is a
// doubt, and so are two columns that claim one token: they are columns of their own then, and whoever needs a token in
// doubt has to refuse the file.
#pragma once

#include "HeadingChoices.h"

#include "Finding.h"

#include <memory>
#include <string>
#include <vector>

namespace mekbom
{
// Why nobody can tell what a column is.
struct HeadingDoubt
{
    std::vector<std::string> tokens; // that it may carry
    Finding finding;                 // without a place, but with its field where one column alone is meant
};

struct ColumnName
{
    enum eOrigin
    {
        kWritten, // the heading is the name of the token
        kTable,
        kMapped
    };

    std::string token; // with its "%"; only "%" for a heading without a name
    std::string unit;  // empty without one
    std::string label; // the heading without its unit
    eOrigin origin = kWritten;
    bool isRowTotal = false;                   // the values are those of all pieces of a row
    std::shared_ptr<const HeadingDoubt> doubt; // null where there is none
};

struct ColumnNames
{
    // `headings` are the fields of the header row, in UTF-8. Takes a time that grows with their number.
    static ColumnNames of(const std::vector<std::string>& headings, const HeadingChoices& choices);

    std::vector<ColumnName> columns;     // one for each heading, in their order
    std::vector<HeadingMapping> missing; // those whose heading must be there and is not
};
}
