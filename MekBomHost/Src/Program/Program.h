// The program without its main(): arguments in, exit status out, any number of times.
//
//   Program program;
//   const char* const arguments[] = { "mekbom", "units", "read", "30'" };
//   program.run(4, arguments);         prints 9144 and returns kDone
//
// Reports go to standard output or a file, findings to standard error: an author's mistakes all of them, of others
// errors alone, or where there is none, what else is worth knowing. Whatever a verb throws becomes a message and a
// status.
#pragma once

#include "ExitStatus.h"
#include "FindingList.h"
#include "VerbList.h"

#include <cstddef>

namespace mekbom
{
class Program
{
public:
    // How many errors are shown that are no author's mistakes. Arbitrary: about a screen.
    static constexpr std::size_t kMostErrorsShown = 20;

    // Does what the arguments ask for, of which the first is the program's own name and all are UTF-8. What the run
    // needed memory for is freed by the next one, or with this object.
    ExitStatus run(int numArguments, const char* const* arguments);

private:
    ExitStatus runArguments(int numArguments, const char* const* arguments, FindingList& findings);

    VerbList m_verbs; // of the last run; a report lives in its verb
};
}
