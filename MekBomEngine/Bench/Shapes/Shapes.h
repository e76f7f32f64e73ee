// The shapes of data and templates that the engine is measured on, and what a row of each may cost. Models come in many
// shapes: whatever is fast on the plain one alone is fast for nobody.
//
//   for (const Shape& shape : allShapes())
//   {
//       const auto pReport = createReport(shape, 100000);      // with its rows, ready to be evaluated
//       VorBomTemplate result;
//       VorBomEvaluator2::evaluate(pReport.get(), &result);
//   }
#pragma once

#include "MekBomEngine/Src/VorBomTemplate.h"

#include <memory>
#include <vector>

// What a report of a shape may take, as a multiple of what the plain one of as many rows takes.
enum class eShapeBound
{
    kSameOutput, // 1.4: no more is asked for than of the plain one
    kOwnTexts,   // 1.15: the same, and only the texts' memory differs
    kMoreOutput, // 1.3 times the ratio of the results' tuples: what it shows more costs as it does in the plain report
    kTimeOnly    // none: extreme in one direction, and of a fixed number of rows
};

struct Shape
{
    const char* name;       // for --only
    const char* question;   // in one sentence
    const char* difference; // from the plain one
    eShapeBound bound;
    void (*addRows)(VorBomData& data, int numRows);
    std::unique_ptr<VorBomTemplate> (*createSections)();
    int fixedRows = 0; // 0 for as many as are asked for
};

// The plain one first.
const std::vector<Shape>& allShapes();

// Null when there is none of that name.
const Shape* findShape(const char* name);

// Builds everything anew, since an evaluation changes its rows. Never null.
std::unique_ptr<VorBomTemplate> createReport(const Shape& shape, int numRows);

// The multiple, for results of so many tuples; 0 for none.
double allowedRatio(const Shape& shape, double tuples, double tuplesOfPlain);
