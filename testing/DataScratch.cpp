#include "testing/DataScratch.h"

namespace fs = std::filesystem;

void DataScratch::writeTga(const std::string& path, int width, int height, int channels,
    const std::function<int(int, int, int)>& component) const
{
    const auto byte = [](int value) { return static_cast<char>(static_cast<unsigned char>(value & 0xFF)); };
    std::string file(18, '\0');
    file[2] = byte(channels == 1 ? 3 : 2);
    file[12] = byte(width);
    file[13] = byte(width >> 8);
    file[14] = byte(height);
    file[15] = byte(height >> 8);
    file[16] = byte(8 * channels);
    file[17] = byte(channels == 4 ? 8 : 0); // alpha bits; rows from the bottom up
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            if (channels == 1) file += byte(component(x, y, 0));
            else
                for (const int i : {2, 1, 0}) file += byte(component(x, y, i));
            if (channels == 4) file += byte(component(x, y, 3));
        }
    write(path, file);
}

void DataScratch::copyGameData() const
{
    for (const char* name : {"Shader", "Textures", "Models", "Audio"})
        fs::copy(fs::path(QUACKDASH_SOURCE_DATA) / name, path() / name, fs::copy_options::recursive);
}
