// A shipped list is known by its name alone, and a file by whatever path it has; between them stand slips:
//
//   bolt-list      the shipped list          ./bolt-list    a file, there or not
//   bolt-lst       refused, unless there is a file of that name: "did you mean "bolt-list"?"
//   lists/mine     a file, there or not: whoever reads it tells that it is missing
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
// Whether a word could be the name of a list: people write a path, or the ending of a file, where they mean a file.
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
