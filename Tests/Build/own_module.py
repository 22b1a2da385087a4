"""Builds Examples/Shop with the installed package, runs it in its languages, and checks what is built again after a
change: with Ninja and with Make."""
import os
import pathlib
import shutil
import subprocess
import tempfile

from package_support import expect, options, run, source


def shown(program, language):
    environment = os.environ | {"LANGUAGE": language, "LC_ALL": "", "LC_MESSAGES": "", "LANG": f"{language}.UTF-8"}
    return run(program, env=environment).splitlines()


def times(folder, pattern):
    """The modification times of files, by relative path."""
    return {str(path.relative_to(folder)): path.stat().st_mtime_ns for path in folder.rglob(pattern) if path.is_file()}


def changed(before, after):
    return sorted(name for name in before.keys() | after.keys() if before.get(name) != after.get(name))


def replace(path, old, new):
    text = path.read_text(encoding="utf-8")
    expect(f"{old!r} in {path.name}", old in text, True)
    path.write_text(text.replace(old, new), encoding="utf-8")


def build_and_change(prefix, folder, generator):
    shop, build = folder / "Shop", folder / "build"
    shutil.copytree(source / "Examples/Shop", shop)
    run(options.cmake, "-S", shop, "-B", build, "-G", generator, f"-DCMAKE_PREFIX_PATH={prefix}", "-DCMAKE_BUILD_TYPE=Debug",
        "-DCMAKE_UNITY_BUILD=ON", "-DCMAKE_CXX_FLAGS=-fno-rtti")
    make = [options.cmake, "--build", build, "--parallel", "2", "--target", "shop"]
    run(*make)
    program, [bundle] = build / "shop", build.rglob("Shop.bundle")

    expect("English", shown(program, "en")[:6],
           ["Kettle & Leaf: Tea and coffee, packed today", "Good to see you, Ann!", "Darjeeling for €12.50", "1.5 kg",
            "Rated 4.6 of 5", "Order 4711 is on its way"])
    expect("English plurals", shown(program, "en")[6:15],
           ["  No articles", "  1 article", "  2 articles", "  5 articles", "  11 articles", "  100 articles",
            "  12 articles in 1 box", "  Let it steep for 4 minutes", "  Arrives in 3 days"])
    expect("German number", shown(program, "de")[3], "1,5 kg")
    expect("Arabic plurals", shown(program, "ar")[6:9], ["  لا منتجات", "  منتج واحد", "  منتجان"])
    expect("light and dark", shown(program, "en")[15].split(), ["copper", "#A8552A", "copper", "#E39A6B"])
    expect("pictures", [line.split()[-1] for line in shown(program, "en")[19:]], ["decoded"] * 6)

    # Nothing changed: nothing is built.
    files, objects = times(bundle, "*"), times(build, "*.o")
    configured = (build / "CMakeCache.txt").stat().st_mtime_ns
    run(*make)
    expect(f"{generator}: nothing to do", (changed(files, times(bundle, "*")), changed(objects, times(build, "*.o"))), ([], []))

    # A changed translation: its table and the bundle's mark file are written, but no source is compiled.
    replace(shop / "Resources/de.lproj/Localizable.strings", "Zum Warenkorb", "Zum Korb")
    run(*make)
    expect(f"{generator}: a translation", (changed(files, times(bundle, "*")), changed(objects, times(build, "*.o"))),
           ([".lumora-bundle", "de.lproj/Localizable.strings"], []))

    # A new language in a new folder is found without configuring again.
    (shop / "Resources/more/fr.lproj").mkdir(parents=True)
    (shop / "Resources/more/fr.lproj/Localizable.strings").write_text('"home.title" = "Bouilloire";\n', encoding="utf-8")
    run(*make)
    expect(f"{generator}: French", shown(program, "fr")[0].split(":")[0], "Bouilloire")
    expect(f"{generator}: a new language compiles no source", changed(objects, times(build, "*.o")), [])

    # A changed placeholder changes its accessor, so its caller no longer compiles.
    replace(shop / "Resources/en.lproj/Localizable.strings", "Good to see you, %@!", "Good to see you, %@ and %@!")
    try:
        run(*make)
    except SystemExit as failed:  # by run()
        expect(f"{generator}: a changed accessor", "welcome" in str(failed), True)
    else:
        raise SystemExit("a call with too few arguments compiled")
    expect(f"{generator}: configured once", (build / "CMakeCache.txt").stat().st_mtime_ns, configured)

    replace(shop / "Resources/en.lproj/Localizable.strings", "Good to see you, %@ and %@!", "Good to see you, %@!")
    run(*make)

    # Without its bundle a program stops at its first asset, and reports the asset and the missing bundle.
    shutil.rmtree(bundle)
    done = subprocess.run([program], capture_output=True, text=True)
    report = done.stderr.splitlines()
    expect("without bundle", (done.returncode < 0, "Unable to load color asset named copper." in report[0], report[1:]),
           (True, True, [f"There is no bundle at {bundle}"]))


with tempfile.TemporaryDirectory(prefix="lumora-module-") as top:
    top = pathlib.Path(top)
    run(options.cmake, "--install", options.build, "--prefix", top / "prefix")
    for name in ("Ninja", "Unix Makefiles"):
        folder = top / name.split()[0]
        folder.mkdir()
        build_and_change(top / "prefix", folder, name)
    wrong = top / "wrong"
    shutil.copytree(source / "Examples/Shop", wrong)
    replace(wrong / "CMakeLists.txt", "lumora_install_module(Shop)", "lumora_install_module(Shop EXPORTS set)")
    done = subprocess.run([options.cmake, "-S", wrong, "-B", top / "wrong build", f"-DCMAKE_PREFIX_PATH={top / 'prefix'}"], capture_output=True, text=True)
    expect("an unknown argument", (done.returncode, "usage: lumora_install_module(" in done.stderr), (1, True))
print("an application's own module is built and runs, and after a change only what needs it is built again")
