"""quackdash.mp3: the theme, written here as notes, played by FluidSynth, encoded by LAME.

Sixty-four bars of G major at 160 beats a minute, 96 seconds, that lead back into themselves.
"""
import os
import subprocess
import sys
import tempfile

import mido
import numpy
import soundfile

SOUND_FONT = "/usr/share/sounds/sf2/FluidR3_GM.sf2"
RATE = 44100
BEATS_A_MINUTE, TICKS = 160, 480
EIGHTH = TICKS // 2
BAR = 4 * TICKS
PEAK = 0.26 # of full scale, see check_mix.py

TUBA, BASS, GUITAR, MUTED, CLARINET, TRUMPET, OBOE, BASSOON, PICCOLO, ACCORDION = 58, 33, 27, 28, 71, 56, 68, 70, 72, 21
DRUMS = 9 # channel

# Tunes: one string a bar; a note is a name with octave, then its length in eighths; "-" rests.
TUNE_A = [
    "B4 1 B4 1 D5 2 B4 1 A4 1 G4 2",
    "B4 1 B4 1 D5 2 G5 2 - 2",
    "E5 1 E5 1 G5 2 E5 1 D5 1 C5 2",
    "E5 2 D5 1 C5 1 B4 2 - 2",
    "A4 1 A4 1 C5 2 A4 1 G4 1 F#4 2",
    "A4 1 B4 1 C5 1 D5 1 E5 1 F#5 1 D5 2",
    "G5 3 D5 1 B4 2 G4 2",
    "A4 1 B4 1 A4 1 F#4 1 D4 2 - 2",
]
CHORDS_A = "G G C C D7 D7 G D7".split()
TUNE_B = ["E5 4 G5 4", "E5 3 D5 1 C5 4", "D5 4 G5 4", "D5 3 C5 1 B4 4", "C#5 2 E5 2 A5 4", "G5 3 E5 1 C#5 4",
          "D5 1 F#5 1 A5 2 F#5 1 A5 1 D5 2", "D5 2 D5 1 D5 1 D5 1 E5 1 F#5 2"]
CHORDS_B = "C C G G A7 A7 D7 D7".split()
TUNE_C = ["E4 1 - 1 E4 1 - 1 G4 1 F#4 1 E4 2", "B4 1 - 1 B4 1 - 1 A4 1 G4 1 E4 2", "C5 1 A4 1 C5 1 E5 1 D5 1 C5 1 A4 2",
          "B4 1 G4 1 E4 1 G4 1 B4 2 - 2", "D#5 1 F#5 1 D#5 1 B4 1 A4 2 F#4 2", "B4 2 A4 1 G4 1 F#4 2 D#4 2",
          "E4 1 G4 1 B4 1 E5 1 G5 2 E5 2", "D5 1 D5 1 - 1 D5 1 D5 1 E5 1 F#5 2"]
CHORDS_C = "Em Em Am Em B7 B7 Em D7".split()
CHORDS = {
    "G": (43, "G3 B3 D4"),
    "C": (36, "G3 C4 E4"),
    "D7": (38, "F#3 C4 D4"),
    "A7": (45, "G3 C#4 E4"),
    "Em": (40, "G3 B3 E4"),
    "Am": (45, "A3 C4 E4"),
    "B7": (47, "F#3 A3 D#4"),
}


def pitch(name):
    steps = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}
    return 12 * (int(name[-1]) + 1) + steps[name[0]] + name.count("#")


G_MAJOR = [0, 2, 4, 6, 7, 9, 11] # pitch classes


def thirdBelow(key):
    """The note two steps lower in the scale of the theme."""
    scale = [k for k in range(128) if k % 12 in G_MAJOR]
    return scale[scale.index(key) - 2]


