#include "ListOptions.h"

#include "DisplaySettings.h"
#include "Environment.h"
#include "FileSource.h"
#include "UnitsFile.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace mekbom
{
void ListOptions::declareOn(CLI::App& command)
{
    command.add_option("--units", m_units, "Units to print in: metric, imperial or a file of units [metric]")
        ->type_name("UNITS");
    m_unitChoices.declareOn(command, "Unit and precision of one kind, such as length=ft-in/16");
    m_settingsFile.declareOn(command, "INI file that says how numbers are shown");
    m_settings.declareOn(command, "How numbers are laid out, such as C40_SuppressZeroFeet=0");
    m_rows.declareOn(command, "Which rows to list, such as \"%Material = 'S355' and %Length > 6 m\"");
    m_allowed.declareOn(command, "Mistakes that stop no report, such as MB105");
}

void ListOptions::fillIn(ReportRequest& request) const
{
    m_rows.fillIn(request);
    request.unitChoices = m_unitChoices.pairs();
    request.settings = m_settings.pairs();
    request.allowed = m_allowed.words();
    request.environment = Environment::variables(DisplaySettings::names());
    if (const std::string settingsFile = m_settingsFile.name(); !settingsFile.empty())
        request.pSettings = std::make_unique<FileSource>(settingsFile);
    UnitsFile::setIn(request, m_units);
}

std::vector<std::string> ListOptions::inputNames() const
{
    return { m_units, m_settingsFile.name(), m_rows.assemblies() };
}
}
