#pragma once

#include <boost/variant.hpp>
#include <glm/glm.hpp>

class Texture;

/// A uniform source: delivers the current value of one shader uniform whenever it is asked. Owned by whoever created
/// it; the tables that point at it only borrow it.
template <class T>
class IUniform {
public:
    virtual T get() = 0;

protected:
    ~IUniform() = default;
};

/// The value of a sampler uniform.
struct TextureUniform {
    Texture* texture = nullptr; ///< null for none
    int unit = 0;               ///< texture unit, 0 for GL_TEXTURE0
};

/// Any of the four kinds of uniform source. A default-made one holds a null source, which sets nothing.
using UniformVariant =
    boost::variant<IUniform<glm::mat4>*, IUniform<glm::mat3>*, IUniform<glm::vec4>*, IUniform<TextureUniform>*>;
