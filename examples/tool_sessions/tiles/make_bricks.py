#!/usr/bin/env python3
"""Writes bricks.png, the 64 x 64 brick tile the bitmap session places: two rows of bricks per
tile, offset by half a brick, so that the tile repeats without a seam. Standard library only."""
import struct
import sys
import zlib

SIZE = 64
BRICK_W, BRICK_H, MORTAR = 32, 16, 2


def brick_colour(row, column):
    # A few warm shades, chosen per brick so that the wall does not look printed.
    shades = [(178, 74, 52), (160, 62, 44), (190, 88, 60), (170, 70, 50)]
    return shades[(row * 3 + column * 5) % len(shades)]


def pixel(x, y):
    row = y // BRICK_H
    shift = (BRICK_W // 2) if row % 2 else 0
    bx = (x + shift) % SIZE
    column = bx // BRICK_W
    in_x, in_y = bx % BRICK_W, y % BRICK_H
    if in_x < MORTAR or in_y < MORTAR:
        return (214, 208, 196, 255)
    r, g, b = brick_colour(row, column)
    # A little light from the top left of each brick.
    light = 18 - (in_x + in_y) // 3
    return (max(0, min(255, r + light)), max(0, min(255, g + light)), max(0, min(255, b + light)), 255)


def chunk(kind, data):
    body = kind + data
    return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body) & 0xFFFFFFFF)


def main(path):
    rows = b"".join(b"\0" + bytes(c for x in range(SIZE) for c in pixel(x, y)) for y in range(SIZE))
    png = b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", SIZE, SIZE, 8, 6, 0, 0, 0))
    png += chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b"")
    with open(path, "wb") as out:
        out.write(png)


if __name__ == "__main__":
    main(sys.argv[1] if len(sys.argv) > 1 else "bricks.png")
