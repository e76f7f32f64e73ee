// A file of fields and lines as people have it: its encoding, what stands between its fields, and how its numbers are
// written are found in its first bytes, unless the user says them.
//
//   FindingList notes;
//   CsvFile records(source, InputChoices(), notes);
//   PartsList parts(records);
//
// What a CsvReader says of records and their cells holds here, too.
#pragma once

#include "CsvReader.h"
#include "DecodedSource.h"
#include "FindingList.h"
#include "InputChoices.h"
#include "PeekedSource.h"
#include "RecordSource.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
class CsvFile final : public RecordSource
{
public:
    // Reads the first bytes. `source` is not owned and outlives this object. What is found that is not plain, UTF-8 and
    // commas, is added to `notes`. Throws a Fault where the delimiter cannot be told.
    CsvFile(ByteSource& source, const InputChoices& choices, FindingList& notes);

    const std::string& name() const override { return m_reader.name(); }
    const Record* next() override;
    void placeRecord(Finding& finding) const override { m_reader.placeRecord(finding); }
    void placeCell(std::size_t index, Finding& finding) const override { m_reader.placeCell(index, finding); }
    NumberNotation notationOf(const std::vector<std::size_t>& columns) const override;

private:
    static TextEncoding::eEncoding encodingOf(const PeekedSource& bytes, const InputChoices& choices,
                                              FindingList& notes);
    static char delimiterOf(const PeekedSource& text, const InputChoices& choices, FindingList& notes);

    PeekedSource m_bytes;
    DecodedSource m_decoded;
    PeekedSource m_text;
    NumberNotation::eSign m_sign; // that the user says; kNoSign when nobody does
    char m_delimiter;
    bool m_skipsRecord; // the line that announces the delimiter
    CsvReader m_reader;
};
}
