"""The program's icon: the duck's head in a party hat on a round badge, one picture a size.

Drawn like the game draws: bands of light, and an outline that is the model's own back, swollen. Blender's Cycles
renders the duck, Pillow lays it over the badge. Small pictures get a wider outline.
"""
import os
import sys
import tempfile

import bpy
from mathutils import Matrix, Vector
from PIL import Image, ImageChops, ImageDraw

sys.path.append(os.path.dirname(os.path.abspath(__file__)))
import duck
import partyhat
from shapes import Builder

SIZES = (32, 48, 64, 128, 256) # pixels
OVERSAMPLING = 4
VIEW = 2.45                    # what the picture spans, in the car's units
OUTLINE_PIXELS, OUTLINE_LEAST = 1.0, 0.028

YELLOW, ORANGE, RED = (1.0, 0.78, 0.10), (1.0, 0.45, 0.05), (0.86, 0.13, 0.16)
WHITE, PINK = (1.0, 1.0, 1.0), (0.93, 0.16, 0.48)
INK = (0.07, 0.06, 0.10)
BADGE, BADGE_LOW, RIM = (98, 196, 238), (40, 128, 200), (18, 15, 26)

BANDS = ((0.0, 0.66), (0.12, 0.85), (0.50, 1.0)) # from which cosine on, and how bright

HAT_SEAT, HAT_SCALE = Vector((0.22, 0.0, 1.64)), 0.50
HAT_LEAN = Matrix.Rotation(0.22, 3, "X") @ Matrix.Rotation(-0.30, 3, "Y")


def linear(colour):
    return [c / 12.92 if c <= 0.04045 else ((c + 0.055) / 1.055) ** 2.4 for c in colour] + [1.0]


def emission(name, colour):
    """A material of even colour, with its node tree to go on with."""
    material = bpy.data.materials.new(name)
    material.use_nodes = True
    nodes, links = material.node_tree.nodes, material.node_tree.links
    nodes.clear()
    glow, output = nodes.new("ShaderNodeEmission"), nodes.new("ShaderNodeOutputMaterial")
    glow.inputs["Color"].default_value = linear(colour)
    links.new(glow.outputs[0], output.inputs[0])
    return material, glow, output


def paint(colour):
    """Three bands of light from the upper left of the viewer."""
    material, glow, _ = emission("paint", colour)
    nodes, links = material.node_tree.nodes, material.node_tree.links
    normal, light = nodes.new("ShaderNodeNewGeometry"), nodes.new("ShaderNodeVectorMath")
    ramp = nodes.new("ShaderNodeValToRGB")
    light.operation = "DOT_PRODUCT"
    light.inputs[1].default_value = Vector((0.62, -0.28, 0.74)).normalized()
    ramp.color_ramp.interpolation = "CONSTANT"
    bands = ramp.color_ramp.elements
    bands[1].position = BANDS[1][0]
    bands.new(BANDS[2][0])
    for band, (_, strength) in zip(bands, BANDS):
        band.color = linear([c * strength for c in colour])
    links.new(normal.outputs["Normal"], light.inputs[0])
    links.new(light.outputs["Value"], ramp.inputs[0])
    links.new(ramp.outputs[0], glow.inputs["Color"])
    return material


def ink():
    return emission("ink", INK)[0]


def outline():
    """Seen from behind only: what faces the eye lets the model through."""
    material, glow, output = emission("outline", INK)
    nodes, links = material.node_tree.nodes, material.node_tree.links
    facing, clear = nodes.new("ShaderNodeNewGeometry"), nodes.new("ShaderNodeBsdfTransparent")
    choice = nodes.new("ShaderNodeMixShader")
    links.new(facing.outputs["Backfacing"], choice.inputs[0])
    links.new(clear.outputs[0], choice.inputs[1])
    links.new(glow.outputs[0], choice.inputs[2])
    links.new(choice.outputs[0], output.inputs[0])
    return material


