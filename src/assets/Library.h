#pragma once

#include "base/ILibraryObject.h"

#include <map>
#include <string>
#include <vector>

class Mesh;
class Shaderprogram;
class Texture;
struct TextureImage;

/// The registry of loaded assets: programs, textures and meshes, each under one short name, whatever its kind. Created
/// on first use, never destroyed, and its entries with it. The loaders of programs and textures need the GL context.
class Library {
public:
    static Library* getInstance();

    /// Read a .shader file (pairs of a stage keyword and a GLSL file), build the program and register it. A name
    /// that is already registered keeps its object, which gets the new program. A file that cannot be opened or an
    /// unknown keyword gives one line at level 0 and ends the load: a new name is not registered, an old one is left
    /// with an unusable program.
    void loadShader(const std::string& name, const std::string& path);

    /// Read a TGA file and register it. A name that is already registered keeps its object, which gets the new image.
    void loadTexture(const std::string& name, const std::string& path);

    /// Likewise, with what TextureImage::read has made of the file.
    void loadTexture(const std::string& name, const std::string& path, const TextureImage& image);

    /// Import the first mesh of a model file and register it, unless the name is taken. A file without a mesh is
    /// reported and not registered.
    void loadModel(const std::string& name, const std::string& path);

    /// Load the game's model files: "Duck", "Partyhat", "Camera", and "DuckFar" and "DuckFarthest" with a half and a
    /// quarter of the duck's triangles.
    void loadModels();

    // Return null when the name is not registered; then, if verbose, with a log line at level 1. The caller asks for
    // the kind that was loaded under the name.
    Shaderprogram* getShaderprogram(const std::string& name, bool verbose = true) const;
    Texture* getTexture(const std::string& name, bool verbose = true) const;
    Mesh* getMesh(const std::string& name, bool verbose = true) const;

    /// Return every entry of that kind, in name order.
    template <class T>
    std::vector<T*> getAll() const
    {
        std::vector<T*> found;
        for (const auto& entry : objects)
            if (T* object = dynamic_cast<T*>(entry.second)) found.push_back(object);
        return found;
    }

    /// Register an object, which then belongs to the library. Return false and change nothing when the name is taken.
    bool insert(const std::string& name, ILibraryObject* object);

private:
    Library() = default;

    ILibraryObject* find(const std::string& name, bool verbose) const;

    std::map<std::string, ILibraryObject*> objects;
};
