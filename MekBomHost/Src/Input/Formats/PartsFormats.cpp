#include "PartsFormats.h"

#include "CsvReader.h"
#include "JoinedRecords.h"
#include "JsonRecords.h"
#include "PeekedSource.h"

#include <cstddef>
#include <string>
#include <utility>

namespace mekbom::PartsFormats
{
namespace
{
// Enough to see past blanks what a file begins with.
constexpr std::size_t kHeadSize = 4096;

// Records with the source that was looked into for them.
class PeekedRecords : public RecordSource
{
public:
    explicit PeekedRecords(ByteSource& source) : m_source(source, kHeadSize)
    {
        if (JsonRecords::isBeginOf(m_source.head()))
            m_pRecords = std::make_unique<JsonRecords>(m_source);
        else
            m_pRecords = std::make_unique<CsvReader>(m_source);
    }

    const std::string& name() const override { return m_source.name(); }
    const Record* next() override { return m_pRecords->next(); }
    void placeRecord(Finding& finding) const override { m_pRecords->placeRecord(finding); }
    void placeCell(std::size_t index, Finding& finding) const override { m_pRecords->placeCell(index, finding); }

private:
    PeekedSource m_source;
    std::unique_ptr<RecordSource> m_pRecords;
};
}

std::unique_ptr<RecordSource> open(ByteSource& source, const InputChoices&, FindingList&)
{
    return std::make_unique<PeekedRecords>(source);
}

std::unique_ptr<RecordSource> openAll(const std::vector<std::unique_ptr<ByteSource>>& sources,
                                      const InputChoices& choices, FindingList& notes)
{
    std::vector<std::unique_ptr<RecordSource>> records;
    for (const std::unique_ptr<ByteSource>& pSource : sources)
        records.push_back(open(*pSource, choices, notes));
    if (records.size() == 1)
        return std::move(records.front());
    return std::make_unique<JoinedRecords>(std::move(records));
}
}
