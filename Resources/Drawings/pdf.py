"""One-page vector PDF of a drawing (plain colours, no gradients)."""

from svg import number


def _rgb(colour, operator):
    return " ".join(f"{int(colour[i:i + 2], 16) / 255:.4f}" for i in (1, 3, 5)) + " " + operator


def _content(drawing):
    # PDF's y axis points up; ends and joins of strokes are round.
    lines = [f"1 0 0 -1 0 {number(drawing.height)} cm", "1 J 1 j"]
    for item in drawing.items:
        if item.opacity != 1 or item.butt or (item.fill and not isinstance(item.fill, str)):
            raise ValueError("a PDF picture takes opaque plain colours and round ends only")
        if item.fill:
            lines.append(_rgb(item.fill, "rg"))
        if item.stroke:
            lines.append(_rgb(item.stroke, "RG") + f" {number(item.width)} w")
        for kind, *values in item.outline:
            operator = {"M": "m", "L": "l", "C": "c", "Z": "h"}[kind]
            lines.append(" ".join([*(number(v) for v in values), operator]))
        # The operators for: fill and stroke, fill, stroke.
        lines.append({(1, 1): "B", (1, 0): "f", (0, 1): "S"}[bool(item.fill), bool(item.stroke)])
    return ("\n".join(lines) + "\n").encode()


def encode(drawing):
    stream = _content(drawing)
    box = f"[0 0 {number(drawing.width)} {number(drawing.height)}]"
    objects = [b"<< /Type /Catalog /Pages 2 0 R >>",
               b"<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
               f"<< /Type /Page /Parent 2 0 R /MediaBox {box} /Resources << >> "
               f"/Contents 4 0 R >>".encode(),
               f"<< /Length {len(stream)} >>\nstream\n".encode() + stream + b"endstream"]
    data, offsets = b"%PDF-1.4\n", []
    for n, body in enumerate(objects, 1):
        offsets.append(len(data))
        data += b"%d 0 obj\n%s\nendobj\n" % (n, body)
    table = b"".join(b"%010d 00000 n \n" % offset for offset in offsets)
    count = len(objects) + 1
    return data + (b"xref\n0 %d\n0000000000 65535 f \n" % count + table +
                   b"trailer\n<< /Size %d /Root 1 0 R >>\nstartxref\n%d\n%%%%EOF\n"
                   % (count, len(data)))
