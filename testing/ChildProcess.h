#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace boost::process {
class child;
}

/// A program that a test starts, watches and, at the end of its scope at the latest, kills. It also ends with the test.
///
/// A wait that is in vain throws std::runtime_error with the program's last lines, and does so at once when the program
/// has ended: in a test, that is a failure and the end of the test.
class ChildProcess {
public:
    struct Settings {
        std::vector<std::string> command; ///< program, looked up in PATH unless it is a path, and its arguments
        std::filesystem::path output;     ///< file that takes standard output and standard error
        std::map<std::string, std::string> environment = {}; ///< beside the caller's, whose displays are left out
        std::filesystem::path workingFolder = ".";
    };

    explicit ChildProcess(const Settings& settings);
    ~ChildProcess();

    /// Ask every few milliseconds until the condition holds. `what` is its name in a failure.
    void waitFor(const std::string& what, const std::function<bool()>& condition, double seconds = 60);

    /// Wait until the output holds the text so many times.
    void waitForOutput(const std::string& text, int times = 1, double seconds = 60);

    /// Wait until the program ends. Return its exit status, or 128 + the number of the signal that ended it.
    int waitForExit();

    /// Return everything that it has printed by now.
    std::string output() const;

    /// Return how many times the output holds the text by now.
    int count(const std::string& text) const;

private:
    int status() const;

    std::filesystem::path outputFile;
    std::unique_ptr<boost::process::child> process;
};
