// Where the records of a parts list come from, whatever the format: the interface that a new input format implements.
//
//   while (const Record* pRecord = source.next())
//       use(*pRecord);
//
// A format is a class in a folder of its own beside Input/Csv, which ReportJob makes. This one reads memory:
//
//   class MemoryRecords : public RecordSource
//   {
//   public:
//       explicit MemoryRecords(std::vector<Record> records) : m_records(std::move(records)) {}
//       const std::string& name() const override { return m_name; }
//       const Record* next() override { return m_numRead < m_records.size() ? &m_records[m_numRead++] : nullptr; }
//       void placeRecord(Finding& finding) const override { finding.source = m_name; }
//       void placeCell(std::size_t, Finding& finding) const override { finding.source = m_name; }
//   private:
//       std::string m_name = "parts";
//       std::vector<Record> m_records;
//       std::size_t m_numRead = 0;
//   };
//
// The first record names the columns ("Name", "Length [ft]"); each of the others is one part, with its cells in the
// same order. A source of a format that has numbers hands them over as they are stored; one of texts leaves it to the
// reader of the cells which of them are numbers. A value that must not be taken for what it seems, such as a date where
// a mark was typed, is handed over as a refused cell: whether anybody wants it is not the source's to know. What no record can be made of ends the reading with a Fault of status
// kInvalidInput that names the place; what the cells ought to hold, and how many there ought to be, is not its concern.
// A source is read once, from its begin to its end, by one thread at a time, which need not be the one that made it; so
// it uses no copies of VorStrings that others have.
#pragma once

#include "Finding.h"
#include "NumberNotation.h"
#include "RecordCell.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
using Record = std::vector<RecordCell>;

// Whether no cell holds anything: spreadsheets leave such rows behind their last one.
inline bool isEmpty(const Record& record)
{
    return std::all_of(record.begin(), record.end(), [](const RecordCell& cell) { return cell.isNothing(); });
}

class RecordSource
{
public:
    RecordSource() = default;
    RecordSource(const RecordSource&) = delete;
    RecordSource& operator=(const RecordSource&) = delete;
    virtual ~RecordSource() = default;

    // What messages call it: "parts.csv".
    virtual const std::string& name() const = 0;

    // The next record; null at the end. It is owned by the source, and it and its texts are good until the next call.
    virtual const Record* next() = 0;

    // Fill in where the record read last stands, and where its cell `index` does, from 0: the finding's source and what
    // is known of its begin, end and path. A record in a text has a line and no column, one in a workbook a path.
    virtual void placeRecord(Finding& finding) const = 0;
    virtual void placeCell(std::size_t index, Finding& finding) const = 0;

    // How numbers are written where cells are texts, as far as these columns show it, all of whose cells are numbers.
    // To be asked for once the header row is read. A format of programs has the plain notation, in all columns.
    virtual NumberNotation notationOf(const std::vector<std::size_t>& /*columns*/) const { return NumberNotation(); }
};
}
