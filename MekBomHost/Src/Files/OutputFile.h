// A file as the report's destination. What stood there before stays as it was until finish(): the text goes to a
// temporary file beside it, which then takes its place in one step.
//
//   OutputFile file("cutting-list.txt");
//   file.write(text);
//   file.finish();          without it nothing has happened
//
// An existing file keeps its access rights and must be writable; a symbolic link stays and its target is replaced. What
// is no regular file, such as a pipe or a terminal, cannot be replaced and is written to directly.
#pragma once

#include "TextSink.h"
#include "UnfinishedFiles.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

namespace mekbom
{
class OutputFile : public TextSink
{
public:
    // Throws a Fault of status kOutputNotWritten when there can be no such file, or when the one that is there is
    // protected; nothing has changed then.
    explicit OutputFile(const std::string& path);

    // Both throw a Fault of status kOutputNotWritten, as when the disk is full: what stood at the path still does, but
    // for what cannot be replaced.
    void write(std::string_view text) override;
    void finish() override;

private:
    struct Closer
    {
        void operator()(std::FILE* pFile) const { std::fclose(pFile); }
    };
    using FilePointer = std::unique_ptr<std::FILE, Closer>;

    void openDirectly();
    void openReplacement();
    void checkIsWritable();
    void openTemporary();
    void keepAccessRights();
    void close();
    void replaceTarget();
    [[noreturn]] void fail(const std::string& reason) const;
    [[noreturn]] void failWithSystemReason() const;

    std::string m_name; // as the user wrote it
    std::filesystem::path m_target;
    UnfinishedFile m_temporary;   // none when writing directly
    bool m_isReplacement = false; // of a file that stays as it was when anything goes wrong
    FilePointer m_pFile;
};
}
