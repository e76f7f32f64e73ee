#include "ZipArchive.h"

#include "WorkbookFault.h"

#include <zip.h>

#include <algorithm>
#include <utility>

namespace mekbom
{
namespace
{
// A file of the archive that is being unpacked.
class ZipPart : public ByteSource
{
public:
    ZipPart(WorkbookPart part, zip_file_t* pFile, std::size_t mostBytes)
        : m_part(std::move(part)), m_pFile(pFile), m_mostBytes(mostBytes)
    {
    }
    ~ZipPart() override { zip_fclose(m_pFile); }

    const std::string& name() const override { return m_part.path; }

    std::size_t read(char* pBytes, std::size_t size) override
    {
        const zip_int64_t numRead = zip_fread(m_pFile, pBytes, size);
        if (numRead < 0)
            WorkbookFault::inPart(m_part,
                                  std::string("a part that cannot be unpacked (") + zip_file_strerror(m_pFile) + ")",
                                  "a whole one");
        m_numRead += static_cast<std::size_t>(numRead);
        if (m_numRead > m_mostBytes)
            WorkbookFault::tooLarge(m_part, "a part", m_mostBytes);
        return static_cast<std::size_t>(numRead);
    }

private:
    WorkbookPart m_part;
    zip_file_t* m_pFile;
    std::size_t m_mostBytes;
    std::size_t m_numRead = 0;
};

[[noreturn]] void failToOpen(const std::string& name, zip_error_t& error)
{
    const std::string why = zip_error_strerror(&error);
    zip_error_fini(&error);
    WorkbookFault::inPart({ name, "" }, "a packed file that cannot be opened (" + why + ")", "a workbook");
}
}

void ZipArchive::Closer::operator()(zip* pArchive) const
{
    zip_discard(pArchive);
}

// The archive owns its source once it is open, and not before.
ZipArchive::ZipArchive(std::string name, std::string bytes) : m_name(std::move(name)), m_bytes(std::move(bytes))
{
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* const pSource = zip_source_buffer_create(m_bytes.data(), m_bytes.size(), 0, &error);
    if (pSource == nullptr)
        failToOpen(m_name, error);
    m_pArchive.reset(zip_open_from_source(pSource, ZIP_RDONLY, &error));
    if (m_pArchive == nullptr)
    {
        zip_source_free(pSource);
        failToOpen(m_name, error);
    }
    zip_error_fini(&error);
}

bool ZipArchive::has(const std::string& path) const
{
    return zip_name_locate(m_pArchive.get(), path.c_str(), ZIP_FL_NOCASE) >= 0;
}

std::unique_ptr<ByteSource> ZipArchive::open(const std::string& path, std::size_t mostBytes) const
{
    if (!has(path))
        WorkbookFault::inPart({ m_name, path }, "no such part", "the one that the workbook refers to");
    zip_file_t* const pFile = zip_fopen(m_pArchive.get(), path.c_str(), ZIP_FL_NOCASE);
    if (pFile == nullptr)
        WorkbookFault::inPart({ m_name, path },
                              std::string("a part that cannot be unpacked (") +
                                  zip_error_strerror(zip_get_error(m_pArchive.get())) + ")",
                              "a whole one");
    return std::make_unique<ZipPart>(WorkbookPart{ m_name, path }, pFile, mostBytes);
}
}
