// Each of the three scripts finds the command first: it goes from word to word as long as they name commands. For
// "steel --wide units convert 5" these are "steel", "steel units" and "steel units convert"; words between them are
// options and their values. Then it offers what stands in its table for that command, options behind a minus sign and
// commands otherwise:
//
//   bash    "steel units") commands='convert read'; options='--help --wide' ;;
//   zsh     "steel units") commands=('convert:Convert a value' 'read:Read one'); options=('--help:Print this ...') ;;
//   fish    complete -c steel -n '__steel_is "steel units"' -f -a convert -d 'Convert a value'
#include "Completion.h"

#include "Commands.h"

#include <CLI/CLI.hpp>

#include <string>
#include <utility>
#include <vector>

namespace mekbom::Completion
{
namespace
{
// Something to offer, with its meaning for shells that show it.
struct Offer
{
    std::string word; // "convert", "--wide", "-o"
    std::string meaning;
    bool takesValue = false;
};

// In single quotes only the quote itself has a meaning to bash and zsh, which is left and entered again for it; fish knows
// a backslash there as well.
std::string quoted(const std::string& text, eShell shell)
{
    std::string quoted = "'";
    for (const char character : text)
        if (character == '\'')
            quoted += shell == kFish ? "\\'" : "'\\''";
        else if (character == '\\' && shell == kFish)
            quoted += "\\\\";
        else
            quoted += character;
    return quoted + "'";
}

std::vector<Offer> commandsOf(const CLI::App& command)
{
    std::vector<Offer> offers;
    for (const CLI::App* const pCommand : command.get_subcommands({}))
        offers.push_back({ pCommand->get_name(), pCommand->get_description() });
    return offers;
}

std::vector<Offer> optionsOf(const CLI::App& command)
{
    std::vector<Offer> offers;
    for (const CLI::Option* const pOption : command.get_options())
    {
        const bool takesValue = pOption->get_items_expected_max() > 0;
        for (const std::string& name : pOption->get_lnames())
            offers.push_back({ "--" + name, pOption->get_description(), takesValue });
        for (const std::string& name : pOption->get_snames())
            offers.push_back({ "-" + name, pOption->get_description(), takesValue });
    }
    return offers;
}

// The program and all commands, each before those below it.
std::vector<const CLI::App*> allCommandsOf(const CLI::App& program)
{
    std::vector<const CLI::App*> commands = { &program };
    for (std::size_t i = 0; i < commands.size(); ++i)
        for (const CLI::App* const pCommand : std::as_const(*commands[i]).get_subcommands({}))
            commands.push_back(pCommand);
    return commands;
}

// "steel units"|"steel units convert", as patterns of case: what is a command when a further word is put behind one.
// Fish has a blank between patterns.
std::string patternsOf(const CLI::App& program, eShell shell)
{
    const std::string separator = shell == kFish ? " " : "|";
    std::string patterns;
    for (const CLI::App* const pCommand : allCommandsOf(program))
        if (pCommand != &program)
            patterns += (patterns.empty() ? "" : separator) + "\"" + Commands::lineOf(*pCommand) + "\"";
    return patterns;
}

// convert read
std::string wordsOf(const std::vector<Offer>& offers)
{
    std::string words;
    for (const Offer& offer : offers)
        words += (words.empty() ? "" : " ") + offer.word;
    return words;
}

// 'convert:Convert a value' 'read:Read one'; zsh takes the first colon for the end of the word.
std::string describedWordsOf(const std::vector<Offer>& offers)
{
    std::string words;
    for (const Offer& offer : offers)
        words += (words.empty() ? "" : " ") + quoted(offer.word + ":" + offer.meaning, kZsh);
    return words;
}

// `script` with "@NAME@" and "@PATTERNS@" replaced, and "@TABLE@" by the lines of its table.
std::string filled(std::string script, const CLI::App& program, eShell shell, const std::string& table)
{
    const std::pair<std::string, std::string> texts[] = { { "@TABLE@", table },
                                                          { "@PATTERNS@", patternsOf(program, shell) },
                                                          { "@NAME@", program.get_name() } };
    for (const auto& [mark, text] : texts)
        for (std::size_t place = script.find(mark); place != std::string::npos;
             place = script.find(mark, place + text.size()))
            script.replace(place, mark.size(), text);
    return script;
}

const char* const kBashScript = R"sh(# Completion of @NAME@ in bash.
_@NAME@()
{
    local command=@NAME@ commands= options= word
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        case "$command $word" in
            @PATTERNS@) command="$command $word" ;;
        esac
    done
    case "$command" in
@TABLE@    esac
    case "${COMP_WORDS[COMP_CWORD]}" in
        -*) commands=$options ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$commands" -- "${COMP_WORDS[COMP_CWORD]}")
}
complete -o default -F _@NAME@ @NAME@
)sh";

