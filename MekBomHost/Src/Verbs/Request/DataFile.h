// Parts lists as the command line names them.
//
//   DataFile::open("parts.csv")    the file, read when its first byte is asked for
//   DataFile::open("hall")         the parts list that comes with the program
//   DataFile::open("-")            standard input
//
// A word wins over a file of the same name, so that a command means the same in every folder; "./hall" is the file.
#pragma once

#include "ByteSource.h"

#include <memory>
#include <string>
#include <vector>

namespace mekbom::DataFile
{
extern const char* const kHall;          // the word for the parts list that comes with the program
extern const char* const kStandardInput; // the word for standard input

// A source that has not been opened yet: a file that is missing is told by whoever reads. Never null.
std::unique_ptr<ByteSource> open(const std::string& name);

// One source for each name, in their order.
std::vector<std::unique_ptr<ByteSource>> openAll(const std::vector<std::string>& names);
}
