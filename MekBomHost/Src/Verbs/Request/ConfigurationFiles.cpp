#include "ConfigurationFiles.h"

#include "Environment.h"
#include "FileSource.h"
#include "ShippedFiles.h"
#include "TemplateFile.h"

#include <filesystem>
#include <system_error>

namespace mekbom::ConfigurationFiles
{
namespace
{
namespace fs = std::filesystem;

const char* const kNameInFolder = "mekbom.ini";

std::string variable(const std::string& name)
{
    const auto variables = Environment::variables({ name });
    return variables.empty() ? std::string() : variables.front().second;
}

// A relative path would mean another folder wherever the program is run, so that it counts for nothing, as among other
// programs. Empty where the environment names no folder.
fs::path folderOfUser()
{
    fs::path configured = variable("XDG_CONFIG_HOME");
    if (configured.is_absolute())
        return configured;
    const fs::path home = variable("HOME");
    return home.is_absolute() ? home / ".config" : fs::path();
}

bool isFile(const std::string& templateName)
{
    return !templateName.empty() && templateName != TemplateFile::kDefault &&
           ShippedFiles::templateNamed(templateName).empty();
}

// What cannot be told to be missing is read, and so told to be unreadable.
bool isMissing(const std::string& path)
{
    std::error_code error;
    return fs::status(path, error).type() == fs::file_type::not_found;
}
}

std::vector<std::string> pathsFor(const std::string& templateName)
{
    std::vector<std::string> paths;
    if (const fs::path folder = folderOfUser(); !folder.empty())
        paths.push_back((folder / "mekbom" / "config.ini").string());
    if (isFile(templateName))
        paths.push_back((fs::path(templateName).parent_path() / kNameInFolder).string());
    return paths;
}

Configuration readFor(const std::string& templateName)
{
    Configuration configuration;
    for (const std::string& path : pathsFor(templateName))
        if (!isMissing(path))
            configuration.read({ path, FileSource(path).readAll() });
    return configuration;
}
}
