// `mekbom diff`: what has changed from one parts list to another, line by line of a list, and what that means for an
// order.
//
//   mekbom diff revision-a.csv revision-b.csv                            with a shipped list that suits the second
//   mekbom diff revision-a.csv revision-b.csv --template list.json -o changes.html
//
// Ends with status 1 when something has changed, as other programs do that compare.
#pragma once

#include "FileOption.h"
#include "ListOptions.h"
#include "OutputOptions.h"
#include "ReportJob.h"
#include "ReportRequest.h"
#include "Verb.h"

#include <string>

namespace mekbom
{
class DiffVerb : public Verb
{
public:
    CLI::App& declareOn(CLI::App& parent) override;
    ExitStatus run(FindingList& findings) override;

private:
    ReportRequest request(const std::string& dataName, const Configuration& configuration) const;
    void addTemplates(ReportRequest& request) const;
    void setTemplate(ReportRequest& request, const std::string& name) const;
    std::string templateFor(const ReportJob& newJob) const;

    std::string m_oldData; // as DataFile takes them
    std::string m_newData;
    FileOption m_template{ "--template", "FILE" }; // or a list's name; without one a list that suits the new data
    ListOptions m_list;
    OutputOptions m_outputs;
};
}
