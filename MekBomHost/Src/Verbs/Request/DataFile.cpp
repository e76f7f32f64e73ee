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
}