def add(build, colour, swell, place=lambda v: v, smooth=2):
    """Add a piece in one colour, its marks in ink, and its outline `swell` units wide."""
    piece = Builder()
    build(piece)
    mesh = bpy.data.meshes.new("piece")
    mesh.from_pydata([place(v) for v in piece.vertices], [], piece.faces)
    mesh.materials.append(paint(colour))
    mesh.materials.append(ink())
    for polygon, isInk in zip(mesh.polygons, piece.ink):
        polygon.use_smooth = True
        polygon.material_index = 1 if isInk else 0
    thing = bpy.data.objects.new("piece", mesh)
    bpy.context.collection.objects.link(thing)
    thing.modifiers.new("smooth", "SUBSURF").render_levels = smooth
    if swell > 0:
        shell = bpy.data.objects.new("outline", mesh.copy())
        bpy.context.collection.objects.link(shell)
        shell.data.materials.clear()
        shell.data.materials.append(outline())
        shell.modifiers.new("smooth", "SUBSURF").render_levels = smooth
        swollen = shell.modifiers.new("swell", "DISPLACE")
        swollen.strength, swollen.mid_level = swell, 0.0
    return thing


def onHead(v):
    return HAT_SEAT + HAT_LEAN @ ((Vector(v) - partyhat.CENTRE) * HAT_SCALE)


def portrait(size):
    bpy.ops.wm.read_factory_settings(use_empty=True)
    swell = max(OUTLINE_LEAST, OUTLINE_PIXELS * VIEW / size)
    add(duck.body, YELLOW, swell)
    add(duck.head, YELLOW, swell)
    add(duck.scarf, RED, swell, lambda v: Vector((0.33, 0, 0.80)) + (v - Vector((0.33, 0, 0.82))) * 1.08)
    add(duck.bill, ORANGE, swell)
    add(duck.eyes, WHITE, swell * 0.7)
    for number in range(partyhat.STRIPES):
        add(lambda hat: hat.tube(partyhat.stripe(number)), (PINK, WHITE)[number % 2], swell, onHead, 0)
    add(partyhat.trimmings, YELLOW, swell, onHead)


def render(size, path):
    scene = bpy.context.scene
    camera = bpy.data.objects.new("camera", bpy.data.cameras.new("camera"))
    scene.collection.objects.link(camera)
    scene.camera = camera
    camera.data.type, camera.data.ortho_scale = "ORTHO", VIEW
    aim = Vector((0.42, 0.0, 1.59))
    camera.location = aim + Vector((6, -4.6, 1.6))
    camera.rotation_euler = (aim - camera.location).to_track_quat("-Z", "Y").to_euler()
    scene.render.engine = "CYCLES"
    scene.cycles.device, scene.cycles.samples, scene.cycles.seed, scene.cycles.use_denoising = "CPU", 8, 1, False
    scene.cycles.transparent_max_bounces = 32
    scene.render.film_transparent = True
    scene.view_settings.view_transform = "Standard"
    scene.render.resolution_x = scene.render.resolution_y = size * OVERSAMPLING
    scene.render.image_settings.file_format, scene.render.image_settings.color_mode = "PNG", "RGBA"
    scene.render.filepath = path
    bpy.ops.render.render(write_still=True)
    return Image.open(path).convert("RGBA")


def icon(size, scratch):
    side = size * OVERSAMPLING
    portrait(size)
    picture = render(size, os.path.join(scratch, "duck.png"))

    # The disc leaves the top of the picture to the hat.
    rim, inset = side * 0.025 + OVERSAMPLING * 0.4, side * 0.01
    low, high = side * 0.08, side - inset
    box = ((side - (high - low)) / 2, low, (side + (high - low)) / 2, high)
    inner = (box[0] + rim, box[1] + rim, box[2] - rim, box[3] - rim)
    disc = Image.new("L", (side, side), 0)
    ImageDraw.Draw(disc).ellipse(inner, fill=255)

    result = Image.new("RGBA", (side, side), (0, 0, 0, 0))
    ImageDraw.Draw(result).ellipse(box, fill=RIM + (255,))
    sky = Image.new("RGBA", (side, side))
    for row in range(side):
        share = row / side
        sky.paste(tuple(round(a + (b - a) * share) for a, b in zip(BADGE, BADGE_LOW)) + (255,), (0, row, side, row + 1))
    result.paste(sky, mask=disc)

    shown = disc.copy() # what the duck may cover: the disc, and all that is above its middle
    shown.paste(255, (0, 0, side, round((box[1] + box[3]) / 2)))
    picture.putalpha(ImageChops.multiply(picture.getchannel("A"), shown))
    result.alpha_composite(picture)
    return result.resize((size, size), Image.Resampling.LANCZOS)


with tempfile.TemporaryDirectory() as scratch:
    for size in SIZES:
        icon(size, scratch).save("%s/quackdash-%d.png" % (sys.argv[-1], size), optimize=True)