std::string bashTableOf(const CLI::App& program)
{
    std::string table;
    for (const CLI::App* const pCommand : allCommandsOf(program))
        table += "        \"" + Commands::lineOf(*pCommand) + "\") commands='" + wordsOf(commandsOf(*pCommand)) +
                 "'; options='" + wordsOf(optionsOf(*pCommand)) + "' ;;\n";
    return table;
}

const char* const kZshScript = R"sh(#compdef @NAME@
local command=@NAME@ word
local -a commands options
for word in "${(@)words[2,CURRENT-1]}"; do
    case "$command $word" in
        @PATTERNS@) command="$command $word" ;;
    esac
done
case "$command" in
@TABLE@esac
if [[ $PREFIX == -* ]]; then
    _describe option options
elif (( $#commands )); then
    _describe command commands
else
    _files
fi
)sh";

std::string zshTableOf(const CLI::App& program)
{
    std::string table;
    for (const CLI::App* const pCommand : allCommandsOf(program))
        table += "    \"" + Commands::lineOf(*pCommand) + "\") commands=(" + describedWordsOf(commandsOf(*pCommand)) +
                 "); options=(" + describedWordsOf(optionsOf(*pCommand)) + ") ;;\n";
    return table;
}

const char* const kFishScript = R"sh(# Completion of @NAME@ in fish.
function __@NAME@_is
    set -l command @NAME@
    for word in (commandline -opc)[2..-1]
        switch "$command $word"
            case @PATTERNS@
                set command "$command $word"
        end
    end
    test "$command" = "$argv"
end
@TABLE@)sh";

// "-l wide", "-s o"
std::string fishNameOf(const Offer& option)
{
    const bool isLong = option.word.compare(0, 2, "--") == 0;
    return isLong ? "-l " + option.word.substr(2) : "-s " + option.word.substr(1);
}

std::string fishTableOf(const CLI::App& program)
{
    std::string table;
    for (const CLI::App* const pCommand : allCommandsOf(program))
    {
        const std::string start = "complete -c " + program.get_name() + " -n '__" + program.get_name() + "_is \"" +
                                  Commands::lineOf(*pCommand) + "\"' ";
        for (const Offer& offer : commandsOf(*pCommand))
            table += start + "-f -a " + offer.word + " -d " + quoted(offer.meaning, kFish) + "\n";
        for (const Offer& option : optionsOf(*pCommand))
            table += start + fishNameOf(option) + (option.takesValue ? " -r" : "") + " -d " +
                     quoted(option.meaning, kFish) + "\n";
    }
    return table;
}
}

std::string textOf(const CLI::App& program, eShell shell)
{
    switch (shell)
    {
        case kBash: return filled(kBashScript, program, shell, bashTableOf(program));
        case kZsh: return filled(kZshScript, program, shell, zshTableOf(program));
        case kFish: break;
    }
    return filled(kFishScript, program, shell, fishTableOf(program));
}
}
