// Two folders are looked into, both as seen from that of the program:
//
//   /usr/bin/mekbom           ../share/mekbom, which is /usr/share/mekbom, and wherever the installation was moved to
//   MekBomHost/mekbom         share/mekbom, where the build has put links to the files in the source tree
//
// No folder is compiled in, so that what was installed never reads files of the machine that it was built on.
#include "ShippedFiles.h"

#include "Fault.h"
#include "FindingCodes.h"

#include <filesystem>
#include <system_error>

#if defined(_WIN32)
#include <windows.h>
#endif

namespace mekbom::ShippedFiles
{
namespace
{
namespace fs = std::filesystem;

// The folder of the running program; empty where the system does not tell.
fs::path programFolder()
{
#if defined(_WIN32)
    wchar_t path[MAX_PATH];
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    return fs::path(std::wstring(path, length)).parent_path();
#else
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error).parent_path();
#endif
}
}

const char* const kPartsList = "hall.csv";

// Of two that suit a parts list equally well TemplateChoice takes the first: a more special list stands before
// parts-list, which suits nearly all data.
const std::vector<std::string>& templates()
{
    static const std::vector<std::string> files = { "Templates/cutting-list.json", "Templates/assembly-list.json",
                                                    "Templates/bolt-list.json", "Templates/parts-list.json" };
    return files;
}

std::vector<std::string> templateNames()
{
    std::vector<std::string> names;
    for (const std::string& file : templates())
        names.push_back(fs::path(file).stem().string());
    return names;
}

std::string templateNamed(std::string_view name)
{
    for (const std::string& file : templates())
        if (fs::path(file).stem().string() == name)
            return file;
    return std::string();
}

std::string find(const std::string& relativePath)
{
    const fs::path program = programFolder();
    const fs::path installed = (program / MEK_SHIPPED_PATH).lexically_normal();
    const fs::path beside = program / "share" / "mekbom";
    std::error_code error;
    for (const fs::path& folder : { installed, beside })
        if (fs::exists(folder / relativePath, error))
            return (folder / relativePath).string();
    Finding finding =
        Finding::of(FindingCodes::kShippedFileMissing,
                    "neither in " + installed.string() + " nor in " + beside.string(), "as part of the installation");
    finding.source = relativePath;
    throw Fault(kInvalidInput, finding);
}
}
