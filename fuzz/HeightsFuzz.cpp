// Pictures of heights.
#include "fuzz/Input.h"
#include "physics/Terrain.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static Input input("Textures/map.tga");
    input.set(bytes, size);
    const Terrain terrain;
    static_cast<void>(terrain.getVertices());
    return 0;
}
