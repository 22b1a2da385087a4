"""Outlines: parsing of path texts, basic shapes, affine maps and flattening.

An outline is a list of absolute segments: ("M", x, y), ("L", x, y),
("C", x1, y1, x2, y2, x, y) and ("Z",). A map (a, b, c, d, e, f) takes x, y to
a x + c y + e, b x + d y + f.
"""

import math
import re

IDENTITY = (1.0, 0.0, 0.0, 1.0, 0.0, 0.0)
KAPPA = 0.5522847498  # how far the control points of a quarter circle of radius 1 are from its ends
_TOKEN = re.compile(r"[A-Za-z]|[-+]?(?:\d+\.?\d*|\.\d+)")


def multiply(m, n):
    """The map that applies n first and m afterwards."""
    a, b, c, d, e, f = m
    p, q, r, s, t, u = n
    return (a * p + c * q, b * p + d * q, a * r + c * s, b * r + d * s,
            a * t + c * u + e, b * t + d * u + f)


def placing(x=0, y=0, scale=1, turn=0):
    """The map that turns by degrees (clockwise) and scales, then moves to x, y."""
    k, s = math.cos(math.radians(turn)) * scale, math.sin(math.radians(turn)) * scale
    return (k, s, -s, k, x, y)


def factor(m):
    """By how much a map enlarges lengths, on average."""
    return math.sqrt(abs(m[0] * m[3] - m[1] * m[2]))


def apply(m, x, y):
    return m[0] * x + m[2] * y + m[4], m[1] * x + m[3] * y + m[5]


def mapped(outline, m):
    result = []
    for kind, *values in outline:
        points = []
        for i in range(0, len(values), 2):
            points += apply(m, values[i], values[i + 1])
        result.append((kind, *points))
    return result


def parse(text):
    """Reads a path text with the commands M L H V C S Q A Z, absolute or relative."""
    tokens = _TOKEN.findall(text)
    result, i, command = [], 0, ""
    x = y = start_x = start_y = 0.0
    control = None  # the second control point of the last C or S, which the next S mirrors
    while i < len(tokens):
        if tokens[i].isalpha():
            command = tokens[i]
            i += 1
        upper, relative = command.upper(), command.islower()
        if upper == "Z":
            result.append(("Z",))
            x, y, control = start_x, start_y, None
            continue
        count = {"M": 2, "L": 2, "H": 1, "V": 1, "C": 6, "S": 4, "Q": 4, "A": 7}[upper]
        v = [float(t) for t in tokens[i:i + count]]
        if len(v) < count:
            raise ValueError(f"path ends early: {text!r}")
        i += count
        if relative:
            if upper == "H":
                v[0] += x
            elif upper == "V":
                v[0] += y
            elif upper == "A":
                v[5] += x
                v[6] += y
            else:
                v = [n + (y if k % 2 else x) for k, n in enumerate(v)]
        after = None
        if upper == "H":
            v = [v[0], y]
        elif upper == "V":
            v = [x, v[0]]
        if upper == "M":
            start_x, start_y = v
            result.append(("M", *v))
            command = "l" if relative else "L"
        elif upper in "LHV":
            result.append(("L", *v))
        elif upper == "Q":
            cx, cy, ex, ey = v
            result.append(("C", x + (cx - x) * 2 / 3, y + (cy - y) * 2 / 3,
                           ex + (cx - ex) * 2 / 3, ey + (cy - ey) * 2 / 3, ex, ey))
        elif upper == "A":
            result += _arc(x, y, *v)
        else:
            if upper == "S":
                first = (2 * x - control[0], 2 * y - control[1]) if control else (x, y)
                v = [*first, *v]
            result.append(("C", *v))
            after = (v[2], v[3])
        x, y, control = v[-2], v[-1], after
    return result


