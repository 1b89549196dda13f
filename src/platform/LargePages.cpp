#include "platform/LargePages.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

constexpr const char* kSetting = "GLIBC_TUNABLES";
constexpr const char* kPolicy = "/sys/kernel/mm/transparent_hugepage/enabled"; // the one in force is in brackets

bool programsMayAsk()
{
    std::ifstream file(kPolicy);
    const std::string policies(std::istreambuf_iterator<char>(file), {});
    return policies.find("[madvise]") != std::string::npos;
}

} // namespace

void useLargePages(char** arguments)
{
    if (std::getenv(kSetting) || !programsMayAsk()) return;

    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error || setenv(kSetting, "glibc.malloc.hugetlb=1", 0) != 0) return;
    execv(program.c_str(), arguments);
}
