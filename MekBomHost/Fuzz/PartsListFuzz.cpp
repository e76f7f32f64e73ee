// Parts lists: whatever bytes come, they are read into rows or refused with a fault that has a message. Input: a CSV
// file. Seeds: Fuzz/Seeds/PartsListFuzz.
#include "CsvReader.h"
#include "Fault.h"
#include "MemorySource.h"
#include "PartsList.h"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace
{
void require(bool holds)
{
    if (!holds)
        std::abort();
}

// Asks for a text, a whole number, numbers with a unit, and tokens that no catalogue knows, one of them in a total.
void addColumns(VorBomTemplate& report)
{
    auto* pDetails = new VorBomTemplateItem(VorBomTemplateItem::kDetails);
    for (const wchar_t* pToken :
         { L"%Handle", L"%Name", L"%Quantity", L"%Length", L"%Paint", L"%Other", L"%SumBy:%Price" })
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
    mekbom::MemorySource source("fuzz.csv", std::string_view(reinterpret_cast<const char*>(pData), size));
    try
    {
        mekbom::CsvReader records(source);
        mekbom::PartsList parts(records);
        parts.readRows(report);
    }
    catch (const mekbom::Fault& fault)
    {
        require(!std::string(fault.what()).empty());
    }
    return 0;
}
