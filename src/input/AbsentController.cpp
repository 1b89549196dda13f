#include "input/AbsentController.h"

std::string AbsentController::getName() const
{
    return "XBOX " + std::to_string(slotNumber);
}
