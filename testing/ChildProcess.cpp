#include "testing/ChildProcess.h"

#include "testing/Occurrences.h"

#include <boost/process.hpp>
#include <boost/process/extend.hpp>
#include <sys/prctl.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

namespace bp = boost::process;

ChildProcess::ChildProcess(const Settings& settings) : outputFile(settings.output)
{
    // Variables go by way of env: the library's own table of them reads past the end of short ones.
    std::vector<std::string> arguments{"-u", "DISPLAY", "-u", "WAYLAND_DISPLAY"};
    for (const auto& [name, value] : settings.environment) arguments.emplace_back(name).append("=").append(value);
    arguments.insert(arguments.end(), settings.command.begin(), settings.command.end());

    std::ofstream(outputFile, std::ios::trunc).close(); // the library opens it as it is
    process = std::make_unique<bp::child>(
        bp::exe = "/usr/bin/env", bp::args = arguments, bp::start_dir = settings.workingFolder.string(),
        (bp::std_out & bp::std_err) > outputFile.string(),
        bp::extend::on_exec_setup = [](auto&) { prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

ChildProcess::~ChildProcess() = default;

void ChildProcess::waitFor(const std::string& what, const std::function<bool()>& condition, double seconds)
{
    constexpr auto kPollPause = std::chrono::milliseconds(5);
    constexpr std::size_t kLastCharacters = 2000;
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    for (bool isRunning = true; !condition(); std::this_thread::sleep_for(kPollPause)) {
        const bool isLate = std::chrono::steady_clock::now() > end;
        if (!isRunning || isLate) {
            const std::string printed = output();
            throw std::runtime_error(what + " did not come; the program " +
                (isRunning ? "still runs" : "ended with status " + std::to_string(status())) + " and printed last:\n" +
                printed.substr(printed.size() - std::min(printed.size(), kLastCharacters)));
        }
        isRunning = process->running(); // before the condition, which its last words may fulfil
    }
}

void ChildProcess::waitForOutput(const std::string& text, int times, double seconds)
{
    const auto isThere = [&] { return count(text) >= times; };
    waitFor('"' + text + '"', isThere, seconds);
}

int ChildProcess::waitForExit()
{
    waitFor("the end", [this] { return !process->running(); });
    return status();
}

int ChildProcess::status() const
{
    const int native = process->native_exit_code();
    return WIFSIGNALED(native) ? 128 + WTERMSIG(native) : WEXITSTATUS(native);
}

std::string ChildProcess::output() const
{
    std::ifstream file(outputFile, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

int ChildProcess::count(const std::string& text) const
{
    return occurrences(output(), text);
}
