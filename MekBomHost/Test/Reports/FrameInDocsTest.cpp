#include "Support/HostTestSupport.h"
#include "Support/ProgramRun.h"
#include "Support/UnpackedWorkbook.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

// The list of a real steel frame that stands in the documents in every format: see Docs/Lists/README.md.

namespace mekbom
{
namespace
{
namespace fs = std::filesystem;

const fs::path kFolder = fs::path(MEK_EXAMPLES_DIR).parent_path() / "Docs" / "Lists";
const char* const kFormats[] = { "txt", "csv", "json", "html", "xlsx" };

std::string nameOf(const std::string& format)
{
    return "cutting-list." + format;
}

// What is compared of a file.
std::string contentOf(const fs::path& path)
{
    const std::string bytes = readFile(path);
    return path.extension() == ".xlsx" ? unpacked(bytes) : bytes;
}

// The command that README.md shows, written on one line.
std::string commandInReadme()
{
    const std::string readme = readFile(kFolder / "README.md");
    const std::size_t begin = readme.find("mekbom report");
    std::string command = readme.substr(begin, readme.find("\n```", begin) - begin);
    for (std::size_t at = command.find("\\\n"); at != std::string::npos; at = command.find("\\\n"))
        command.replace(at, 2, "");
    return command.substr(command.find("report"));
}
}

TEST(FrameInDocsTest, TheListInTheDocumentsIsTheFramesInEveryFormat)
{
    if (std::string(MEK_REAL_DATA_DIR).empty())
        GTEST_SKIP() << "no real data: configure with -DMEK_REAL_DATA_DIR=<folder of steel-frame.csv>";
    const ScratchFolder scratch;
    const char* const pRewrite = std::getenv("MEK_REWRITE_CASES");

    fs::copy_file(fs::path(MEK_REAL_DATA_DIR) / "steel-frame.csv", scratch / "steel-frame.csv");
    const ProgramRun run = runProgram(commandInReadme(), "cd \"" + scratch.path().string() + "\" && ");

    ASSERT_EQ(0, run.status) << run.errors;
    for (const std::string format : kFormats)
    {
        const fs::path written = scratch / nameOf(format);
        const fs::path shown = kFolder / nameOf(format);
        if (pRewrite != nullptr && std::string(pRewrite) == "1" && contentOf(written) != contentOf(shown))
            writeFile(shown, readFile(written));
        EXPECT_TRUE(contentOf(written) == contentOf(shown)) << shown << " is not what the program writes";
        EXPECT_LT(fs::file_size(shown), 100000u) << shown;
    }
}
}
