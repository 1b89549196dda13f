#pragma once

#include "assets/MeshGeometry.h"
#include "assets/Uniform_AttachableTransformation.h"
#include "gpu/Uniform_Color.h"
#include "scene/Attachable.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

class Shaderprogram;

/// How near the eye a model tends to be. Nearer layers are drawn first, so that what they hide is never shaded.
enum class ModelLayer { Things, Ground, Sky };

/// The drawable attachment of a scene node: a program, buffers with a vertex array, and a table of uniform sources. The
/// concrete kind, or whoever builds the model, fills it; the passes read it. It owns its vertex array and the geometry
/// that it makes, and borrows everything else.
///
/// A pass draws it with bindShader(), applyUniforms(), draw(), and skips it unless isDrawable(): a model whose program
/// or mesh failed to load stays in the scene undrawn.
class Model : public Attachable {
public:
    void update() override {}
    void accept(INodeVisitor* visitor) override { visitor->visitModel(this); }
    void acceptRelease(INodeVisitor* visitor) override { visitor->releaseModel(this); }

    /// Issue the draw call with the current program; leave no vertex array bound. Draw nothing unless isDrawable().
    virtual void draw();

    virtual std::string getName() const { return name; }

    /// Return the geometry that casts the shadow: its own, or that of a simpler model in its place.
    virtual const Model& getShadowShape() const { return *this; }

    /// Return whether there is a linked program, a vertex array and at least one vertex. Cheap; the answer may change
    /// with each reload of the program.
    bool isDrawable() const;

    /// Return whether there is something to draw with a pass's own program, such as the light's depth pass.
    bool hasGeometry() const;

    void bindShader() const;    ///< make the program current; none when it is missing or not usable
    void applyUniforms() const; ///< set every entry of the table, in name order, in the program, which is current

    /// Make the vertex array for the program and the vertex buffer. The list is borrowed.
    void createVAO(const VertexAttributeList* attributes);

    /// Make it now, if it could not be made before because the program was broken.
    void completeVAO();

    /// Borrow the buffers and make the vertex array for the program, which is set before.
    void setGeometry(MeshGeometry& geometry);

    /// Do the same with geometry of the model's own, made from those arrays of the mesh. Null, for a mesh that failed
    /// to load, leaves the model without geometry.
    void makeGeometry(const Mesh* mesh, std::initializer_list<MeshAttribute> attributes);

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
    GlObject vao;                       ///< for `shader` and `vertexBuffer`; empty while the program is broken
    bool cullable = true;               ///< may be skipped when its node's origin is out of view
    bool blended = false;
    bool castsShadow = true;
    std::uint32_t renderOrder = 0;         ///< ascending
    ModelLayer layer = ModelLayer::Things; ///< among models of equal renderOrder
    bool isStatic = false;                 ///< its node never moves: its shadow is drawn once and kept
    float boundingRadius = 0;              ///< around the node's origin, in the model's own units; 0 when unknown

protected:
    ~Model() = default;

private:
    std::string name;
    std::optional<MeshGeometry> ownGeometry;
    const VertexAttributeList* layout = nullptr;
    Uniform_AttachableTransformation transformation{this};
    std::optional<Uniform_Color> ownColor;
};
