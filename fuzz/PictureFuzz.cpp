// Pictures, and what becomes of them on the way to a texture.
#include "fuzz/Input.h"
#include "platform/Image.h"

#include <utility>

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static Input input("picture.tga");
    std::string error;
    std::optional<Image> picture = readTga(input.set(bytes, size), error);
    if (!picture) return 0;
    Image level = resampledToPowersOfTwo(std::move(*picture));
    while (level.width > 1 || level.height > 1) level = halved(level);
    return 0;
}
