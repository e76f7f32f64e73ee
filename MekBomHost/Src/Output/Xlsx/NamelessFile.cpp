// The file is made under a name that nobody else has, and the name is taken away at once. What is left is a number that
// the process knows the file by:
//
//   mkstemp        /tmp/mekbom-k3XqZ1, opened as number 7
//   unlink         the folder knows nothing of it any more
//   /dev/fd/7      opens it once more, for whoever takes nothing but paths
#include "NamelessFile.h"

#include "Fault.h"
#include "FindingCodes.h"

#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <vector>

#include <unistd.h>

namespace mekbom
{
namespace
{
const std::size_t kBlockSize = 1 << 16;

[[noreturn]] void fail(const std::string& what)
{
    const std::string reason = std::generic_category().message(errno);
    Finding finding = Finding::saying(FindingCodes::kOutputNotWritten, what + ": " + reason);
    finding.remedy = "name a folder with room for temporary files in TMPDIR";
    throw Fault(kOutputNotWritten, finding);
}
}

NamelessFile::NamelessFile()
{
    std::string name = folder() + "/mekbom-XXXXXX";
    const int number = mkstemp(name.data());
    if (number < 0)
        fail("no temporary file can be made in " + folder());
    unlink(name.c_str());
    m_pFile.reset(fdopen(number, "r+b"));
    if (m_pFile == nullptr)
    {
        close(number);
        fail("a temporary file cannot be opened");
    }
}

std::string NamelessFile::path() const
{
    return "/dev/fd/" + std::to_string(fileno(m_pFile.get()));
}

void NamelessFile::copyTo(TextSink& sink) const
{
    std::vector<char> block(kBlockSize);
    std::rewind(m_pFile.get());
    while (const std::size_t numRead = std::fread(block.data(), 1, block.size(), m_pFile.get()))
        sink.write(std::string_view(block.data(), numRead));
    if (std::ferror(m_pFile.get()) != 0)
        fail("a temporary file cannot be read");
}

std::string NamelessFile::folder()
{
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    return error ? "/tmp" : folder.string();
}
}
