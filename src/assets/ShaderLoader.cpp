#include "assets/Library.h"
#include "assets/ShaderFiles.h"
#include "base/Logger.h"
#include "gpu/Shader.h"
#include "gpu/Shaderprogram.h"

#include <memory>

namespace {

/// Compile one stage into the program. Return false, with a log line, when its file cannot be opened.
bool addStage(Shaderprogram& program, GLenum stage, const std::string& path)
{
    const std::optional<std::string> source = readShaderSource(path);
    if (!source) return false;
    Shader shader(stage, *source);
    if (!shader.isCompiled()) logLine(0) << "couldn't compile shader: " << path << std::endl;
    program.attachShader(&shader);
    return true;
}

/// Compile every stage that the file lists and link the program. Return false, with a log line, when a stage prevents
/// that.
bool buildProgram(Shaderprogram& program, const std::string& path)
{
    const std::optional<std::vector<ShaderStage>> stages = readShaderStages(path);
    if (!stages) return false;
    for (const auto& [stage, file] : *stages) {
        if (!addStage(program, stage, file)) return false;
    }
    program.link();
    return true;
}

} // namespace

void Library::loadShader(const std::string& name, const std::string& path)
{
    std::unique_ptr<Shaderprogram> fresh;
    Shaderprogram* program = getShaderprogram(name, false);
    if (program) program->createProgram();
    else program = (fresh = std::make_unique<Shaderprogram>()).get();
    program->setSource(path);
    if (buildProgram(*program, path) && fresh) insert(name, fresh.release());
}
