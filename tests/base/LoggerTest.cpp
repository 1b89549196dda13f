#include "base/Logger.h"

#include "testing/CapturedLog.h"

#include <gtest/gtest.h>

namespace {

TEST(LoggerTest, PrintsALineWithItsLevelOnceItIsFinished)
{
    CapturedLog log;
    for (const int level : {0, 1, 2, 3, -1}) logLine(level) << "a" << std::endl;
    logLine(1) << "Vertices: " << 1234567 << ' ' << 59.8802395 << std::endl;
    *Logger::getInstance() << "" << std::endl; // the level is kept
    EXPECT_EQ(log.text(),
        "ERROR | a\nWARNING | a\nDEBUG | a\nDEBUG | a\nDEBUG | a\nWARNING | Vertices: 1234567 59.8802\n"
        "WARNING | \n");
}

} // namespace
