#include "VorExprEvVariable.h"

#include "MekRoots/Exp/VorMemoryControllerController.h"

void* VorExprEvVariable::operator new(std::size_t size)
{
    return VorMemoryControllerController::allocateArray(1, size);
}

// The pool writes no sizes down, so it must be told which one it gets back.
void VorExprEvVariable::operator delete(void* pBlock, std::size_t size)
{
    VorMemoryControllerController::deallocateArray(pBlock, 1, size);
}
