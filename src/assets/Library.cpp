#include "assets/Library.h"

#include "assets/ModelImport.h"
#include "base/Logger.h"
#include "gpu/Shaderprogram.h"
#include "gpu/Texture.h"
#include "scene/Mesh.h"

#include <memory>

Library* Library::getInstance()
{
    static Library* instance = new Library();
    return instance;
}

ILibraryObject* Library::find(const std::string& name, bool verbose) const
{
    const auto entry = objects.find(name);
    if (entry != objects.end()) return entry->second;
    if (verbose) logLine(1) << name << " is not in Library" << std::endl;
    return nullptr;
}

Shaderprogram* Library::getShaderprogram(const std::string& name, bool verbose) const
{
    return static_cast<Shaderprogram*>(find(name, verbose));
}

Texture* Library::getTexture(const std::string& name, bool verbose) const
{
    return static_cast<Texture*>(find(name, verbose));
}

Mesh* Library::getMesh(const std::string& name, bool verbose) const
{
    return static_cast<Mesh*>(find(name, verbose));
}

bool Library::insert(const std::string& name, ILibraryObject* object)
{
    return objects.insert({name, object}).second;
}

void Library::loadTexture(const std::string& name, const std::string& path)
{
    loadTexture(name, path, TextureImage::read(path));
}

void Library::loadTexture(const std::string& name, const std::string& path, const TextureImage& image)
{
    Texture* texture = getTexture(name, false);
    if (!texture) texture = new Texture();
    texture->load(path, image);
    insert(name, texture);
}

void Library::loadModel(const std::string& name, const std::string& path)
{
    logLine(2) << "Library load Model: " << path << " > " << name << std::endl;
    std::unique_ptr<Mesh> mesh = importMesh(path);
    if (mesh && insert(name, mesh.get())) static_cast<void>(mesh.release()); // the library owns it now
}

void Library::loadModels()
{
    loadModel("Duck", "Models/duck.dae");
    loadModel("Partyhat", "Models/partyhat.dae");
    loadModel("Camera", "Models/camera.dae");
    loadModel("DuckFar", "Models/duck-far.dae");
    loadModel("DuckFarthest", "Models/duck-farthest.dae");
}
