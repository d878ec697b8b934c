#!/usr/bin/env python3
"""Writes the nine sounds of the game into this folder: synthesise.py

Each is a few lines of knocks and notes; the loudness, soft ends and the form of the file come from `finish`.
"""

import math
import random
import struct
import wave
from pathlib import Path

PEAK = 0.89  # of full scale: nothing clips
LOUDNESS = -15.0  # dB, of the loudest 100 ms, weighted as the ear does
SOFTER = LOUDNESS - 3  # for what is heard with every die
FADE_IN, FADE_OUT = 0.002, 0.03  # seconds


class Sound:
    """Samples from -1 to 1 (until `finish` more or less so) at a rate in Hz."""

    def __init__(self, rate, seconds):
        self.rate = rate
        self.samples = [0.0] * (2 * round(rate * seconds / 2))

    def add(self, start, length, function):
        """Adds function(t), t in seconds from `start`."""
        first = round(start * self.rate)
        for i in range(first, min(first + round(length * self.rate), len(self.samples))):
            self.samples[i] += function((i - first) / self.rate)

    def mode(self, start, frequency, level, decay, attack=0.0005):
        """One ringing frequency; it falls to a third in `decay` seconds."""
        if frequency < 0.45 * self.rate:
            self.add(start, 7 * decay + attack, lambda t: level * min(t / attack, 1) * math.exp(-t / decay)
                     * math.sin(2 * math.pi * frequency * t))

    def hiss(self, start, level, decay, low, noise):
        """A burst of noise below `low` Hz."""
        keep = math.exp(-2 * math.pi * low / self.rate)
        state = [0.0, 0.0]

        def function(t):
            state[0] += (1 - keep) * (noise.uniform(-1, 1) - state[0])
            state[1] += (1 - keep) * (state[0] - state[1])
            return level * min(t / 0.0005, 1) * math.exp(-t / decay) * state[1]

        self.add(start, 7 * decay, function)

    def die(self, start, level, pitch, noise):
        """A die that meets wood under felt: its own short click, the board's deeper knock, a little cloth."""
        self.mode(start, 1850 * pitch, 0.50 * level, 0.006)
        self.mode(start, 2930 * pitch, 0.22 * level * level, 0.004)
        self.mode(start, 760 * pitch, 0.55 * level, 0.012)
        self.mode(start, 330 * (0.7 + 0.3 * pitch), 0.50 * level, 0.022)
        self.hiss(start, 1.6 * level, 0.008, 2500, noise)

    def clack(self, start, level, pitch, noise):
        """Two dice that meet."""
        self.mode(start, 2450 * pitch, 0.45 * level, 0.005)
        self.mode(start, 3700 * pitch, 0.25 * level, 0.003)
        self.mode(start, 1280 * pitch, 0.30 * level, 0.006)
        self.hiss(start, 0.8 * level, 0.003, 4000, noise)

    def bar(self, start, frequency, level, decay):
        """A wooden bar struck with a soft mallet."""
        self.mode(start, frequency, level, decay, 0.003)
        self.mode(start, 3.98 * frequency, 0.22 * level, decay / 4, 0.002)
        self.mode(start, 9.2 * frequency, 0.06 * level, decay / 12, 0.001)

    def bell(self, start, frequency, level, decay):
        for ratio, share in ((0.5, 0.35), (1, 1), (1.19, 0.35), (1.5, 0.25), (2, 0.6), (2.52, 0.22), (3.01, 0.2),
                             (4.1, 0.12)):
            self.mode(start, frequency * ratio, share * level, decay / max(ratio, 0.7) ** 0.8, 0.0015)

    def horn(self, start, length, frequency, level, decay=math.inf):
        """A brass tone: the louder it is the brighter. It is held, or falls to a third in `decay` seconds."""

        def function(t):
            swell = min(t / 0.025, 1) * min((length - t) / 0.05, 1)
            swell *= (0.75 + 0.25 * math.exp(-t / 0.08)) * math.exp(-t / decay)
            bend = t + 0.0006 * (1 - math.exp(-t / 0.02))  # slides into its pitch
            tone = 0.0
            for k in range(1, 9):
                if k * frequency > 0.42 * 22050:
                    break
                tone += math.sin(2 * math.pi * k * frequency * bend) * (0.62 * max(swell, 0)) ** (k - 1) / k ** 0.35
            return level * max(swell, 0) * tone

        self.add(start, length, function)

    def band_limit(self, frequency):
        """Takes the sharpness above a frequency away, at 12 dB an octave."""
        keep = math.exp(-2 * math.pi * frequency / self.rate)
        for _ in range(2):
            last = 0.0
            for i, x in enumerate(self.samples):
                last += (1 - keep) * (x - last)
                self.samples[i] = last


