#include "QuantityWords.h"

#include "Fault.h"
#include "InQuotes.h"
#include "Utf8.h"

namespace mekbom::QuantityWords
{
void refuse(const FindingCode& code, const std::string& found, const std::string& expected, const VorString& hint)
{
    Finding finding = Finding::of(code, inQuotes(found), expected);
    finding.remedy = Utf8::toBytes(hint);
    throw Fault(kWrongUsage, finding);
}
}
