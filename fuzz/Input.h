#pragma once

#include "testing/TemporaryFolder.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

/// The bytes of one run as a file, for readers that take a path; in a folder of its own, which is the current one.
class Input {
public:
    explicit Input(const std::string& fileName) : name(fileName) { std::filesystem::current_path(folder.path()); }

    /// Make these the file's bytes and return its name.
    const std::string& set(const std::uint8_t* bytes, std::size_t size)
    {
        folder.write(name, std::string(reinterpret_cast<const char*>(bytes), size));
        return name;
    }

private:
    const TemporaryFolder folder;
    const std::string name;
};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);
