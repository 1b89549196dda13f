"""partyhat.dae: a paper hat with a rolled brim, stepped stripes and a pompom, made for the duck's head.

The game hangs the hat on the chassis by a fixed transform: file units are half as large as the car's, and a point lies
(z + 7.3) / 2 above the chassis origin and (1 - y) / 2 ahead of it, in the axes after import. The hat bobs by half a
unit up and down. The game computes the normals itself from faces that share corners.
"""
import os
import sys

from mathutils import Matrix, Vector

sys.path.append(os.path.dirname(os.path.abspath(__file__)))
from shapes import Builder, circle, export

# The duck's crown in the car's units (duck.py), and how far above it the brim floats at rest: at its lowest it is
# pulled down a bit.
HEAD_TOP, HEAD_AHEAD, HOVER = 1.78, 0.34, 0.30

# After import z is up and -y ahead; the importer mirrors z.
TO_FILE = Matrix(((1, 0, 0), (0, -1, 0), (0, 0, -1)))
CENTRE = Vector((0.1, -(1 - 2 * HEAD_AHEAD), 2 * (HEAD_TOP + HOVER) - 7.3))

RADIUS, HEIGHT, STRIPES, STEP = 0.80, 2.0, 4, 0.07 # units of the file, half of the car's
SIDES = 13


def ring(radius, height):
    return [CENTRE + Vector((radius * c, radius * s, height)) for c, s in circle(SIDES)]


def stripe(number):
    """The two rings of a stripe, counted from the brim up."""
    low, high = number / STRIPES, (number + 1) / STRIPES
    return [ring(RADIUS * (1 - low * 0.92), HEIGHT * low), ring(RADIUS * (1 - high * 0.92) + STEP, HEIGHT * high)]


def trimmings(hat):
    hat.torus(CENTRE + Vector((0, 0, 0.02)), (RADIUS, RADIUS), 0.14, SIDES, 4)
    hat.ellipsoid(CENTRE + Vector((0, 0, HEIGHT + 0.12)), (0.24, 0.24, 0.24), 8, 6)


if __name__ == "__main__":
    model = Builder()
    model.tube([points for number in range(STRIPES) for points in stripe(number)])
    trimmings(model)
    export(sys.argv[-1] + "/partyhat.dae", model, TO_FILE, 35)
