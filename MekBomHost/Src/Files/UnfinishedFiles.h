// Files that have been begun and are not finished, so that a signal that ends the program takes them with it.
//
//   UnfinishedFiles::removeAtSignals();                               // once, by main()
//   UnfinishedFile file;
//   std::FILE* const pFile = file.create("list.txt.mekbom0.tmp");     // gone with `file`, or when the user presses Ctrl-C
//   file.keep();                                                      // from here on it stays
#pragma once

#include <cstdio>
#include <string>

namespace mekbom
{
namespace UnfinishedFiles
{
// Has SIGINT, SIGTERM, SIGHUP and SIGPIPE remove all unfinished files, and what ProgressLine shows, before they end the process as they would have.
// A file that grows too large (SIGXFSZ) ends nothing: writing fails, as it does on a full disk. Does nothing where
// there are no such signals.
void removeAtSignals();
}

class UnfinishedFile
{
public:
    UnfinishedFile() = default;
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
    ~UnfinishedFile() { remove(); }

    // Makes a file that was not there and opens it for writing; null, with `errno` saying why, when that is not to be.
    // The caller owns the stream. To be called for one file at a time.
    std::FILE* create(const std::string& path);

    // Empty without a file.
    const std::string& path() const { return m_path; }

    // The file has got its place under another name.
    void keep();

private:
    void remove();

    std::string m_path;
    int m_slot = -1; // where the handler finds the path; -1 when it does not
};
}
