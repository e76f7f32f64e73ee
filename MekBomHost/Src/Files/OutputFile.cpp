// How a list takes the place of an older one, for the path "list.txt":
//
//   list.txt               "old"; opened for writing and closed again, since its owner may have protected it
//   list.txt.mekbom0.tmp   made with "x", which fails where such a file is, so that nobody else's is written to; takes
//                          the new text, is given the rights of list.txt and is put on the disk
//   list.txt               is what the temporary file is now renamed to: whoever looks sees "old" or all the new text
//
// Without finish() the temporary file is removed and "old" stays.
#include "OutputFile.h"

#include "Fault.h"
#include "FindingCodes.h"

#include <cerrno>
#include <system_error>

#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>
#endif

namespace mekbom
{
namespace
{
namespace fs = std::filesystem;

const int kMostAttempts = 1000; // arbitrary: that many leftovers of aborted runs beside one file

// Has the system put the file on the disk, so that a crash after the renaming leaves the old text or the new one. That
// takes its time, and where there is no old text there is none to lose.
int synchronize(std::FILE* pFile)
{
#if defined(_WIN32)
    return _commit(_fileno(pFile));
#else
    return fsync(fileno(pFile));
#endif
}
}

// A path that is wrong is told before the report is made, and not after a million rows. What can be replaced is a
// regular file; nothing at all needs no rights to be kept; anything else, a pipe or "/dev/null", is written to as it
// is.
OutputFile::OutputFile(const std::string& path) : m_name(path), m_target(path)
{
    std::error_code error;
    const fs::file_status status = fs::status(m_target, error);
    if (status.type() == fs::file_type::directory)
        fail("is a directory");
    if (!m_target.has_filename())
        fail("is no file name");
    const bool exists = fs::exists(status);
    if (exists && status.type() != fs::file_type::regular)
        openDirectly();
    else if (exists)
        openReplacement();
    else
        openTemporary();
}

void OutputFile::write(std::string_view text)
{
    if (std::fwrite(text.data(), 1, text.size(), m_pFile.get()) != text.size())
        failWithSystemReason();
}

// The file is closed before it is renamed: Windows renames no open one, and some file systems tell only at the closing
// that they could not keep what was written.
void OutputFile::finish()
{
    if (std::fflush(m_pFile.get()) != 0 || (m_isReplacement && synchronize(m_pFile.get()) != 0))
        failWithSystemReason();
    close();
    if (!m_temporary.path().empty())
        replaceTarget();
}

void OutputFile::openDirectly()
{
    m_pFile.reset(std::fopen(m_name.c_str(), "wb"));
    if (m_pFile == nullptr)
        failWithSystemReason();
}

void OutputFile::openReplacement()
{
    std::error_code error;
    m_target = fs::canonical(m_target, error);
    if (error)
        fail(error.message());
    checkIsWritable();
    openTemporary();
    keepAccessRights();
    m_isReplacement = true;
}

// A write-protected file could be replaced all the same, against its owner's will.
void OutputFile::checkIsWritable()
{
    const FilePointer pFile(std::fopen(m_target.string().c_str(), "r+b"));
    if (pFile == nullptr)
        failWithSystemReason();
}

// It stands beside the target, so that the renaming stays within one file system, where it is done at once or not at
// all.
void OutputFile::openTemporary()
{
    for (int attempt = 0; attempt < kMostAttempts && m_pFile == nullptr; ++attempt)
    {
        fs::path candidate = m_target;
        candidate += ".mekbom" + std::to_string(attempt) + ".tmp";
        m_pFile.reset(m_temporary.create(candidate.string()));
        if (m_pFile == nullptr && errno != EEXIST)
            failWithSystemReason();
    }
    if (m_pFile == nullptr)
        failWithSystemReason();
}

void OutputFile::keepAccessRights()
{
    std::error_code error;
    const fs::perms rights = fs::status(m_target, error).permissions();
    if (!error)
        fs::permissions(m_temporary.path(), rights, error);
    if (error)
        fail(error.message());
}

void OutputFile::close()
{
    if (std::fclose(m_pFile.release()) != 0)
        failWithSystemReason();
}

void OutputFile::replaceTarget()
{
    std::error_code error;
    fs::rename(m_temporary.path(), m_target, error);
    if (error)
        fail(error.message());
    m_temporary.keep();
}

void OutputFile::fail(const std::string& reason) const
{
    Finding finding = Finding::stating(FindingCodes::kOutputNotWritten, "cannot be written: " + reason);
    finding.source = m_name;
    throw Fault(kOutputNotWritten, finding);
}

void OutputFile::failWithSystemReason() const
{
    fail(std::generic_category().message(errno));
}
}
