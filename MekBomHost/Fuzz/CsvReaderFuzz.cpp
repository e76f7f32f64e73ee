// Records of CSV: whatever bytes come, they are read as the same records when the reader's buffer ends amid them; what
// is read, written with every field in quotes, is read again as it was; another delimiter divides a text as commas do
// where both are exchanged; and all else is refused with a fault. Input: a CSV file. Seeds: Fuzz/Seeds/CsvReaderFuzz.
#include "CsvReader.h"
#include "Fault.h"
#include "MemorySource.h"
#include "SourceBytes.h"
#include "StopScan.h"
#include "Utf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace
{
using Records = std::vector<std::vector<std::string>>;

void require(bool holds)
{
    if (!holds)
        std::abort();
}

// Nothing when they are refused.
std::optional<Records> recordsOf(const std::string& bytes, char delimiter = ',')
{
    mekbom::MemorySource source("fuzz.csv", bytes);
    mekbom::CsvReader reader(source, delimiter);
    Records records;
    try
    {
        while (const mekbom::Record* const pRecord = reader.next())
        {
            records.emplace_back();
            for (std::size_t i = 0; i < pRecord->size(); ++i)
            {
                mekbom::Finding finding;
                reader.placeCell(i, finding);
                require(finding.begin.line >= 1 && finding.begin.column >= 1 && finding.end.line >= finding.begin.line);
                records.back().emplace_back((*pRecord)[i].text());
            }
        }
    }
    catch (const mekbom::Fault& fault)
    {
        require(!std::string(fault.what()).empty());
        return std::nullopt;
    }
    return records;
}

// The same bytes with the end of the buffer amid them: behind a record that nearly fills it.
std::optional<Records> recordsBehindALongOne(const std::string& bytes)
{
    const std::size_t limit = mekbom::SourceBytes::kFirstSize - mekbom::StopScan::kBlockSize;
    const std::string longOne(limit - std::min(limit, bytes.size() / 2 + 1), '1');
    std::optional<Records> records = recordsOf(longOne + "\n" + bytes);
    if (records && !longOne.empty())
        records->erase(records->begin());
    return records;
}

// The text with commas for delimiters and delimiters for commas.
std::string exchanged(std::string text, char delimiter)
{
    for (char& byte : text)
        byte = byte == ',' ? delimiter : byte == delimiter ? ',' : byte;
    return text;
}

std::optional<Records> recordsExchanged(const std::string& bytes, char delimiter)
{
    std::optional<Records> records = recordsOf(exchanged(bytes, delimiter), delimiter);
    if (records)
        for (std::vector<std::string>& record : *records)
            for (std::string& field : record)
                field = exchanged(field, delimiter);
    return records;
}

std::string inQuotes(const Records& records)
{
    std::string text;
    for (const std::vector<std::string>& record : records)
    {
        for (const std::string& field : record)
        {
            text += '"';
            for (const char c : field)
                text += c == '"' ? "\"\"" : std::string(1, c);
            text += "\",";
        }
        text.back() = '\n';
    }
    return text;
}
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(pData), size);
    const std::optional<Records> records = recordsOf(bytes);
    if (size < mekbom::SourceBytes::kFirstSize && mekbom::Utf8::withoutByteOrderMark(bytes) == bytes)
        require(records == recordsBehindALongOne(bytes));
    for (const auto& [pName, delimiter] : mekbom::CsvDelimiter::all())
        require(records == recordsExchanged(bytes, delimiter));
    require(!records || records == recordsOf(inQuotes(*records)));
    return 0;
}
