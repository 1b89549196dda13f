"""Building blocks of the model scripts, run inside Blender.

Models are built here with x ahead, y to the left and z up, in whatever unit the script likes; export() turns them into
the axes that the game wants and writes the one mesh of the file.
"""
import math
import re

import bpy
from mathutils import Matrix, Vector

UPRIGHT = Matrix.Identity(3)


def ring(x, z, halfWidth, halfHeight, y=0.0, points=10, climb=0.0, power=2.0, roll=0.0):
    """An oval across a path that lies in a plane of constant y and climbs by `climb` degrees against the x axis.

    `power` above 2 squares the oval off; `roll` turns it in its own plane, in degrees, its left side downwards.
    """
    climb, roll = math.radians(climb), math.radians(roll)
    left, up = Vector((0, 1, 0)), Vector((-math.sin(climb), 0, math.cos(climb)))
    left, up = left * math.cos(roll) - up * math.sin(roll), up * math.cos(roll) + left * math.sin(roll)
    return [Vector((x, y, z)) + left * (halfWidth * math.copysign(abs(c) ** (2 / power), c))
            + up * (halfHeight * math.copysign(abs(s) ** (2 / power), s)) for c, s in circle(points)]


def tip(x, z, y=0.0):
    """A ring of one point, where a tube closes."""
    return [Vector((x, y, z))]


def circle(points):
    """Cosines and sines of equal steps around."""
    return [(math.cos(2 * math.pi * i / points), math.sin(2 * math.pi * i / points)) for i in range(points)]


class Builder:
    """Collects closed shells into one mesh. Faces wind counter-clockwise seen from outside.

    An ink shell is turned inside out when exported, with its normals left pointing outwards: the game draws what faces
    away from the eye in its outline colour, so such a shell shows as a dark mark, in a model that has but one colour.
    """

    def __init__(self):
        self.vertices, self.faces, self.ink = [], [], []

    def shell(self, vertices, faces, ink=False):
        base = len(self.vertices)
        self.vertices += [Vector(v) for v in vertices]
        self.faces += [tuple(base + i for i in face) for face in faces]
        self.ink += [ink] * len(faces)

    def tube(self, rings, capStart=True, capEnd=True, ink=False):
        """A skin over closed rings of equally many points; a ring of one point is a tip.

        Ring points run counter-clockwise for one who looks from the last ring back to the first.
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
                    faces.append((a, b + j, b + i))
                elif len(ringB) == 1:
                    faces.append((a + i, a + j, b))
                else:
                    faces.append((a + i, a + j, b + j, b + i))
        if capStart and len(rings[0]) > 1:
            faces.append(tuple(range(len(rings[0])))[::-1])
        if capEnd and len(rings[-1]) > 1:
            faces.append(tuple(range(starts[-1], starts[-1] + len(rings[-1]))))
        self.shell(vertices, faces, ink)

    def ellipsoid(self, centre, radii, segments, rings, turn=UPRIGHT, upTo=1.0, ink=False):
        """Around the z axis before `turn`; `upTo` below 1 leaves the lower part of it away."""
        centre = Vector(centre)
        result = []
        first = rings - round(rings * upTo)
        for k in range(first, rings + 1):
            polar = math.pi * k / rings
            ring = []
            for i in range(segments if 0 < k < rings else 1):
                around = 2 * math.pi * i / segments
                point = Vector((math.sin(polar) * math.cos(around) * radii[0],
                                math.sin(polar) * math.sin(around) * radii[1], -math.cos(polar) * radii[2]))
                ring.append(centre + turn @ point)
            result.append(ring)
        self.tube(result, capStart=False, ink=ink)

    def torus(self, centre, radii, thickness, segments, sides, turn=UPRIGHT):
        """A ring around the z axis before `turn`, `radii` along x and y."""
        centre = Vector(centre)
        vertices, faces = [], []
        for i in range(segments):
            c, s = math.cos(2 * math.pi * i / segments), math.sin(2 * math.pi * i / segments)
            outward = Vector((c / radii[0], s / radii[1], 0)).normalized()
            for k in range(sides):
                tube = 2 * math.pi * k / sides
                vertices.append(centre + turn @ (Vector((c * radii[0], s * radii[1], thickness * math.sin(tube)))
                                                 + outward * (thickness * math.cos(tube))))
            for k in range(sides):
                a, b, m = i * sides, (i + 1) % segments * sides, (k + 1) % sides
                faces.append((a + k, b + k, b + m, a + m))
        self.shell(vertices, faces)

    def disc(self, centre, facing, radius, sides, ink=False):
        turn = Vector(facing).to_track_quat("Z", "Y").to_matrix()
        self.shell([Vector(centre) + turn @ Vector((radius * c, radius * s, 0))
                   for c, s in circle(sides)], [tuple(range(sides))], ink)

    def box(self, low, high):
        self.tube([[Vector((x, y, z)) for y, z in ((low[1], low[2]), (high[1], low[2]),
                  (high[1], high[2]), (low[1], high[2]))] for x in (low[0], high[0])])

    def rod(self, start, end, radius, sides, radiusEnd=None, ink=False):
        """A closed cylinder, or a frustum with another radius at its end, between two points."""
        start, end = Vector(start), Vector(end)
        turn = (end - start).to_track_quat("Z", "Y").to_matrix()
        self.tube([[point + turn @ Vector((r * c, r * s, 0)) for c, s in circle(sides)]
                   for point, r in ((start, radius), (end, radius if radiusEnd is None else radiusEnd))], ink=ink)


def thinned(vertices, faces, ink, share):
    """The mesh with that share of its triangles left: edges collapse where the shape changes least. Ink stays whole,
    for marks are small and matter.
    """
    solid, marks = ([face for face, inside in zip(faces, ink) if inside == kind] for kind in (False, True))
    mesh = bpy.data.meshes.new("thinned")
    mesh.from_pydata(vertices, [], solid)
    thing = bpy.data.objects.new("thinned", mesh)
    bpy.context.collection.objects.link(thing)
    thing.modifiers.new("thinned", "DECIMATE").ratio = (share * len(faces) - len(marks)) / len(solid)
    mesh = thing.evaluated_get(bpy.context.evaluated_depsgraph_get()).to_mesh().copy()
    mesh.validate() # shells that are flat by now have lost a side
    mesh.calc_loop_triangles()
    solid = [tuple(triangle.vertices) for triangle in mesh.loop_triangles]
    corners = sorted({i for face in marks for i in face})
    number = {corner: len(mesh.vertices) + n for n, corner in enumerate(corners)}
    return ([v.co.copy() for v in mesh.vertices] + [vertices[i] for i in corners],
            solid + [tuple(number[i] for i in face) for face in marks],
            [False] * len(solid) + [True] * len(marks))


def shadedNormals(mesh, smoothAngle):
    """The normal of every corner, with edges sharper than `smoothAngle` degrees left hard."""
    for polygon in mesh.polygons:
        polygon.use_smooth = True
    mesh.use_auto_smooth = True
    mesh.auto_smooth_angle = math.radians(smoothAngle)
    mesh.calc_normals_split()
    return [[tuple(mesh.loops[i].normal) for i in polygon.loop_indices] for polygon in mesh.polygons]


def triangles(builder):
    """The builder's faces as fans, with their ink flags."""
    for face, ink in zip(builder.faces, builder.ink):
        for i in range(1, len(face) - 1):
            yield (face[0], face[i], face[i + 1]), ink


