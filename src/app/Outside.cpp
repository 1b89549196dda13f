#include "app/Outside.h"

Outside& plainOutside()
{
    static Outside instance;
    return instance;
}
