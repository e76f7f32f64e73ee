// `mekbom report`: reads parts list and template, evaluates, writes the list.
//
//   mekbom report --data parts.csv                                  in the shipped list that suits the columns
//   mekbom report --data parts.csv --template list.json -o list.txt
//
// The verb is where files come in: it turns options into the sources of a ReportRequest, lets a ReportJob make the
// report and hands it to the writers of all outputs. A report that cannot be made leaves nothing written, and the files
// of `-o` as they were.
// DemoVerb is the same for the shipped hall.
#pragma once

#include "FileOption.h"
#include "ListOptions.h"
#include "OutputOptions.h"
#include "ReportJob.h"
#include "ReportRequest.h"
#include "Verb.h"

#include <memory>
#include <string>
#include <vector>

namespace mekbom
{
class ReportVerb : public Verb
{
public:
    CLI::App& declareOn(CLI::App& parent) override;
    ExitStatus run(FindingList& findings) override;

    // What help says below the options. The list is what the program is for, so `mekbom --help` says it as well.
    static const char* const kNotes;

protected:
    // Declares all options but the one for data.
    void declareOptionsOn(CLI::App& command);

private:
    // What the rows come from: a file, a word as DataFile takes it, or "sample". Throws a Fault of status kWrongUsage
    // when nothing is given.
    virtual std::vector<std::string> dataNames() const;

    ReportRequest request(const Configuration& configuration) const;
    std::vector<std::unique_ptr<ByteSource>> parts() const; // none for the sample rows
    void addTemplates(ReportRequest& request) const;
    std::vector<std::string> inputNames() const;
    bool isSample() const;

    // What the options were given as. None of these files is opened before the job reads it.
    FileOption m_data{ "--data", "FILE" };
    FileOption m_template{ "--template", "FILE" }; // or a list's name; without one a list that suits the data
    ListOptions m_list;
    OutputOptions m_outputs;
    bool m_isSummary = false;
    bool m_checksTotals = false;

    std::unique_ptr<ReportJob> m_pJob; // keeps what the last report was made of
};
}
