#pragma once

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

/// One geometry of a Collada file: comma-free lists of numbers as the file has them.
struct ColladaMesh {
    std::string positions; ///< three numbers a vertex
    std::string texcoords; ///< two numbers a vertex; empty for none
    std::string triangles; ///< vertex indices
};

inline std::size_t countOf(const std::string& numbers)
{
    return 1 + static_cast<std::size_t>(std::count(numbers.begin(), numbers.end(), ' '));
}

inline std::string colladaSource(const std::string& id, const std::string& numbers, const std::string& components)
{
    const std::size_t count = countOf(numbers);
    std::string params;
    for (const char name : components) params += std::string("<param name=\"") + name + "\" type=\"float\"/>";
    return "<source id=\"" + id + "\"><float_array id=\"" + id + "-a\" count=\"" + std::to_string(count) + "\">" + numbers +
        "</float_array><technique_common><accessor source=\"#" + id + "-a\" count=\"" + std::to_string(count / components.size()) +
        "\" stride=\"" + std::to_string(components.size()) + "\">" + params + "</accessor></technique_common></source>\n";
}

/// A Collada document in which every geometry hangs on a node of its own that moves it by (100, 0, 0).
inline std::string colladaDocument(const std::vector<ColladaMesh>& meshes)
{
    std::ostringstream geometries, nodes;
    for (std::size_t i = 0; i < meshes.size(); ++i) {
        const std::string id = "mesh" + std::to_string(i);
        const auto& [positions, texcoords, triangles] = meshes[i];
        geometries << "<geometry id='" << id << "'><mesh>\n" << colladaSource(id + "-p", positions, "XYZ");
        if (!texcoords.empty()) geometries << colladaSource(id + "-t", texcoords, "ST");
        geometries << "<vertices id='" << id << "-v'><input semantic='POSITION' source='#" << id << "-p'/></vertices>\n<triangles count='"
                   << countOf(triangles) / 3 << "'><input semantic='VERTEX' source='#" << id << "-v' offset='0'/>";
        if (!texcoords.empty()) geometries << "<input semantic='TEXCOORD' source='#" << id << "-t' offset='0' set='0'/>";
        geometries << "<p>" << triangles << "</p></triangles></mesh></geometry>\n";
        nodes << "<node id='node" << i << "'><translate>100 0 0</translate><instance_geometry url='#" << id << "'/></node>\n";
    }
    return "<?xml version=\"1.0\"?>\n<COLLADA xmlns=\"http://www.collada.org/2005/11/COLLADASchema\" version=\"1.4.1\">\n"
           "<asset><up_axis>Y_UP</up_axis></asset>\n<library_geometries>\n" +
        geometries.str() + "</library_geometries>\n<library_visual_scenes><visual_scene id=\"scene\">\n" + nodes.str() +
        "</visual_scene></library_visual_scenes>\n<scene><instance_visual_scene url=\"#scene\"/></scene>\n</COLLADA>\n";
}
