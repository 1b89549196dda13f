#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <optional>

/// Run the work, which returns an exit status, in a process of its own: there is one game, and one physics world, in
/// each. Return that status; nothing when the process ended in another way.
template <class Work>
std::optional<int> inOwnProcess(const Work& work)
{
    const pid_t child = fork();
    if (child == 0) {
        const int result = work(); // whose objects go before the process does
        std::_Exit(result);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) < 0 || !WIFEXITED(status)) return std::nullopt;
    return WEXITSTATUS(status);
}
