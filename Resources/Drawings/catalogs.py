"""The five source catalogs as a map from file path to bytes."""

import json

import food
import icons
import jpeg
import names
import pages
import paths
import pdf
import placeholders
import questions
import raster
import svg
from canvas import Drawing, Gradient
from colours import DARK, colours
from countries import countries

# The pictures that are not SVG files.
PNG = set("ava_1 ava_2 ava_3 ava_4 banana fried_egg omlet cup bubble_1 bubble_2 logo_small welcom_logo "
          "exercise_test_image red_point".split())
JPEG = set("trainer_header_background feedPlaceholder defaultCourseBoy defaultCourseGirl".split())
PDF = {"arrow", "card", "choose"}
# The pictures that have a mirrored file for right-to-left languages.
MIRRORED = {"arrow_right", "icon_forward", "disclosure_icon"}


def _json(value):
    return (json.dumps(value, indent=2, sort_keys=True, separators=(",", " : ")) + "\n").encode()


def _contents(**values):
    return _json({"info": {"author": "lumora", "version": 1}, **values})


def _mirror(drawing):
    """The same drawing for right-to-left reading."""
    result = Drawing(drawing.width, drawing.height)
    result.template = drawing.template
    m = (-1, 0, 0, 1, drawing.width, 0)
    for item in drawing.items:
        fill = item.fill
        if isinstance(fill, Gradient):
            x0, y0, x1, y1 = fill.line
            fill = Gradient(fill.first, fill.last, (drawing.width - x0, y0, drawing.width - x1, y1))
        result.add(paths.mapped(item.outline, m), fill, item.stroke, item.width, item.opacity, item.butt)
    return result


def _image(name, drawing, dark):
    """The files of one image set, by name inside its folder. `dark` makes the drawing for dark mode, or is None."""
    files, entries, properties = {}, [], {}
    if name in PNG or name in JPEG:
        kind = "png" if name in PNG else "jpg"
        for scale in (1, 2, 3) if name in PNG else (1, 2):
            file = f"{name}{'' if scale == 1 else f'@{scale}x'}.{kind}"
            files[file] = (raster.png if kind == "png" else jpeg.encode)(drawing, scale)
            entries.append({"filename": file, "idiom": "universal", "scale": f"{scale}x"})
    elif name in PDF:
        files[f"{name}.pdf"] = pdf.encode(drawing)
        entries.append({"filename": f"{name}.pdf", "idiom": "universal"})
    else:
        files[f"{name}.svg"] = svg.encode(drawing)
        entries.append({"filename": f"{name}.svg", "idiom": "universal"})
    if dark:
        files[f"{name}-dark.svg"] = svg.encode(dark())
        entries.append({"appearances": [DARK], "filename": f"{name}-dark.svg", "idiom": "universal"})
    if name in MIRRORED:
        files[f"{name}-rtl.svg"] = svg.encode(_mirror(drawing))
        entries[0]["language-direction"] = "left-to-right"
        entries.append({"filename": f"{name}-rtl.svg", "idiom": "universal",
                        "language-direction": "right-to-left"})
    if name not in PNG and name not in JPEG:
        properties["preserves-vector-representation"] = True
    if drawing.template:
        properties["template-rendering-intent"] = "template"
    files["Contents.json"] = _contents(images=entries, **({"properties": properties} if properties else {}))
    return files


def drawings():
    """name -> function giving the drawing."""
    result = {}
    for module in (icons, food, questions, placeholders, pages):
        for name, function in module.pictures().items():
            if name in result:
                raise ValueError(f"{name} is drawn twice")
            result[name] = function
    return result


def files():
    """Every file of every catalog: path relative to Resources -> bytes."""
    result = {}

    def put(folder, contents):
        for name, data in contents.items():
            result[f"{folder}/{name}"] = data

    def group(catalog, folder):
        """Puts the Contents.json of the catalog and of each folder on the path; returns the path below Resources."""
        root = f"{catalog}.xcassets"
        put(root, {"Contents.json": _contents()})
        for part in folder.split("/") if folder else ():
            root += f"/{part}"
            put(root, {"Contents.json": _contents()})
        return root

    for name, folder, entries in colours():
        put(f"{group('Colors', folder)}/{name}.colorset", {"Contents.json": _contents(colors=entries)})
    pictures, dark = drawings(), placeholders.dark_pictures()
    for catalog, kinds in names.CATALOGS.items():
        for name in kinds.get("imageset", ()):
            root = group(catalog, names.FOLDERS.get(catalog, {}).get(name, ""))
            put(f"{root}/{name}.imageset", _image(name, pictures[name](), dark.get(name)))
        for name in kinds.get("dataset", ()):
            entry = {"filename": f"{name}.json", "idiom": "universal",
                     "universal-type-identifier": "public.json"}
            put(f"{group(catalog, '')}/{name}.dataset",
                {f"{name}.json": _json(countries()), "Contents.json": _contents(data=[entry])})
    return dict(sorted(result.items()))
