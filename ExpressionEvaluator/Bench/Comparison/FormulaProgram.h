// What is compared: programs that compute formulas from their text. Each call gets one of the typical formulas, in the
// program's own notation, and defines its variables anew.
#pragma once

#include "../TypicalFormulas.h"

#include <memory>
#include <string>

class FormulaProgram
{
public:
    virtual ~FormulaProgram() = default;

    // Parses and evaluates kTypicalFormulas[index]; NaN when the program reports an error.
    virtual double evaluate(int index) = 0;
};

// Null when the library was not found as the build was configured.
std::unique_ptr<FormulaProgram> makeFparserProgram();
std::unique_ptr<FormulaProgram> makeMuParserProgram();
std::unique_ptr<FormulaProgram> makeLuaProgram();
std::unique_ptr<FormulaProgram> makeSqliteProgram();

// A name or formula without the '%' of its names, which mean something else elsewhere.
std::string plainText(const wchar_t* text);

// The statements of a plain formula: "a=1;a*2" has the step "a=1" and the result "a*2". One step at most.
struct PlainFormula
{
    std::string stepName;  // "a"; empty without a step
    std::string stepValue; // "1"
    std::string result;
};
PlainFormula plainFormula(const TypicalFormula& formula);

// The plain names of a formula's variables: "Weight,Length".
std::string plainNames(const TypicalFormula& formula);