def settled(text):
    """The exported text without what keeps it from being the same on every run, and from being small."""
    text = re.sub(r"<(created|modified)>[^<]*</", r"<\1>2024-01-01T00:00:00</", text)
    # Set normals come back with a jitter in the fourth place, which would keep the importer from joining equal corners.
    return re.sub(r'(<float_array id="[^"]*-normals-array"[^>]*>)([^<]*)',
                  lambda found: found[1] + " ".join("%g" % (round(float(n), 2) + 0.0) for n in found[2].split()), text)


def export(path, builder, axes, smoothAngle, share=1.0):
    """Write the shells as one Collada mesh. `axes` (3 x 3, a rotation times a scale) leads from the building axes to
    the file's.
    Edges sharper than `smoothAngle` degrees stay hard. `share` below 1 leaves that share of the triangles."""
    faces, ink = zip(*triangles(builder))
    vertices = [axes @ v for v in builder.vertices]

    bpy.ops.wm.read_factory_settings(use_empty=True)
    if share < 1:
        vertices, faces, ink = thinned(vertices, faces, ink, share)
    draft = bpy.data.meshes.new("draft")
    draft.from_pydata(vertices, [], faces)
    if draft.validate(verbose=True):
        raise SystemExit(path + ": degenerate or doubled faces")
    shaded, smooth = shadedNormals(draft, smoothAngle), shadedNormals(draft, 180)
    normals = [whole if inside else part for whole, part, inside in zip(
        smooth, shaded, ink)] # ink must not split where it swells

    mesh = bpy.data.meshes.new("mesh")
    mesh.from_pydata(vertices, [], [face[::-1] if inside else face for face, inside in zip(faces, ink)])
    mesh.use_auto_smooth = True
    mesh.normals_split_custom_set([n for corners, inside in zip(normals, ink)
                                  for n in (corners[::-1] if inside else corners)])
    thing = bpy.data.objects.new("mesh", mesh)
    bpy.context.collection.objects.link(thing)
    thing.select_set(True)
    bpy.ops.wm.collada_export(filepath=path, selected=True, triangulate=False)

    with open(path) as file:
        text = file.read()
    with open(path, "w") as file:
        file.write(settled(text))
    print("%s: %d triangles" % (path, len(faces)))
