// Collada files, check and import.
#include "assets/ModelImport.h"
#include "fuzz/Input.h"
#include "scene/Mesh.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static Input input("model.dae");
    static_cast<void>(importMesh(input.set(bytes, size)));
    return 0;
}
