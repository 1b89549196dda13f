#pragma once

#include <gtest/gtest.h>

#include <iostream>
#include <string>

/// Collects what the program writes to standard output, log lines and printf alike, from its construction to its first
/// text(). One at a time.
class CapturedLog {
public:
    CapturedLog() { testing::internal::CaptureStdout(); }
    ~CapturedLog()
    {
        text();
        if (testing::Test::HasFailure())
            std::cout << captured << std::flush; // an expectation that failed meanwhile has its message here
    }
    CapturedLog(const CapturedLog&) = delete;
    CapturedLog& operator=(const CapturedLog&) = delete;

    /// Everything written so far. Ends the capture: standard output goes its usual way again.
    const std::string& text()
    {
        if (capturing) captured = testing::internal::GetCapturedStdout();
        capturing = false;
        return captured;
    }

    bool contains(const std::string& part) { return text().find(part) != std::string::npos; }

    /// How many times the text holds that part.
    int count(const std::string& part)
    {
        int found = 0;
        for (std::size_t at = text().find(part); at != std::string::npos; at = text().find(part, at + part.size()))
            ++found;
        return found;
    }

private:
    bool capturing = true;
    std::string captured;
};