class Score:
    """Notes on sixteen channels, collected in any order."""

    def __init__(self):
        self.events, self.channels = [(0, 0, mido.Message("control_change", control=7, value=114, channel=DRUMS))], {}

    def voice(self, name, program, volume, pan):
        channel = [c for c in range(16) if c != DRUMS][len(self.channels)]
        self.channels[name] = channel
        for message in (mido.Message("program_change", program=program, channel=channel),
                        mido.Message("control_change", control=7, value=volume, channel=channel),
                        mido.Message("control_change", control=10, value=pan, channel=channel),
                        mido.Message("control_change", control=91, value=45, channel=channel)):
            self.events.append((0, 0, message))

    def note(self, voice, start, length, key, velocity):
        channel = DRUMS if voice == "drums" else self.channels[voice]
        self.events.append((start, 2, mido.Message("note_on", note=key, velocity=velocity, channel=channel)))
        self.events.append((start + length, 1, mido.Message("note_off", note=key, channel=channel)))

    def tune(self, voice, start, bars, velocity, shift=0, harmony=lambda key: key):
        at = start
        for bar in bars:
            words = bar.split()
            for name, eighths in zip(words[::2], map(int, words[1::2])):
                if name != "-":
                    accent = 8 if (at - start) % BAR == 0 else 0
                    length = round(eighths * EIGHTH * (0.85 if eighths < 3 else 0.95))
                    self.note(voice, at, length, harmony(pitch(name)) + shift, velocity + accent)
                at += eighths * EIGHTH
        assert at - start == len(bars) * BAR, "a bar is not full"

    def write(self, path):
        track = mido.MidiTrack([mido.MetaMessage("set_tempo", tempo=mido.bpm2tempo(BEATS_A_MINUTE))])
        now = 0
        for time, _, message in sorted(self.events, key=lambda event: event[:2]):
            track.append(message.copy(time=time - now))
            now = time
        mido.MidiFile(ticks_per_beat=TICKS, tracks=[track]).save(path)


KICK, SNARE, HAT, CRASH, TOM_HIGH, TOM_LOW, CUICA, WOOD = 36, 38, 42, 49, 48, 45, 78, 76


