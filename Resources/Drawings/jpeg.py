"""Baseline JPEG of a drawing: no chroma subsampling, the quantization tables of the standard's annex K, optimal Huffman codes."""

import math
import struct

from raster import render

# The order in which the 64 coefficients of a block are stored: diagonal by diagonal, alternately up and down.
_ZIGZAG = sorted(range(64), key=lambda k: (
    k // 8 + k % 8, (k // 8 if (k // 8 + k % 8) % 2 else k % 8)))
_LUMA = """16 11 10 16 24 40 51 61 12 12 14 19 26 58 60 55 14 13 16 24 40 57 69 56
14 17 22 29 51 87 80 62 18 22 37 56 68 109 103 77 24 35 55 64 81 104 113 92
49 64 78 87 103 121 120 101 72 92 95 98 112 100 103 99""".split()
# The upper left quarter; the rest is 99.
_CHROMA = [17, 18, 24, 47, 18, 21, 26, 66, 24, 26, 56, 99, 47, 66, 99, 99]
_COSINES = [[math.cos((2 * x + 1) * u * math.pi / 16) * (math.sqrt(0.125) if u == 0 else 0.5)
             for x in range(8)] for u in range(8)]


def _tables(quality):
    """The quantization tables for luminance and chrominance, scaled for a quality from 1 to 100 by libjpeg's formula."""
    scale = 5000 / quality if quality < 50 else 200 - 2 * quality
    chroma = [_CHROMA[k // 8 * 4 + k % 8] if k % 8 < 4 and k // 8 < 4 else 99 for k in range(64)]
    return [[min(255, max(1, int((int(v) * scale + 50) / 100))) for v in table]
            for table in (_LUMA, chroma)]


def _lines(values):
    """The cosine transform of each line of eight values; the results are transposed."""
    lines = [values[i:i + 8] for i in range(0, 64, 8)]
    return [c0 * a + c1 * b + c2 * c + c3 * d + c4 * e + c5 * f + c6 * g + c7 * h
            for c0, c1, c2, c3, c4, c5, c6, c7 in _COSINES for a, b, c, d, e, f, g, h in lines]


def _transform(block):
    return _lines(_lines(block))


def _symbols(coefficients, before):
    """(symbol, extra bits, extra bit count) of one block: first the difference between its average and
    `before`, that of the block before, then the rest."""
    def extra(value):
        size = abs(value).bit_length()
        return size, value if value >= 0 else value + (1 << size) - 1

    size, bits = extra(coefficients[0] - before)
    result, zeros = [(size, bits, size)], 0
    for value in coefficients[1:]:
        if value == 0:
            zeros += 1
            continue
        while zeros > 15:
            result.append((0xF0, 0, 0))     # sixteen zeros
            zeros -= 16
        size, bits = extra(value)
        result.append((zeros << 4 | size, bits, size))
        zeros = 0
    if zeros:
        result.append((0, 0, 0))            # only zeros up to the end of the block
    return result


def _code(counts):
    """A prefix code of at most 16 bits for the counted symbols: (how many codes of 1 to 16 bits, symbols by code,
    symbol -> (code, bits))."""
    trees = sorted((n, s, [s]) for s, n in counts.items())  # count, greatest symbol, symbols
    trees.insert(0, (0, -1, [-1]))                   # takes the all-ones code word, which JPEG reserves
    depth = {s: 0 for _, s, _ in trees}
    while len(trees) > 1:
        (n, _, a), (m, s, b) = trees[0], trees[1]
        for symbol in a + b:
            depth[symbol] += 1
        trees = sorted(trees[2:] + [(n + m, max(a + b), a + b)])
    lengths = [0] * (max(max(depth.values()), 16) + 1)
    for bits in depth.values():
        lengths[bits] += 1
    for i in range(len(lengths) - 1, 16, -1):        # shorten codes beyond 16 bits
        while lengths[i]:
            j = i - 2
            while not lengths[j]:
                j -= 1
            lengths[i] -= 2
            lengths[i - 1] += 1
            lengths[j + 1] += 2
            lengths[j] -= 1
    longest = max(i for i in range(17) if lengths[i])
    lengths[longest] -= 1                            # the reserved one
    symbols = sorted((s for s in depth if s >= 0), key=lambda s: (depth[s], s))
    codes, code, k = {}, 0, 0
    for bits in range(1, 17):
        for _ in range(lengths[bits]):
            codes[symbols[k]] = (code, bits)
            code, k = code + 1, k + 1
        code <<= 1
    return lengths[1:17], symbols, codes


def encode(drawing, scale, quality=82):
    image = render(drawing, scale)
    height, width = len(image), len(image[0])
    quant = _tables(quality)
    before, blocks, cache = [0, 0, 0], [], {}
    for y in range(0, height, 8):
        for x in range(0, width, 8):
            pixels = [image[min(height - 1, y + k // 8)][min(width - 1, x + k % 8)]
                      for k in range(64)]
            planes = ([0.299 * r + 0.587 * g + 0.114 * b - 128 for r, g, b, _ in pixels],
                      [-0.168736 * r - 0.331264 * g + 0.5 * b for r, g, b, _ in pixels],
                      [0.5 * r - 0.418688 * g - 0.081312 * b for r, g, b, _ in pixels])
            for c, plane in enumerate(planes):
                table, key = quant[c > 0], (c > 0, tuple(plane))
                if key not in cache:
                    values = _transform(plane)
                    cache[key] = [round(values[k] / table[k]) for k in _ZIGZAG]
                blocks.append((c > 0, _symbols(cache[key], before[c])))
                before[c] = cache[key][0]
    # A code for each kind (0: luminance, 1: chrominance) and part (0: averages, 1: the rest).
    counts = {(kind, part): {} for kind in (0, 1) for part in (0, 1)}
    for kind, symbols in blocks:
        for n, (symbol, _, _) in enumerate(symbols):
            table = counts[int(kind), int(n > 0)]
            table[symbol] = table.get(symbol, 0) + 1
    codes = {key: _code(table) for key, table in counts.items()}
    bits = []
    for kind, symbols in blocks:
        for n, (symbol, more, size) in enumerate(symbols):
            code, length = codes[int(kind), int(n > 0)][2][symbol]
            bits.append(f"{code:0{length}b}" + (f"{more:0{size}b}" if size else ""))
    text = "".join(bits)
    text += "1" * (-len(text) % 8)          # fills the last byte
    scan = int(text, 2).to_bytes(len(text) // 8, "big").replace(b"\xff", b"\xff\0")  # FF alone begins a marker

    def segment(marker, body):
        return struct.pack(">BBH", 0xFF, marker, len(body) + 2) + body

    # The segments: the file's header, quantization tables, frame header, Huffman codes, scan header.
    data = b"\xff\xd8" + segment(0xE0, b"JFIF\0\1\1\0\0\1\0\1\0\0")
    for n, table in enumerate(quant):
        data += segment(0xDB, bytes([n, *(table[k] for k in _ZIGZAG)]))
    data += segment(0xC0, struct.pack(">BHHB", 8, height, width, 3) +
                    bytes([1, 0x11, 0, 2, 0x11, 1, 3, 0x11, 1]))
    for (kind, part), (lengths, symbols, _) in sorted(codes.items()):
        data += segment(0xC4, bytes([part << 4 | kind, *lengths, *symbols]))
    return data + segment(0xDA, bytes([3, 1, 0, 2, 0x11, 3, 0x11, 0, 63, 0])) + scan + b"\xff\xd9"
