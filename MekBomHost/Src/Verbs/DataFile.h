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

namespace mekbom::DataFile
{
extern const char* const kHall;
extern const char* const kStandardInput;

std::unique_ptr<ByteSource> open(const std::string& name);
}
