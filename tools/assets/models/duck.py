"""duck.dae: a duck in a pedal car, one mesh in one colour.

Built in the car's own units: x ahead, y left, z up, the origin at the chassis origin. The game draws the wheels itself: radius 0.45
and 0.35 wide, at x = +-1.51, y = +-0.92, z = -0.75; the front ones steer by up to 60 degrees and all sink in by up to 0.3.
"""
import os
import sys

from mathutils import Euler, Matrix, Vector

sys.path.append(os.path.dirname(os.path.abspath(__file__)))
from shapes import Builder, circle, export, oval

UNIT = 0.015 # the game shrinks the file's units to this
# File: x ahead, y up, z to the right; the importer mirrors z.
TO_FILE = Matrix(((1, 0, 0), (0, 0, 1), (0, -1, 0))) * (1 / UNIT)


def turn(roll, pitch, yaw):
    """Rotation by degrees about x, then y, then z."""
    return Euler([angle * 3.14159265 / 180 for angle in (roll, pitch, yaw)]).to_matrix()


def hull(car):
    car.tube([oval(x, 0, z, width, height, 12, 3.2) for x, z, width, height in (
        (-1.74, -0.42, 0.34, 0.14),
        (-1.62, -0.42, 0.52, 0.24),
        (-1.15, -0.40, 0.64, 0.34),
        (-0.85, -0.38, 0.84, 0.38),
        (0.60, -0.38, 0.84, 0.38),
        (0.95, -0.36, 0.52, 0.36),
        (1.35, -0.36, 0.42, 0.30),
        (1.80, -0.40, 0.36, 0.22),
        (1.90, -0.42, 0.26, 0.13))])
    car.torus((-0.12, 0, 0.02), (0.86, 0.72), 0.13, 16, 5)
    for x in (-1.511, 1.511):
        car.rod((x, -0.80, -0.75), (x, 0.80, -0.75), 0.10, 6)
        car.rod((x, 0, -0.80), (x, 0, -0.45), 0.12, 6)
    car.rod((2.02, -0.62, -0.62), (2.02, 0.62, -0.62), 0.11, 6)
    for side in (1, -1):
        car.rod((1.70, side * 0.2, -0.55), (2.02, side * 0.2, -0.62), 0.07, 5)
        car.ellipsoid((1.50, side * 0.36, -0.06), (0.20, 0.20, 0.20), 8, 4, turn(0, 80, 0))
        car.rod((-1.45, side * 0.34, -0.62), (-2.0, side * 0.34, -0.55), 0.10, 6, 0.13)
        car.rod((-1.97, side * 0.34, -0.553), (-2.02, side * 0.34, -0.547), 0.08, 6, ink=True)


def steering(car):
    car.torus((0.86, 0, 0.48), (0.27, 0.27), 0.05, 10, 4, turn(0, -55, 0))
    car.rod((1.15, 0, 0.0), (0.86, 0, 0.48), 0.05, 4)


def body(duck):
    duck.ellipsoid((-0.15, 0, 0.22), (0.82, 0.62, 0.52), 14, 8, turn(0, 6, 0))
    duck.tube([oval(x, 0, z, width, height, 8) for x, z, width, height in (
        (-0.45, 0.35, 0.46, 0.36), (-0.85, 0.52, 0.36, 0.20), (-1.15, 0.74, 0.25, 0.10))][::-1]
        + [], capStart=True, capEnd=False)
    for side in (1, -1):
        rings = [[Vector((p.x, side * p.y, p.z)) for p in oval(x, y, z, thick, height, 8)[::1]]
                 for x, y, z, thick, height in (
                     (0.38, 0.56, 0.36, 0.05, 0.10), (0.15, 0.68, 0.36, 0.13, 0.25), (-0.25, 0.74, 0.42, 0.13, 0.26),
                     (-0.60, 0.78, 0.54, 0.09, 0.18), (-0.90, 0.84, 0.68, 0.04, 0.07))]
        rings = rings[::-1]
        duck.tube([ring[::-1] for ring in rings] if side < 0 else rings)


def head(duck):
    duck.tube([oval(x, 0, z, r, 0.3, 10) for x, z, r in ((0.2, 0.5, 0.3), (0.3, 0.8, 0.3))][:0] or
              [[Vector((0.28 + 0.36 * c, 0.36 * s, 0.55)) for c, s in circle(10)],
               [Vector((0.32 + 0.27 * c, 0.27 * s, 0.90)) for c, s in circle(10)]], capStart=False, capEnd=False)
    duck.ellipsoid((0.36, 0, 1.22), (0.46, 0.45, 0.44), 12, 8)
    upper = [oval(x, 0, z, width, height, 8) for x, z, width, height in (
        (0.66, 1.19, 0.20, 0.14), (0.90, 1.16, 0.20, 0.10), (1.10, 1.17, 0.26, 0.065), (1.24, 1.21, 0.20, 0.045))]
    duck.tube(upper, capStart=False)
    lower = [oval(x, 0, z, width, height, 8) for x, z, width, height in (
        (0.60, 1.05, 0.15, 0.07), (0.85, 0.96, 0.17, 0.06), (1.06, 0.91, 0.18, 0.045))]
    duck.tube(lower, capStart=False)
    for side in (1, -1):
        outward = Vector((0.78, side * 0.62, 0.22)).normalized()
        eye = Vector((0.58, side * 0.22, 1.40))
        facing = outward.to_track_quat("Z", "Y").to_matrix()
        duck.ellipsoid(eye, (0.14, 0.14, 0.15), 8, 6, facing)
        duck.ellipsoid(eye + outward * 0.06, (0.085, 0.085, 0.11), 8, 4, facing, upTo=0.5, ink=True)


model = Builder()
hull(model)
steering(model)
body(model)
head(model)
export(sys.argv[-1] + "/duck.dae", model, TO_FILE, 50)
