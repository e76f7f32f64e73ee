// What is to be said of the rows that a template is to report on: tokens that none of them has, and unlike values.
//
//   VorBomDataCheck(reportTemplate).tell(diagnostics);
//
//   rows %Weight 2.5, %Weight "heavy"; a column %Length    ->   kTokenOfTwoKinds %Weight, kTokenInNoRow %Length
//
// Looks at each row once, whatever the number of tokens asked for; marks and changes none.
#pragma once

#include "VorBomAskedTokens.h"
#include "VorBomDiagnostics.h"

#include <cstddef>
#include <vector>

class VorBomDataCheck
{
public:
    // Reads the template and its rows. They must outlive this object.
    explicit VorBomDataCheck(VorBomTemplate& reportTemplate);

    void tell(VorBomDiagnostics& diagnostics) const;

private:
    // What rows have under one token.
    struct Datum
    {
        const VorBomDataRow* pFirst = nullptr;
        VorBomDataValue::eBomDataValueType type = VorBomDataValue::kUnknownData; // of the first
        const VorBomDataRow* pUnlike = nullptr;                                  // the first of another type
        const VorBomDataRow* pText = nullptr;                                    // the first with a text
    };

    static void look(const VorBomDataRow& row, const VorBomDataValue& value, Datum& datum);
    void tellOfRows(VorBomDiagnostics& diagnostics) const;
    static void tellOf(const VorBomAskedTokens::Asked& asked, const Datum& datum, VorBomDiagnostics& diagnostics);

    VorBomAskedTokens m_asked;
    std::vector<Datum> m_data; // one for each token asked for
    const VorBomDataRow* m_pWithParts = nullptr;
    bool m_hasRows = false;
};
