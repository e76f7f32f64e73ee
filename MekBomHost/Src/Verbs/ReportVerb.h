// `mekbom report`: reads parts list and template, evaluates, prints the table. When it cannot, nothing has been written.
#pragma once

#include "FileSource.h"
#include "PairOption.h"
#include "PartsList.h"
#include "RecordSource.h"
#include "Report.h"
#include "ReportTemplate.h"
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

private:
    void checkOutput() const;
    void openParts();
    ReportTemplate readTemplate() const;
    ReportTemplate readTemplateFile(const std::string& path) const;
    std::string templatePath() const;
    void loadSettings();
    void readData(Report& report);
    void takeSampleData(VorBomTemplate& reportTemplate) const;
    void noteMissingColumns(Report& report);
    void noteMergedRows(const Report& report);
    void write(Report& report) const;
    bool isSample() const;

    // Options.
    std::string m_data;             // a file or one of the words for something else; empty for the shipped parts list
    std::string m_templateName;     // a file or "default"; empty for a shipped template that suits the data
    std::string m_units = "metric"; // to print in, as UnitChoice takes them
    PairOption m_unitChoices{ "--unit", "KIND=UNIT", "length=ft-in/16" };
    std::string m_settingsFile; // empty for none
    PairOption m_settings{ "--setting", "NAME=NUMBER", "C40_SuppressZeroFeet=0" };
    std::string m_output = "-"; // a file or standard output
    PairOption m_inputUnits{ "--input-unit", "TOKEN=UNIT", "%Paint=m2" };

    std::unique_ptr<Report> m_pReport;
    std::unique_ptr<FileSource> m_pFile; // null for the sample data, as the next two are
    std::unique_ptr<RecordSource> m_pRecords;
    std::unique_ptr<PartsList> m_pParts;
    std::vector<std::string> m_notes;
};
}
