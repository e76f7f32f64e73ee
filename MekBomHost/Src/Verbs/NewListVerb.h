// `mekbom new-list`: a template with all columns of a parts list, to begin a list of one's own with.
//
//   mekbom new-list parts.csv > list.json
//   mekbom report --data parts.csv --template list.json
#pragma once

#include "InputColumn.h"
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
    static std::vector<InputColumn> columnsOf(RecordSource& records);

    std::string m_data;
};
}
