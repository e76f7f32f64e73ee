// `mekbom demo`: what lists look like, shown on the shipped hall.
//
//   mekbom demo                              the list that suits the hall best
//   mekbom demo --template bolt-list         as mekbom report --data hall --template bolt-list
#pragma once

#include "ReportVerb.h"

#include <string>

namespace mekbom
{
class DemoVerb : public ReportVerb
{
public:
    CLI::App& declareOn(CLI::App& parent) override;

private:
    // The shipped hall: there is no option that says otherwise.
    std::vector<std::string> dataNames() const override;
};
}
