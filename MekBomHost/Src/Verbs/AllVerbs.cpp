#include "AllVerbs.h"

#include "CheckVerb.h"
#include "DemoVerb.h"
#include "DescribeVerb.h"
#include "DiffVerb.h"
#include "ExplainVerb.h"
#include "FormulaVerb.h"
#include "HelpVerb.h"
#include "NewListVerb.h"
#include "ReportVerb.h"
#include "TokensVerb.h"
#include "UnitsVerb.h"

#include <memory>

namespace mekbom
{
VerbList allVerbs()
{
    VerbList verbs;
    verbs.add(std::make_unique<ReportVerb>());
    verbs.add(std::make_unique<DemoVerb>());
    verbs.add(std::make_unique<DiffVerb>());
    verbs.add(std::make_unique<CheckVerb>());
    verbs.add(std::make_unique<DescribeVerb>());
    verbs.add(std::make_unique<NewListVerb>());
    verbs.add(std::make_unique<ExplainVerb>());
    verbs.add(std::make_unique<FormulaVerb>());
    verbs.add(std::make_unique<TokensVerb>());
    verbs.add(std::make_unique<UnitsVerb>());
    verbs.add(std::make_unique<HelpVerb>());
    return verbs;
}
}
