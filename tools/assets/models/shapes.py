"""Building blocks of the model scripts, run inside Blender.

Models are built here with x ahead, y to the left and z up, in whatever unit the script likes; export() turns them into the axes
that the game wants and writes the one mesh of the file.
"""
import math
import re

import bmesh
import bpy
from mathutils import Matrix, Vector


def startEmpty():
    bpy.ops.wm.read_factory_settings(use_empty=True)


class Builder:
    """Collects closed shells into one mesh. Each shell's faces wind counter-clockwise seen from outside."""

    def __init__(self):
        self.vertices, self.faces = [], []

    def shell(self, vertices, faces):
        base = len(self.vertices)
        self.vertices += [Vector(v) for v in vertices]
        self.faces += [tuple(base + i for i in face) for face in faces]

    def mirrored(self, build):
        """Runs build(side) for the left (+1) and the right (-1)."""
        for side in (1, -1):
            build(side)

    def rings(self, rings, capStart=True, capEnd=True):
        """A tube through closed rings of equally many points; a ring of one point closes to a tip.

        Ring points run counter-clockwise as seen from the far end of the tube, looking back to its start.
        """
        vertices, faces, starts = [], [], []
        for ring in rings:
            starts.append(len(vertices))
            vertices += ring
        for a, b, ringA, ringB in zip(starts, starts[1:], rings, rings[1:]):
            n = max(len(ringA), len(ringB))
            for i in range(n):
                j = (i + 1) % n
                if len(ringA) == 1:
                    faces.append((a, b + i, b + j)[::-1] if False else (a, b + j, b + i)[::-1])
                elif len(ringB) == 1:
                    faces.append((a + i, a + j, b))
                else:
                    faces.append((a + i, a + j, b + j, b + i))
        if capStart and len(rings[0]) > 1:
            faces.append(tuple(range(starts[0], starts[0] + len(rings[0])))[::-1])
        if capEnd and len(rings[-1]) > 1:
            faces.append(tuple(range(starts[-1], starts[-1] + len(rings[-1]))))
        self.shell(vertices, faces)

    def ellipsoid(self, centre, radii, segments, rings, turn=Matrix.Identity(3)):
        centre = Vector(centre)
        result = []
        for k in range(rings + 1):
            polar = math.pi * k / rings
            circle = []
            for i in range(segments if 0 < k < rings else 1):
                around = 2 * math.pi * i / segments
                p = Vector((math.sin(polar) * math.cos(around) * radii[0], math.sin(polar) * math.sin(around) * radii[1],
                            -math.cos(polar) * radii[2]))
                circle.append(centre + turn @ p)
            result.append(circle)
        self.rings(result)

    def torus(self, centre, radius, thickness, segments, sides, turn=Matrix.Identity(3), stretch=(1, 1)):
        """A ring around the z axis before `turn`; `stretch` scales it along x and y."""
        centre = Vector(centre)
        vertices, faces = [], []
        for i in range(segments):
            around = 2 * math.pi * i / segments
            outward = Vector((math.cos(around) * stretch[0], math.sin(around) * stretch[1], 0))
            normal = Vector((math.cos(around) / stretch[0], math.sin(around) / stretch[1], 0)).normalized()
            for k in range(sides):
                tube = 2 * math.pi * k / sides
                p = outward * radius + normal * (thickness * math.cos(tube)) + Vector((0, 0, thickness * math.sin(tube)))
                vertices.append(centre + turn @ p)
        for i in range(segments):
            for k in range(sides):
                a, b = i * sides, (i + 1) % segments * sides
                m = (k + 1) % sides
                faces.append((a + k, b + k, b + m, a + m))
        self.shell(vertices, faces)

    def rod(self, start, end, radius, sides, radiusEnd=None):
        """A closed cylinder (or cone, with another radius at its end) between two points."""
        start, end = Vector(start), Vector(end)
        turn = (end - start).to_track_quat("Z", "Y").to_matrix()
        rings = []
        for point, r in ((start, radius), (end, radius if radiusEnd is None else radiusEnd)):
            rings.append([point + turn @ Vector((r * math.cos(2 * math.pi * i / sides), r * math.sin(2 * math.pi * i / sides), 0))
                          for i in range(sides)])
        self.rings(rings)


def export(path, builder, axes, smoothAngle):
    """Writes the shells as one Collada mesh. `axes` is a 3 x 3 rotation from the building axes to the file's; edges sharper
    than `smoothAngle` degrees stay hard. Prints what was written."""
    mesh = bpy.data.meshes.new("mesh")
    mesh.from_pydata([axes @ v for v in builder.vertices], [], builder.faces)
    work = bmesh.new()
    work.from_mesh(mesh)
    bmesh.ops.triangulate(work, faces=work.faces)
    work.to_mesh(mesh)
    work.free()
    assert not mesh.validate(), "broken faces"
    for polygon in mesh.polygons:
        polygon.use_smooth = True
    thing = bpy.data.objects.new("mesh", mesh)
    bpy.context.collection.objects.link(thing)
    bpy.context.view_layer.objects.active = thing
    thing.select_set(True)
    split = thing.modifiers.new("hard edges", "EDGE_SPLIT")
    split.split_angle = math.radians(smoothAngle)
    bpy.ops.wm.collada_export(filepath=path, apply_modifiers=True, selected=True, triangulate=True)
    text = open(path).read()
    # The time of export would make every run another file.
    text = re.sub(r"<(created|modified)>[^<]*</", r"<\1>2024-01-01T00:00:00</", text)
    open(path, "w").write(text)
    print("%s: %d triangles" % (path, len(mesh.polygons)))
