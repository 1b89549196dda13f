#pragma once

#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// Calls `condition` every few milliseconds until it holds; false when it does not within `seconds`.
bool waitUntil(double seconds, const std::function<bool()>& condition);

/// A program that a test starts, watches and, at the end of its scope at the latest, kills. Also ends with the test
/// itself.
class ChildProcess {
public:
    struct Settings {
        std::vector<std::string> command;    ///< program and arguments; the program is looked up in PATH
        std::filesystem::path workingFolder; ///< empty: the test's own
        std::string display;                 ///< X display, as in ":7"; empty: none
        std::filesystem::path output;        ///< file that takes standard output and standard error
    };

    explicit ChildProcess(const Settings& settings);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    bool isRunning();

    /// The exit status, or 128 + the signal's number; nothing when it still runs after that many seconds.
    std::optional<int> waitForExit(double seconds);

    /// Everything it has printed by now.
    std::string output() const;

private:
    std::filesystem::path outputFile;
    pid_t process = -1;
    std::optional<int> status;
};
