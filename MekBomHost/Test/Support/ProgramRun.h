// Runs the program as a user does, in a process of its own, or within the test's, where that is enough.
#pragma once

#include "Program.h"

#include "HostTestSupport.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

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

// Every report of a test has its totals added up a second time.
inline const char* const kCheck = "--check-totals";

// `arguments` as a shell takes them, after what `before` has the shell do.
inline ProgramRun runProgram(const std::string& arguments, const std::string& before = std::string())
{
    const ScratchFolder folder;
    const bool isReport = arguments.rfind("report", 0) == 0;
    const std::string checked = isReport ? std::string("report ") + kCheck + arguments.substr(6) : arguments;
    const std::string output = (folder / "output").string();
    const std::string errors = (folder / "errors").string();
    const int result =
        std::system((before + "\"" MEK_PROGRAM "\" " + checked + " >\"" + output + "\" 2>\"" + errors + "\"").c_str());
    return { statusOf(result), readFile(output), readFile(errors) };
}

// Runs `program` in this process; what it prints is caught. `arguments` go to it as they are, without a shell.
inline ProgramRun runHere(Program& program, const std::vector<std::string>& arguments)
{
    std::vector<const char*> words = { "mekbom" };
    for (const std::string& argument : arguments)
    {
        words.push_back(argument.c_str());
        if (argument == "report" && words.size() == 2)
            words.push_back(kCheck);
    }
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int status = program.run(static_cast<int>(words.size()), words.data());
    const std::string errors = testing::internal::GetCapturedStderr();
    return { status, testing::internal::GetCapturedStdout(), errors };
}

inline ProgramRun runHere(const std::vector<std::string>& arguments)
{
    Program program;
    return runHere(program, arguments);
}
}
