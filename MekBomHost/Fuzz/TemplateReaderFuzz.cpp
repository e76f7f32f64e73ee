// Template files: whatever bytes come, they are a template or refused with a fault that has a message; a template that
// was read can be prepared. Input: a JSON file. Seeds: Fuzz/Seeds/TemplateReaderFuzz.
#include "Fault.h"
#include "TemplateReader.h"

#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    try
    {
        const std::string_view text(reinterpret_cast<const char*>(pData), size);
        mekbom::ReportTemplate report = mekbom::TemplateReader::read("fuzz.json", text);
    }
    catch (const mekbom::Fault& fault)
    {
        if (std::string(fault.what()).empty())
            std::abort();
    }
    return 0;
}
