#include "support/DataCapturedLog.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <stdexcept>

CapturedLog::CapturedLog()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "quackdash-log-XXXXXX").string();
    captureFile = mkstemp(pattern.data());
    if (captureFile < 0) throw std::runtime_error("cannot create a capture file");
    unlink(pattern.c_str()); // lives until it is closed

    std::cout.flush();
    std::fflush(stdout);
    savedOutput = dup(STDOUT_FILENO);
    dup2(captureFile, STDOUT_FILENO);
}

CapturedLog::~CapturedLog()
{
    stop();
}

void CapturedLog::stop()
{
    if (captureFile < 0) return;
    std::cout.flush();
    std::fflush(stdout);
    dup2(savedOutput, STDOUT_FILENO);
    close(savedOutput);

    lseek(captureFile, 0, SEEK_SET);
    char block[4096];
    for (ssize_t bytes; (bytes = read(captureFile, block, sizeof block)) > 0;) captured.append(block, static_cast<std::size_t>(bytes));
    close(captureFile);
    captureFile = -1;
}

const std::string& CapturedLog::text()
{
    stop();
    return captured;
}

int CapturedLog::count(const std::string& part)
{
    int found = 0;
    const std::string& all = text();
    for (std::size_t at = all.find(part); at != std::string::npos; at = all.find(part, at + part.size())) ++found;
    return found;
}
