#include "VorFormulaError.h"

#include "VorExprEvalError.h"

const wchar_t* VorFormulaError::message() const
{
    switch (code)
    {
        case kNoArguments: return L"Nothing to compute";
        case kTooShort: return L"Formula of fewer than four characters";
        case kNoOperator: return L"Formula without an operator";
        case kNotComputed: return L"Formula not computed";
        default: return VorExprEvalError::message(code);
    }
}
