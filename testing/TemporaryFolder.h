#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

/// An empty folder of its own under the system's temporary one, removed with everything in it at the end of its scope.
class TemporaryFolder {
public:
    TemporaryFolder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "quackdash-XXXXXX").string();
        if (!mkdtemp(pattern.data())) throw std::runtime_error("cannot create " + pattern);
        folder = std::filesystem::canonical(pattern);
    }

    ~TemporaryFolder()
    {
        std::error_code error;
        std::filesystem::remove_all(folder, error);
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return folder; }

    /// Write a file of these bytes, with the folders above it, and return its path.
    std::string write(const std::string& name, const std::string& bytes) const
    {
        const std::filesystem::path file = folder / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << bytes;
        return file.string();
    }

private:
    std::filesystem::path folder;
};
