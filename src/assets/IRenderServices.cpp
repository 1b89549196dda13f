#include "assets/IRenderServices.h"

namespace {
IRenderServices* registered = nullptr;
}

IRenderServices* IRenderServices::current()
{
    return registered;
}

void IRenderServices::setCurrent(IRenderServices* services)
{
    registered = services;
}
