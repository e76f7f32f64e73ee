#include "QuantityWords.h"

#include "Fault.h"
#include "MessageText.h"
#include "Utf8.h"

namespace mekbom::QuantityWords
{
void refuse(const std::string& found, const std::string& expected, const VorString& hint)
{
    Finding finding;
    finding.found = inQuotes(found);
    finding.expected = expected;
    finding.remedy = Utf8::toBytes(hint);
    throw Fault(kWrongUsage, finding);
}
}
