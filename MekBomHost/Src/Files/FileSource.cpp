#include "FileSource.h"

#include "Fault.h"
#include "FindingCodes.h"

#include <cerrno>
#include <system_error>

namespace mekbom
{
FileSource::FileSource() : m_name("standard input"), m_pFile(stdin) {}

// std::fread() gives fewer bytes than asked for at the end and after an error alike; only ferror() tells the two apart.
// Bytes that came before an error are still handed over: the next call meets it again.
std::size_t FileSource::read(char* pBytes, std::size_t size)
{
    if (m_pFile == nullptr)
        open();
    errno = 0; // not every system sets it when reading fails
    const std::size_t numRead = std::fread(pBytes, 1, size, m_pFile.get());
    if (numRead == 0 && std::ferror(m_pFile.get()) != 0)
        failToRead(errno);
    return numRead;
}

// Standard input belongs to the process.
void FileSource::Closer::operator()(std::FILE* pFile) const
{
    if (pFile != stdin)
        std::fclose(pFile);
}

// In binary, so that line ends come as they are: the readers count on bytes, and take CRLF themselves.
void FileSource::open()
{
    m_pFile.reset(std::fopen(m_path.c_str(), "rb"));
    if (m_pFile == nullptr)
        failToRead(errno);
}

void FileSource::failToRead(int error) const
{
    Finding finding =
        Finding::stating(FindingCodes::kFileUnreadable, "cannot be read: " + std::generic_category().message(error));
    finding.source = m_name;
    throw Fault(kInvalidInput, finding);
}
}
