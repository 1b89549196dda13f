"""duck.dae: a duck in a pedal car, one mesh in one colour.

Built in the car's own units: x ahead, y left, z up, the origin at the chassis origin. The game draws the wheels itself:
radius 0.45 and 0.35 wide, at x = +-1.51, y = +-0.92, z = -0.75; the front ones steer by up to 60 degrees and all sink
in by up to 0.3.
"""
import math
import os
import sys

from mathutils import Euler, Matrix, Vector

sys.path.append(os.path.dirname(os.path.abspath(__file__)))
from shapes import Builder, export, ring, tip

UNIT = 0.015     # the game shrinks the file's units to this
HARD_EDGE = 55.0 # degrees
# File: x ahead, y up, z to the right; the importer mirrors z.
TO_FILE = Matrix(((1, 0, 0), (0, 0, 1), (0, -1, 0))) * (1 / UNIT)

HEAD, HEAD_RADII = (0.34, 0, 1.30), (0.52, 0.52, 0.48) # the party hat is made for it
SIDES = (1, -1) # left, right
AXLES = (1.511, -1.511)
AXLE_HEIGHT = -0.7526


def turned(roll, pitch, yaw):
    """A rotation by degrees about x, then y, then z."""
    return Euler([math.radians(angle) for angle in (roll, pitch, yaw)]).to_matrix()


def mirrored(rings):
    """The same tube on the other side of the car."""
    return [[Vector((p.x, -p.y, p.z)) for p in reversed(points)] for points in rings]


def tub(car):
    # Narrow between the front wheels, which need room to steer.
    car.tube([ring(x, z, width, height, points=10, power=3.0) for x, z, width, height in (
        (-1.78, -0.36, 0.36, 0.14),
        (-1.66, -0.36, 0.54, 0.26),
        (-1.10, -0.34, 0.66, 0.37),
        (-0.82, -0.34, 0.86, 0.40),
        (0.62, -0.34, 0.86, 0.40),
        (1.00, -0.34, 0.46, 0.36),
        (1.60, -0.38, 0.40, 0.27),
        (1.82, -0.42, 0.30, 0.18))])
    car.torus((-0.10, 0, 0.05), (0.88, 0.74), 0.13, 16, 4)
    for x in AXLES:
        car.rod((x, -0.80, AXLE_HEIGHT), (x, 0.80, AXLE_HEIGHT), 0.10, 5)
    car.rod((1.95, -0.56, -0.58), (1.95, 0.56, -0.58), 0.12, 6)
    car.rod((-1.86, -0.60, -0.52), (-1.86, 0.60, -0.52), 0.10, 6)


def fittings(car):
    for side in SIDES:
        car.rod((1.22, side * 0.40, 0.02), (1.52, side * 0.40, -0.01), 0.10, 8, 0.17)
        pipe = Vector((-1.40, side * 0.36, -0.16)), Vector((-2.02, side * 0.36, 0.02))
        car.rod(*pipe, 0.10, 6, 0.14)
        car.disc(pipe[1] + (pipe[1] - pipe[0]) * 0.01, pipe[1] - pipe[0], 0.10, 6, ink=True)
    car.torus((0.88, 0, 0.50), (0.27, 0.27), 0.05, 9, 3, turned(0, -55, 0))
    car.rod((1.15, 0, 0.0), (0.88, 0, 0.50), 0.05, 3)


def body(duck):
    duck.tube([tip(-1.30, 0.90)] + [ring(x, z, width, height, climb=climb) for x, z, width, height, climb in (
        (-1.12, 0.76, 0.17, 0.09, -42),
        (-0.84, 0.54, 0.33, 0.20, -36),
        (-0.48, 0.33, 0.54, 0.40, -16),
        (-0.02, 0.24, 0.62, 0.50, 0),
        (0.36, 0.28, 0.55, 0.48, 4),
        (0.60, 0.34, 0.34, 0.32, 10))] + [tip(0.70, 0.38)])
    wing = [ring(x, z, thick, height, y=y, points=6, roll=-roll) for x, z, thick, height, y, roll in (
        (-0.95, 0.86, 0.03, 0.07, 0.98, 20),
        (-0.66, 0.66, 0.08, 0.20, 0.86, 20),
        (-0.22, 0.48, 0.12, 0.29, 0.73, 14),
        (0.16, 0.40, 0.12, 0.25, 0.66, 8))] + [tip(0.42, 0.40, 0.52)]
    duck.tube(wing)
    duck.tube(mirrored(wing))


def scarf(duck):
    duck.torus((0.33, 0, 0.82), (0.31, 0.31), 0.11, 10, 4, turned(0, 4, 0)) # for racing, wound tight


def head(duck):
    duck.tube([ring(0.30, 0.45, 0.36, 0.36, climb=80), ring(0.34, 0.95, 0.26, 0.26, climb=90)],
              capStart=False, capEnd=False)
    scarf(duck)
    duck.ellipsoid(HEAD, HEAD_RADII, 14, 8)


def bill(duck):
    duck.tube([ring(x, z, width, height, points=8, climb=climb, power=2.4) for x, z, width, height, climb in (
        (0.70, 1.25, 0.27, 0.17, -10), (1.00, 1.18, 0.23, 0.10, 0), (1.26, 1.21, 0.33, 0.065, 15),
        (1.46, 1.28, 0.20, 0.04, 25))],
        capStart=False)
    duck.tube([ring(x, z, width, height, points=8, power=2.4, climb=-18) for x, z, width, height in (
        (0.66, 1.06, 0.20, 0.09), (0.98, 0.93, 0.20, 0.065), (1.22, 0.87, 0.16, 0.04))], capStart=False)
    duck.tube([ring(x, z, width, height, points=6, climb=-5) for x, z, width, height in (
        (0.72, 1.11, 0.16, 0.07), (1.06, 1.05, 0.14, 0.035))], capStart=False, ink=True)


def eyes(duck):
    for side in SIDES:
        gaze = Vector((0.86, side * 0.48, 0.16)).normalized()
        facing = gaze.to_track_quat("Z", "Y").to_matrix()
        eye = Vector((0.62, side * 0.25, 1.53))
        duck.ellipsoid(eye, (0.18, 0.20, 0.17), 8, 4, facing)
        duck.ellipsoid(eye + gaze * 0.09 + Vector((0, side * -0.03, 0)),
                       (0.095, 0.13, 0.10), 8, 4, facing, upTo=0.5, ink=True)
        brow = [tip(0.60, 1.71, 0.40), ring(0.72, 1.66, 0.07, 0.045, y=0.27, points=4), tip(0.83, 1.60, 0.09)]
        duck.tube(brow if side > 0 else mirrored(brow), ink=True)


if __name__ == "__main__":
    model = Builder()
    for part in (tub, fittings, body, head, bill, eyes):
        part(model)
    for name, share in (("duck", 1.0), ("duck-far", 0.5), ("duck-farthest", 0.25)):
        export("%s/%s.dae" % (sys.argv[-1], name), model, TO_FILE, HARD_EDGE, share)
