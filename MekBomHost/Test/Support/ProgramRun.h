// Runs the program as a user does: a process of its own, with its streams and its exit status.
#pragma once

#include "HostTestSupport.h"

#include <cstdlib>
#include <string>

#if !defined(_WIN32)
#include <sys/wait.h>
#endif

namespace mekbom
{
struct ProgramRun
{
    int status;
    std::string output;
    std::string errors;
};

// The exit status in what std::system returns; -1 for a process that was killed.
inline int statusOf(int result)
{
#if defined(_WIN32)
    return result;
#else
    return WIFEXITED(result) ? WEXITSTATUS(result) : -1;
#endif
}

// `arguments` as a shell takes them, after what `before` has the shell do.
inline ProgramRun runProgram(const std::string& arguments, const std::string& before = std::string())
{
    const ScratchFolder folder;
    const std::string output = (folder / "output").string();
    const std::string errors = (folder / "errors").string();
    const int result = std::system(
        (before + "\"" MEK_PROGRAM "\" " + arguments + " >\"" + output + "\" 2>\"" + errors + "\"").c_str());
    return { statusOf(result), readFile(output), readFile(errors) };
}
}
