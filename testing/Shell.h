#pragma once

#include <array>
#include <cstdio>
#include <string>
#include <sys/wait.h>

/// What a shell command printed to standard output, and its exit status.
struct CommandResult {
    std::string output;
    int status = -1;
};

inline CommandResult runCommand(const std::string& command)
{
    CommandResult result;
    std::FILE* pipe = popen(command.c_str(), "r");
    std::array<char, 256> part;
    while (std::fgets(part.data(), part.size(), pipe)) result.output += part.data();
    result.status = WEXITSTATUS(pclose(pipe));
    return result;
}
