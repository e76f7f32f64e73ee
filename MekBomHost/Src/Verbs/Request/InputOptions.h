// The options with which verbs say how parts lists are read.
//
//   InputOptions input;
//   input.declareOn(newList);
//   app.parse(numArguments, arguments);
//   request.input = input.choices();
#pragma once

#include "InputChoices.h"
#include "PairOption.h"

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

    // Throws a Fault of status kWrongUsage for what cannot be understood.
    InputChoices choices() const;

private:
    PairOption m_headings{ "--map", "HEADING=TOKEN", "\"Cost code=%UserAttr1\"" };
    InputChoices m_choices; // but the headings
};
}
