// The records of a JSON file: an array of objects, one for each part, or an object on each line (JSON Lines).
//
//   [ { "Name": "HEA200", "Length [ft]": 7.5 },          Name      Length [ft]   Phase
//     { "Name": "IPE360", "Phase": "2" } ]               HEA200    7.5
//                                                        IPE360                  2
//
// The keys of all objects, in the order in which they first come, are the header row. Numbers are handed over as they
// are stored, those of more digits than a double holds by their digits; true and false as texts; null is nothing. A value
// that is an object or an array itself is refused: parts within parts would be lost in a list.
#pragma once

#include "ByteSource.h"
#include "JsonObjects.h"
#include "RecordSource.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace mekbom
{
class JsonRecords : public RecordSource
{
public:
    // `source` is not owned and outlives the records. Its bytes are read when the first record is asked for, and kept.
    explicit JsonRecords(ByteSource& source);
    ~JsonRecords() override;

    const std::string& name() const override { return m_source.name(); }
    const Record* next() override;

    // The line on which the object begins; the place of the value, or of the object where it has none.
    void placeRecord(Finding& finding) const override;
    void placeCell(std::size_t index, Finding& finding) const override;

    // Whether bytes begin as such a file does: with an object, or an array that begins with one or is empty.
    static bool isBeginOf(std::string_view head);

private:
    class Cells;

    const Record* header();
    void parse();
    void requireColumns() const;
    [[noreturn]] void failInObject() const;
    [[noreturn]] void failAt(const TextSpan& span, const Finding& finding) const;

    ByteSource& m_source;
    std::string m_bytes;
    mutable std::optional<JsonObjects> m_objects; // none before the first record
    std::string_view m_object;                    // the one read last; empty while the header row is
    std::unique_ptr<Cells> m_pCells;
};
}
