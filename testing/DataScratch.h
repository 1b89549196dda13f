#pragma once

#include "testing/TemporaryFolder.h"

#include <functional>

/// A folder that is the working directory while this lives. Tests write the files that they load into it, or copy the
/// game's.
class DataScratch : public TemporaryFolder {
public:
    DataScratch() { std::filesystem::current_path(path()); }
    ~DataScratch()
    {
        std::error_code ignored;
        std::filesystem::current_path(before, ignored);
    }

    /// Write an uncompressed TGA picture of 1 (grey), 3 or 4 components a pixel. component(x, y, i) is 0 to 255, red
    /// first; y counts from the bottom.
    void writeTga(const std::string& path, int width, int height, int channels,
        const std::function<int(int, int, int)>& component) const;

    /// Copy Shader/, Textures/, Models/ and Audio/ of the source tree.
    void copyGameData() const;

private:
    std::filesystem::path before = std::filesystem::current_path();
};
