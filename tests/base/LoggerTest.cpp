#include "base/Logger.h"

#include "testing/CapturedLog.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

struct LogCase {
    const char* what;
    std::function<void()> write;
    const char* printed;
};

TEST(LoggerTest, LinesArePrintedAs)
{
    const LogCase rows[] = {
        {"the three levels, and one outside them",
            [] {
                for (const int level : {0, 1, 2, 3}) logLine(level) << "a" << std::endl;
            },
            "ERROR | a\nWARNING | a\nDEBUG | a\nDEBUG | a\n"},
        {"a level is kept until the next one",
            [] {
                logLine(1) << "a" << std::endl;
                *Logger::getInstance() << "b" << std::endl;
            },
            "WARNING | a\nWARNING | b\n"},
        {"an empty message", [] { logLine(2) << "" << std::endl; }, "DEBUG | \n"},
        {"parts of one line, six significant digits",
            [] { logLine(2) << "Vertices: " << 1234567 << ' ' << 59.8802395 << std::endl; },
            "DEBUG | Vertices: 1234567 59.8802\n"},
        {"unfinished text opens the next line, under that line's level",
            [] {
                logLine(0) << "unfinished, ";
                logLine(1) << "finished" << std::endl;
            },
            "WARNING | unfinished, finished\n"},
    };
    for (const LogCase& row : rows) {
        CapturedLog log;
        row.write();
        EXPECT_EQ(log.text(), row.printed) << row.what;
    }
}

} // namespace
