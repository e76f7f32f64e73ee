#include "ReportColumn.h"

namespace mekbom
{
std::string ReportColumn::heading() const
{
    const bool namesUnit = label == unitSymbol || (!label.empty() && label.back() == ']');
    return unitSymbol.empty() || namesUnit ? label : label + " [" + unitSymbol + "]";
}
}
