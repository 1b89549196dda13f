#include "testing/ChildProcess.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

namespace {

constexpr auto kPollPause = std::chrono::milliseconds(5);
constexpr int kCannotStart = 127; // exit status, as of a shell

/// Between fork and exec: the child's end of it. Never returns.
[[noreturn]] void become(const ChildProcess::Settings& settings)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const int output = open(settings.output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (output < 0 || dup2(output, STDOUT_FILENO) < 0 || dup2(output, STDERR_FILENO) < 0) _exit(kCannotStart);
    if (!settings.workingFolder.empty() && chdir(settings.workingFolder.c_str()) != 0) _exit(kCannotStart);
    unsetenv("WAYLAND_DISPLAY");
    if (settings.display.empty()) unsetenv("DISPLAY");
    else setenv("DISPLAY", settings.display.c_str(), 1);

    std::vector<char*> arguments;
    for (const std::string& argument : settings.command) arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    execvp(arguments[0], arguments.data());
    _exit(kCannotStart);
}

} // namespace

bool waitUntil(double seconds, const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::sleep_for(kPollPause);
    }
    return true;
}

ChildProcess::ChildProcess(const Settings& settings) : outputFile(settings.output)
{
    process = fork();
    if (process < 0) throw std::runtime_error("cannot start " + settings.command.front());
    if (process == 0) become(settings);
}

ChildProcess::~ChildProcess()
{
    if (!isRunning()) return;
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}

bool ChildProcess::isRunning()
{
    if (status) return false;
    int state = 0;
    if (waitpid(process, &state, WNOHANG) != process) return true;
    status = WIFSIGNALED(state) ? 128 + WTERMSIG(state) : WEXITSTATUS(state);
    return false;
}

std::optional<int> ChildProcess::waitForExit(double seconds)
{
    waitUntil(seconds, [this] { return !isRunning(); });
    return status;
}

std::string ChildProcess::output() const
{
    std::ifstream file(outputFile, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
