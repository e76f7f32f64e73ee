#include "ReportFormats.h"

#include "TextTableWriter.h"

namespace mekbom::ReportFormats
{
namespace
{
struct Format
{
    std::string_view name;
    std::unique_ptr<ReportWriter> (*createWriter)();
};

template <class Writer>
std::unique_ptr<ReportWriter> create()
{
    return std::make_unique<Writer>();
}

// A new format is a line here.
const Format kFormats[] = {
    { kText, create<TextTableWriter> },
};
}

std::unique_ptr<ReportWriter> createWriter(std::string_view format)
{
    for (const Format& known : kFormats)
        if (known.name == format)
            return known.createWriter();
    return nullptr;
}
}
