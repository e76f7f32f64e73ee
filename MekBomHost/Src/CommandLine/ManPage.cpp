// The parser's own formatter is asked for every piece, so that the page says of an option what help says of it:
//
//   -o,--output FILE ...        File to write, - for standard output [-]; several times for several
//
//   .TP
//   \fB\-o,\-\-output\fR FILE ...
//   File to write, \- for standard output [\-]; several times for several
#include "ManPage.h"

#include "Commands.h"
#include "ManNotes.h"
#include "Roff.h"

#include <CLI/CLI.hpp>

#include <string>

namespace mekbom::ManPage
{
namespace
{
const char* const kWholeWords = ".nh\n.ad l\n"; // divided at the end of a line an option could not be copied

const CLI::Formatter& formatter()
{
    static const CLI::Formatter formatter;
    return formatter;
}

// "mekbom diff [OPTIONS] old new", as help has it behind "Usage: ".
std::string usageOf(const CLI::App& command)
{
    std::string usage = formatter().make_usage(&command, Commands::lineOf(command));
    usage.erase(0, usage.find(' ') + 1);
    usage.erase(usage.find_last_not_of('\n') + 1);
    return usage;
}

std::string entryOf(const std::string& name, const std::string& form, const std::string& meaning)
{
    const std::string described = Roff::escaped(meaning);
    return ".TP\n\\fB" + Roff::escaped(name) + "\\fR" + Roff::escaped(form) + "\n" +
           (described.empty() ? "" : described + "\n");
}

// What stands in its place first, as in help.
std::string optionsOf(const CLI::App& command)
{
    std::string entries;
    for (const bool hasPlace : { true, false })
        for (const CLI::Option* const pOption : command.get_options())
            if (pOption->get_positional() == hasPlace)
                entries += entryOf(formatter().make_option_name(pOption, hasPlace),
                                   formatter().make_option_opts(pOption), pOption->get_description());
    return entries;
}

// Calls `visit` with all commands below `command`, each before those below it.
template <class Visit>
void visitCommands(const CLI::App& command, const Visit& visit)
{
    for (const CLI::App* const pCommand : command.get_subcommands({}))
    {
        visit(*pCommand);
        visitCommands(*pCommand, visit);
    }
}

std::string synopsisOf(const CLI::App& program)
{
    std::string lines;
    visitCommands(program, [&lines](const CLI::App& command)
                  { lines += (lines.empty() ? "" : ".br\n") + Roff::escaped(usageOf(command)) + "\n"; });
    return lines;
}

std::string listOfCommands(const CLI::App& program)
{
    std::string entries;
    visitCommands(program,
                  [&entries, &program](const CLI::App& command)
                  {
                      entries += entryOf(Commands::lineOf(command).substr(program.get_name().size() + 1), "",
                                         command.get_description());
                  });
    return entries;
}

// Notes that a command shares with the one above it stand there, or as sections of the page.
std::string commandsOf(const CLI::App& program)
{
    std::string parts;
    visitCommands(program,
                  [&parts](const CLI::App& command)
                  {
                      parts += ".SS \"" + Roff::escaped(usageOf(command)) + "\"\n" +
                               Roff::escaped(command.get_description()) + ".\n" + optionsOf(command);
                      if (command.get_footer() != command.get_parent()->get_footer())
                          parts += ManNotes::paragraphsOf(command.get_footer());
                  });
    return parts;
}
}

std::string textOf(const CLI::App& program, const std::string& date)
{
    const std::string name = Roff::escaped(program.get_name());
    return ".TH " + Roff::capitals(name) + " 1 " + date + " \"" + Roff::escaped(program.version()) +
           "\" \"User Commands\"\n" + kWholeWords + ".SH NAME\n" + name + " \\- " +
           Roff::escaped(program.get_description()) + "\n.SH SYNOPSIS\n" + synopsisOf(program) +
           ".SH DESCRIPTION\nThe word behind the name of the program says what is to be done:\n" +
           listOfCommands(program) + ".SH OPTIONS\n" + optionsOf(program) + ".SH COMMANDS\n" + commandsOf(program) +
           ManNotes::sectionsOf(program.get_footer());
}
}
