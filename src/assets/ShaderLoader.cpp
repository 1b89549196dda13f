#include "assets/Library.h"
#include "base/Logger.h"
#include "gpu/Shader.h"
#include "gpu/Shaderprogram.h"

#include <algorithm>
#include <fstream>
#include <memory>
#include <optional>
#include <sstream>

namespace {

constexpr std::size_t kQuotedCharacters = 40; // of a word that may be anything, such as part of a picture

/// The lines of a text file, each followed by lineEnd. Nothing, with a log line, when it cannot be opened.
std::optional<std::string> readLines(const std::string& path, char lineEnd)
{
    std::ifstream file(path);
    if (file) file.peek();
    if (!file.is_open() || file.bad()) { // a folder can be opened, but not read
        logLine(0) << "couldn't open file: " << path << std::endl;
        return std::nullopt;
    }
    std::string text;
    for (std::string line; std::getline(file, line);) text += line + lineEnd;
    return text;
}

std::optional<GLenum> stageOf(const std::string& keyword)
{
    if (keyword == "VERTEX_SHADER") return GL_VERTEX_SHADER;
    if (keyword == "TESS_CONTROL_SHADER") return GL_TESS_CONTROL_SHADER;
    if (keyword == "TESS_EVALUATION_SHADER") return GL_TESS_EVALUATION_SHADER;
    if (keyword == "GEOMETRY_SHADER") return GL_GEOMETRY_SHADER;
    if (keyword == "FRAGMENT_SHADER") return GL_FRAGMENT_SHADER;
    return std::nullopt;
}

std::string quotable(std::string word)
{
    if (word.size() > kQuotedCharacters) word.resize(kQuotedCharacters);
    std::replace_if(
        word.begin(), word.end(), [](char c) { return c < ' ' || c > '~'; }, '?');
    return word;
}

/// Compiles one stage into the program. False, with a log line, when its file cannot be opened.
bool addStage(Shaderprogram& program, GLenum stage, const std::string& path)
{
    const std::optional<std::string> source = readLines(path, '\n');
    if (!source) return false;
    Shader shader(stage, *source);
    if (!shader.isCompiled()) logLine(0) << "couldn't compile shader: " << path << std::endl;
    program.attachShader(&shader);
    return true;
}

/// Compiles every stage that the file lists and links the program. False, with a log line, when it ends before that.
bool buildProgram(Shaderprogram& program, const std::string& path)
{
    const std::optional<std::string> text = readLines(path, ' ');
    if (!text) return false;

    std::istringstream words(*text);
    for (std::string keyword; words >> keyword;) {
        const std::optional<GLenum> stage = stageOf(keyword);
        if (!stage) {
            logLine(0) << "unknown shader stage \"" << quotable(keyword) << "\" in " << path << std::endl;
            return false;
        }
        std::string stagePath; // stays empty, and cannot be opened, when the last keyword has none
        words >> stagePath;
        if (!addStage(program, *stage, stagePath)) return false;
    }
    program.link();
    return true;
}

} // namespace

void Library::loadShader(const std::string& name, const std::string& path)
{
    Shaderprogram* program = getShaderprogram(name, false);
    std::unique_ptr<Shaderprogram> fresh;
    if (program) {
        program->createProgram();
    } else {
        fresh = std::make_unique<Shaderprogram>();
        program = fresh.get();
    }
    program->setSource(path);
    if (buildProgram(*program, path) && insert(name, program))
        static_cast<void>(fresh.release()); // the library owns it now
}
