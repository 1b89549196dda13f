// Descriptions of shader programs.
#include "assets/ShaderFiles.h"
#include "fuzz/Input.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static Input input("description.shader");
    static_cast<void>(readShaderStages(input.set(bytes, size)));
    return 0;
}
