// The row of the catalogue is looked for here, once for each unit, so that showing a number looks for nothing.
#include "MekRoots/Exp/MEKUnit.h"

MEKUnit::MEKUnit(int unit, int inputUnit, int format)
    : m_nUnit(unit), m_nInputUnit(inputUnit), m_nFormat(format), m_transform(unit, format)
{
}
