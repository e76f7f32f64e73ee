// Which output gets which format, told on `-o list.csv -o list.lst -o - --to json`:
//
//   list.csv   its name tells: csv
//   list.lst   its name tells nothing, so it is what --to says: json
//   -          has no name: json
//
// With `-o list.csv --to json` alone nothing would be JSON, so one of the two wishes is not meant.
#include "OutputOptions.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "NearestWord.h"
#include "OutputWords.h"
#include "ReportFormats.h"
#include "WordOption.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace mekbom
{
namespace
{
namespace fs = std::filesystem;

const char* const kStandardOutput = "-";
const char* const kStandardInput = "-";

struct ChoiceOption
{
    OutputChoices::eChoice choice;
    const char* name;
};

// What the command line calls the choices.
const ChoiceOption kChoiceOptions[] = {
    { OutputChoices::kValues, "--values" },
    { OutputChoices::kFoot, "--foot" },
    { OutputChoices::kDelimiter, "--output-delimiter" },
    { OutputChoices::kDecimalSign, "--output-decimal" },
    { OutputChoices::kEncoding, "--output-encoding" },
    { OutputChoices::kWidth, "--width" },
    { OutputChoices::kCut, "--cut" },
    { OutputChoices::kAscii, "--ascii" },
    { OutputChoices::kPaper, "--paper" },
};

// "text, csv, json"
std::string listed(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : ", ") + word;
    return text;
}

// Where a file is or will be, whatever way its name leads there.
fs::path placeOf(const std::string& fileName)
{
    std::error_code error;
    fs::path place = fs::weakly_canonical(fs::absolute(fileName, error), error);
    return error ? fs::path(fileName) : place;
}

// Two names of one file lead to the same place, but for a second hard link, which only the file system knows.
bool areSame(const std::string& fileName, const std::string& other)
{
    std::error_code error;
    if (fileName == kStandardOutput || other == kStandardOutput)
        return fileName == other;
    return placeOf(fileName) == placeOf(other) || fs::equivalent(fileName, other, error);
}

[[noreturn]] void failAtOption(const std::string& option, Finding finding)
{
    finding.source = option;
    throw Fault(kWrongUsage, finding);
}
}

void OutputOptions::declareOn(CLI::App& command)
{
    m_files.declareOn(command, "File to write, - for standard output [-]; several times for several");
    command
        .add_option("--to", m_format,
                    "Format of outputs whose names tell none: " + listed(ReportFormats::names()) + " [" +
                        std::string(ReportFormats::kText) + "]")
        ->type_name("FORMAT");
    declareCsvOptionsOn(command);
    declareTextOptionsOn(command);
    WordOption::declare(command, "--paper", "WORD",
                        "Paper that html and xlsx are printed on: a4 or letter [that of the printer; a4]",
                        OutputWords::papers(),
                        [this](ePaper paper)
                        {
                            m_choices.give(OutputChoices::kPaper);
                            m_choices.paper = paper;
                        });
}

void OutputOptions::declareTextOptionsOn(CLI::App& command)
{
    const auto takeWidth = [this](int width)
    {
        m_choices.give(OutputChoices::kWidth);
        m_choices.width = width;
    };
    command
        .add_option_function<int>("--width", takeWidth, "Columns of a terminal or printer that text has to fit into")
        ->type_name("COLUMNS")
        ->check(CLI::Range(1, OutputChoices::kWidest));
    addFlag(command, "--cut", "Cut texts that are wider than their column, instead of wrapping them",
            OutputChoices::kCut, m_choices.cutsTexts);
    addFlag(command, "--ascii", "Write text in ASCII alone: m2 instead of m²", OutputChoices::kAscii,
            m_choices.isAscii);
}

void OutputOptions::declareCsvOptionsOn(CLI::App& command)
{
    WordOption::declare(command, "--values", "WORD",
                        "Numbers of csv as they are shown, or plain: in full, for programs; of xlsx both [shown]",
                        OutputWords::values(),
                        [this](bool arePlain)
                        {
                            m_choices.give(OutputChoices::kValues);
                            m_choices.hasPlainValues = arePlain;
                        });
    WordOption::declare(command, "--output-delimiter", "SIGN", "Between columns of csv: , ; | or tab [,]",
                        OutputWords::delimiters(),
                        [this](char delimiter)
                        {
                            m_choices.give(OutputChoices::kDelimiter);
                            m_choices.delimiter = delimiter;
                        });
    WordOption::declare(command, "--output-decimal", "SIGN", "Decimal sign of csv: . or , [.]",
                        OutputWords::decimalSigns(),
                        [this](char sign)
                        {
                            m_choices.give(OutputChoices::kDecimalSign);
                            m_choices.decimalSign = sign;
                        });
    WordOption::declare(command, "--output-encoding", "NAME",
                        "Encoding of csv: utf-8, utf-8-bom, utf-16le or windows-1252 [utf-8]", OutputWords::encodings(),
                        [this](OutputEncoding encoding)
                        {
                            m_choices.give(OutputChoices::kEncoding);
                            m_choices.encoding = encoding;
                        });
    addFlag(command, "--foot", "Add to csv what the list is made of, behind its records [told on standard error]",
            OutputChoices::kFoot, m_choices.hasFoot);
}

