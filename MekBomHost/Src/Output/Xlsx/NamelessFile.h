// A temporary file in no folder: it is gone with this object, and with the process, however that ends.
//
//   NamelessFile file;
//   std::fputs("all of it", std::fopen(file.path().c_str(), "wb"));
//   file.copyTo(sink);
//
// For libraries that write to a file they are told the path of. It takes its room where temporary files go: in the folder
// that TMPDIR names, else /tmp.
#pragma once

#include "TextSink.h"

#include <cstdio>
#include <memory>
#include <string>

namespace mekbom
{
class NamelessFile
{
public:
    // Throws a Fault of status kOutputNotWritten when there can be no such file.
    NamelessFile();

    // Opened with it, the file is another one than any that stands in a folder. Good for as long as this object.
    std::string path() const;

    // Writes all that the file holds into the sink, and does not finish that. Throws as the sink does, and a Fault of
    // status kOutputNotWritten when the file cannot be read.
    void copyTo(TextSink& sink) const;

    // The folder that such files take their room in.
    static std::string folder();

private:
    struct Closer
    {
        void operator()(std::FILE* pFile) const { std::fclose(pFile); }
    };

    std::unique_ptr<std::FILE, Closer> m_pFile;
};
}
