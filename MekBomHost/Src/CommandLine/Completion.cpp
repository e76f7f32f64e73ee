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
std::string patternsOf(const CLI::App& program)
{
    std::string patterns;
    for (const CLI::App* const pCommand : allCommandsOf(program))
        if (pCommand != &program)
            patterns += (patterns.empty() ? "\"" : "|\"") + Commands::lineOf(*pCommand) + "\"";
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

std::string bashScript(const CLI::App& program)
{
    const std::string& name = program.get_name();
    std::string script = "# Completion of " + name + " in bash.\n_" + name +
                         "()\n"
                         "{\n"
                         "    local command=" +
                         name +
                         " commands= options= word\n"
                         "    for word in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
                         "        case \"$command $word\" in\n"
                         "            " +
                         patternsOf(program) +
                         ") command=\"$command $word\" ;;\n"
                         "        esac\n"
                         "    done\n"
                         "    case \"$command\" in\n";
    for (const CLI::App* const pCommand : allCommandsOf(program))
        script += "        \"" + Commands::lineOf(*pCommand) + "\") commands='" + wordsOf(commandsOf(*pCommand)) +
                  "'; options='" + wordsOf(optionsOf(*pCommand)) + "' ;;\n";
    return script +
           "    esac\n"
           "    case \"${COMP_WORDS[COMP_CWORD]}\" in\n"
           "        -*) commands=$options ;;\n"
           "    esac\n"
           "    mapfile -t COMPREPLY < <(compgen -W \"$commands\" -- \"${COMP_WORDS[COMP_CWORD]}\")\n"
           "}\n"
           "complete -o default -F _" +
           name + " " + name + "\n";
}

std::string zshScript(const CLI::App& program)
{
    const std::string& name = program.get_name();
    std::string script = "#compdef " + name +
                         "\n"
                         "local command=" +
                         name +
                         " word\n"
                         "local -a commands options\n"
                         "for word in \"${(@)words[2,CURRENT-1]}\"; do\n"
                         "    case \"$command $word\" in\n"
                         "        " +
                         patternsOf(program) +
                         ") command=\"$command $word\" ;;\n"
                         "    esac\n"
                         "done\n"
                         "case \"$command\" in\n";
    for (const CLI::App* const pCommand : allCommandsOf(program))
        script += "    \"" + Commands::lineOf(*pCommand) + "\") commands=(" + describedWordsOf(commandsOf(*pCommand)) +
                  "); options=(" + describedWordsOf(optionsOf(*pCommand)) + ") ;;\n";
    return script + "esac\n"
                    "if [[ $PREFIX == -* ]]; then\n"
                    "    _describe option options\n"
                    "elif (( $#commands )); then\n"
                    "    _describe command commands\n"
                    "else\n"
                    "    _files\n"
                    "fi\n";
}

// "-l wide", "-s o"
std::string fishNameOf(const Offer& option)
{
    const bool isLong = option.word.compare(0, 2, "--") == 0;
    return isLong ? "-l " + option.word.substr(2) : "-s " + option.word.substr(1);
}

std::string fishScript(const CLI::App& program)
{
    const std::string& name = program.get_name();
    std::string commands;
    std::string offers;
    for (const CLI::App* const pCommand : allCommandsOf(program))
    {
        const std::string line = Commands::lineOf(*pCommand);
        const std::string start = "complete -c " + name + " -n '__" + name + "_is \"" + line + "\"' ";
        commands += " '" + line + "'";
        for (const Offer& offer : commandsOf(*pCommand))
            offers += start + "-f -a " + offer.word + " -d " + quoted(offer.meaning, kFish) + "\n";
        for (const Offer& option : optionsOf(*pCommand))
            offers += start + fishNameOf(option) + (option.takesValue ? " -r" : "") + " -d " +
                      quoted(option.meaning, kFish) + "\n";
    }
    return "# Completion of " + name + " in fish.\nfunction __" + name +
           "_is\n"
           "    set -l command " +
           name +
           "\n"
           "    for word in (commandline -opc)[2..-1]\n"
           "        if contains -- \"$command $word\"" +
           commands +
           "\n"
           "            set command \"$command $word\"\n"
           "        end\n"
           "    end\n"
           "    test \"$command\" = \"$argv\"\n"
           "end\n" +
           offers;
}
}

std::string textOf(const CLI::App& program, eShell shell)
{
    switch (shell)
    {
        case kBash: return bashScript(program);
        case kZsh: return zshScript(program);
        case kFish: break;
    }
    return fishScript(program);
}
}
