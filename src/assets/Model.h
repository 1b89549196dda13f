#pragma once

#include "assets/Uniform_AttachableTransformation.h"
#include "gpu/Uniform_Color.h"
#include "scene/Attachable.h"

#include <GL/glew.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>

class IndexBuffer;
class MeshGeometry;
class Shaderprogram;
class VertexAttributeList;
class VertexBuffer;

/// How near the eye a model tends to be. Nearer layers are drawn first, so that what they hide is never shaded.
enum class ModelLayer { Things, Ground, Sky };

/// The drawable attachment of a scene node: a program, buffers with a vertex array, and a table of uniform sources.
/// Plain data for the passes, filled by the concrete kind or by whoever builds the model. It releases none of the GL
/// objects that it points at.
///
/// A pass draws it with bindShader(), applyUniforms(), draw(), and skips it unless isDrawable(): a model whose program
/// or mesh failed to load stays in the scene undrawn.
class Model : public Attachable {
public:
    void update() override {}
    void accept(INodeVisitor* visitor) override { visitor->visitModel(this); }
    void acceptRelease(INodeVisitor* visitor) override { visitor->releaseModel(this); }

    /// Issues the draw call with the current program; leaves no vertex array bound. Nothing is drawn unless
    /// isDrawable().
    virtual void draw();

    virtual std::string getName() const { return name; }

    /// Whether there is a linked program, a vertex array and at least one vertex. Cheap; may change at each reload of
    /// the program.
    bool isDrawable() const;

    /// Whether there is something to draw with a pass's own program, such as the light's depth pass.
    bool hasGeometry() const;

    void bindShader() const;    ///< makes the program current; none when it is missing or not usable
    void applyUniforms() const; ///< every entry of the table, in name order, into the program, which is current

    void
    createVAO(const VertexAttributeList* attributes); ///< for the program and the vertex buffer; the list is borrowed
    void completeVAO(); ///< the same once more, for a model that was made while its program was broken
    void setGeometry(MeshGeometry& geometry); ///< both buffers, and a vertex array for the program

    /// The uniforms that models have in common, beside "view" and "projection".
    struct CommonUniforms {
        bool model = true;                             ///< the transformation of the node that the model hangs on
        bool normalMatrix = false;                     ///< the camera's
        std::optional<glm::vec4> color = std::nullopt; ///< red, green, blue, alpha
    };

    /// Put the sources of these uniforms into the table. The camera's are the renderer's.
    void bindUniforms(const CommonUniforms& wanted);

    void setName(const std::string& newName) { name = newName; }
    void setVertexBuffer(VertexBuffer* buffer) { vertexBuffer = buffer; }
    void setIndexBuffer(IndexBuffer* buffer) { indexBuffer = buffer; }
    void setCullable(bool mayBeSkipped) { cullable = mayBeSkipped; }

    std::map<std::string, UniformVariant> uniforms; ///< by the name in the shader; sources borrowed
    GLenum drawMode = GL_TRIANGLES;
    Shaderprogram* shader = nullptr;
    VertexBuffer* vertexBuffer = nullptr;
    IndexBuffer* indexBuffer = nullptr; ///< null draws the vertices as they stand
    GLuint vao = 0;                     ///< for `shader` and `vertexBuffer`
    std::string name;
    bool cullable = true; ///< may be skipped when its node's origin is out of view
    bool blended = false;
    bool castsShadow = true;
    std::uint32_t renderOrder = 0;         ///< ascending
    ModelLayer layer = ModelLayer::Things; ///< among models of equal renderOrder
    bool isStatic = false;                 ///< its node never moves: its shadow is drawn once and kept
    float boundingRadius = 0;              ///< around the node's origin, in the model's own units; 0 when unknown

protected:
    ~Model() = default;

private:
    const VertexAttributeList* layout = nullptr;
    Uniform_AttachableTransformation transformation{this};
    std::optional<Uniform_Color> ownColor;
};
