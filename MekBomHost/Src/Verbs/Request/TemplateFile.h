// Templates as the command line names them.
//
//   TemplateFile::open("list.json", "--template")   the file, read when its first byte is asked for
//   TemplateFile::open("bolt-list", "--template")   the list of that name that comes with the program
//
// A word wins over a file of the same name, so that a command means the same in every folder; "./bolt-list" is the
// file.
#pragma once

#include "ByteSource.h"

#include <memory>
#include <string>

namespace mekbom::TemplateFile
{
extern const char* const kDefault; // the word for the built-in template, which no bytes stand for

// A source that has not been opened yet; never null. Findings call a shipped list by its name. Throws a Fault of status
// kWrongUsage, which names `option` and asks what was meant, for a word that is neither a list nor a file.
std::unique_ptr<ByteSource> open(const std::string& name, const std::string& option);
}
