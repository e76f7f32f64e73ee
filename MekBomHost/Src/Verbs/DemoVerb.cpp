#include "DemoVerb.h"

#include "DataFile.h"

#include <CLI/CLI.hpp>

namespace mekbom
{
CLI::App& DemoVerb::declareOn(CLI::App& parent)
{
    CLI::App& demo = *parent.add_subcommand("demo", "Print a list of the shipped hall");
    demo.footer("Examples\n"
                "  mekbom demo\n"
                "  mekbom demo --template bolt-list --units imperial");
    declareOptionsOn(demo);
    return demo;
}

std::vector<std::string> DemoVerb::dataNames() const
{
    return { DataFile::kHall };
}
}
