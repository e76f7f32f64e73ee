#include "Program.h"

// On purpose the program is never destroyed. Freeing the report of a large model, block by block, takes a sixth of the
// whole job, and the process is about to end. The static pointer keeps all of it in sight of leak checkers.
int main(int numArguments, char** arguments)
{
    static auto* const pProgram = new mekbom::Program;
    return pProgram->run(numArguments, arguments);
}
