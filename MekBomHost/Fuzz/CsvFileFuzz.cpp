// Parts lists of any dialect: whatever bytes come, their delimiter, encoding and notation are found and they are read into
// rows, or they are refused with a fault that has a message; and what is read of UTF-8 is read of the same text in UTF-16.
// Input: a file of any encoding. Seeds: Fuzz/Seeds/CsvFileFuzz.
#include "CsvFile.h"
#include "Fault.h"
#include "MemorySource.h"
#include "Utf8.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace
{
void require(bool holds)
{
    if (!holds)
        std::abort();
}

// The fields of all records one after the other, and how numbers are written in them; nothing when they are refused.
std::optional<std::vector<std::string>> contentOf(const std::string& bytes)
{
    mekbom::MemorySource source("fuzz.csv", bytes);
    mekbom::FindingList notes;
    std::vector<std::string> content;
    try
    {
        mekbom::CsvFile file(source, mekbom::InputChoices(), notes);
        file.next();
        const mekbom::NumberNotation notation = file.notationOf({ 0, 1, 2 });
        content.push_back(mekbom::NumberNotation::nameOf(notation.sign()) + notation.reason());
        std::string plain;
        while (const mekbom::Record* const pRecord = file.next())
            for (const mekbom::RecordCell& cell : *pRecord)
            {
                const bool isReadable = notation.toPlain(cell.text(), plain) == mekbom::NumberNotation::kReadable;
                content.emplace_back(isReadable ? plain : cell.text());
                require(!isReadable || plain.size() <= cell.text().size());
            }
    }
    catch (const mekbom::Fault& fault)
    {
        require(!std::string(fault.what()).empty());
        return std::nullopt;
    }
    return content;
}

std::string inUtf16(std::string_view text)
{
    std::string bytes = "\xFF\xFE";
    const auto addUnit = [&bytes](int unit)
    {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    };
    while (!text.empty())
    {
        const int codePoint = mekbom::Utf8::takeCodePoint(text);
        if (codePoint >= 0x10000)
            addUnit(0xD800 + ((codePoint - 0x10000) >> 10));
        addUnit(codePoint >= 0x10000 ? 0xDC00 + ((codePoint - 0x10000) & 0x3FF) : codePoint);
    }
    return bytes;
}
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(pData), size);
    const auto content = contentOf(bytes);
    if (mekbom::Utf8::findInvalid(bytes) == size)
        require(content == contentOf(inUtf16(mekbom::Utf8::withoutByteOrderMark(bytes))));
    return 0;
}
