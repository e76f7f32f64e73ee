// Sheets of workbooks: whatever XML comes, it is read into records that have as many cells as the header row and places
// of their own, or refused with a fault; and it does not matter where the bytes of a part end. Input: the part of a sheet,
// in a workbook of three texts and three formats. Seeds: Fuzz/Seeds/XlsxReaderFuzz.
#include "Fault.h"
#include "MemorySource.h"
#include "Utf8.h"
#include "XlsxReader.h"
#include "XmlElements.h"

#include "MekBomHost/Test/Support/WorkbookSupport.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <sstream>
#include <string>
#include <string_view>

namespace
{
void require(bool holds)
{
    if (!holds)
        std::abort();
}

// What `read` gives, or what it is refused with.
std::string resultOf(const std::function<std::string()>& read)
{
    try
    {
        return read();
    }
    catch (const mekbom::Fault& fault)
    {
        require(!std::string(fault.what()).empty());
        return fault.what();
    }
}

std::string workbookWith(std::string_view sheet)
{
    mekbom::BuiltWorkbook workbook;
    workbook.sheets.push_back({ "Parts", std::string(sheet), "", "worksheet" });
    workbook.texts = "<si><t>Mark</t></si><si><t>Length</t></si><si><t>B1</t></si>";
    workbook.styles = "<cellXfs><xf numFmtId=\"0\"/><xf numFmtId=\"14\"/><xf numFmtId=\"9\"/></cellXfs>";
    return workbook.bytes();
}

void readSheet(std::string_view sheet)
{
    const std::string bytes = workbookWith(sheet);
    mekbom::MemorySource source("fuzz.xlsx", bytes);
    mekbom::FindingList notes;
    mekbom::XlsxReader reader(source, "", notes);
    std::size_t numCells = 0;
    while (const mekbom::Record* const pRecord = reader.next())
    {
        require(numCells == 0 || numCells == pRecord->size());
        numCells = pRecord->size();
        for (std::size_t i = 0; i < numCells; ++i)
        {
            mekbom::Finding finding;
            reader.placeCell(i, finding);
            require(!finding.path.empty());
            const std::string text = (*pRecord)[i].asText();
            require(mekbom::Utf8::findInvalid(text) == text.size() && text.find('\0') == std::string::npos);
        }
    }
}

// Gives a few bytes at a time.
class SlowSource : public mekbom::MemorySource
{
public:
    using MemorySource::MemorySource;
    std::size_t read(char* pBytes, std::size_t size) override
    {
        return MemorySource::read(pBytes, std::min<std::size_t>(size, 7));
    }
};

std::string elementsOf(mekbom::ByteSource& source)
{
    mekbom::XmlElements elements(source, "fuzz.xlsx", { "sheetData/row", "mergeCells/mergeCell" });
    std::ostringstream text;
    while (const pugi::xml_node element = elements.next())
        element.print(text, "", pugi::format_raw);
    return text.str();
}
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(pData), size);
    resultOf(
        [bytes]
        {
            readSheet(bytes);
            return std::string();
        });
    mekbom::MemorySource fast("sheet.xml", bytes);
    SlowSource slow("sheet.xml", bytes);
    require(resultOf([&fast] { return elementsOf(fast); }) == resultOf([&slow] { return elementsOf(slow); }));
    return 0;
}
