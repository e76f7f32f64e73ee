// One error of a formula: a code, its place, and the error raised before it.
#pragma once

#include "MekRoots/Exp/MekExport.h"

class MEK_EXPRESSION_API VorExprEvalError
{
public:
    // Indices into the table of messages.
    enum eCode : int
    {
        kSyntaxError = 0,
        kOutOfMemory = 1,         // nothing raises this
        kNotEnoughParameters = 2, // nor this
        kTooManyParameters = 3,   // nor this
        kImpairedParenthesis = 4,
        kDivisionByZero = 5
    };
    static constexpr int kNumCodes = 6;

    static constexpr int kNoPosition = -1;

    VorExprEvalError(int nCode, VorExprEvalError* pNext, int nPosition = kNoPosition)
        : m_nCode(nCode), m_nPosition(nPosition), m_pNext(pNext)
    {
    }
    VorExprEvalError(const VorExprEvalError&) = delete;
    VorExprEvalError& operator=(const VorExprEvalError&) = delete;
    virtual ~VorExprEvalError() = default;

    int code() const { return m_nCode; }

    // Where in its statement the error is, in characters from the statement's first; kNoPosition where nobody said.
    int position() const { return m_nPosition; }

    // The next older error, or null.
    VorExprEvalError* next() const { return m_pNext; }

    // The message shown to the user, zero-terminated; the empty text for a code that is none.
    static const wchar_t* message(int nCode);
    const wchar_t* message() const { return message(m_nCode); }

private:
    int m_nCode;
    int m_nPosition;
    VorExprEvalError* m_pNext; // owned by the handler
};
