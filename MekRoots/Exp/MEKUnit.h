// A unit of the catalogue and how precisely values are shown in it.
//
//   MEKUnit squareMetres(3003, 3003, 2);
//   squareMetres.getVorUnitTransform().formatValue(2675000.0, 1, 0, 1, 1, L' ')  ->  2.68
//
// A small value: copies are independent and allocate nothing.
#pragma once

#include "MekExport.h"
#include "VorUnitTransform.h"

class MEK_UNITS_API MEKUnit
{
public:
    // `unit` and `format` are those of VorUnitTransform, which reports a unit that is not in the catalogue. `inputUnit`
    // is the unit in which an editing host takes typed numbers; it is kept for that host and changes no text.
    MEKUnit(int unit, int inputUnit, int format);

    int unit() const { return m_nUnit; }
    int inputUnit() const { return m_nInputUnit; }
    int format() const { return m_nFormat; }

    // Valid as long as this unit, and changed by an assignment to it.
    const VorUnitTransform& getVorUnitTransform() const { return m_transform; }

private:
    int m_nUnit;
    int m_nInputUnit;
    int m_nFormat;
    VorUnitTransform m_transform;
};
