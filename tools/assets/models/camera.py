"""camera.dae: a film camera that marks where a camera of the game stands, about one unit long.

It lies wholly behind the eye, so that it never blocks the view of the camera that it marks.
"""
import os
import sys

from mathutils import Matrix

sys.path.append(os.path.dirname(os.path.abspath(__file__)))
from shapes import Builder, export

# A camera looks along -z with y up; the importer mirrors z.
TO_FILE = Matrix(((0, 1, 0), (0, 0, 1), (1, 0, 0)))

camera = Builder()
camera.box((-0.80, -0.13, -0.19), (-0.30, 0.13, 0.19))
camera.rod((-0.30, 0, 0.02), (-0.14, 0, 0.02), 0.10, 10)
camera.rod((-0.14, 0, 0.02), (-0.02, 0, 0.02), 0.12, 10, 0.17)
camera.rod((-0.95, 0.05, 0.12), (-0.80, 0.05, 0.12), 0.06, 6)
for x, radius in ((-0.38, 0.20), (-0.76, 0.17)):
    camera.rod((x, -0.06, 0.19 + radius), (x, 0.06, 0.19 + radius), radius, 12)
    camera.rod((x, -0.09, 0.19 + radius), (x, 0.09, 0.19 + radius), 0.05, 6)
camera.rod((-0.55, 0, -0.19), (-0.55, 0, -0.34), 0.07, 6)
export(sys.argv[-1] + "/camera.dae", camera, TO_FILE, 35)
