#pragma once

#include "base/ILibraryObject.h"
#include "gpu/IUniform.h"

#include <GL/glew.h>
#include <boost/variant/static_visitor.hpp>
#include <glm/glm.hpp>

#include <string>
#include <vector>

class Shader;
class Texture;

/// A linked GL program, and the visitor that turns a uniform source into a GL call. Owned by the asset library;
/// everybody else borrows it. createProgram(), attachShader() for each stage, link(); then use() before any
/// setUniform() and draw. A reload repeats the first three on the same object.
///
/// A program that did not link is harmless: use() binds none in its place, the setters stay silent and the draw
/// wrappers skip. All programs are made current through this class, which therefore knows the current one.
class Shaderprogram final : public ILibraryObject, public boost::static_visitor<void> {
public:
    Shaderprogram(); ///< with an empty GL program object
    ~Shaderprogram();
    Shaderprogram(const Shaderprogram&) = delete;
    Shaderprogram& operator=(const Shaderprogram&) = delete;

    /// Puts a fresh, empty program object in place of the old one, which is deleted.
    void createProgram();

    void attachShader(Shader* shader);

    /// Links, and prints the linker's report to standard output (not to the log). A program that does not link gives
    /// one log line at level 0. Ends the process when there is no program object at all.
    void link();

    /// What the log lines call this program: the file that it comes from.
    void setSource(const std::string& path) { source = path; }

    /// Names the outputs that transform feedback records, interleaved, from the next link() on, reloads included.
    void setFeedbackOutputs(const std::vector<std::string>& outputs) { feedbackOutputs = outputs; }

    /// True from a successful link() until the next createProgram().
    bool isUsable() const { return usable; }

    /// How many times it was linked: tells a reloaded program from the one before, which the GL may have given the same
    /// name.
    unsigned getLinkCount() const { return linkCount; }

    void use() const;    ///< makes this the current program, or none when it is not usable
    static void unuse(); ///< makes no program current

    /// The program made current by use(); null when there is none.
    static const Shaderprogram* current();

    /// Whether a draw in this mode is valid with this program: GL_PATCHES with tessellation stages, any other mode
    /// without. The first refusal after a link is logged at level 0.
    bool acceptsMode(GLenum mode) const;

    GLuint getHandle() const { return handle; }

    /// The location of a vertex attribute. -1, with a log line at level 1, when the program has no active attribute of
    /// that name; -1 without one when the program is not usable.
    GLint getAttribLocation(const std::string& name) const;

    // Each setter takes the location of the name in this program and writes to the current program, which is this one
    // unless the caller forgot use(). A name that the program lacks is ignored without a word. Matrices are
    // column-major, `count` of them in a row.
    void setUniform(const std::string& name, float value) const;
    void setUniform(const std::string& name, const glm::vec3& value) const;
    void setUniform(const std::string& name, const glm::vec4& value) const;
    void setUniform(const std::string& name, const glm::mat3& value, bool transpose = false, int count = 1) const;
    void setUniform(const std::string& name, const glm::mat4& value, bool transpose = false, int count = 1) const;

    /// Binds the texture to a texture unit, which stays active, and points the sampler at it. A null texture unbinds
    /// the unit's.
    void setUniform(const std::string& name, const Texture* texture, int unit) const;

    /// The same for a texture object that is not an image of the library, by its GL name (0 for none).
    void setSampler(const std::string& name, GLuint textureName, int unit) const;

    /// Fetches the source's current value and sets it. A variant that holds a null source sets nothing. Not reentrant.
    void setUniform(const std::string& name, const UniformVariant& uniform) const;

    // The visits of a UniformVariant, for setUniform() only.
    void operator()(IUniform<glm::mat4>* uniform) const;
    void operator()(IUniform<glm::mat3>* uniform) const;
    void operator()(IUniform<glm::vec4>* uniform) const;
    void operator()(IUniform<TextureUniform>* uniform) const;

private:
    void deleteProgram();
    void declareFeedbackOutputs() const;
    std::string infoLog() const;
    bool hasTessellation() const;
    bool canSet() const;
    GLint uniformLocation(const std::string& name) const;

    GLuint handle = 0;
    bool usable = false;
    bool tessellates = false;
    unsigned linkCount = 0;
    mutable bool modeReported = false;
    std::string source = "unnamed program";
    std::vector<std::string> feedbackOutputs;
};
