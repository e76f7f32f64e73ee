// `mekbom help`: how the program, or the command whose words follow, is called.
//
//   mekbom help                     what mekbom --help prints
//   mekbom help units convert       what mekbom units convert --help prints
//   mekbom help --man               all of it as a manual page
//   mekbom help --completion zsh    what makes a shell complete all of it
#pragma once

#include "Completion.h"
#include "Verb.h"

#include <optional>
#include <string>
#include <vector>

namespace mekbom
{
class HelpVerb : public Verb
{
public:
    CLI::App& declareOn(CLI::App& parent) override;
    ExitStatus run(FindingList& findings) override;

private:
    std::string text() const;

    const CLI::App* m_pProgram = nullptr; // not owned; outlives the run, since it parsed the words
    std::vector<std::string> m_words;     // of the command: "units", "convert"
    bool m_isManPage = false;
    std::optional<Completion::eShell> m_shell;
};
}
