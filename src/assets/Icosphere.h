#pragma once

class Mesh;

/// Append an icosahedron whose faces are split once, on a sphere about the origin: 72 vertices, of which only the first
/// 12 are shared between faces, and 80 triangles; normals point outwards. The mesh is expected to be empty; radius in
/// world units.
void createIcosphere(Mesh& mesh, float radius);