def _arc(x0, y0, rx, ry, turn, large, sweep, x1, y1):
    """An elliptic arc given by its ends, as cubic pieces of at most a quarter turn."""
    if (x0, y0) == (x1, y1):
        return []
    k, s = math.cos(math.radians(turn)), math.sin(math.radians(turn))
    dx, dy = (x0 - x1) / 2, (y0 - y1) / 2
    px, py = k * dx + s * dy, k * dy - s * dx
    grow = math.sqrt(max(1.0, px * px / (rx * rx) + py * py / (ry * ry)))
    rx, ry = rx * grow, ry * grow
    below = rx * rx * py * py + ry * ry * px * px
    root = math.sqrt(max(0.0, (rx * rx * ry * ry - below) / below))
    if bool(large) == bool(sweep):
        root = -root
    qx, qy = root * rx * py / ry, -root * ry * px / rx
    cx, cy = k * qx - s * qy + (x0 + x1) / 2, s * qx + k * qy + (y0 + y1) / 2
    first = math.atan2((py - qy) / ry, (px - qx) / rx)
    last = math.atan2((-py - qy) / ry, (-px - qx) / rx)
    if sweep and last < first:
        last += 2 * math.pi
    if not sweep and last > first:
        last -= 2 * math.pi
    pieces = max(1, math.ceil(abs(last - first) / (math.pi / 2) - 1e-9))  # no extra piece for a rounding error
    step = (last - first) / pieces
    t = 4 / 3 * math.tan(step / 4)
    m = (k * rx, s * rx, -s * ry, k * ry, cx, cy)
    result = []
    for n in range(pieces):
        a, b = first + n * step, first + (n + 1) * step
        ca, sa, cb, sb = math.cos(a), math.sin(a), math.cos(b), math.sin(b)
        result.append(("C", *apply(m, ca - t * sa, sa + t * ca),
                       *apply(m, cb + t * sb, sb - t * cb), *apply(m, cb, sb)))
    return result


def ellipse(cx, cy, rx, ry=None):
    ry = rx if ry is None else ry
    a, b = rx * KAPPA, ry * KAPPA
    return [("M", cx + rx, cy),
            ("C", cx + rx, cy + b, cx + a, cy + ry, cx, cy + ry),
            ("C", cx - a, cy + ry, cx - rx, cy + b, cx - rx, cy),
            ("C", cx - rx, cy - b, cx - a, cy - ry, cx, cy - ry),
            ("C", cx + a, cy - ry, cx + rx, cy - b, cx + rx, cy), ("Z",)]


def rect(x, y, w, h, r=0):
    if not r:
        return [("M", x, y), ("L", x + w, y), ("L", x + w, y + h), ("L", x, y + h), ("Z",)]
    r = min(r, w / 2, h / 2)
    return parse(f"M{x + r} {y}H{x + w - r}A{r} {r} 0 0 1 {x + w} {y + r}V{y + h - r}"
                 f"A{r} {r} 0 0 1 {x + w - r} {y + h}H{x + r}A{r} {r} 0 0 1 {x} {y + h - r}"
                 f"V{y + r}A{r} {r} 0 0 1 {x + r} {y}Z")


def polyline(numbers, closed=False):
    result = [("L" if i else "M", numbers[i], numbers[i + 1]) for i in range(0, len(numbers), 2)]
    return result + [("Z",)] if closed else result


def star(cx, cy, outer, inner, points=5, turn=-90):
    numbers = []
    for i in range(int(points) * 2):
        r = inner if i % 2 else outer
        a = math.radians(turn + 180 * i / points)
        numbers += [cx + r * math.cos(a), cy + r * math.sin(a)]
    return polyline(numbers, True)


def flatten(outline, tolerance=0.1):
    """The outline as polylines: a list of (points, closed). A curve becomes at most 40 lines, no more than `tolerance` needs."""
    result, points = [], []
    for kind, *v in outline:
        if kind == "M":
            if points:
                result.append((points, False))
            points = [(v[0], v[1])]
        elif kind == "L":
            if not points:                      # after Z, a segment starts where the closed one did
                points = [result[-1][0][0]]
            points.append((v[0], v[1]))
        elif kind == "C":
            if not points:
                points = [result[-1][0][0]]
            x0, y0 = points[-1]
            x1, y1, x2, y2, x3, y3 = v
            bend = math.hypot(x0 - 2 * x1 + x2, y0 - 2 * y1 + y2) + \
                math.hypot(x1 - 2 * x2 + x3, y1 - 2 * y2 + y3)
            count = max(1, min(40, math.ceil(math.sqrt(bend / tolerance))))
            for n in range(1, count + 1):
                t = n / count
                u = 1 - t
                a, b, c, d = u * u * u, 3 * u * u * t, 3 * u * t * t, t * t * t
                points.append((a * x0 + b * x1 + c * x2 + d * x3, a * y0 + b * y1 + c * y2 + d * y3))
        elif points:
            result.append((points, True))
            points = []
    if points:
        result.append((points, False))
    return result
