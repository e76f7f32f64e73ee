// Eight formulas of the kind that templates hold, with the variables that a row gives them.
#pragma once

struct TypicalFormula
{
    const char* name;
    const wchar_t* formula;
    int numVariables; // of those below, from the first on
};

inline const wchar_t* const kTypicalNames[] = { L"%Weight", L"%Length",    L"%Paint",    L"%Width",
                                                L"%Height", L"%Thickness", L"%Quantity", L"%Price" };
inline const double kTypicalValues[] = { 12.5, 6000.0, 3.2, 150.0, 300.0, 7.1, 4.0, 1.85 };
inline constexpr int kNumTypicalNames = 8;

inline const TypicalFormula kTypicalFormulas[] = {
    { "sum of two, doubled", L"(%Weight+%Paint)*2", 3 },
    { "change of unit", L"%Length/1000", 3 },
    { "weight per metre", L"%Weight/(%Length/1000)", 3 },
    { "price of a part", L"%Weight*%Price*1.19", 8 },
    { "plate area", L"2*(%Length*%Width+%Length*%Thickness+%Width*%Thickness)/1000000", 6 },
    { "steel weight", L"%Length*%Width*%Height*0.00000785*%Quantity", 7 },
    { "with a name for a step", L"area=%Length*%Width/1000000;area*%Paint*%Quantity*1", 7 },
    { "weighted mean", L"(%Weight*0.5+%Paint*0.3+%Width*0.15+%Height*0.05)/(1-%Thickness/100)", 6 },
};
inline constexpr int kNumTypicalFormulas = 8;
