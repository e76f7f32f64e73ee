#include "OutputOptions.h"

#include "Support/HostTestSupport.h"

#include <CLI/CLI.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
using Words = std::vector<std::string>;

// Parses `arguments`, then does something with the options.
template <class Action>
auto with(Words arguments, const Action& action)
{
    CLI::App app;
    OutputOptions outputs;
    outputs.declareOn(app);
    std::reverse(arguments.begin(), arguments.end()); // as the parser takes them
    app.parse(arguments);
    return action(outputs);
}

// "list.csv: csv, -: text"
std::string wantedBy(const Words& arguments)
{
    return with(arguments,
                [](const OutputOptions& options)
                {
                    std::string text;
                    for (const WantedOutput& output : options.wanted())
                        text += (text.empty() ? "" : ", ") + output.fileName + ": " + output.format;
                    return text;
                });
}

std::string refusalOf(const Words& arguments)
{
    return faultOf([&arguments] { wantedBy(arguments); });
}
}

TEST(OutputOptionsTest, NothingAsksForATextOnStandardOutput)
{
    EXPECT_EQ("-: text", wantedBy({}));
    EXPECT_EQ(0u, with({}, [](const OutputOptions& options) { return options.choicesOver(OutputChoices()).given; }));
}

TEST(OutputOptionsTest, NamesTellFormatsAndToTheOthers)
{
    EXPECT_EQ("list.csv: csv, list.lst: text, -: text", wantedBy({ "-o", "list.csv", "-o", "list.lst", "-o", "-" }));
    EXPECT_EQ("list.csv: csv, list.lst: json, -: json",
              wantedBy({ "-o", "list.csv", "--output=list.lst", "--to", "json", "-o", "-" }));
    EXPECT_EQ("-: csv", wantedBy({ "--to", "csv" }));
    EXPECT_EQ("list.csv: csv, list.txt: text", wantedBy({ "-o", "list.csv", "--to", "csv", "-o", "list.txt" }));
}

TEST(OutputOptionsTest, AFormatThatNoOutputIsLeftForIsRefused)
{
    EXPECT_EQ("2 --to json: no output is left for it: list.csv asks for csv: take a name that asks for no format, such "
              "as list, or leave --to out\n",
              refusalOf({ "-o", "list.csv", "--to", "json" }));
    EXPECT_NE("", refusalOf({ "-o", "list.txt", "--to", "csv" }));
}

TEST(OutputOptionsTest, AWordThatIsNoFormatIsRefused)
{
    const std::string refusal = refusalOf({ "--to", "jsno" });

    EXPECT_EQ(0u, refusal.find("2 --to: found \"jsno\", expected one of text, ")) << refusal;
    EXPECT_NE(std::string::npos, refusal.find(": did you mean \"json\"?\n")) << refusal;
}

TEST(OutputOptionsTest, NamesThatPromiseWhatNoListIsWrittenInAreRefused)
{
    const std::string refusal = refusalOf({ "-o", "list.pdf", "--to", "text" });

    EXPECT_EQ(0u, refusal.find("2 --output list.pdf: promises a format that no list is written in: lists are written "
                               "in text, "))
        << refusal;
}

TEST(OutputOptionsTest, TwoOutputsAreNotOneFile)
{
    const ScratchFolder folder;
    const std::string list = (folder / "list.txt").string();
    const std::string same = (folder / "x" / ".." / "list.txt").string();

    EXPECT_EQ("2 --output list.txt: is the same place as the output list.txt\n",
              refusalOf({ "-o", "list.txt", "-o", "list.csv", "-o", "list.txt" }));
    EXPECT_NE("", refusalOf({ "-o", "-", "-o", "-" }));
    EXPECT_NE("", refusalOf({ "-o", "./list.txt", "-o", "list.txt" }));
    EXPECT_EQ("", refusalOf({ "-o", "-", "-o", "./-" })) << "a file of that name";
    EXPECT_NE("", refusalOf({ "-o", list, "-o", same })) << "not even where there is no such file yet";
}

TEST(OutputOptionsTest, TwoLinksToOneFileAreOnePlace)
{
    const ScratchFolder folder;
    const std::string list = folder.file("list.txt", "old");
    std::filesystem::create_symlink(list, folder / "link.txt");
    std::filesystem::create_hard_link(list, folder / "hard.txt");

    EXPECT_NE("", refusalOf({ "-o", list, "-o", (folder / "link.txt").string() }));
    EXPECT_NE("", refusalOf({ "-o", list, "-o", (folder / "hard.txt").string() }));
}

