// Settings files.
#include "fuzz/Input.h"
#include "options/OptionParser.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static Input input("quackdash.conf");
    Options options;
    SetWhere where;
    static_cast<void>(parseSettings(input.set(bytes, size), options, where));
    static_cast<void>(settingsText(options));
    return 0;
}
