// The check that stands before the import of Collada files.
#include "assets/ColladaCheck.h"
#include "fuzz/Input.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static Input input("model.dae");
    static_cast<void>(colladaFault(input.set(bytes, size)));
    return 0;
}