TEST(OutputOptionsTest, InputsAreNoOutputs)
{
    const ScratchFolder folder;
    const std::string parts = folder.file("parts.csv", "Weight\n5\n");
    const auto refuse = [](const Words& arguments, const Words& inputs)
    {
        return faultOf(
            [&]
            {
                with(arguments,
                     [&inputs](const OutputOptions& options)
                     {
                         options.refuseInputs(inputs);
                         return 0;
                     });
            });
    };

    EXPECT_EQ("2 --output " + parts + ": is the same file as the input " + parts + "\n",
              refuse({ "-o", "-", "-o", parts }, { "hall", "", parts }));
    EXPECT_EQ("", refuse({ "-o", "-", "-o", (folder / "list.csv").string() }, { "hall", "", parts, "-" }));
}

TEST(OutputOptionsTest, WordsChooseHowCsvIsWritten)
{
    const OutputChoices choices =
        with({ "--to", "csv", "--values", "plain", "--output-delimiter", "tab", "--output-decimal", ",", "--foot",
               "--output-encoding", "utf-8-bom" },
             [](const OutputOptions& options) { return options.choicesOver(OutputChoices()); });

    EXPECT_TRUE(choices.hasPlainValues);
    EXPECT_EQ('\t', choices.delimiter);
    EXPECT_EQ(',', choices.decimalSign);
    EXPECT_TRUE(choices.hasFoot);
    EXPECT_EQ(TextEncoding::kUtf8, choices.encoding.encoding);
    EXPECT_TRUE(choices.encoding.hasMark);
}

TEST(OutputOptionsTest, AChoiceThatNoOutputUnderstandsIsRefused)
{
    EXPECT_EQ("2 --foot: is for csv, tsv, and no output is written so: leave it out, or say --to csv\n",
              refusalOf({ "--foot" }));
    EXPECT_EQ("2 --output-delimiter: is for csv, and no output is written so: leave it out, or say --to csv\n",
              refusalOf({ "--output-delimiter", ";", "-o", "list.tsv" }));
    EXPECT_NE("", refusalOf({ "--values", "plain" }));
    EXPECT_NE("", refusalOf({ "--output-decimal", "." })) << "the usual sign is asked for in vain, too";
    EXPECT_EQ("", refusalOf({ "--values", "plain", "-o", "-", "-o", "list.csv" }));
}

TEST(OutputOptionsTest, WordsChooseThePaper)
{
    const auto choices = [](const OutputOptions& options) { return options.choicesOver(OutputChoices()); };

    EXPECT_EQ(kLetterPaper, with({ "--to", "html", "--paper", "letter" }, choices).paper);
    EXPECT_EQ(kA4Paper, with({ "-o", "list.xlsx", "--paper", "a4" }, choices).paper);
    EXPECT_EQ("2 --paper: is for html, xlsx, and no output is written so: leave it out, or say --to html\n",
              refusalOf({ "--paper", "a4", "-o", "list.csv" }));
}

TEST(OutputOptionsTest, OptionsWinOverWhatIsConfigured)
{
    OutputChoices configured;
    configured.delimiter = ';';
    configured.decimalSign = ',';
    configured.encoding.hasMark = true;
    configured.paper = kLetterPaper;
    const auto choices = [&configured](const OutputOptions& options) { return options.choicesOver(configured); };

    const OutputChoices ofFile = with({}, choices);
    const OutputChoices ofOptions = with({ "--to", "csv", "--output-delimiter", "tab", "--output-decimal", ".",
                                           "--output-encoding", "utf-8", "-o", "a.html", "-o", "-", "--paper", "a4" },
                                         choices);

    EXPECT_EQ(';', ofFile.delimiter);
    EXPECT_EQ(',', ofFile.decimalSign);
    EXPECT_TRUE(ofFile.encoding.hasMark);
    EXPECT_EQ(kLetterPaper, ofFile.paper);
    EXPECT_EQ('\t', ofOptions.delimiter);
    EXPECT_EQ('.', ofOptions.decimalSign);
    EXPECT_FALSE(ofOptions.encoding.hasMark);
    EXPECT_EQ(kA4Paper, ofOptions.paper);
}

// It is about all runs of its user, of which most write no csv.
TEST(OutputOptionsTest, WhatIsConfiguredForOtherFormatsIsNotRefused)
{
    OutputChoices configured;
    configured.decimalSign = ',';
    configured.give(OutputChoices::kDecimalSign);

    EXPECT_EQ(0u, with({ "--to", "text" },
                       [&configured](const OutputOptions& options)
                       {
                           EXPECT_EQ(1u, options.wanted().size());
                           return options.choicesOver(configured).given;
                       }));
}
}