void OutputOptions::addFlag(CLI::App& command, const std::string& name, const std::string& help,
                            OutputChoices::eChoice choice, bool& flag)
{
    command.add_flag_callback(
        name,
        [this, choice, &flag]
        {
            m_choices.give(choice);
            flag = true;
        },
        help);
}

std::vector<WantedOutput> OutputOptions::wanted() const
{
    refuseSamePlaces();
    std::vector<WantedOutput> outputs;
    for (const std::string& fileName : fileNames())
        outputs.push_back(outputNamed(fileName));
    refuseContradiction(outputs);
    refuseIdleChoices(outputs);
    return outputs;
}

// What a configuration asks for of formats that are not written does no harm, so that it is not looked at in wanted().
OutputChoices OutputOptions::choicesOver(const OutputChoices& configured) const
{
    OutputChoices choices = m_choices;
    if (!choices.has(OutputChoices::kDelimiter))
        choices.delimiter = configured.delimiter;
    if (!choices.has(OutputChoices::kDecimalSign))
        choices.decimalSign = configured.decimalSign;
    if (!choices.has(OutputChoices::kEncoding))
        choices.encoding = configured.encoding;
    if (!choices.has(OutputChoices::kPaper))
        choices.paper = configured.paper;
    return choices;
}

// A slip such as `-o parts.csv` must not cost the parts list. Files are compared as the file system knows them, so that
// "./parts.csv" and a link to it are the same; a word such as "hall", and a file that is not there yet, are none of
// them.
void OutputOptions::refuseInputs(const std::vector<std::string>& inputs) const
{
    std::error_code error;
    for (const std::string& fileName : fileNames())
        for (const std::string& input : inputs)
            if (fileName != kStandardOutput && input != kStandardInput && fs::equivalent(input, fileName, error))
                failAt(fileName,
                       Finding::stating(FindingCodes::kOutputIsInput, "is the same file as the input " + input));
}

std::vector<std::string> OutputOptions::fileNames() const
{
    std::vector<std::string> names = m_files.names();
    if (names.empty())
        names.emplace_back(kStandardOutput);
    return names;
}

WantedOutput OutputOptions::outputNamed(const std::string& fileName) const
{
    const bool isFile = fileName != kStandardOutput;
    if (isFile && ReportFormats::promisesOtherFormat(fileName))
    {
        Finding finding =
            Finding::stating(FindingCodes::kOutputOfOtherFormat, "promises a format that no list is written in");
        finding.remedy = "lists are written in " + listed(ReportFormats::names());
        failAt(fileName, finding);
    }
    const std::string_view told = isFile ? ReportFormats::formatOf(fileName) : std::string_view();
    const std::string_view format = !told.empty() ? told : m_format.empty() ? ReportFormats::kText : m_format;
    return { fileName, std::string(format) };
}

// Each would be replaced by the other, and the standard output would hold one text behind the other.
void OutputOptions::refuseSamePlaces() const
{
    const std::vector<std::string> names = fileNames();
    for (std::size_t i = 0; i < names.size(); ++i)
        for (std::size_t earlier = 0; earlier < i; ++earlier)
            if (areSame(names[i], names[earlier]))
                failAt(names[i], Finding::stating(FindingCodes::kOutputTwice,
                                                  "is the same place as the output " + names[earlier]));
}

void OutputOptions::refuseContradiction(const std::vector<WantedOutput>& outputs) const
{
    if (m_format.empty())
        return;
    const std::vector<std::string> formats = ReportFormats::names();
    if (std::find(formats.begin(), formats.end(), m_format) == formats.end())
    {
        Finding finding = Finding::of(FindingCodes::kFormatUnknown, inQuotes(m_format), "one of " + listed(formats));
        finding.remedy = NearestWord::question(m_format, formats);
        failAtOption("--to", finding);
    }
    const bool isUsed = std::any_of(outputs.begin(), outputs.end(),
                                    [this](const WantedOutput& output) { return output.format == m_format; });
    if (isUsed)
        return;
    Finding finding =
        Finding::stating(FindingCodes::kFormatContradicted, "no output is left for it: " + outputs.front().fileName +
                                                                " asks for " + outputs.front().format);
    finding.remedy = "take a name that asks for no format, such as list, or leave --to out";
    failAtOption("--to " + m_format, finding);
}

// An option that does nothing would make its user believe in what it says.
void OutputOptions::refuseIdleChoices(const std::vector<WantedOutput>& outputs) const
{
    for (const ChoiceOption& option : kChoiceOptions)
    {
        const auto takes = [&option](const WantedOutput& output)
        { return ReportFormats::takes(output.format, option.choice); };
        if (!m_choices.has(option.choice) || std::any_of(outputs.begin(), outputs.end(), takes))
            continue;
        const std::vector<std::string> formats = ReportFormats::namesTaking(option.choice);
        Finding finding = Finding::stating(FindingCodes::kChoiceWithoutUse,
                                           "is for " + listed(formats) + ", and no output is written so");
        finding.remedy = "leave it out, or say --to " + formats.front();
        failAtOption(option.name, finding);
    }
}

void OutputOptions::failAt(const std::string& fileName, Finding finding) const
{
    failAtOption(m_files.option() + " " + fileName, std::move(finding));
}
}