def weighted(samples, rate):
    """What the ear makes of it: less of the bass, more of the brightness."""
    low = math.exp(-2 * math.pi * 120 / rate)
    shelf = math.exp(-2 * math.pi * 1500 / rate)
    slow = bright = 0.0
    result = []
    for x in samples:
        slow += (1 - low) * (x - slow)
        y = x - slow
        bright += (1 - shelf) * (y - bright)
        result.append(y + 0.4 * (y - bright))
    return result


def loudness(samples, rate):
    """dB of the loudest 100 ms."""
    power = [x * x for x in weighted(samples, rate)]
    window = rate // 10
    total = sum(power[:window])
    best = total
    for i in range(window, len(power)):
        total += power[i] - power[i - window]
        best = max(best, total)
    return 10 * math.log10(best / window)


def finish(sound, name, width, loud=LOUDNESS):
    samples, rate = sound.samples, sound.rate
    mean = sum(samples) / len(samples)
    samples = [x - mean for x in samples]
    for i in range(len(samples)):
        start, end = i / rate / FADE_IN, (len(samples) - 1 - i) / rate / FADE_OUT
        samples[i] *= 0.5 - 0.5 * math.cos(math.pi * min(start, end, 1))
    # Short knocks have high peaks: they are rounded off until the sound is as loud as the others.
    gain = 10 ** ((loud - loudness(samples, rate)) / 20)
    for _ in range(8):
        shaped = [PEAK * math.tanh(gain * x / PEAK) for x in samples]
        gain *= 10 ** ((loud - loudness(shaped, rate)) / 20)
    steps = 127 if width == 1 else 32767
    error = 0.0
    data = bytearray()
    for x in shaped:
        # The rounding error goes into the next sample: what is left of it is a soft hiss instead of a growl.
        wanted = x * steps - 0.6 * error if abs(x) * steps > 0.5 else x * steps
        value = max(-steps, min(steps, round(wanted)))
        error = value - wanted
        data += bytes([128 + value]) if width == 1 else struct.pack("<h", value)
    with wave.open(str(Path(__file__).parent / name), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(width)
        file.setframerate(rate)
        file.writeframes(bytes(data))
    print(f"{name:14}{len(shaped) / rate:6.3f} s  peak {max(map(abs, shaped)):.2f}"
          f"  loudness {loudness(shaped, rate):6.1f} dB  gain {gain:.2f}")


def one_die():
    sound, noise = Sound(22050, 0.51), random.Random(11)
    time, gap, level = 0.004, 0.118, 1.0
    while time < 0.46:
        sound.die(time, level, noise.uniform(0.92, 1.1), noise)
        time += gap
        gap *= 0.74
        level *= 0.78
        if gap < 0.018:
            break
    finish(sound, "101.wav", 1)


def more_dice():
    sound, noise = Sound(22050, 0.52), random.Random(33)
    for _ in range(5):  # each die bounces on its own
        time, gap, level = noise.uniform(0.004, 0.09), noise.uniform(0.085, 0.13), noise.uniform(0.7, 1)
        pitch = noise.uniform(0.85, 1.2)
        while time < 0.46 and gap > 0.02:
            sound.die(time, level, pitch * noise.uniform(0.96, 1.05), noise)
            time += gap
            gap *= noise.uniform(0.66, 0.84)
            level *= 0.76
    for _ in range(9):
        time = 0.3 * noise.random() ** 1.3
        sound.clack(0.01 + time, 0.75 * math.exp(-time / 0.2), noise.uniform(0.85, 1.15), noise)
    finish(sound, "102.wav", 1)


def move():
    sound, noise = Sound(11025, 0.16), random.Random(7)
    for start, level in ((0.004, 1), (0.052, 0.28), (0.078, 0.12)):
        sound.mode(start, 1240, 0.30 * level, 0.008)
        sound.mode(start, 610, 0.60 * level, 0.018)
        sound.mode(start, 255, 0.55 * level, 0.030)
        sound.hiss(start, 1.2 * level, 0.007, 1600, noise)
    finish(sound, "103.wav", 1, SOFTER)


def pass_with_points():
    sound = Sound(11025, 0.61)
    for start, frequency, level in ((0.004, 659.3, 0.8), (0.095, 987.8, 0.8), (0.19, 1318.5, 1)):
        sound.bar(start, frequency, level, 0.13)
    sound.bar(0.19, 659.3, 0.35, 0.12)
    finish(sound, "104.wav", 1)


def pass_without_points():
    sound, noise = Sound(22050, 0.56), random.Random(5)
    for start, frequency, level in ((0.004, 261.6, 0.9), (0.17, 196, 1)):
        sound.mode(start, frequency, level, 0.09, 0.004)
        sound.mode(start, 2 * frequency, 0.45 * level, 0.06, 0.004)
        sound.mode(start, 3.1 * frequency, 0.25 * level, 0.03, 0.003)
        sound.hiss(start, 1.5 * level, 0.015, 500, noise)
    sound.band_limit(1100)
    finish(sound, "105.wav", 1)


def bust():
    """Somebody slides off the stool: a groan that falls and wobbles, and a thud."""
    sound, noise = Sound(11025, 0.54), random.Random(3)
    fall, phase = 0.40, 0.0
    for i in range(round(fall * sound.rate)):
        t = i / sound.rate
        part = t / fall
        frequency = 520 * (145 / 520) ** (part ** 1.25) * (1 + 0.045 * part * math.sin(2 * math.pi * 13 * t))
        phase += 2 * math.pi * frequency / sound.rate
        mouth = 0.25 + 0.55 * math.sin(math.pi * min(1, part * 1.1)) ** 2  # opens and closes: a "wah"
        tone = sum(math.sin(k * phase) * mouth ** (k - 1) / k ** 0.3 for k in range(1, 8) if k * frequency < 4800)
        sound.samples[i] += 0.5 * tone * min(t / 0.02, 1) * min((fall - t) / 0.05, 1)
    sound.mode(0.41, 92, 1.1, 0.045, 0.002)
    sound.mode(0.41, 184, 0.7, 0.03, 0.002)
    sound.mode(0.41, 420, 0.35, 0.015)
    sound.hiss(0.41, 2.0, 0.018, 700, noise)
    finish(sound, "106.wav", 1)


def undo():
    """The die is drawn back over the felt and put down."""
    sound, noise = Sound(22050, 0.25), random.Random(2)
    state = [0.0, 0.0]
    length = 0.13

    def draw(t):  # a band of noise that rises, through a filter that rings at the wanted frequency
        frequency = 500 + 1500 * (t / length) ** 1.5
        strength = 2 * math.sin(math.pi * frequency / sound.rate)
        state[0] += strength * state[1]
        state[1] += strength * (noise.uniform(-1, 1) - state[0] - 0.5 * state[1])
        return 0.22 * state[1] * math.sin(math.pi * t / length) ** 2

    sound.add(0.002, length, draw)
    for start, frequency, level in ((0.035, 520, 0.35), (0.128, 780, 0.8)):
        sound.mode(start, frequency, 0.6 * level, 0.022, 0.001)
        sound.mode(start, 2.7 * frequency, 0.25 * level, 0.008)
        sound.mode(start, 300, 0.4 * level, 0.02)
        sound.hiss(start, 0.7 * level, 0.006, 2200, noise)
    finish(sound, "107.wav", 2, SOFTER)


def game_over():
    sound = Sound(11025, 0.48)
    sound.bell(0.003, 784, 1, 0.11)
    sound.bell(0.1, 1046.5, 0.9, 0.095)  # silent before the sound ends, so that nothing is cut off
    finish(sound, "108.wav", 1)


def going_out():
    sound = Sound(22050, 0.90)
    for start, length, frequency in ((0.004, 0.13, 392), (0.125, 0.13, 523.3), (0.245, 0.14, 659.3)):
        sound.horn(start, length, frequency, 0.5)
        sound.horn(start, length, frequency * 1.004, 0.25)
    for frequency, level in ((392, 0.3), (523.3, 0.32), (659.3, 0.3), (784, 0.66)):
        sound.horn(0.375, 0.50, frequency, level, 0.16)
    sound.bell(0.375, 1568, 0.25, 0.16)
    finish(sound, "109.wav", 1)


if __name__ == "__main__":
    for write in (one_die, more_dice, move, pass_with_points, pass_without_points, bust, undo, game_over, going_out):
        write()
