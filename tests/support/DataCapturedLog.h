#pragma once

#include <string>

/// Collects what the program writes to standard output, log lines and printf alike, from its construction to its first text().
class CapturedLog {
public:
    CapturedLog();
    ~CapturedLog();
    CapturedLog(const CapturedLog&) = delete;
    CapturedLog& operator=(const CapturedLog&) = delete;

    /// Everything written so far. Ends the capture: standard output goes its usual way again.
    const std::string& text();

    bool contains(const std::string& part) { return text().find(part) != std::string::npos; }

    /// How many times the text holds that part.
    int count(const std::string& part);

private:
    void stop();

    int savedOutput;
    int captureFile;
    std::string captured;
};
