#pragma once

#include <GL/glew.h>

#include <optional>
#include <string>
#include <vector>

/// A line of a .shader file: a stage and the file with its GLSL.
struct ShaderStage {
    GLenum stage;
    std::string file;
};

/// Read a .shader file: pairs of a stage keyword and a file. Nothing, with a log line, when it cannot be opened or has
/// an unknown keyword. The file of the last pair is empty when it has none.
std::optional<std::vector<ShaderStage>> readShaderStages(const std::string& path);

/// Return the lines of a GLSL file. Nothing, with a log line, when it cannot be opened.
std::optional<std::string> readShaderSource(const std::string& path);
