#pragma once

#include "testing/Occurrences.h"

#include <gtest/gtest.h>

#include <iostream>
#include <string>
#include <utility>

/// Collects what the program writes to standard output, log lines and printf alike, from its construction to its first
/// text(). One at a time.
class CapturedLog {
public:
    CapturedLog() { testing::internal::CaptureStdout(); }
    ~CapturedLog()
    {
        text();
        // An expectation that failed meanwhile has its message in what was captured.
        if (testing::Test::HasFailure()) std::cout << captured << std::flush;
    }

    /// Return everything written so far, and end the capture: standard output goes its usual way again.
    const std::string& text()
    {
        if (std::exchange(capturing, false)) captured = testing::internal::GetCapturedStdout();
        return captured;
    }

    bool contains(const std::string& part) { return count(part) > 0; }

    /// Return how many times the text holds that part.
    int count(const std::string& part) { return occurrences(text(), part); }

private:
    bool capturing = true;
    std::string captured;
};
