// Parts lists: whatever bytes come, they are read into rows or refused with a fault that has a message. Input: a CSV
// file. Seeds: Fuzz/Seeds/PartsListFuzz.
#include "ByteSource.h"
#include "CsvReader.h"
#include "Fault.h"
#include "PartsList.h"
#include "QueryFilter.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

namespace
{
class FuzzSource : public mekbom::ByteSource
{
public:
    FuzzSource(const std::uint8_t* pData, std::size_t size) : m_pData(pData), m_nLeft(size) {}

    const std::string& name() const override { return m_name; }

    std::size_t read(char* pBytes, std::size_t size) override
    {
        const std::size_t numBytes = std::min(size, m_nLeft);
        if (numBytes > 0)
            std::memcpy(pBytes, m_pData, numBytes);
        m_pData += numBytes;
        m_nLeft -= numBytes;
        return numBytes;
    }

private:
    std::string m_name = "fuzz.csv";
    const std::uint8_t* m_pData;
    std::size_t m_nLeft;
};

void require(bool holds)
{
    if (!holds)
        std::abort();
}

// Asks for a text, a whole number, a number with a unit and a token that no catalogue knows.
void addColumns(VorBomTemplate& report)
{
    auto* pDetails = new VorBomTemplateItem(VorBomTemplateItem::kDetails);
    for (const wchar_t* pToken : { L"%Handle", L"%Name", L"%Quantity", L"%Length", L"%Other" })
        pDetails->addData(VorBomDataTuple(pToken, VorString()));
    report.addChild(pDetails);
    report.setUnitsForTokens(nullptr);
    report.findUsedTokens();
}
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    VorBomTemplate report;
    addColumns(report);
    FuzzSource source(pData, size);
    try
    {
        mekbom::CsvReader records(source);
        mekbom::PartsList parts(records);
        parts.readRows(report, mekbom::QueryFilter());
    }
    catch (const mekbom::Fault& fault)
    {
        require(!std::string(fault.what()).empty());
    }
    return 0;
}
