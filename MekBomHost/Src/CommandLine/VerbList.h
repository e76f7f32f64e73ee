// Verbs that stand side by side on the command line, of which one is called.
//
//   VerbList verbs;
//   verbs.add(std::make_unique<CountVerb>());
//   verbs.declareOn(app);
//   app.parse(numArguments, arguments);         "mekbom count parts.csv"
//   verbs.called()->run(findings);
//
// A verb may have verbs below it, in a list of its own: "mekbom units read 30'" calls UnitsVerb, and that
// UnitsReadVerb.
#pragma once

#include "Verb.h"

#include <memory>
#include <utility>
#include <vector>

namespace mekbom
{
class VerbList
{
public:
    // Owns the verbs. Help lists them in the order in which they were added.
    void add(std::unique_ptr<Verb> pVerb) { m_verbs.push_back(std::move(pVerb)); }

    // Adds all verbs to `parent`. This list outlives the parsing and stays where it is meanwhile.
    void declareOn(CLI::App& parent);

    // The verb that was called; null before a command line has been parsed, and when it calls none of them.
    Verb* called() const { return m_pCalled; }

private:
    std::vector<std::unique_ptr<Verb>> m_verbs;
    Verb* m_pCalled = nullptr; // not owned: one of m_verbs
};
}
