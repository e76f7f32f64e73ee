#include "Program.h"
#include "UnfinishedFiles.h"

#include "MekRoots/Exp/VorString.h"

// On purpose the program is never destroyed. Freeing the report of a large model, block by block, takes a sixth of the
// whole job, and the process is about to end. The static pointer keeps all of it in sight of leak checkers.
//
// The only other thread reads parts lists ahead (BatchesAhead) and shares no text with this one. Counting their users with
// locks would cost as much as it gains.
int main(int numArguments, char** arguments)
{
    VorString::promiseNotToShare();
    mekbom::UnfinishedFiles::removeAtSignals();
    static auto* const pProgram = new mekbom::Program;
    return pProgram->run(numArguments, arguments);
}
