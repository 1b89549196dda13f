#include "app/TestState2.h"

#include "base/Logger.h"

void TestState2::enter()
{
    logLine(2) << "Enter TestState2" << std::endl;
}

void TestState2::leave()
{
    logLine(2) << "Leave TestState2" << std::endl;
}
