#include "app/base/Logger.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {

struct LogCase {
    const char* what;
    std::function<void()> write;
    const char* printed;
};

class LoggerLines : public testing::TestWithParam<LogCase> {};

TEST_P(LoggerLines, ArePrintedAs)
{
    testing::internal::CaptureStdout();
    GetParam().write();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), GetParam().printed) << GetParam().what;
}

Logger& logger()
{
    return *Logger::getInstance();
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Table, LoggerLines, testing::Values(
    LogCase{"the three levels", [] { logLine(0) << "a" << std::endl; logLine(1) << "b" << std::endl; logLine(2) << "c" << std::endl; },
        "ERROR | a\nWARNING | b\nDEBUG | c\n"},
    LogCase{"a level is kept until the next one", [] { logger().setLogLevel(1); logger() << "a" << std::endl; logger() << "b" << std::endl; },
        "WARNING | a\nWARNING | b\n"},
    LogCase{"a level outside the three", [] { logLine(3) << "a" << std::endl; logLine(-1) << "b" << std::endl; }, "DEBUG | a\nDEBUG | b\n"},
    LogCase{"an empty message", [] { logLine(2) << "" << std::endl; logLine(0) << std::endl; }, "DEBUG | \nERROR | \n"},
    LogCase{"parts of one line", [] { logLine(2) << std::string("Vertices: ") << 1234567 << ' ' << -8 << ' ' << 7u << std::endl; },
        "DEBUG | Vertices: 1234567 -8 7\n"},
    LogCase{"six significant digits", [] { logLine(2) << 59.8802395 << ' ' << 1.0f / 3 << ' ' << 1e7 << ' ' << 120.0f << std::endl; },
        "DEBUG | 59.8802 0.333333 1e+07 120\n"},
    LogCase{"another manipulator ends the line's collection too", [] { logLine(2) << "a" << std::flush; logLine(2) << "b" << std::endl; },
        "DEBUG | aDEBUG | b\n"}));
// clang-format on

TEST(LoggerTest, UnfinishedTextOpensTheNextLineUnderThatLinesLevel)
{
    testing::internal::CaptureStdout();
    logLine(0) << "unfinished, ";
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");

    testing::internal::CaptureStdout();
    logLine(1) << "finished" << std::endl;
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "WARNING | unfinished, finished\n");
}

} // namespace
