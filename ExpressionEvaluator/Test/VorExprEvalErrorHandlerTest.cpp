#include "Support/FormulaSupport.h"

#include <thread>

TEST(VorExprEvalErrorHandlerTest, AFreshHandlerIsEmpty)
{
    const VorExprEvalErrorHandler handler;

    EXPECT_EQ(1, handler.isEmpty());
    EXPECT_EQ(0, handler.count());
    EXPECT_EQ(nullptr, handler.head());
    EXPECT_EQ(nullptr, handler.oldest());
}

TEST(VorExprEvalErrorHandlerTest, ErrorsStandNewestFirst)
{
    VorExprEvalErrorHandler handler;
    handler.raise(VorExprEvalError::kDivisionByZero);
    handler.raise(VorExprEvalError::kSyntaxError);
    handler.raise(VorExprEvalError::kImpairedParenthesis);

    EXPECT_EQ(3, handler.count());
    EXPECT_EQ(4, handler.head()->code());
    EXPECT_EQ(0, handler.head()->next()->code());
    EXPECT_EQ(5, handler.oldest()->code());
    EXPECT_EQ(nullptr, handler.oldest()->next());
}

TEST(VorExprEvalErrorHandlerTest, ClearingDeletesEveryError)
{
    VorExprEvalErrorHandler handler;
    for (int i = 0; i < 100000; ++i)
        handler.raise(VorExprEvalError::kSyntaxError);

    handler.clear();

    EXPECT_EQ(0, handler.count());
    EXPECT_EQ(1, handler.isEmpty());
}

TEST(VorExprEvalErrorHandlerTest, EveryThreadHasItsOwn)
{
    emptyThreadLists();
    VorExprEvalErrorHandler::ofThread().raise(VorExprEvalError::kSyntaxError);
    int nElsewhere = -1;

    std::thread([&nElsewhere] { nElsewhere = VorExprEvalErrorHandler::ofThread().count(); }).join();

    EXPECT_EQ(0, nElsewhere);
    EXPECT_EQ("0", errorCodes());
    emptyThreadLists();
}
