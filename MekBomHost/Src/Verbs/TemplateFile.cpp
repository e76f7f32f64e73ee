#include "TemplateFile.h"

#include "Fault.h"
#include "FileSource.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "NearestWord.h"
#include "ShippedFiles.h"

#include <filesystem>
#include <system_error>
#include <vector>

namespace mekbom::TemplateFile
{
const char* const kDefault = "default";

namespace
{
// A word that could be the name of a list: people write a path, or the ending of a file, where they mean one.
bool isPlainWord(const std::string& text)
{
    return text.find_first_of("./\\") == std::string::npos;
}

[[noreturn]] void failWithoutList(const std::string& name, const std::string& option)
{
    std::vector<std::string> names = ShippedFiles::templateNames();
    names.push_back(kDefault);
    std::string expected = "a file or one of ";
    for (const std::string& known : names)
        expected += (&known == names.data() ? "" : ", ") + known;
    Finding finding = Finding::of(FindingCodes::kListUnknown, inQuotes(name), expected);
    finding.remedy = NearestWord::question(name, names);
    finding.source = option;
    throw Fault(kWrongUsage, finding);
}
}

std::unique_ptr<ByteSource> open(const std::string& name, const std::string& option)
{
    if (const std::string shipped = ShippedFiles::templateNamed(name); !shipped.empty())
        return std::make_unique<FileSource>(ShippedFiles::find(shipped), name);
    std::error_code error;
    if (isPlainWord(name) && !std::filesystem::exists(name, error))
        failWithoutList(name, option);
    return std::make_unique<FileSource>(name);
}
}
