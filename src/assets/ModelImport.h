#pragma once

#include <memory>
#include <string>

class Mesh;

/// Read the first mesh of a model file through Assimp, in the file's own coordinates mirrored in z (left-handed). What
/// the file does not supply gets defaults: normal +y, tangent +x, bitangent +z, texture coordinate 0. The
/// transformations of the file's nodes are ignored. Return null, with a log line, when the file cannot be read or holds
/// no mesh (level 1) or its mesh has more than 65,536 vertices (level 0).
std::unique_ptr<Mesh> importMesh(const std::string& path);
