#pragma once

#include "base/ILibraryObject.h"
#include "gpu/GlObject.h"
#include "gpu/IUniform.h"

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
    Shaderprogram() = default; ///< with an empty GL program object
    ~Shaderprogram();

    /// Put a fresh, empty program object in place of the old one, which is deleted.
    void createProgram();

    void attachShader(Shader* shader);

    /// Link, and print the linker's report to standard output (not to the log). A program that does not link gives one
    /// log line at level 0. End the process when there is no program object at all.
    void link();

    /// Tell what the log lines call this program: the file that it comes from.
    void setSource(const std::string& path) { source = path; }

    /// Name the outputs that transform feedback records, interleaved, from the next link() on, reloads included.
    void setFeedbackOutputs(const std::vector<std::string>& outputs) { feedbackOutputs = outputs; }

    bool isUsable() const { return usable; } ///< true from a successful link() until the next createProgram()

    /// Return how many times it was linked: tells a reloaded program from the one before, which the GL may have given
    /// the same name.
    unsigned getLinkCount() const { return linkCount; }

    void use() const;    ///< make this the current program, or none when it is not usable
    static void unuse(); ///< make no program current

    static const Shaderprogram* current(); ///< the program made current by use(); null when there is none

    /// Return whether a draw in this mode is valid with this program: GL_PATCHES with tessellation stages, any other
    /// mode without. The first refusal after a link is logged at level 0.
    bool acceptsMode(GLenum mode) const;

    GLuint getHandle() const { return handle; }

    /// Return the location of a vertex attribute. -1, with a log line at level 1, when the program has no active
    /// attribute of that name; -1 without one when the program is not usable.
    GLint getAttribLocation(const std::string& name) const;

    // Each setter takes the location of the name in this program and writes to the current program, which is this one
    // unless the caller forgot use(). A name that the program lacks is ignored without a word. Matrices are
    // column-major, `count` of them in a row.
    void setUniform(const std::string& name, float value) const;
    void setUniform(const std::string& name, const glm::vec3& value) const;
    void setUniform(const std::string& name, const glm::vec4& value) const;
    void setUniform(const std::string& name, const glm::mat3& value, bool transpose = false, int count = 1) const;
    void setUniform(const std::string& name, const glm::mat4& value, bool transpose = false, int count = 1) const;

    /// Bind the texture to a texture unit, which stays active, and point the sampler at it. A null texture unbinds the
    /// unit's.
    void setUniform(const std::string& name, const Texture* texture, int unit) const;

    /// Do the same for a texture object that is not an image of the library, by its GL name (0 for none).
    void setSampler(const std::string& name, GLuint textureName, int unit) const;

    /// Fetch the source's current value and set it. A variant that holds a null source sets nothing. Not reentrant.
    void setUniform(const std::string& name, const UniformVariant& uniform) const;

    /// Visit a UniformVariant, for setUniform() only.
    template <class T>
    void operator()(IUniform<T>* uniform) const;

private:
    void setUniform(const std::string& name, const TextureUniform& value) const;
    void declareFeedbackOutputs() const;
    std::string infoLog() const;
    bool hasTessellation() const;
    GLint uniformLocation(const std::string& name) const;

    GlObject handle{GlKind::Program};
    bool usable = false;
    bool tessellates = false;
    unsigned linkCount = 0;
    mutable bool modeReported = false;
    std::string source = "unnamed program";
    std::vector<std::string> feedbackOutputs;
};
