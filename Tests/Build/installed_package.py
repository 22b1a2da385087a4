"""Installs the package, moves it, and uses it as other programs do."""
import concurrent.futures
import os
import pathlib
import subprocess
import tempfile

from package_support import NUMBER, compile_by_pkg_config, expect, options, run, russian, source

with tempfile.TemporaryDirectory(prefix="lumora päckage ") as folder:
    folder = pathlib.Path(folder)
    run(options.cmake, "--install", options.build, "--prefix", folder / "first")
    prefix = folder / "moved tree"
    (folder / "first").rename(prefix)
    [library] = prefix.rglob("liblumora.so")
    bundle = library.parent.resolve() / "lumora-1/Lumora.bundle"
    environment = os.environ | {"LD_LIBRARY_PATH": str(library.parent), "LANG": "ru_RU.UTF-8", "LANGUAGE": "", "LC_ALL": ""}

    run(options.cmake, "-S", source / "Tests/Build/consumer", "-B", folder / "app", "-G", options.generator,
        f"-DCMAKE_PREFIX_PATH={prefix}")
    run(options.cmake, "--build", folder / "app")
    expect("find_package", run(folder / "app/app").splitlines(), [russian("Continue"), NUMBER, str(bundle)])

    # A public header compiles alone. In C++17 only the C header Lumora/Loc.h does; others give one error, apart from that of
    # the missing file lumora-needs-c++20, which ends the compilation.
    include, platform = prefix / "include", prefix / "include/lumora-platform"
    headers = sorted(str(path.relative_to(platform if path.is_relative_to(platform) else include)) for path in include.rglob("*.h"))

    def errors(standard, code, *more):
        done = subprocess.run(["c++", standard, "-fsyntax-only", "-Wall", "-Wextra", "-Werror", *more, "-I", include,
                               "-I", platform, "-x", "c++", "-"], input=code, capture_output=True, text=True)
        return [line for line in done.stderr.splitlines() if "error:" in line and "fatal error: lumora-needs" not in line]

    def check_header(header):
        code = f"#include <{header}>\n"
        expect(header, errors("-std=c++20", code), [])
        older = errors("-std=c++17", code)
        expect(f"{header} in C++17: {older}", len(older), 0 if header == "Lumora/Loc.h" else 1)
        expect(f"{header} in C++17", all("C++20" in line for line in older), True)

    with concurrent.futures.ThreadPoolExecutor(max_workers=2) as pool:
        list(pool.map(check_header, headers))

    # Messages need run-time type information, and their header says so; everything else works without it.
    expect("messages without RTTI", ["-frtti" in line for line in errors("-std=c++20", "#include <Runtime/Class.h>", "-fno-rtti")], [True])
    # Only the module's class RecordFactory can create asset records, and no client can define it again.
    again = errors("-std=c++20", """#include <Lumora/Lumora.h>
        class Lumora::LumoraAssetModule::RecordFactory { public: static LumoraImages image() { return LumoraImages("a"); } };""")
    expect("another RecordFactory", "redefinition" in again[0], True)

    program = folder / "by pkg-config"
    for option in ("-frtti", "-fno-rtti"):
        compile_by_pkg_config("lumora", [source / "Tests/Build/consumer/app.cpp"], program, ["c++", "-std=c++20", option],
                              library.parent / "pkgconfig")
        expect(f"pkg-config, {option}", run(program, env=environment).splitlines()[:2], [russian("Continue"), NUMBER])

    # Used through a link to the tree, and through links to the libraries only.
    (folder / "link").symlink_to(prefix)
    linked = folder / "link" / library.relative_to(prefix)
    expect("linked tree", run(program, env=environment | {"LD_LIBRARY_PATH": str(linked.parent)}).splitlines()[:2],
           [russian("Continue"), NUMBER])
    (folder / "alone").mkdir()
    for name in ("liblumora.so.1", "liblumora-platform.so.1"):
        (folder / "alone" / name).symlink_to((library.parent / name).resolve())
    expect("linked libraries", run(program, env=environment | {"LD_LIBRARY_PATH": str(folder / "alone")}).splitlines()[:2],
           [russian("Continue"), NUMBER])

    expect("a program that loads the library by its path", run(folder / "app/host", os.path.relpath(library, folder), cwd=folder, env=environment).splitlines(),
           [russian("Continue"), "25 лет"])
    expect("lumora text", run(prefix / "bin/lumora", "text", "--language", "ru", "Continue"), russian("Continue") + "\n")

    # Tables in XML are read by a plug-in. Without the plug-in they cannot be read, which is reported.
    tables = folder / "Xml.bundle/Base.lproj"
    tables.mkdir(parents=True)
    (tables / "Localizable.strings").write_text("<plist><dict><key>a</key><string>text</string></dict></plist>")
    read = [prefix / "bin/lumora", "text", "--bundle", tables.parent, "a"]
    expect("an XML table", run(*read), "text\n")
    [plugin] = prefix.rglob("lumora-xml.so")
    plugin.unlink()
    done = subprocess.run(read, capture_output=True, text=True)
    expect("without the plug-in", (done.returncode, done.stdout, plugin.name in done.stderr), (2, "", True))

    # Drawings are drawn by another plug-in. A compile needs it only for drawings that the last compile did not draw.
    picture = folder / "Drawn/A.xcassets/p.imageset"
    picture.mkdir(parents=True)
    (picture / "Contents.json").write_text('{"images": [{"filename": "p.svg"}]}')
    (picture / "p.svg").write_text('<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"/>')
    compiled = [prefix / "bin/lumora", "compile", folder / "Drawn", "-o", folder / "Drawn.bundle"]
    run(*compiled)
    [plugin] = prefix.rglob("lumora-drawing.so")
    plugin.unlink()
    run(*compiled)
    (picture / "p.svg").write_text('<svg xmlns="http://www.w3.org/2000/svg" width="8" height="9"/>')
    done = subprocess.run(compiled, capture_output=True, text=True)
    expect("without the plug-in", (done.returncode, f"pictures cannot be drawn: {plugin.resolve()}: " in done.stderr), (2, True))

    # Each component has its own files only.
    for component, present, absent in (("runtime", "liblumora.so.1", "*.h"), ("development", "Lumora.h", "liblumora.so.1"),
                                       ("tools", "lumora-drawing.so", "*.h")):
        run(options.cmake, "--install", options.build, "--prefix", folder / component, "--component", component)
        expect(component, ([] != [*(folder / component).rglob(present)], [*(folder / component).rglob(absent)]), (True, []))
print("the installed package works where it was moved")
