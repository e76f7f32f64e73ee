// The errors that formulas have raised, newest first.
//
//   handler.raise(VorExprEvalError::kDivisionByZero);
//   handler.oldest()->message()  ->  "Division by zero"
//
// Raising stops nothing: the operation that raises goes on with the fallback its header promises, and the statement's
// end asks for the oldest error. Each thread has one handler (ofThread), emptied when an ExpressionsEvaluator is
// constructed on that thread and kept until the next one is. Owns its errors.
#pragma once

#include "VorExprEvalError.h"

class MEK_EXPRESSION_API VorExprEvalErrorHandler
{
public:
    VorExprEvalErrorHandler() = default;
    VorExprEvalErrorHandler(const VorExprEvalErrorHandler&) = delete;
    VorExprEvalErrorHandler& operator=(const VorExprEvalErrorHandler&) = delete;
    virtual ~VorExprEvalErrorHandler();

    static VorExprEvalErrorHandler& ofThread();

    // `nPosition` is a place in the statement that is being read or evaluated.
    void raise(VorExprEvalError::eCode code, int nPosition = VorExprEvalError::kNoPosition);

    // The newest error and the one raised first; null when there is none.
    const VorExprEvalError* head() const { return m_pHead; }
    const VorExprEvalError* oldest() const;

    int count() const { return m_nCount; }
    int isEmpty() const { return m_pHead == nullptr ? 1 : 0; }

    void clear()
    {
        if (m_pHead != nullptr)
            deleteErrors();
    }

private:
    void deleteErrors();

    VorExprEvalError* m_pHead = nullptr;
    int m_nCount = 0;
};
