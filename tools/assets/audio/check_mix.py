"""Stops if the game's loudest moment would clip: music, six engines in step and ten shots fired in one instant.

Volumes are the game's own. Engines play three times as fast as they are stored, which doesn't change their peak.
"""
import sys

import numpy
import soundfile

ENGINES, SHOTS = 6, 10
MUSIC_VOLUME, ENGINE_VOLUME, SHOT_VOLUME, DUCK_VOLUME = 1.0, 0.6, 0.3, 1.0


def peak(name):
    return numpy.abs(soundfile.read(sys.argv[1] + "/" + name)[0]).max()


music = MUSIC_VOLUME * peak("quackdash.mp3")
engines = ENGINES * ENGINE_VOLUME * peak("engine.wav")
shots = SHOTS * SHOT_VOLUME * peak("bang.wav")
duck = DUCK_VOLUME * peak("duck.wav")
print("peaks as heard: music %.2f, six engines %.2f, ten shots %.2f, a duck %.2f" % (music, engines, shots, duck))
if music + engines + shots > 1.0:
    sys.exit("music, engines and shots clip: %.2f" % (music + engines + shots))
if music + engines + duck > 1.0:
    sys.exit("music, engines and a duck clip: %.2f" % (music + engines + duck))
