#include "PartsFormats.h"

#include "CsvFile.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "JoinedRecords.h"
#include "JsonRecords.h"
#include "OldWorkbook.h"
#include "PeekedSource.h"
#include "XlsxReader.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

namespace mekbom::PartsFormats
{
namespace
{
// Enough to see past blanks what a file begins with.
constexpr std::size_t kHeadSize = 4096;

bool isWorkbook(const PeekedSource& source)
{
    const std::string_view mark = "PK\3\4"; // of all packed files; the reader knows which of them are workbooks
    return source.head().substr(0, mark.size()) == mark;
}

[[noreturn]] void failWithSheet(const ByteSource& source)
{
    Finding finding = Finding::stating(FindingCodes::kOptionWithoutUse, source.name() + " is no workbook");
    finding.source = "--sheet";
    throw Fault(kWrongUsage, finding);
}

std::unique_ptr<RecordSource> readerFor(PeekedSource& source, const InputChoices& choices, FindingList& notes)
{
    if (isWorkbook(source))
        return std::make_unique<XlsxReader>(source, choices.sheet, notes);
    if (OldWorkbook::isOne(source.head()))
        OldWorkbook::refuse(source.name(), source.readAll());
    if (!choices.sheet.empty())
        failWithSheet(source);
    if (JsonRecords::isBeginOf(source.head()))
        return std::make_unique<JsonRecords>(source);
    return std::make_unique<CsvFile>(source, choices, notes);
}

// Records with the source that was looked into for them.
class PeekedRecords : public RecordSource
{
public:
    PeekedRecords(ByteSource& source, const InputChoices& choices, FindingList& notes)
        : m_source(source, kHeadSize), m_pRecords(readerFor(m_source, choices, notes))
    {
    }

    const std::string& name() const override { return m_source.name(); }
    const Record* next() override { return m_pRecords->next(); }
    void placeRecord(Finding& finding) const override { m_pRecords->placeRecord(finding); }
    void placeCell(std::size_t index, Finding& finding) const override { m_pRecords->placeCell(index, finding); }
    NumberNotation notationOf(const std::vector<std::size_t>& columns) const override
    {
        return m_pRecords->notationOf(columns);
    }

private:
    PeekedSource m_source;
    std::unique_ptr<RecordSource> m_pRecords;
};
}

std::unique_ptr<RecordSource> open(ByteSource& source, const InputChoices& choices, FindingList& notes)
{
    return std::make_unique<PeekedRecords>(source, choices, notes);
}

std::unique_ptr<RecordSource> openAll(const std::vector<std::unique_ptr<ByteSource>>& sources,
                                      std::vector<std::unique_ptr<RecordSource>> others, const InputChoices& choices,
                                      const HeadingChoices& headings, FindingList& notes)
{
    std::vector<std::unique_ptr<RecordSource>> records;
    records.reserve(sources.size() + others.size());
    for (const std::unique_ptr<ByteSource>& pSource : sources)
        records.push_back(open(*pSource, choices, notes));
    std::move(others.begin(), others.end(), std::back_inserter(records));
    if (records.size() == 1)
        return std::move(records.front());
    return std::make_unique<JoinedRecords>(std::move(records), headings);
}
}
