// Several parts lists as one: the rows of the first, then those of the second and so on, each cell under the column of
// its token.
//
//   a.csv    Profile,Length       HEA200,6000
//   b.csv    Length,%Name,Phase   5500,IPE360,2
//
//   JoinedRecords records(std::move(sources), HeadingChoices());        // of a.csv and b.csv
//   records.next()   ->  Profile, Length, Phase
//   records.next()   ->  HEA200, 6000, nothing
//   records.next()   ->  IPE360, 5500, 2
//
// Headings mean what they mean in their own file, whatever stands in the others: "Mark" is the mark of a part in a file
// without "Part mark", and stays that beside a file that has both. A column must be given in one unit by all that have it: numbers of one file would else be read in the unit of another.
// Records have the places that they have in their own files.
#pragma once

#include "ColumnNames.h"
#include "RecordSource.h"

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace mekbom
{
class JoinedRecords : public RecordSource
{
public:
    // At least one source, none of them read from yet. `choices` are those by which the joined header row will be read.
    JoinedRecords(std::vector<std::unique_ptr<RecordSource>> sources, HeadingChoices choices);

    // "a.csv, b.csv"
    const std::string& name() const override { return m_name; }

    // The first call reads the header rows of all sources. Throws a Fault of status kInvalidInput when one has none, when
    // two name units of one column that differ, when a heading would mean something else beside those of the others, and
    // for a record with more or fewer cells than its own header row.
    const Record* next() override;

    void placeRecord(Finding& finding) const override;
    void placeCell(std::size_t index, Finding& finding) const override;

    // That of all sources: settled where it is the same in all and settled in each.
    NumberNotation notationOf(const std::vector<std::size_t>& columns) const override;

private:
    // A file, and which of the joined columns each of its own is.
    struct Source
    {
        std::unique_ptr<RecordSource> pRecords;
        std::vector<std::size_t> columns;
    };

    // A joined column: its heading, as the first source that has it writes it, which source that is, and what it means
    // there.
    struct Column
    {
        std::string heading;
        std::size_t source;
        ColumnName name;
    };

    const Record* header();
    void addColumns(std::size_t source, const Record& headings);
    void requireOneUnit(const Column& column, std::size_t source, const std::string& heading,
                        const std::string& unit) const;
    void keepMeanings();
    ColumnNames namesOfJoined() const;
    [[noreturn]] void failInMeaning(const Column& column) const;
    const Record* joined(const Record& record);
    static NumberNotation notationOf(const Source& source, const std::vector<std::size_t>& columns);
    [[noreturn]] void failInNumCells(std::size_t numCells) const;

    HeadingChoices m_choices;
    std::string m_name;
    std::vector<Source> m_sources;
    std::vector<Column> m_columns;
    std::unordered_map<std::string, std::vector<std::size_t>> m_columnsOf; // of each meaning
    std::size_t m_current = 0;                                             // the source that is being read
    bool m_isBegun = false;                                                // the header rows were read
    bool m_isInRows = false;                                               // a row was handed over
    Record m_record;
};
}
