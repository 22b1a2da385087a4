"""SVG text of a drawing."""

from canvas import Gradient


def number(value):
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text in ("-0", "") else text


def path(outline):
    parts = []
    for kind, *values in outline:
        text = kind
        for value in values:
            n = number(value)
            text += n if text[-1].isalpha() or n[0] == "-" else " " + n
        parts.append(text)
    return "".join(parts)


def encode(drawing):
    w, h = number(drawing.width), number(drawing.height)
    fades, body = [], []
    for item in drawing.items:
        attributes = ""
        if isinstance(item.fill, Gradient):
            key = f"g{len(fades) + 1}"
            x1, y1, x2, y2 = (number(v) for v in item.fill.line)
            fades.append(f'<linearGradient id="{key}" gradientUnits="userSpaceOnUse" x1="{x1}" '
                         f'y1="{y1}" x2="{x2}" y2="{y2}"><stop offset="0" '
                         f'stop-color="{item.fill.first}"/><stop offset="1" '
                         f'stop-color="{item.fill.last}"/></linearGradient>')
            attributes += f' fill="url(#{key})"'
        else:
            attributes += f' fill="{item.fill or "none"}"'
        if item.stroke:
            attributes += f' stroke="{item.stroke}" stroke-width="{number(item.width)}"'
            if item.butt:
                attributes += ' stroke-linecap="butt"'
        if item.opacity != 1:
            attributes += f' opacity="{number(item.opacity)}"'
        body.append(f'<path d="{path(item.outline)}"{attributes}/>')
    head = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{w}" height="{h}" '
            f'viewBox="0 0 {w} {h}" stroke-linecap="round" stroke-linejoin="round">')
    defs = ["<defs>" + "".join(fades) + "</defs>"] if fades else []
    return ("\n".join([head, *defs, *body, "</svg>"]) + "\n").encode()
