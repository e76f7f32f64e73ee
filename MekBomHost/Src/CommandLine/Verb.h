// One subcommand of the program: its options, its help and what it does.
//
//   class CountVerb : public Verb
//   {
//   public:
//       CLI::App& declareOn(CLI::App& parent) override
//       {
//           CLI::App& count = *parent.add_subcommand("count", "Print how many lines a file has");
//           count.add_option("file", m_file, "Text file")->required();
//           return count;
//       }
//       ExitStatus run(FindingList&) override
//       {
//           StandardOutput::print(std::to_string(numLinesOf(m_file)) + "\n");
//           return kDone;
//       }
//   private:
//       std::string m_file;
//   };
//
// A new verb is a pair of files that holds such a class, and a line in allVerbs().
#pragma once

#include "ExitStatus.h"

namespace CLI
{
class App;
}

namespace mekbom
{
class FindingList;

class Verb
{
public:
    Verb() = default;
    Verb(const Verb&) = delete;
    Verb& operator=(const Verb&) = delete;
    virtual ~Verb() = default;

    // Adds the subcommand with its options and its help to `parent` and returns it. Parsing fills members of this
    // object, which therefore outlives it. To be called once.
    virtual CLI::App& declareOn(CLI::App& parent) = 0;

    // Does what the parsed options ask for, adds to `findings` what the user should know, and returns the status that
    // the program ends with. May throw instead; a Fault says what is wrong and with which status the program ends. What
    // it needed memory for may stay until this object goes.
    virtual ExitStatus run(FindingList& findings) = 0;
};
}
