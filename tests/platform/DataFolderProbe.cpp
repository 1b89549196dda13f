#include "platform/DataFolder.h"

#include <filesystem>
#include <iostream>

/// Print the folder that the search ends in; exit with status 1 when it finds none.
int main()
{
    if (!enterDataFolder()) return 1;
    std::cout << std::filesystem::current_path().string() << std::endl;
}
