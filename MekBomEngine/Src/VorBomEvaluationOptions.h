// How an evaluation goes about its rows, and who looks on.
//
//   VorBomEvaluationOptions options;
//   options.equalLines = VorBomEvaluationOptions::kMergeAndCountEqualLines;
//   options.pProgress = &bar;
//   VorBomEvaluator2::evaluate(pTemplate, &result, options);
//
//   rows  P1 2.5 kg, P1 2.5 kg, P2 4 kg     kMergeEqualLines            P1 2.5, P2 4           total 6.5
//                                           kMergeAndCountEqualLines    P1 2.5, P2 4           total 9
//                                           kKeepEqualLines             P1 2.5, P1 2.5, P2 4   total 9
//
// A plain value. Options as they are made are those of an evaluation without any.
#pragma once

class VorBomDiagnostics;
class VorBomProgress;

struct VorBomEvaluationOptions
{
    // Lines of details that read as the one before, in the same group.
    enum eEqualLines : int
    {
        kMergeEqualLines = 0,         // one line; no total counts the others, whose rows are marked so
        kMergeAndCountEqualLines = 1, // one line; every total counts them all
        kKeepEqualLines = 2           // a line each, and every total counts them all
    };

    // A sink that asks for kEqualLines gets them whatever is said here.
    eEqualLines equalLines = kMergeEqualLines;

    // Not owned; null for nobody.
    VorBomProgress* pProgress = nullptr;
    VorBomDiagnostics* pDiagnostics = nullptr;
};
