#include "assets/ShaderFiles.h"

#include "base/Logger.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>

namespace {

constexpr std::size_t kQuotedCharacters = 40; // of a word that may be anything, such as part of a picture

/// Return the lines of a text file, each followed by lineEnd. Nothing, with a log line, when it cannot be opened.
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
    static const std::map<std::string, GLenum> stages{
        {"VERTEX_SHADER", GL_VERTEX_SHADER},
        {"TESS_CONTROL_SHADER", GL_TESS_CONTROL_SHADER},
        {"TESS_EVALUATION_SHADER", GL_TESS_EVALUATION_SHADER},
        {"GEOMETRY_SHADER", GL_GEOMETRY_SHADER},
        {"FRAGMENT_SHADER", GL_FRAGMENT_SHADER},
    };
    const auto found = stages.find(keyword);
    return found == stages.end() ? std::nullopt : std::optional(found->second);
}

/// Return the start of the word, with a question mark for every character that is not printable.
std::string quotable(std::string word)
{
    if (word.size() > kQuotedCharacters) word.resize(kQuotedCharacters);
    const auto isUnprintable = [](char c) { return c < ' ' || c > '~'; };
    std::replace_if(word.begin(), word.end(), isUnprintable, '?');
    return word;
}

} // namespace

std::optional<std::string> readShaderSource(const std::string& path)
{
    return readLines(path, '\n');
}

std::optional<std::vector<ShaderStage>> readShaderStages(const std::string& path)
{
    const std::optional<std::string> text = readLines(path, ' ');
    if (!text) return std::nullopt;

    std::vector<ShaderStage> stages;
    std::istringstream words(*text);
    for (std::string keyword; words >> keyword;) {
        const std::optional<GLenum> stage = stageOf(keyword);
        if (!stage) {
            logLine(0) << "unknown shader stage \"" << quotable(keyword) << "\" in " << path << std::endl;
            return std::nullopt;
        }
        std::string file; // stays empty, and cannot be opened, when the last keyword has none
        words >> file;
        stages.push_back({*stage, file});
    }
    return stages;
}
