#include "VorExprEvalErrorHandler.h"

VorExprEvalErrorHandler::~VorExprEvalErrorHandler()
{
    clear();
}

VorExprEvalErrorHandler& VorExprEvalErrorHandler::ofThread()
{
    static thread_local VorExprEvalErrorHandler t_handler;
    return t_handler;
}

// In front of the others, so that raising costs the same however many there are: "1/0+1/0+..." raises one for each '/'.
void VorExprEvalErrorHandler::raise(VorExprEvalError::eCode code, int nPosition)
{
    m_pHead = new VorExprEvalError(code, m_pHead, nPosition);
    ++m_nCount;
}

// The list is walked to its end, but only once: evaluation stops at the statement that raised these errors.
const VorExprEvalError* VorExprEvalErrorHandler::oldest() const
{
    const VorExprEvalError* pError = m_pHead;
    while (pError != nullptr && pError->next() != nullptr)
        pError = pError->next();
    return pError;
}

// In a loop: an error does not own the one before it.
void VorExprEvalErrorHandler::deleteErrors()
{
    while (m_pHead != nullptr)
    {
        VorExprEvalError* pOlder = m_pHead->next();
        delete m_pHead;
        m_pHead = pOlder;
        --m_nCount;
    }
}
