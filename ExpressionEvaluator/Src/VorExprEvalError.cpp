#include "VorExprEvalError.h"

namespace
{
// By code. Users and hosts know these texts letter by letter, the spelling of "paranthesis" included.
const wchar_t* const kMessages[VorExprEvalError::kNumCodes] = {
    L"Syntax error",        L"Out of memory",        L"Not enough parameters",
    L"Too many parameters", L"Impaired paranthesis", L"Division by zero",
};
}

const wchar_t* VorExprEvalError::message(int nCode)
{
    return nCode >= 0 && nCode < kNumCodes ? kMessages[nCode] : L"";
}
