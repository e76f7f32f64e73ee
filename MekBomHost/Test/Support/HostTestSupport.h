// Small builders for the program's tests: text as input and output, faults as text, files that go away.
#pragma once

#include "Fault.h"
#include "MemorySource.h"
#include "TextSink.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <string_view>

namespace mekbom
{
// Gives a text, `blockSize` bytes at a time: what a reader does at the seams must not depend on where they are.
class BlockSource : public MemorySource
{
public:
    // The bytes are not owned and outlive the source.
    BlockSource(std::string_view bytes, std::size_t blockSize)
        : MemorySource("parts.csv", bytes), m_blockSize(blockSize)
    {
    }

    std::size_t read(char* pBytes, std::size_t size) override
    {
        return MemorySource::read(pBytes, std::min(size, m_blockSize));
    }

private:
    std::size_t m_blockSize;
};

class StringSink : public TextSink
{
public:
    void write(std::string_view more) override { text += more; }
    void finish() override { isFinished = true; }

    std::string text;
    bool isFinished = false;
};

// The messages of the Fault that `action` throws, one per line, led by its status: "3 parts.csv:1: ...\n". Empty when
// it throws none.
inline std::string faultOf(const std::function<void()>& action)
{
    std::string text;
    try
    {
        action();
    }
    catch (const Fault& fault)
    {
        for (const Finding& finding : fault.findings())
            if (finding.severity == Finding::kError)
                text += std::to_string(fault.status()) + " " + messageOf(finding) + "\n";
    }
    return text;
}

// A printed list without its foot, which stands below a blank line.
inline std::string withoutFoot(const std::string& list)
{
    const std::size_t end = list.rfind("\n\n");
    return end == std::string::npos ? list : list.substr(0, end + 1);
}

inline std::string readFile(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

inline void writeFile(const std::filesystem::path& path, std::string_view text)
{
    std::ofstream(path, std::ios::binary) << text;
}

// A folder of its own, removed with everything in it at the end.
class ScratchFolder
{
public:
    ScratchFolder()
    {
        static std::atomic<int> numFolders{ 0 };
        do
            m_path = std::filesystem::temp_directory_path() / ("mekbom-test-" + std::to_string(numFolders++));
        while (!std::filesystem::create_directory(m_path));
    }
    ~ScratchFolder() { std::filesystem::remove_all(m_path); }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    std::filesystem::path operator/(const std::string& name) const { return m_path / name; }
    const std::filesystem::path& path() const { return m_path; }

    // Writes a file into it and gives its path.
    std::string file(const std::string& name, std::string_view text) const
    {
        writeFile(m_path / name, text);
        return (m_path / name).string();
    }

private:
    std::filesystem::path m_path;
};
}
