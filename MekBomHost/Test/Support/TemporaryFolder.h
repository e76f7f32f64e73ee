// Sets where temporary files go, until the end of the test.
//
//   const ScratchFolder scratch;
//   const TemporaryFolder temporary(scratch.path().string());
#pragma once

#include <cstdlib>
#include <string>

namespace mekbom
{
class TemporaryFolder
{
public:
    explicit TemporaryFolder(const std::string& path)
    {
        if (const char* const pBefore = std::getenv("TMPDIR"))
            m_before = pBefore;
        setenv("TMPDIR", path.c_str(), 1);
    }
    ~TemporaryFolder() { m_before.empty() ? unsetenv("TMPDIR") : setenv("TMPDIR", m_before.c_str(), 1); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

private:
    std::string m_before;
};
}
