// Which fields a record of CSV has, and which section of the list each is taken from. A record is a line of the deepest
// level that shows anything, with what the headers of its groups show in front of it:
//
//   list                                       fields
//     group header   Profile Material            Profile, Material   of the group that the line is in
//       details      Length Pieces Weight        Length, Pieces, Weight
//     group footer   Pieces Weight             none: a total is no record, or who sums a column would count twice
//
// Of a list that prints groups without their lines the groups are the records, and their totals are fields.
#pragma once

#include "EvaluatedReport.h"
#include "SectionPlace.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
struct CsvColumn
{
    std::string heading; // of the texts or of the numbers, as asked for
    std::size_t index;   // of the report's column that it is taken from
    SectionPlace place;  // of the section that fills it
};

struct CsvColumns
{
    // Columns stand in the order of the list. Those that nothing but totals above the records would fill are left out.
    // What an outer group and a line of it show in one column has a column each, the group's first: "Profile (group 1)".
    // So are numbers of groups called, since every line repeats them, and who adds them up gets nothing that means
    // anything: "Number (group 1)".
    // `hasNumbers` asks for headings of ReportColumn::numbers.
    static CsvColumns of(const EvaluatedReport& report, bool hasNumbers);

    // Whether nothing of the record is to come behind the line.
    bool endsRecord(const LinePlace& place) const;

    std::vector<CsvColumn> columns;
    SectionPlace last; // the section that a record ends with
};
}
