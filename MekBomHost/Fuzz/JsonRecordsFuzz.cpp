// Records of JSON: what is read, written as one object a line, is read again as it was; and all else is refused with a
// fault. Input: a JSON file. Seeds: Fuzz/Seeds/JsonRecordsFuzz.
#include "Fault.h"
#include "JsonRecords.h"
#include "JsonText.h"
#include "MemorySource.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace
{
void require(bool holds)
{
    if (!holds)
        std::abort();
}

// A cell as JSON writes it; empty for nothing.
std::string jsonOf(const mekbom::RecordCell& cell)
{
    if (cell.isNothing())
        return std::string();
    return cell.isNumber() ? cell.asText() : mekbom::jsonText(cell.text());
}

using Records = std::vector<std::vector<std::string>>;

// Nothing when they are refused.
std::optional<Records> recordsOf(const std::string& bytes)
{
    mekbom::MemorySource source("fuzz.json", bytes);
    mekbom::JsonRecords reader(source);
    Records records;
    try
    {
        while (const mekbom::Record* const pRecord = reader.next())
        {
            records.emplace_back();
            for (const mekbom::RecordCell& cell : *pRecord)
                records.back().push_back(jsonOf(cell));
            mekbom::Finding finding;
            reader.placeRecord(finding);
            require(finding.begin.line >= 1);
            for (std::size_t i = 0; i < pRecord->size() && records.size() == 2; ++i)
                reader.placeCell(i, finding);
        }
    }
    catch (const mekbom::Fault& fault)
    {
        require(!std::string(fault.what()).empty());
        return std::nullopt;
    }
    return records;
}

// The header row has the keys, so the first object gets them all, be it with nothing.
std::string linesOf(const Records& records)
{
    std::string text;
    for (std::size_t row = 1; row < records.size(); ++row)
    {
        text += "{";
        for (std::size_t i = 0; i < records[row].size(); ++i)
        {
            const std::string& key = records[0][i].empty() ? "\"\"" : records[0][i];
            text += (i == 0 ? "" : ",") + key + ":" + (records[row][i].empty() ? "null" : records[row][i]);
        }
        text += "}\n";
    }
    return text;
}
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    const std::optional<Records> records = recordsOf(std::string(reinterpret_cast<const char*>(pData), size));
    require(!records || records == recordsOf(linesOf(*records)));
    return 0;
}
