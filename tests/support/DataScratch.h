#pragma once

#include <filesystem>
#include <functional>
#include <string>

/// A fresh folder that is the working directory while this lives; removed afterwards with everything in it. Tests write the files that
/// they load into it, or copy the game's.
class DataScratch {
public:
    DataScratch();
    ~DataScratch();
    DataScratch(const DataScratch&) = delete;
    DataScratch& operator=(const DataScratch&) = delete;

    /// Writes a file, and the folders it lies in, replacing what was there.
    void write(const std::string& path, const std::string& content) const;

    /// Writes an uncompressed TGA picture of 1 (grey), 3 or 4 components a pixel. component(x, y, i) is 0 to 255, red first; y counts from the bottom.
    void writeTga(const std::string& path, int width, int height, int channels, const std::function<int(int, int, int)>& component) const;

    /// Copies Shader/, Textures/, Models/ and Audio/ of the source tree.
    void copyGameData() const;

private:
    std::filesystem::path before;
    std::filesystem::path folder;
};
