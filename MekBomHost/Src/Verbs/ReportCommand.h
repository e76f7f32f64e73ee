// `mekbom report`: reads parts list and template, evaluates, prints the table. Throws a Fault when it cannot; nothing
// has been written then.
#pragma once

#include "DisplaySettings.h"
#include "FileSource.h"
#include "NamedText.h"
#include "PartsList.h"
#include "Report.h"
#include "ReportOptions.h"
#include "ReportTemplate.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
class ReportCommand
{
public:
    explicit ReportCommand(ReportOptions options) : m_options(std::move(options)) {}

    void run();

    // What the user should know although the report was printed, each one a sentence.
    const std::vector<std::string>& notes() const { return m_notes; }

private:
    void checkOutput() const;
    void openParts();
    ReportTemplate readTemplate() const;
    ReportTemplate readTemplateFile() const;
    NamedText chooseTemplate() const;
    DisplaySettings readSettings();
    VorUnitsManager chooseUnits() const;
    static NamedText contentOf(const std::string& path);
    void readData(Report& report);
    void takeSampleData(VorBomTemplate& reportTemplate) const;
    void noteMissingColumns(Report& report);
    void noteMergedRows(const Report& report);
    void write(Report& report) const;
    bool isSample() const { return m_options.data == ReportOptions::kSampleData; }

    ReportOptions m_options;
    std::unique_ptr<Report> m_pReport;
    std::unique_ptr<FileSource> m_pFile; // null for the sample data, as m_pParts is
    std::unique_ptr<PartsList> m_pParts;
    std::vector<std::string> m_notes;
};
}
