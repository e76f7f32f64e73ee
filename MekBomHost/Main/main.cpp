#include "Program.h"

int main(int numArguments, char** arguments)
{
    return mekbom::Program::run(numArguments, arguments);
}
