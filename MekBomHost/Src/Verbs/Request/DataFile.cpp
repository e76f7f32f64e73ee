#include "DataFile.h"

#include "FileSource.h"
#include "ShippedFiles.h"

namespace mekbom::DataFile
{
const char* const kHall = "hall";
const char* const kStandardInput = "-";

std::unique_ptr<ByteSource> open(const std::string& name)
{
    if (name == kStandardInput)
        return std::make_unique<FileSource>();
    return std::make_unique<FileSource>(name == kHall ? ShippedFiles::find(ShippedFiles::kPartsList) : name);
}

std::vector<std::unique_ptr<ByteSource>> openAll(const std::vector<std::string>& names)
{
    std::vector<std::unique_ptr<ByteSource>> sources;
    sources.reserve(names.size());
    for (const std::string& name : names)
        sources.push_back(open(name));
    return sources;
}
}
