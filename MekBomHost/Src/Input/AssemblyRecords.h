// A parts list whose parts have what is known of their assemblies, from a list of its own:
//
//   parts.csv          Handle,Name,Assembly        P1,HEA200,A7     P2,IPE360,
//   assemblies.csv     Handle,Mark,Weight [t]      A7,L10,1.2
//
//   AssemblyRecords records(std::move(parts), std::move(assemblies), HeadingChoices());
//   records.next()   ->  Handle, Name, Assembly, %MNum, %AssemblyWeight [t]
//   records.next()   ->  P1, HEA200, A7, L10, 1.2
//   records.next()   ->  P2, IPE360, nothing, nothing, nothing
//
// A part names its assembly by the handle of that, in its column "Assembly". It gets the columns that the parts list does
// not have, as what they are of an assembly: its weight would else pass for that of each of its parts, and be counted as
// often. What has no such name, such as a length, is not given, nor is what all pieces of an assembly have together.
#pragma once

#include "ColumnNames.h"
#include "RecordSource.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace mekbom
{
class AssemblyRecords : public RecordSource
{
public:
    // Neither source has been read from. The assemblies are read when the first record is asked for, and kept. `choices`
    // are those by which the header row will be read.
    AssemblyRecords(std::unique_ptr<RecordSource> pParts, std::unique_ptr<RecordSource> pAssemblies,
                    HeadingChoices choices);

    const std::string& name() const override { return m_pParts->name(); }

    // Throws a Fault of status kInvalidInput for a list without header row or without the column that one names the other
    // by, for two assemblies of one handle, for a part of an assembly that there is none of, and for a record with more or
    // fewer cells than its own header row.
    const Record* next() override;

    // What an assembly gave has the place of the part.
    void placeRecord(Finding& finding) const override { m_pParts->placeRecord(finding); }
    void placeCell(std::size_t index, Finding& finding) const override;

    // That of both lists: settled where it is the same in both and settled in each.
    NumberNotation notationOf(const std::vector<std::size_t>& columns) const override;

private:
    const Record* header();
    void chooseColumns(const Record& assemblyHeadings, const Record& partHeadings);
    void readAssemblies();
    RecordCell keep(const RecordCell& cell);
    void append(const RecordCell& handle);
    [[noreturn]] void failInAssembly(Finding finding) const;
    [[noreturn]] void failForUnknown(std::string_view handle) const;

    std::unique_ptr<RecordSource> m_pParts;
    std::unique_ptr<RecordSource> m_pAssemblies;
    HeadingChoices m_choices;
    bool m_isBegun = false;
    std::size_t m_numPartColumns = 0;
    std::size_t m_numAssemblyColumns = 0;
    std::size_t m_assemblyColumn = 0;        // of the parts
    std::size_t m_handleColumn = 0;          // of the assemblies
    std::vector<std::size_t> m_givenColumns; // of the assemblies: those that parts get
    std::deque<std::string> m_texts;         // of all that is kept of the assemblies
    std::deque<Finding> m_refusals;
    std::vector<RecordCell> m_givenCells;                           // of all assemblies, one after the other
    std::unordered_map<std::string_view, std::size_t> m_assemblies; // handle -> the first of its cells
    Record m_record;
};
}
