"""area.py WIDTH HEIGHT SIDE: RGBA pixels on standard input, as large as they fit in the middle of a
square, each pixel the average of the area it covers, in fractions."""
import sys
from fractions import Fraction

def cover(cell, cells, pixels):
    """Which pixels of a line one of the cells covers, and how much of each."""
    start, end = Fraction(cell * pixels, cells), Fraction((cell + 1) * pixels, cells)
    for pixel in range(int(start), pixels):
        if pixel >= end: break
        yield pixel, min(end, pixel + 1) - max(start, pixel)

width, height, side = map(int, sys.argv[1:])
pixels = sys.stdin.buffer.read()
columns, rows = (each * side // max(width, height) for each in (width, height))
square = bytearray(4 * side * side)
for y in range(rows):
    for x in range(columns):
        sums = [0, 0, 0, 0]
        for row, tall in cover(y, rows, height):
            for column, wide in cover(x, columns, width):
                *color, alpha = pixels[4 * (row * width + column):][:4]
                sums = [sum + tall * wide * alpha * level for sum, level in zip(sums, color + [1])]
        alpha = int(sums[3] * columns * rows / (width * height) + Fraction(1, 2))
        at = 4 * (((side - rows) // 2 + y) * side + (side - columns) // 2 + x)
        if alpha > 0:
            square[at:at + 4] = [int(sum / sums[3] + Fraction(1, 2)) for sum in sums[:3]] + [alpha]
sys.stdout.buffer.write(square)
