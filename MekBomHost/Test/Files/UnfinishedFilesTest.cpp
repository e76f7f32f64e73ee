#include "UnfinishedFiles.h"

#include "Support/HostTestSupport.h"
#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <string>

#if !defined(_WIN32)
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace mekbom
{
namespace
{
namespace fs = std::filesystem;

std::ptrdiff_t numFilesIn(const ScratchFolder& folder)
{
    return std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator());
}
}

TEST(UnfinishedFilesTest, AFileThatIsNotKeptGoes)
{
    const ScratchFolder folder;
    {
        UnfinishedFile file;
        std::FILE* const pFile = file.create((folder / "a.tmp").string());
        ASSERT_NE(nullptr, pFile);
        std::fclose(pFile);
        EXPECT_TRUE(fs::exists(folder / "a.tmp"));
    }
    EXPECT_EQ(0, numFilesIn(folder));
}

TEST(UnfinishedFilesTest, AFileThatIsKeptStays)
{
    const ScratchFolder folder;
    {
        UnfinishedFile file;
        std::fclose(file.create((folder / "a.tmp").string()));
        fs::rename(folder / "a.tmp", folder / "a.txt");
        file.keep();
        EXPECT_EQ("", file.path());
    }
    EXPECT_TRUE(fs::exists(folder / "a.txt"));
}

TEST(UnfinishedFilesTest, NobodyElsesFileIsTaken)
{
    const ScratchFolder folder;
    const std::string path = folder.file("a.tmp", "mine");
    {
        UnfinishedFile file;
        EXPECT_EQ(nullptr, file.create(path));
        EXPECT_EQ(EEXIST, errno);
    }
    EXPECT_EQ("mine", readFile(path));
}

TEST(UnfinishedFilesTest, MoreFilesThanThereAreSlotsStillGo)
{
    const ScratchFolder folder;
    {
        std::array<UnfinishedFile, 100> files;
        for (std::size_t i = 0; i < files.size(); ++i)
            std::fclose(files[i].create((folder / (std::to_string(i) + ".tmp")).string()));
        EXPECT_EQ(100, numFilesIn(folder));
    }
    EXPECT_EQ(0, numFilesIn(folder));
}

#if !defined(_WIN32)
namespace
{
std::string manyParts()
{
    std::string text = "PNum,Quantity,Weight\n";
    for (int i = 0; i < 20000; ++i)
        text += "P" + std::to_string(i) + ",1,2.5\n";
    return text;
}

bool hasTemporary(const ScratchFolder& folder)
{
    for (const fs::directory_entry& entry : fs::directory_iterator(folder.path()))
        if (entry.path().extension() == ".tmp")
            return true;
    return false;
}

// Starts a list to a file and to a pipe that nobody reads, sends the signal once the file is begun, and returns what has
// become of the process.
int endedBy(int signal, const ScratchFolder& folder)
{
    const std::string parts = folder.file("parts.csv", manyParts());
    const std::string list = folder.file("list.txt", "old");
    std::array<int, 2> ends{};
    EXPECT_EQ(0, pipe(ends.data()));
    const pid_t child = fork();
    if (child == 0)
    {
        dup2(ends[1], STDOUT_FILENO);
        close(ends[0]);
        close(ends[1]);
        if (std::freopen("/dev/null", "w", stderr) == nullptr)
            _exit(126);
        execl(MEK_PROGRAM, MEK_PROGRAM, "report", "--data", parts.c_str(), "-o", list.c_str(), "-o", "-", nullptr);
        _exit(127);
    }
    close(ends[1]);
    while (!hasTemporary(folder) && waitpid(child, nullptr, WNOHANG) == 0)
        usleep(1000);
    if (signal == SIGPIPE)
        close(ends[0]); // a reader that has seen enough
    else
        kill(child, signal);
    int result = 0;
    waitpid(child, &result, 0);
    if (signal != SIGPIPE)
        close(ends[0]);
    return result;
}
}

TEST(UnfinishedFilesTest, ASignalLeavesTheOldListAndNothingElse)
{
    for (const int signal : { SIGINT, SIGTERM, SIGHUP, SIGPIPE })
    {
        const ScratchFolder folder;
        const int result = endedBy(signal, folder);
        EXPECT_TRUE(WIFSIGNALED(result)) << signal;
        EXPECT_EQ(signal, WTERMSIG(result));
        EXPECT_EQ("old", readFile(folder / "list.txt"));
        EXPECT_EQ(2, numFilesIn(folder)) << signal; // parts.csv and list.txt
    }
}

TEST(UnfinishedFilesTest, AFileThatGrowsTooLargeIsAnError)
{
    const ScratchFolder folder;
    const std::string parts = folder.file("parts.csv", manyParts());
    const std::string list = folder.file("list.txt", "old");

    const ProgramRun run = runProgram("report --data \"" + parts + "\" -o \"" + list + "\"", "ulimit -f 8; ");

    EXPECT_EQ(4, run.status);
    EXPECT_NE(std::string::npos, run.errors.find("cannot be written: File too large")) << run.errors;
    EXPECT_EQ("old", readFile(list));
    EXPECT_EQ(2, numFilesIn(folder));
}
#endif
}
