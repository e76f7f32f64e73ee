// `mekbom new-list`: a template with all columns of a parts list, to begin a list of one's own with.
//
//   mekbom new-list parts.csv > list.json
//   mekbom report --data parts.csv --template list.json
#pragma once

#include "InputColumn.h"
#include "InputOptions.h"
#include "Verb.h"

#include <string>
#include <vector>

namespace mekbom
{
class RecordSource;

class NewListVerb : public Verb
{
public:
    CLI::App& declareOn(CLI::App& parent) override;
    ExitStatus run(FindingList& findings) override;

private:
    // The columns of the header row, each with the type that its cells have, all records read.
    static std::vector<InputColumn> columnsOf(RecordSource& records, const HeadingChoices& choices);

    InputOptions m_input;
    std::string m_data; // a file, or a word as DataFile takes it
};
}
