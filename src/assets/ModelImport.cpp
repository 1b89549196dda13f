#include "assets/ModelImport.h"

#include "assets/ColladaCheck.h"
#include "base/Assert.h"
#include "base/Logger.h"
#include "scene/Mesh.h"

#include <assimp/Importer.hpp>
#include <assimp/config.h>
#include <assimp/postprocess.h>
#include <assimp/scene.h>

namespace {

constexpr int kMaxBoneWeights = 4;          // a vertex
constexpr unsigned kMaxVertices = 65536;    // what 16-bit indices reach
constexpr std::size_t kLongestReason = 200; // characters
constexpr unsigned kSteps = aiProcess_CalcTangentSpace | aiProcess_JoinIdenticalVertices | aiProcess_MakeLeftHanded |
    aiProcess_Triangulate | aiProcess_GenSmoothNormals | aiProcess_LimitBoneWeights | aiProcess_SortByPType;

glm::vec3 toVec3(const aiVector3D& v)
{
    return {v.x, v.y, v.z};
}

/// Log why the import failed, in one line that names the file. The importer's reason may quote a whole array of the
/// file: only the start of it is logged.
void reportFailure(const std::string& path, const std::string& reason)
{
    const bool namesFile = reason.find(path) != std::string::npos;
    logLine(1) << (namesFile ? "" : path + ": ") << reason.substr(0, kLongestReason) << std::endl;
}

void copyVertices(const aiMesh& source, Mesh& mesh)
{
    const std::size_t count = source.mNumVertices;
    mesh.positions.assign(count, glm::vec3(0, 0, 0));
    mesh.normals.assign(count, glm::vec3(0, 1, 0));
    mesh.tangents.assign(count, glm::vec3(1, 0, 0));
    mesh.bitangents.assign(count, glm::vec3(0, 0, 1));
    mesh.texcoords.assign(count, glm::vec2(0, 0));
    for (std::size_t i = 0; i < count; ++i) {
        if (source.HasPositions()) mesh.positions[i] = toVec3(source.mVertices[i]);
        if (source.HasNormals()) mesh.normals[i] = toVec3(source.mNormals[i]);
        if (source.HasTangentsAndBitangents()) {
            mesh.tangents[i] = toVec3(source.mTangents[i]);
            mesh.bitangents[i] = toVec3(source.mBitangents[i]);
        }
        if (source.HasTextureCoords(0)) mesh.texcoords[i] = glm::vec2(toVec3(source.mTextureCoords[0][i]));
    }
}

/// Turn the positions by 90 degrees about x: files of that kind have z up.
void standUp(Mesh& mesh)
{
    for (glm::vec3& position : mesh.positions) position = {position.x, -position.z, position.y};
}

void copyIndices(const aiMesh& source, Mesh& mesh)
{
    const unsigned numVertices = source.mNumVertices;
    for (unsigned face = 0; face < source.mNumFaces; ++face)
        for (unsigned corner = 0; corner < source.mFaces[face].mNumIndices; ++corner) {
            const unsigned index = source.mFaces[face].mIndices[corner];
            QKD_ASSERT(index < numVertices, "index < numVertices");
            mesh.indices.push_back(static_cast<unsigned short>(index));
        }
}

} // namespace

std::unique_ptr<Mesh> importMesh(const std::string& path)
{
    if (const std::string fault = colladaFault(path); !fault.empty()) {
        reportFailure(path, fault);
        return nullptr;
    }
    Assimp::Importer importer;
    importer.SetPropertyInteger(AI_CONFIG_PP_LBW_MAX_WEIGHTS, kMaxBoneWeights);
    importer.SetPropertyBool(AI_CONFIG_IMPORT_NO_SKELETON_MESHES, true); // no stand-in for a file that holds nodes only
    const aiScene* scene = importer.ReadFile(path, kSteps);
    if (!scene) {
        reportFailure(path, importer.GetErrorString());
        return nullptr;
    }
    if (scene->mNumMeshes == 0) {
        reportFailure(path, "no mesh in the file");
        return nullptr;
    }

    const aiMesh& source = *scene->mMeshes[0];
    logLine(2) << "Vertices: " << source.mNumVertices << std::endl;
    if (source.mNumVertices > kMaxVertices) {
        logLine(0) << "mesh has more than " << kMaxVertices << " vertices: " << path << std::endl;
        return nullptr;
    }
    auto mesh = std::make_unique<Mesh>();
    copyVertices(source, *mesh);
    if (path.ends_with(".md5mesh")) standUp(*mesh);
    logLine(2) << "Faces: " << source.mNumFaces << std::endl;
    copyIndices(source, *mesh);
    return mesh;
}
