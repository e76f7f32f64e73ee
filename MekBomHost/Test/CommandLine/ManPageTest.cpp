#include "ManPage.h"

#include <CLI/CLI.hpp>

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
class ManPageTest : public testing::Test
{
protected:
    ManPageTest()
    {
        m_app.set_version_flag("--version", "steel 1.0");
        m_app.footer("Exit status\n  0  done");
        CLI::App& print = *m_app.add_subcommand("print", "Print a file");
        print.add_option("file", m_file, "What to print")->required();
        print.add_option("-u,--units", m_units, "Units such as .25")->type_name("UNITS");
        print.footer("Examples\n  steel print a");
        CLI::App& units = *m_app.add_subcommand("units", "List units");
        units.footer("Metric ones.");
        units.add_subcommand("convert", "Convert")->footer("Metric ones.");
        m_app.add_subcommand("all", "Print all")->footer("Exit status\n  0  done");
    }

    CLI::App m_app{ "Lists of steel", "steel" };
    std::string m_file;
    std::string m_units;
};
}

TEST_F(ManPageTest, SectionsAreThoseOfManualPages)
{
    const std::string help = "Print this help message and exit\n";

    EXPECT_EQ(".TH STEEL 1 2026-11-22 \"steel 1.0\" \"User Commands\"\n"
              ".nh\n.ad l\n"
              ".SH NAME\n"
              "steel \\- Lists of steel\n"
              ".SH SYNOPSIS\n"
              "steel print [OPTIONS] file\n"
              ".br\n"
              "steel units [OPTIONS] [SUBCOMMAND]\n"
              ".br\n"
              "steel units convert [OPTIONS]\n"
              ".br\n"
              "steel all [OPTIONS]\n"
              ".SH DESCRIPTION\n"
              "The word behind the name of the program says what is to be done:\n"
              ".TP\n\\fBprint\\fR\nPrint a file\n"
              ".TP\n\\fBunits\\fR\nList units\n"
              ".TP\n\\fBunits convert\\fR\nConvert\n"
              ".TP\n\\fBall\\fR\nPrint all\n"
              ".SH OPTIONS\n"
              ".TP\n\\fB\\-h,\\-\\-help\\fR\n" +
                  help +
                  ".TP\n\\fB\\-\\-version\\fR\nDisplay program version information and exit\n"
                  ".SH COMMANDS\n"
                  ".SS \"steel print [OPTIONS] file\"\n"
                  "Print a file.\n"
                  ".TP\n\\fBfile\\fR TEXT REQUIRED\nWhat to print\n"
                  ".TP\n\\fB\\-h,\\-\\-help\\fR\n" +
                  help +
                  ".TP\n\\fB\\-u,\\-\\-units\\fR UNITS\nUnits such as .25\n"
                  ".PP\n\\fBExamples\\fR\n.br\n.nf\nsteel print a\n.fi\n"
                  ".SS \"steel units [OPTIONS] [SUBCOMMAND]\"\n"
                  "List units.\n"
                  ".TP\n\\fB\\-h,\\-\\-help\\fR\n" +
                  help +
                  ".PP\nMetric ones.\n"
                  ".SS \"steel units convert [OPTIONS]\"\n"
                  "Convert.\n"
                  ".TP\n\\fB\\-h,\\-\\-help\\fR\n" +
                  help +
                  ".SS \"steel all [OPTIONS]\"\n"
                  "Print all.\n"
                  ".TP\n\\fB\\-h,\\-\\-help\\fR\n" +
                  help +
                  ".SH EXIT STATUS\n"
                  ".TP\n\\fB0\\fR\ndone\n",
              ManPage::textOf(m_app, "2026-11-22"));
}

TEST_F(ManPageTest, ThePageIsTheSameWhicheverCommandWasCalled)
{
    const std::string page = ManPage::textOf(m_app, "2026-11-22");

    m_app.parse("units convert");

    EXPECT_EQ(page, ManPage::textOf(m_app, "2026-11-22"));
}
}
