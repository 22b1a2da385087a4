"""Pixels of a drawing: an anti-aliasing scan converter, and the PNG form."""

import math
import struct
import zlib

import paths
from canvas import Gradient

SUBLINES = 5  # lines per row of pixels at which the outlines are sampled


def _stroke(lines, width, butt):
    """Polygons with the same orientation that together cover a stroke with round joins and, unless `butt`, round ends."""
    r = width / 2
    sides = max(8, min(48, int(8 * math.sqrt(r))))
    disc = [(r * math.cos(2 * math.pi * k / sides), r * math.sin(2 * math.pi * k / sides))
            for k in range(sides)]
    polygons = []
    for points, closed in lines:
        ring = points + [points[0]] if closed else points
        for (x0, y0), (x1, y1) in zip(ring, ring[1:]):
            length = math.hypot(x1 - x0, y1 - y0)
            if length:
                nx, ny = -(y1 - y0) / length * r, (x1 - x0) / length * r
                polygons.append([(x0 - nx, y0 - ny), (x1 - nx, y1 - ny),
                                 (x1 + nx, y1 + ny), (x0 + nx, y0 + ny)])
        dots = ring if not butt else ring[1:-1]
        polygons += [[(x + dx, y + dy) for dx, dy in disc] for x, y in dots]
    return polygons


def _spans(polygons, width, height):
    """Yields (row, {pixel: coverage}, [(first, end)]) for each row of pixels that the polygons touch. Each of the SUBLINES lines in
    a row adds runs of pixels that are covered along the whole line, and up to 1 to the coverage of a pixel that is covered in
    part. So a pixel is full if its coverage and the number of runs with it add up to SUBLINES."""
    rows = {}
    for polygon in polygons:
        for (x0, y0), (x1, y1) in zip(polygon, polygon[1:] + polygon[:1]):
            if y0 == y1:
                continue
            wind = 1 if y1 > y0 else -1
            if wind < 0:
                x0, y0, x1, y1 = x1, y1, x0, y0
            slope = (x1 - x0) / (y1 - y0)
            first = max(0, math.ceil(y0 * SUBLINES - 0.5))
            last = min(height * SUBLINES - 1, math.ceil(y1 * SUBLINES - 0.5) - 1)
            for s in range(first, last + 1):
                rows.setdefault(s, []).append((x0 + ((s + 0.5) / SUBLINES - y0) * slope, wind))
    for row in range(height):
        cover, runs = {}, []
        for s in range(row * SUBLINES, (row + 1) * SUBLINES):
            winding, start = 0, 0
            for x, wind in sorted(rows.get(s, ())):
                if winding == 0:
                    start = x
                winding += wind
                if winding == 0 and x > start:
                    a, b = max(0.0, start), min(float(width), x)
                    if a >= b:
                        continue
                    i, j = int(a), int(b)
                    if i == j:
                        cover[i] = cover.get(i, 0) + b - a
                        continue
                    cover[i] = cover.get(i, 0) + i + 1 - a
                    if b > j:
                        cover[j] = cover.get(j, 0) + b - j
                    if j > i + 1:
                        runs.append((i + 1, j))
        if cover or runs:
            yield row, cover, runs


def _colour(text):
    return int(text[1:3], 16), int(text[3:5], 16), int(text[5:7], 16)


def _shader(paint):
    """Function from a point to the colour of a gradient."""
    x0, y0, x1, y1 = paint.line
    dx, dy = x1 - x0, y1 - y0
    length = dx * dx + dy * dy or 1
    (r, g, b), last = _colour(paint.first), _colour(paint.last)
    dr, dg, db = last[0] - r, last[1] - g, last[2] - b

    def shade(x, y):
        t = ((x - x0) * dx + (y - y0) * dy) / length
        t = min(max(t, 0), 1)
        return r + dr * t, g + dg * t, b + db * t
    return shade


def render(drawing, scale):
    """Rows of (red, green, blue, alpha) pixels: floats, the colours multiplied by alpha."""
    width, height = round(drawing.width * scale), round(drawing.height * scale)
    image = [[(0.0, 0.0, 0.0, 0.0)] * width for _ in range(height)]
    m = paths.placing(scale=scale)
    for item in drawing.items:
        lines = paths.flatten(paths.mapped(item.outline, m))
        if item.fill:
            paint = item.fill
            if isinstance(paint, Gradient):
                paint = Gradient(paint.first, paint.last, tuple(v * scale for v in paint.line))
            _paint(image, [p for p, _ in lines], paint, item.opacity)
        if item.stroke:
            _paint(image, _stroke(lines, item.width * scale, item.butt), item.stroke, item.opacity)
    return image


def _paint(image, polygons, paint, opacity):
    """Paints the polygons over the image; with an opacity below 1 it shows through."""
    height, width = len(image), len(image[0])
    fade = isinstance(paint, Gradient)
    plain = None if fade else _colour(paint)
    shade = _shader(paint) if fade else None
    for y, cover, runs in _spans(polygons, width, height):
        line = image[y]
        ends = {}
        for a, b in runs:
            ends[a] = ends.get(a, 0) + 1
            ends[b] = ends.get(b, 0) - 1
        full = 0
        # The pixels at which the coverage changes.
        marks = sorted(set(ends) | set(cover) | {x + 1 for x in cover})
        for x, following in zip(marks, marks[1:] + [width]):
            full += ends.get(x, 0)
            amount = (cover.get(x, 0) + full) / SUBLINES * opacity
            if amount <= 0.001:
                continue
            if amount > 0.999 and not fade:
                line[x:following] = [(*plain, 1.0)] * (following - x)
                continue
            amount = min(1.0, amount)
            keep = 1 - amount
            for i in range(x, following):
                r, g, b = shade(i + 0.5, y + 0.5) if fade else plain
                o = line[i]
                line[i] = (o[0] * keep + r * amount, o[1] * keep + g * amount,
                           o[2] * keep + b * amount, o[3] * keep + amount)


def png(drawing, scale):
    image = render(drawing, scale)
    lines = bytearray()
    for row in image:
        lines.append(0)  # this row is not filtered
        for r, g, b, a in row:
            alpha = int(a * 255 + 0.5)
            k = 1 / a if alpha else 0
            lines += bytes((min(255, int(r * k + 0.5)), min(255, int(g * k + 0.5)),
                            min(255, int(b * k + 0.5)), alpha))

    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + \
            struct.pack(">I", zlib.crc32(kind + body))

    header = struct.pack(">IIBBBBB", len(image[0]), len(image), 8, 6, 0, 0, 0)  # 8 bits a channel, RGBA
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"sRGB", b"\0") + \
        chunk(b"IDAT", zlib.compress(bytes(lines), 9)) + chunk(b"IEND", b"")
