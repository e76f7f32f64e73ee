#include "MekBomEngine/Exp/MekBomVersion.h"

// Two steps, so that the macro's value is made a text and not its name.
#define MEK_TEXT_OF(number) #number
#define MEK_TEXT_OF_VALUE(macro) MEK_TEXT_OF(macro)

int mekBomVersion()
{
    return MEK_BOM_VERSION;
}

const char* mekBomVersionText()
{
    return MEK_TEXT_OF_VALUE(MEK_BOM_VERSION_MAJOR) "." MEK_TEXT_OF_VALUE(MEK_BOM_VERSION_MINOR) "." MEK_TEXT_OF_VALUE(
        MEK_BOM_VERSION_PATCH);
}