def rhythm(score, start, chords, style):
    for index, name in enumerate(chords):
        at = start + index * BAR
        root, spread = CHORDS[name]
        fifth = root - 5 if root > 40 else root + 7
        for beat, key in ((0, root), (2, fifth)):
            score.note("tuba", at + beat * TICKS, round(TICKS * 0.8), key, 100)
        if style == "surf":
            for eighth, key in enumerate((0, 0, 7, 7, 12, 12, 7, 7)):
                score.note("bass", at + eighth * EIGHTH, EIGHTH - 20, root + key - (12 if root > 43 else 0), 80)
        for beat in range(4):
            for key in spread.split():
                offbeat = at + beat * TICKS + EIGHTH
                score.note("skank", offbeat, EIGHTH * 2 // 3, pitch(key) + 12, 90)
                if style == "full" and beat % 2:
                    score.note("accordion", at + beat * TICKS, EIGHTH, pitch(key) + 12, 80)
        drums(score, at, style, index == len(chords) - 1)


def drums(score, at, style, last):
    def hit(eighth, key, velocity):
        score.note("drums", at + round(eighth * EIGHTH), 60, key, velocity)

    for eighth in (0, 4) if style != "surf" else (0, 3, 4):
        hit(eighth, KICK, 100)
    for eighth in range(8):
        hit(eighth, HAT, 62 if eighth % 2 else 46)
    if last:
        for step, key in enumerate((SNARE, SNARE, TOM_HIGH, TOM_HIGH, TOM_LOW, TOM_LOW, SNARE, SNARE)):
            hit(4 + step / 2, key, 84 + step // 2)
    else:
        for eighth in (2, 6) if style != "surf" else (2, 3, 6):
            hit(eighth, SNARE, 92)
        if style == "sparse":
            hit(3, WOOD, 60)
            hit(7, CUICA, 75)


def compose(score, start):
    """One round of the theme; returns where it ends."""
    def at(section):
        return start + section * 8 * BAR

    def lead(section, voice, tune, velocity, *how):
        score.tune(voice, at(section), tune, velocity, *how)

    rhythm(score, at(0), CHORDS_A, "plain")
    lead(0, "clarinet", TUNE_A, 92)
    rhythm(score, at(1), CHORDS_A, "full")
    lead(1, "clarinet", TUNE_A, 84)
    lead(1, "trumpet", TUNE_A, 92)
    rhythm(score, at(2), CHORDS_B, "full")
    lead(2, "trumpet", TUNE_B, 92)
    lead(2, "clarinet", TUNE_B, 70, -12)
    answers(score, at(2))
    rhythm(score, at(3), CHORDS_A, "full")
    lead(3, "trumpet", TUNE_A, 96)
    lead(3, "piccolo", TUNE_A, 84, 12)
    lead(3, "clarinet", TUNE_A, 80, 0, thirdBelow)
    rhythm(score, at(4), CHORDS_C, "sparse")
    lead(4, "bassoon", TUNE_C, 105, -12)
    rhythm(score, at(5), CHORDS_C, "surf")
    lead(5, "guitar", TUNE_C, 100)
    lead(5, "bassoon", TUNE_C, 85, -12)
    rhythm(score, at(6), CHORDS_B, "full")
    lead(6, "oboe", TUNE_B, 96)
    lead(6, "guitar", TUNE_B, 70, -12)
    answers(score, at(6))
    rhythm(score, at(7), CHORDS_A, "surf")
    lead(7, "trumpet", TUNE_A, 92)
    lead(7, "guitar", TUNE_A, 84, -12)
    lead(7, "piccolo", TUNE_A, 70, 12)
    lead(7, "clarinet", TUNE_A, 82, 0, thirdBelow)
    for section in (0, 1, 2, 3, 5, 6, 7):
        score.note("drums", at(section), 60, CRASH, 74)
    return at(8)


def answers(score, start):
    """Short quacks of the oboe in the gaps of the long notes."""
    for bar in (1, 3, 5):
        for eighth in (5, 6, 7):
            key = {1: 72, 3: 71, 5: 73}[bar]
            score.note("quack", start + bar * BAR + eighth * EIGHTH, EIGHTH // 2, key, 110)


def main(target):
    score = Score()
    for voice in (
            ("tuba", TUBA, 92, 60),
            ("bass", BASS, 84, 64),
            ("skank", MUTED, 104, 92),
            ("accordion", ACCORDION, 92, 36),
            ("clarinet", CLARINET, 98, 56),
            ("trumpet", TRUMPET, 110, 72),
            ("oboe", OBOE, 98, 60),
            ("bassoon", BASSOON, 102, 70),
            ("piccolo", PICCOLO, 98, 48),
            ("guitar", GUITAR, 114, 50),
            ("quack", OBOE, 112, 88),
    ):
        score.voice(*voice)
    # Two rounds are played and the second is kept: it begins with the echoes of its own end.
    end = compose(score, compose(score, 0))
    samples = round(end / 2 / TICKS * 60 / BEATS_A_MINUTE * RATE)

    with tempfile.TemporaryDirectory() as folder:
        midi, wave = os.path.join(folder, "theme.mid"), os.path.join(folder, "theme.wav")
        score.write(midi)
        subprocess.run(["fluidsynth", "-q", "-n", "-i", "-r", str(RATE), "-g", "0.5", "-o",
                       "synth.chorus.active=0", "-O", "float", "-T", "wav", "-F", wave, SOUND_FONT, midi], check=True)
        played = soundfile.read(wave)[0][samples:2 * samples]
        assert len(played) == samples, "the theme was cut short"
        soundfile.write(wave, leveled(played), RATE, subtype="PCM_16")
        subprocess.run(["lame", "--quiet", "-m", "j", "-b", "160", "-q", "2",
                       "--noreplaygain", wave, target + "/quackdash.mp3"], check=True)


def leveled(played):
    """At the agreed peak, with the loudest strokes rounded off so that the rest can be louder."""
    return numpy.tanh(played / numpy.abs(played).max() * 2.0) / numpy.tanh(2.0) * PEAK


main(sys.argv[1])
