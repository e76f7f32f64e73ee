// The options with which verbs say how parts lists are read.
//
//   InputOptions input;
//   input.declareOn(newList);
//   app.parse(numArguments, arguments);
//   request.input = input.choices();
#pragma once

#include "InputChoices.h"

namespace CLI
{
class App;
}

namespace mekbom
{
class InputOptions
{
public:
    // Adds the options to `command`. Parsing fills this object, which outlives it.
    void declareOn(CLI::App& command);

    const InputChoices& choices() const { return m_choices; }

private:
    InputChoices m_choices;
};
}
